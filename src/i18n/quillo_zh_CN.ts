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
    <message>
        <source>Couldn&apos;t start the microphone.</source>
        <translation>无法启动麦克风。</translation>
    </message>
    <message>
        <source>Unlock the keyring first</source>
        <translation>请先解锁密钥环</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>All entries</source>
        <translation>所有条目</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Hold the dictation shortcut</source>
        <translation>按住听写快捷键</translation>
    </message>
    <message>
        <source>Let go of it</source>
        <translation>松开</translation>
    </message>
    <message>
        <source>Start dictating, or finish and paste</source>
        <translation>开始听写，或结束并粘贴</translation>
    </message>
    <message>
        <source>Drop the recording</source>
        <translation>丢弃录音</translation>
    </message>
    <message>
        <source>Show the history</source>
        <translation>显示历史记录</translation>
    </message>
    <message>
        <source>Show the history with the group editor</source>
        <translation>显示历史记录和群组编辑器</translation>
    </message>
    <message>
        <source>Show the settings</source>
        <translation>显示设置</translation>
    </message>
    <message>
        <source>Make the next group the current one</source>
        <translation>切换到下一群组</translation>
    </message>
    <message>
        <source>Open the page where tokens are bought</source>
        <translation>打开购买令牌的页面</translation>
    </message>
    <message>
        <source>Print what the program is doing</source>
        <translation>显示程序当前状态</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>结束程序</translation>
    </message>
    <message>
        <source>Print the text of a recording; - reads standard input</source>
        <translation>输出录音的文字；- 表示标准输入</translation>
    </message>
    <message>
        <source>Print what this desktop offers for dictation, and what is missing</source>
        <translation>显示此桌面为听写提供了什么、缺少什么</translation>
    </message>
    <message>
        <source>Usage: quillo [COMMAND]

Without a command Quillo starts, or shows its history if it runs already.
Hold the dictation shortcut, speak, let go: the words appear in the program in front.

Commands:
</source>
        <translation>用法：quillo [命令]

不带命令时启动 Quillo；如果已在运行，则显示历史记录。
按住听写快捷键说话，松开后文字出现在前台程序中。

命令：
</translation>
    </message>
    <message>
        <source>
Options:
  -h, --help        Print this
  -v, --version     Print the version

Exit status: 0 done, 1 failed, 2 the command line is wrong, 3 Quillo isn&apos;t running.
</source>
        <translation>
选项：
  -h, --help        显示此帮助
  -v, --version     显示版本

退出状态：0 完成，1 失败，2 命令行有误，3 Quillo 未运行。
</translation>
    </message>
    <message>
        <source>--json belongs to the command status.</source>
        <translation>--json 只能用于命令 status。</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>没有命令“%1”。</translation>
    </message>
    <message>
        <source>transcribe takes one file.</source>
        <translation>transcribe 需要一个文件。</translation>
    </message>
    <message>
        <source>%1 takes no argument.</source>
        <translation>%1 不带参数。</translation>
    </message>
    <message>
        <source>Take over what can be read in a damaged history</source>
        <translation>从损坏的历史记录中恢复可读内容</translation>
    </message>
    <message>
        <source>--recover belongs to the command history.</source>
        <translation>--recover 只能用于命令 history。</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
    <name>DataSection</name>
    <message>
        <source>Data &amp; AI</source>
        <translation>数据与 AI</translation>
    </message>
    <message>
        <source>Sending to OpenAI</source>
        <translation>发送到 OpenAI</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>已允许</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Review…</source>
        <translation>查看…</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>令牌</translation>
    </message>
    <message>
        <source>Unmetered</source>
        <translation>不限量</translation>
    </message>
    <message>
        <source>%1</source>
        <comment>number of tokens</comment>
        <translation>%L1</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
</context>
<context>
    <name>Dictation</name>
    <message>
        <source>Listening… (Esc to cancel)</source>
        <translation>正在聆听…（Esc 取消）</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>正在转写…</translation>
    </message>
    <message>
        <source>Hold %1 to dictate</source>
        <translation>按住 %1 开始听写</translation>
    </message>
    <message>
        <source>Tap %1 to dictate</source>
        <translation>按 %1 开始听写</translation>
    </message>
    <message>
        <source>Hold or tap %1 to dictate</source>
        <translation>按住或轻按 %1 开始听写</translation>
    </message>
    <message>
        <source>Microphone access is off for Quillo</source>
        <translation>Quillo 的麦克风权限已关闭</translation>
    </message>
    <message>
        <source>Microphone on — press %1 to dictate</source>
        <translation>麦克风已开启 — 按 %1 开始听写</translation>
    </message>
    <message>
        <source>The microphone was disconnected.</source>
        <translation>麦克风已断开。</translation>
    </message>
    <message>
        <source>Nothing was recorded. Check the microphone.</source>
        <translation>没有录到声音。请检查麦克风。</translation>
    </message>
    <message>
        <source>Didn&apos;t catch anything</source>
        <translation>没有听到内容</translation>
    </message>
    <message>
        <source>Copied — press ⌘V to paste</source>
        <translation>已复制 — 按 Ctrl+V 粘贴（终端中按 Ctrl+Shift+V）</translation>
    </message>
    <message>
        <source>Couldn&apos;t paste. The text is in the history.</source>
        <translation>无法粘贴。文字在历史记录中。</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
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
    <message>
        <source>Recordings go to %1, on this computer: they stay here unless that server passes them on.</source>
        <translation>录音会发送到本机的 %1：除非该服务器转发，否则不会离开这台计算机。</translation>
    </message>
    <message>
        <source>Recordings go to %1.</source>
        <translation>录音会发送到 %1。</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>QUILLO_PLATFORM is &quot;%1&quot;; it can be x11 or wayland.</source>
        <translation>QUILLO_PLATFORM 为“%1”；可以是 x11 或 wayland。</translation>
    </message>
    <message>
        <source>Wayland sessions are not supported yet. Log in to an X11 session, or try QUILLO_PLATFORM=x11, which reaches only the programs that run through Xwayland.</source>
        <translation>尚不支持 Wayland 会话。请登录 X11 会话，或尝试 QUILLO_PLATFORM=x11（仅限 X11 程序）。</translation>
    </message>
    <message>
        <source>There is no X11 display (DISPLAY is not set).</source>
        <translation>没有 X11 显示（未设置 DISPLAY）。</translation>
    </message>
    <message>
        <source>The X11 display %1 can&apos;t be reached.</source>
        <translation>无法连接 X11 显示 %1。</translation>
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
    <name>Finding</name>
    <message>
        <source>there is no X server at $DISPLAY</source>
        <translation>$DISPLAY 处没有 X 服务器</translation>
    </message>
    <message>
        <source>the X server has no keyboard extension (XKB)</source>
        <translation>X 服务器没有键盘扩展 (XKB)</translation>
    </message>
    <message>
        <source>the X server has no XFIXES extension</source>
        <translation>X 服务器没有 XFIXES 扩展</translation>
    </message>
    <message>
        <source>Raw keys</source>
        <translation>单键</translation>
    </message>
    <message>
        <source>no XInput 2.2: the dictation shortcut is a single key</source>
        <translation>没有 XInput 2.2：听写快捷键是单个按键</translation>
    </message>
    <message>
        <source>choose a key combination in the settings</source>
        <translation>请在设置中选择组合键</translation>
    </message>
    <message>
        <source>no XInput 2.2: a single key can&apos;t be a shortcut</source>
        <translation>没有 XInput 2.2：单个按键不能作为快捷键</translation>
    </message>
    <message>
        <source>use a key combination</source>
        <translation>请使用组合键</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>键盘</translation>
    </message>
    <message>
        <source>no XKB</source>
        <translation>没有 XKB</translation>
    </message>
    <message>
        <source>enable the X server&apos;s XKEYBOARD extension</source>
        <translation>启用 X 服务器的 XKEYBOARD 扩展</translation>
    </message>
    <message>
        <source>Key posting</source>
        <translation>按键发送</translation>
    </message>
    <message>
        <source>no XTEST: text is copied, not pasted</source>
        <translation>没有 XTEST：文字只复制不粘贴</translation>
    </message>
    <message>
        <source>paste with Ctrl+V, or enable the X server&apos;s XTEST extension</source>
        <translation>按 Ctrl+V 粘贴，或启用 X 服务器的 XTEST 扩展</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>剪贴板</translation>
    </message>
    <message>
        <source>no XFIXES</source>
        <translation>没有 XFIXES</translation>
    </message>
    <message>
        <source>enable the X server&apos;s XFIXES extension</source>
        <translation>启用 X 服务器的 XFIXES 扩展</translation>
    </message>
    <message>
        <source>Display server</source>
        <translation>显示服务器</translation>
    </message>
    <message>
        <source>log in to an X11 session</source>
        <translation>登录 X11 会话</translation>
    </message>
    <message>
        <source>X11 (%1), backend x11</source>
        <translation>X11 (%1)，后端 x11</translation>
    </message>
    <message>
        <source>Window manager</source>
        <translation>窗口管理器</translation>
    </message>
    <message>
        <source>there</source>
        <translation>有</translation>
    </message>
    <message>
        <source>none: windows may not come to the front</source>
        <translation>没有：窗口可能无法到前台</translation>
    </message>
    <message>
        <source>start a window manager</source>
        <translation>启动窗口管理器</translation>
    </message>
    <message>
        <source>Compositor</source>
        <translation>合成器</translation>
    </message>
    <message>
        <source>none: the status panel has hard edges</source>
        <translation>没有：状态面板边缘不平滑</translation>
    </message>
    <message>
        <source>XEmbed tray</source>
        <translation>XEmbed 托盘</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V does not paste in it</source>
        <translation>其中 Ctrl+Shift+V 不能粘贴</translation>
    </message>
    <message>
        <source>add to ~/.Xresources and load it with xrdb -merge: %1</source>
        <translation>添加到 ~/.Xresources 并用 xrdb -merge 载入：%1</translation>
    </message>
    <message>
        <source>Sound server</source>
        <translation>声音服务器</translation>
    </message>
    <message>
        <source>refuses access</source>
        <translation>拒绝访问</translation>
    </message>
    <message>
        <source>allow Quillo to record in the sandbox or sound settings</source>
        <translation>在沙盒或声音设置中允许 Quillo 录音</translation>
    </message>
    <message>
        <source>not running</source>
        <translation>未运行</translation>
    </message>
    <message>
        <source>start PulseAudio or PipeWire (pipewire-pulse)</source>
        <translation>启动 PulseAudio 或 PipeWire (pipewire-pulse)</translation>
    </message>
    <message>
        <source>Microphone level</source>
        <translation>麦克风音量</translation>
    </message>
    <message>
        <source>it can&apos;t be recorded</source>
        <translation>无法录音</translation>
    </message>
    <message>
        <source>choose another input device</source>
        <translation>请选择其他输入设备</translation>
    </message>
    <message>
        <source>silent</source>
        <translation>无声</translation>
    </message>
    <message>
        <source>unmute the input device in the sound settings</source>
        <translation>在声音设置中取消静音</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>麦克风</translation>
    </message>
    <message>
        <source>no input device</source>
        <translation>没有输入设备</translation>
    </message>
    <message>
        <source>connect a microphone, or choose one in the sound settings</source>
        <translation>连接麦克风，或在声音设置中选择</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>密钥环</translation>
    </message>
    <message>
        <source>absent: no Secret Service on the session bus</source>
        <translation>没有：会话总线上没有 Secret Service</translation>
    </message>
    <message>
        <source>install and start GNOME Keyring, KWallet or KeePassXC; until then the credential is kept in memory and each start is a new device</source>
        <translation>安装并启动 GNOME Keyring、KWallet 或 KeePassXC；在此之前凭据只保存在内存中，每次启动都是新设备</translation>
    </message>
    <message>
        <source>there, without a default keyring</source>
        <translation>有，但没有默认密钥环</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>已锁定</translation>
    </message>
    <message>
        <source>unlock the login keyring; until then the credential is kept in memory and each start is a new device</source>
        <translation>解锁登录密钥环；在此之前凭据只保存在内存中，每次启动都是新设备</translation>
    </message>
    <message>
        <source>usable</source>
        <translation>可用</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read or written</source>
        <translation>%1 无法读取或写入</translation>
    </message>
    <message>
        <source>make it yours: chown and chmod u+rw</source>
        <translation>改为自己所有：chown 和 chmod u+rw</translation>
    </message>
    <message>
        <source>%1 is damaged: what can&apos;t be read counts as not set</source>
        <translation>%1 已损坏：无法读取的内容视为未设置</translation>
    </message>
    <message>
        <source>mend the file or move it away</source>
        <translation>修复文件或将其移走</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>托盘</translation>
    </message>
    <message>
        <source>none on this desktop</source>
        <translation>此桌面没有</translation>
    </message>
    <message>
        <source>start quillo again for the history, use its commands (quillo --help), or add a tray to the panel</source>
        <translation>再次启动 quillo 查看历史记录，使用其命令 (quillo --help)，或在面板中添加托盘</translation>
    </message>
    <message>
        <source>choose another one in the settings</source>
        <translation>请在设置中选择其他</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>the running Quillo does not answer</source>
        <translation>正在运行的 Quillo 没有应答</translation>
    </message>
    <message>
        <source>end it and start it again</source>
        <translation>结束后重新启动</translation>
    </message>
    <message>
        <source>Hot key</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>held by the running Quillo</source>
        <translation>由正在运行的 Quillo 使用</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>会话总线</translation>
    </message>
    <message>
        <source>none: no tray item, no keyring, no commands</source>
        <translation>没有：无托盘图标、无密钥环、无命令</translation>
    </message>
    <message>
        <source>log in through a desktop session, or start one with dbus-run-session</source>
        <translation>通过桌面会话登录，或用 dbus-run-session 启动</translation>
    </message>
    <message>
        <source>there; Quillo is running</source>
        <translation>有；Quillo 正在运行</translation>
    </message>
    <message>
        <source>there; Quillo isn&apos;t running</source>
        <translation>有；Quillo 未运行</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1 可用</translation>
    </message>
    <message>
        <source>%1 is taken by another program</source>
        <translation>%1 已被其他程序占用</translation>
    </message>
    <message>
        <source>not tried: %1</source>
        <translation>未尝试：%1</translation>
    </message>
    <message>
        <source>Backend</source>
        <translation>服务器</translation>
    </message>
    <message>
        <source>no usable address</source>
        <translation>没有可用地址</translation>
    </message>
    <message>
        <source>set apiURL in %1</source>
        <translation>在 %1 中设置 apiURL</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 没有应答</translation>
    </message>
    <message>
        <source>check the network; a server of your own is started with quillo-backend</source>
        <translation>检查网络；自己的服务器用 quillo-backend 启动</translation>
    </message>
    <message>
        <source>%1 answers</source>
        <translation>%1 有应答</translation>
    </message>
    <message>
        <source>%1 answers %2, which no Quillo backend does</source>
        <translation>%1 应答 %2，这不是 Quillo 服务器</translation>
    </message>
    <message>
        <source>check apiURL in %1</source>
        <translation>检查 %1 中的 apiURL</translation>
    </message>
    <message>
        <source>Consent</source>
        <translation>同意</translation>
    </message>
    <message>
        <source>given</source>
        <translation>已同意</translation>
    </message>
    <message>
        <source>not given: dictation stays off</source>
        <translation>未同意：听写保持关闭</translation>
    </message>
    <message>
        <source>start Quillo and agree</source>
        <translation>启动 Quillo 并同意</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Liberation Sans is missing: another face stands in</source>
        <translation>缺少 Liberation Sans：由其他字体代替</translation>
    </message>
    <message>
        <source>install fonts-liberation</source>
        <translation>安装 fonts-liberation</translation>
    </message>
    <message>
        <source>Liberation Sans; the system serif stands in for Fraunces</source>
        <translation>Liberation Sans；Fraunces 由系统衬线字体代替</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>note</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>MISSING</source>
        <translation>缺少</translation>
    </message>
    <message>
        <source>
Dictation can work here.
</source>
        <translation>
此处可以听写。
</translation>
    </message>
    <message>
        <source>
Dictation can&apos;t work here yet.
</source>
        <translation>
此处还不能听写。
</translation>
    </message>
    <message>
        <source>%1 begins neither with https:// nor http://</source>
        <translation>%1 既不以 https:// 也不以 http:// 开头</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>无法读取 %1</translation>
    </message>
    <message>
        <source>it is kept; to take over what can be read: quillo history --recover %1</source>
        <translation>文件已保留；恢复可读内容：quillo history --recover %1</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: nothing new is kept</source>
        <translation>无法写入 %1：新内容不会保存</translation>
    </message>
    <message>
        <source>make it yours: chown and chmod u+rwx</source>
        <translation>改为自己所有：chown 和 chmod u+rwx</translation>
    </message>
    <message>
        <source>%1: the disk is full, nothing new is kept</source>
        <translation>%1：磁盘已满，新内容不会保存</translation>
    </message>
    <message>
        <source>make room</source>
        <translation>腾出空间</translation>
    </message>
    <message>
        <source>%1; put aside because it couldn&apos;t be read: %2</source>
        <translation>%1；因无法读取已移开：%2</translation>
    </message>
    <message>
        <source>it is made, with a password of yours, when tokens are bought; until then the credential is kept in memory and each start is a new device</source>
        <translation>购买令牌时会用您设的密码创建；在此之前凭据只在内存中，每次启动都是新设备</translation>
    </message>
</context>
<context>
    <name>GeneralSettings</name>
    <message>
        <source>Couldn&apos;t change Open at Login</source>
        <translation>无法更改“登录时打开”</translation>
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
    <name>GroupStore</name>
    <message>
        <source>Groups</source>
        <translation>群组</translation>
    </message>
    <message>
        <source>Kept in memory: the groups can&apos;t be saved</source>
        <translation>仅保存在内存中：无法保存群组</translation>
    </message>
    <message>
        <source>The groups can&apos;t be read: a new one begins, the old file is kept</source>
        <translation>无法读取群组：将新建，旧文件保留</translation>
    </message>
</context>
<context>
    <name>GroupsSection</name>
    <message>
        <source>Groups &amp; History</source>
        <translation>群组与历史记录</translation>
    </message>
    <message>
        <source>New dictations go into the current group: %1.</source>
        <translation>新的听写会存入当前群组：%1。</translation>
    </message>
    <message>
        <source>Next group</source>
        <translation>下一群组</translation>
    </message>
    <message>
        <source>Show or hide history</source>
        <translation>显示或隐藏历史记录</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>群组</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>编辑…</translation>
    </message>
    <message>
        <source>Edit groups</source>
        <translation>编辑群组</translation>
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
    <name>HistorySection</name>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Transcripts on this Mac</source>
        <translation>这台计算机上的转写</translation>
    </message>
    <message>
        <source>Clear…</source>
        <translation>清空…</translation>
    </message>
    <message numerus="yes">
        <source>Delete all %n transcripts?</source>
        <translation>
            <numerusform>要删除全部 %Ln 条转写吗？</numerusform>
        </translation>
    </message>
    <message>
        <source>They&apos;re stored only on this Mac, so this can&apos;t be undone.</source>
        <translation>它们只保存在这台计算机上，此操作无法撤销。</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>全部删除</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
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
    <name>Instance</name>
    <message>
        <source>There is no session bus (DBUS_SESSION_BUS_ADDRESS), so Quillo can&apos;t be reached.</source>
        <translation>没有会话总线（DBUS_SESSION_BUS_ADDRESS），无法联系 Quillo。</translation>
    </message>
    <message>
        <source>Quillo isn&apos;t running. Start it with: quillo</source>
        <translation>Quillo 未运行。启动命令：quillo</translation>
    </message>
    <message>
        <source>Quillo refused: %1</source>
        <translation>Quillo 拒绝了：%1</translation>
    </message>
    <message>
        <source>Quillo did not answer: %1</source>
        <translation>Quillo 没有应答：%1</translation>
    </message>
</context>
<context>
    <name>LocalizedError</name>
    <message>
        <source>There is no microphone. Plug one in.</source>
        <translation>没有麦克风。请接上一个。</translation>
    </message>
    <message>
        <source>%1 is no sound file that can be read.</source>
        <translation>%1 不是可读取的声音文件。</translation>
    </message>
    <message>
        <source>There is no sound in %1.</source>
        <translation>%1 中没有声音。</translation>
    </message>
    <message>
        <source>The sound of %1 can&apos;t be decoded.</source>
        <translation>无法解码 %1 的声音。</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>已停止。</translation>
    </message>
    <message>
        <source>The sound of %1 can&apos;t be converted.</source>
        <translation>无法转换 %1 的声音。</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>没有文件 %1。</translation>
    </message>
    <message>
        <source>The converted recording can&apos;t be written.</source>
        <translation>无法写入转换后的录音。</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone.</source>
        <translation>无法启动麦克风。</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Unmetered (dev device)</source>
        <translation>不限量（开发设备）</translation>
    </message>
    <message numerus="yes">
        <source>%1 tokens left</source>
        <translation>
            <numerusform>剩余 %L1 个令牌</numerusform>
        </translation>
    </message>
    <message>
        <source>Today&apos;s free tokens for new users ran out before you joined.</source>
        <translation>今天面向新用户的免费令牌在您加入前已发完。</translation>
    </message>
    <message>
        <source>Buy Tokens…</source>
        <translation>购买令牌…</translation>
    </message>
    <message>
        <source>Allow pasting into other apps…</source>
        <translation>允许粘贴到其他应用…</translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>所有条目</translation>
    </message>
    <message>
        <source>Next Group</source>
        <translation>下一群组</translation>
    </message>
    <message>
        <source>Edit Groups…</source>
        <translation>编辑群组…</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>群组：%1</translation>
    </message>
    <message>
        <source>Hide History</source>
        <translation>隐藏历史记录</translation>
    </message>
    <message>
        <source>Show History</source>
        <translation>显示历史记录</translation>
    </message>
    <message>
        <source>Copy Last Transcript</source>
        <translation>复制最近的转写</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>清除历史记录</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>Quit Quillo</source>
        <translation>退出 Quillo</translation>
    </message>
</context>
<context>
    <name>PermissionRow</name>
    <message>
        <source>Allowed</source>
        <translation>已允许</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>允许…</translation>
    </message>
    <message>
        <source>Allow %1</source>
        <translation>允许%1</translation>
    </message>
</context>
<context>
    <name>Permissions</name>
    <message>
        <source>Allow an input device in the sound settings</source>
        <translation>请在声音设置中允许一个输入设备</translation>
    </message>
    <message>
        <source>Run “quillo doctor” to see what is missing</source>
        <translation>运行 “quillo doctor” 查看缺少什么</translation>
    </message>
</context>
<context>
    <name>PermissionsSection</name>
    <message>
        <source>Permissions</source>
        <translation>权限</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>麦克风</translation>
    </message>
    <message>
        <source>To hear what you say.</source>
        <translation>用于听取您说的话。</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>辅助功能</translation>
    </message>
    <message>
        <source>To paste into other apps. Without it, text is copied and you press ⌘V.</source>
        <translation>用于粘贴到其他应用。未允许时文本会被复制，请按 Ctrl+V（终端中按 Ctrl+Shift+V）。</translation>
    </message>
</context>
<context>
    <name>RecoverHistory</name>
    <message>
        <source>%1 can&apos;t be read.</source>
        <translation>无法读取 %1。</translation>
    </message>
    <message>
        <source>The history can&apos;t be saved: %1</source>
        <translation>无法保存历史记录：%1</translation>
    </message>
    <message>
        <source>1 entry taken over.
</source>
        <translation>已恢复 1 个条目。
</translation>
    </message>
    <message numerus="yes">
        <source>%n entries taken over.
</source>
        <translation>
            <numerusform>已恢复 %Ln 个条目。
</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RemoteControl</name>
    <message>
        <source>unmetered</source>
        <translation>不限量</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>没有操作“%1”。</translation>
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
    <name>SettingsModel</name>
    <message>
        <source>All entries</source>
        <translation>所有条目</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>登录时打开</translation>
    </message>
    <message>
        <source>Quillo Settings</source>
        <translation>Quillo 设置</translation>
    </message>
    <message>
        <source>Keep recordings that couldn&apos;t be sent</source>
        <translation>保留未能发送的录音</translation>
    </message>
    <message>
        <source>For seven days. They are sent when the server answers again.</source>
        <translation>保留七天。服务器恢复应答后自动发送。</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>That can&apos;t be a shortcut on this keyboard. Try another one.</source>
        <translation>在这个键盘上不能用作快捷键。请换一个。</translation>
    </message>
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
<context>
    <name>ShortcutRecorder</name>
    <message>
        <source>Type shortcut…</source>
        <translation>请按快捷键…</translation>
    </message>
</context>
<context>
    <name>ShortcutSection</name>
    <message>
        <source>Shortcut</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Press Esc while recording to cancel.</source>
        <translation>录音时按 Esc 取消。</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>触发方式</translation>
    </message>
    <message>
        <source>Key combination</source>
        <translation>组合键</translation>
    </message>
    <message>
        <source>Hold a single key</source>
        <translation>按住单个键</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>按键</translation>
    </message>
    <message>
        <source>Set System Settings › Keyboard › “Press 🌐 key to” to “Do Nothing”, or the emoji picker opens too.</source>
        <translation>多数键盘不会上报 Fn 键。如果按住没有反应，请选择其他按键。</translation>
    </message>
    <message>
        <source>A single key needs Accessibility (below) before it works.</source>
        <translation>单个按键需要先允许下面的“辅助功能”。</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>行为</translation>
    </message>
    <message>
        <source>This key doesn&apos;t arrive here: the keyboard or the desktop keeps it to itself. Choose another one.</source>
        <translation>此处收不到该键：键盘或桌面占用了它。请选择其他按键。</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>%1 is already used by another app. Pick a different shortcut.</source>
        <translation>%1 已被其他应用使用。请选择其他快捷键。</translation>
    </message>
    <message>
        <source>%1 is already in use. Pick a different shortcut.</source>
        <translation>%1 已被占用。请选择其他快捷键。</translation>
    </message>
</context>
<context>
    <name>Start</name>
    <message>
        <source>There is no session bus: no tray item but XEmbed&apos;s, no keyring, and commands can&apos;t reach Quillo.</source>
        <translation>没有会话总线：除 XEmbed 外无托盘图标、无密钥环，命令也无法到达 Quillo。</translation>
    </message>
    <message>
        <source>%1 See: quillo --help</source>
        <translation>%1 参见：quillo --help</translation>
    </message>
</context>
<context>
    <name>Status</name>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>unmetered</source>
        <translation>不限量</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>尚未知晓</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>群组</translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>所有条目</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>令牌</translation>
    </message>
    <message>
        <source>Transcripts</source>
        <translation>转写</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>麦克风</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>辅助功能</translation>
    </message>
    <message>
        <source>Consent</source>
        <translation>同意</translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message numerus="yes">
        <source>%1 tokens</source>
        <translation>
            <numerusform>%L1 个令牌</numerusform>
        </translation>
    </message>
    <message>
        <source>%1  next group   ·   %2  hide</source>
        <translation>%1  下一群组   ·   %2  隐藏</translation>
    </message>
</context>
<context>
    <name>TokenBalance</name>
    <message>
        <source>Couldn&apos;t open the checkout page in a browser</source>
        <translation>无法在浏览器中打开付款页面</translation>
    </message>
</context>
<context>
    <name>Transcribe</name>
    <message>
        <source>Standard input can&apos;t be read.</source>
        <translation>无法读取标准输入。</translation>
    </message>
    <message>
        <source>The temporary folder is full.</source>
        <translation>临时文件夹已满。</translation>
    </message>
    <message>
        <source>The temporary folder can&apos;t be written.</source>
        <translation>无法写入临时文件夹。</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>正在读取…</translation>
    </message>
    <message>
        <source>Reading… %1 %</source>
        <translation>正在读取… %1 %</translation>
    </message>
    <message>
        <source>Transcribing… %1 s</source>
        <translation>正在转写… %1 秒</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>正在转写…</translation>
    </message>
</context>
<context>
    <name>TranscriptionStore</name>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Kept in memory: the history can&apos;t be saved</source>
        <translation>仅保存在内存中：无法保存历史记录</translation>
    </message>
    <message>
        <source>The history can&apos;t be read: a new one begins, the old file is kept</source>
        <translation>无法读取历史记录：将新建，旧文件保留</translation>
    </message>
</context>
<context>
    <name>UnsentStrip</name>
    <message>
        <source>Sending again…</source>
        <translation>正在重新发送…</translation>
    </message>
    <message>
        <source>One recording couldn&apos;t be sent.</source>
        <translation>有 1 条录音未能发送。</translation>
    </message>
    <message numerus="yes">
        <source>%n recordings couldn&apos;t be sent.</source>
        <translation>
            <numerusform>有 %Ln 条录音未能发送。</numerusform>
        </translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>重新发送</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
</context>
</TS>
