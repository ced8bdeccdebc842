<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AIConsent</name>
    <message>
        <source>Sending to OpenAI needs your permission first. Open Data &amp; AI from the menu bar.</source>
        <translation>发送到 OpenAI 需要您先同意。请打开设置中的“数据与 AI”。</translation>
    </message>
</context>
<context>
    <name>Age</name>
    <message>
        <source>1 day</source>
        <extracomment>Part of how long ago something was.</extracomment>
        <translation>1 天</translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%Ln 天</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hr</source>
        <extracomment>Part of how long ago something was.</extracomment>
        <translation>1 小时</translation>
    </message>
    <message numerus="yes">
        <source>%n hrs</source>
        <translation>
            <numerusform>%Ln 小时</numerusform>
        </translation>
    </message>
    <message>
        <source>just now</source>
        <translation>刚刚</translation>
    </message>
    <message numerus="yes">
        <source>%n min ago</source>
        <translation>
            <numerusform>%Ln 分钟前</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 ago</source>
        <extracomment>%1: &quot;3 hrs&quot; or &quot;2 days&quot;.</extracomment>
        <translation>%1前</translation>
    </message>
    <message>
        <source>%1, %2 ago</source>
        <extracomment>%1: &quot;2 days&quot;, %2: &quot;3 hrs&quot;.</extracomment>
        <translation>%1 %2前</translation>
    </message>
</context>
<context>
    <name>ApiError</name>
    <message>
        <source>Couldn&apos;t read the recording.</source>
        <translation>无法读取录音。</translation>
    </message>
    <message>
        <source>Nothing was recorded. Check microphone access.</source>
        <translation>没有录到声音。请检查麦克风权限。</translation>
    </message>
    <message>
        <source>The service is unavailable right now. Please try again later.</source>
        <translation>服务暂时不可用。请稍后再试。</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>网络错误。请检查连接。</translation>
    </message>
    <message>
        <source>Something went wrong. Please try again.</source>
        <translation>出了点问题。请重试。</translation>
    </message>
</context>
<context>
    <name>CopyPill</name>
    <message>
        <source>COPIED</source>
        <translation>已复制</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>已复制</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
</context>
<context>
    <name>DisclosureView</name>
    <message>
        <source>Data &amp; AI</source>
        <translation>数据与 AI</translation>
    </message>
    <message>
        <source>Before we start</source>
        <translation>开始之前</translation>
    </message>
    <message>
        <source>To turn your speech into text, this app sends your voice recording through our server to &lt;b&gt;OpenAI&lt;/b&gt;, a third-party AI service in the United States.</source>
        <translation>为了把语音转成文字，本应用会通过我们的服务器把您的录音发送给 &lt;b&gt;OpenAI&lt;/b&gt;，这是一家位于美国的第三方 AI 服务。</translation>
    </message>
    <message>
        <source>Our server passes your recording on without storing it. It keeps only your token balance and purchases, under a random ID created on this Mac — no name, email, account or location. Your recording is deleted once it has been transcribed, and your transcripts are stored only on this Mac.</source>
        <translation>我们的服务器只转发录音，不会存储。它只保留您的令牌余额和购买记录，并以在这台计算机上生成的随机 ID 标识 — 不含姓名、邮箱、账号或位置。录音转写完成后即被删除，转写内容只保存在这台计算机上。</translation>
    </message>
    <message>
        <source>What OpenAI does with it ↗</source>
        <translation>OpenAI 如何处理录音 ↗</translation>
    </message>
    <message>
        <source>Our privacy policy ↗</source>
        <translation>我们的隐私政策 ↗</translation>
    </message>
    <message>
        <source>You agreed on %1.</source>
        <translation>您已于 %1 同意。</translation>
    </message>
    <message>
        <source>Withdraw consent</source>
        <translation>撤回同意</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>以后再说</translation>
    </message>
    <message>
        <source>Keep it on</source>
        <translation>保持开启</translation>
    </message>
    <message>
        <source>I agree — send to OpenAI</source>
        <translation>同意 — 发送到 OpenAI</translation>
    </message>
    <message>
        <source>You can withdraw this at any time from the menu bar under Data &amp; AI. Without it, dictation stays off.</source>
        <translation>您可以随时在设置的“数据与 AI”中撤回。未同意时，听写保持关闭。</translation>
    </message>
</context>
<context>
    <name>EntryList</name>
    <message>
        <source>Entries</source>
        <translation>条目</translation>
    </message>
    <message>
        <source>No matches.</source>
        <translation>没有匹配项。</translation>
    </message>
    <message>
        <source>Try a different search.</source>
        <translation>请换个关键词搜索。</translation>
    </message>
</context>
<context>
    <name>EntryMenu</name>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Move to Group</source>
        <translation>移动到群组</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
<context>
    <name>GroupCarousel</name>
    <message>
        <source>Current group</source>
        <translation>当前群组</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Edit groups</source>
        <translation>编辑群组</translation>
    </message>
</context>
<context>
    <name>GroupCarouselModel</name>
    <message>
        <source>All entries</source>
        <translation>所有条目</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>未命名</translation>
    </message>
    <message>
        <source>Dictations go into %1 while it&apos;s selected.</source>
        <translation>选中期间，听写内容会存入“%1”。</translation>
    </message>
</context>
<context>
    <name>GroupEditor</name>
    <message>
        <source>Groups</source>
        <translation>群组</translation>
    </message>
    <message>
        <source>Dictations go into the selected group. Deleting a group keeps its entries under All entries.</source>
        <translation>听写内容会存入选中的群组。删除群组后，其条目仍保留在“所有条目”中。</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>新群组</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>群组</translation>
    </message>
</context>
<context>
    <name>GroupRow</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Name of the group</source>
        <translation>群组名称</translation>
    </message>
    <message>
        <source>Delete group</source>
        <translation>删除群组</translation>
    </message>
</context>
<context>
    <name>HUDView</name>
    <message>
        <source>Dictating into %1</source>
        <translation>听写到 %1</translation>
    </message>
    <message>
        <source>Listening — press again to stop</source>
        <translation>正在聆听 — 再按一次停止</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>正在聆听</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>正在转写…</translation>
    </message>
    <message>
        <source>No free tokens were left today</source>
        <translation>今天的免费令牌已发完</translation>
    </message>
    <message>
        <source>You&apos;re out of tokens</source>
        <translation>令牌已用完</translation>
    </message>
    <message>
        <source>Buy…</source>
        <translation>购买…</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>1 entry</source>
        <translation>1 个条目</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%Ln 个条目</numerusform>
        </translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>所有条目</translation>
    </message>
</context>
<context>
    <name>HistoryView</name>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>No entries yet.</source>
        <translation>还没有条目。</translation>
    </message>
    <message>
        <source>Dictate with %1 to see it here.</source>
        <translation>用 %1 听写，结果会显示在这里。</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search transcriptions</source>
        <translation>搜索转写内容</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>清除搜索</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>Space</source>
        <translation>空格</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Backspace</translation>
    </message>
    <message>
        <source>⌦</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page Up</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page Down</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>小键盘 Enter</translation>
    </message>
    <message>
        <source>Right ⌥ Option</source>
        <translation>右 Alt</translation>
    </message>
    <message>
        <source>Right ⌘ Command</source>
        <translation>右 Super</translation>
    </message>
    <message>
        <source>Right ⌃ Control</source>
        <translation>右 Ctrl</translation>
    </message>
    <message>
        <source>Fn (🌐)</source>
        <translation>Fn</translation>
    </message>
    <message>
        <source>Hold to talk, or tap for hands-free</source>
        <translation>按住说话，或轻按免按住</translation>
    </message>
    <message>
        <source>Hold to talk only</source>
        <translation>仅按住说话</translation>
    </message>
    <message>
        <source>Tap to start and stop</source>
        <translation>轻按开始和停止</translation>
    </message>
    <message>
        <source>⌃</source>
        <translation>Ctrl+</translation>
    </message>
    <message>
        <source>⌥</source>
        <translation>Alt+</translation>
    </message>
    <message>
        <source>⇧</source>
        <translation>Shift+</translation>
    </message>
    <message>
        <source>⌘</source>
        <translation>Super+</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <extracomment>%1: the modifier keys of a shortcut, %2: its key.</extracomment>
        <translation>%1%2</translation>
    </message>
    <message>
        <source>Esc is used to cancel a dictation.</source>
        <translation>Esc 用于取消听写。</translation>
    </message>
    <message>
        <source>Add ⌘, ⌥ or ⌃ — or use an F-key — so it doesn&apos;t block typing.</source>
        <translation>请加上 Ctrl、Alt 或 Super，或使用 F 键，以免影响打字。</translation>
    </message>
</context>
</TS>
