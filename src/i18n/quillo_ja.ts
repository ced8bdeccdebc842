<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AIConsent</name>
    <message>
        <source>Sending to OpenAI needs your permission first. Open Data &amp; AI from the menu bar.</source>
        <translation>OpenAIに送信するには、まず許可が必要です。設定の「データとAI」を開いてください。</translation>
    </message>
</context>
<context>
    <name>Age</name>
    <message>
        <source>1 day</source>
        <extracomment>Part of how long ago something was.</extracomment>
        <translation>1日</translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%Ln日</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hr</source>
        <extracomment>Part of how long ago something was.</extracomment>
        <translation>1時間</translation>
    </message>
    <message numerus="yes">
        <source>%n hrs</source>
        <translation>
            <numerusform>%Ln時間</numerusform>
        </translation>
    </message>
    <message>
        <source>just now</source>
        <translation>たった今</translation>
    </message>
    <message numerus="yes">
        <source>%n min ago</source>
        <translation>
            <numerusform>%Ln分前</numerusform>
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
        <translation>%1と%2前</translation>
    </message>
</context>
<context>
    <name>ApiError</name>
    <message>
        <source>Couldn&apos;t read the recording.</source>
        <translation>録音を読み込めませんでした。</translation>
    </message>
    <message>
        <source>Nothing was recorded. Check microphone access.</source>
        <translation>録音されませんでした。マイクへのアクセスを確認してください。</translation>
    </message>
    <message>
        <source>The service is unavailable right now. Please try again later.</source>
        <translation>サービスは現在利用できません。後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>ネットワークエラーです。接続を確認してください。</translation>
    </message>
    <message>
        <source>Something went wrong. Please try again.</source>
        <translation>問題が発生しました。もう一度お試しください。</translation>
    </message>
</context>
<context>
    <name>CopyPill</name>
    <message>
        <source>COPIED</source>
        <translation>コピー済み</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>コピーしました</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
</context>
<context>
    <name>DisclosureView</name>
    <message>
        <source>Data &amp; AI</source>
        <translation>データとAI</translation>
    </message>
    <message>
        <source>Before we start</source>
        <translation>はじめる前に</translation>
    </message>
    <message>
        <source>To turn your speech into text, this app sends your voice recording through our server to &lt;b&gt;OpenAI&lt;/b&gt;, a third-party AI service in the United States.</source>
        <translation>音声をテキストにするため、このアプリは録音を当社のサーバー経由で、米国の第三者AIサービスである&lt;b&gt;OpenAI&lt;/b&gt;に送信します。</translation>
    </message>
    <message>
        <source>Our server passes your recording on without storing it. It keeps only your token balance and purchases, under a random ID created on this Mac — no name, email, account or location. Your recording is deleted once it has been transcribed, and your transcripts are stored only on this Mac.</source>
        <translation>サーバーは録音を保存せずに転送します。保存するのはトークン残高と購入履歴だけで、このコンピューターで作られたランダムなIDに紐づきます。名前、メール、アカウント、位置情報は含まれません。録音は文字起こし後に削除され、テキストはこのコンピューターにのみ保存されます。</translation>
    </message>
    <message>
        <source>What OpenAI does with it ↗</source>
        <translation>OpenAIでの取り扱い ↗</translation>
    </message>
    <message>
        <source>Our privacy policy ↗</source>
        <translation>プライバシーポリシー ↗</translation>
    </message>
    <message>
        <source>You agreed on %1.</source>
        <translation>%1に同意しました。</translation>
    </message>
    <message>
        <source>Withdraw consent</source>
        <translation>同意を取り消す</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>今はしない</translation>
    </message>
    <message>
        <source>Keep it on</source>
        <translation>このまま使う</translation>
    </message>
    <message>
        <source>I agree — send to OpenAI</source>
        <translation>同意する — OpenAIに送信</translation>
    </message>
    <message>
        <source>You can withdraw this at any time from the menu bar under Data &amp; AI. Without it, dictation stays off.</source>
        <translation>設定の「データとAI」でいつでも取り消せます。同意がない間、音声入力はオフのままです。</translation>
    </message>
</context>
<context>
    <name>EntryList</name>
    <message>
        <source>Entries</source>
        <translation>項目</translation>
    </message>
    <message>
        <source>No matches.</source>
        <translation>一致する項目がありません。</translation>
    </message>
    <message>
        <source>Try a different search.</source>
        <translation>別の語句で検索してください。</translation>
    </message>
</context>
<context>
    <name>EntryMenu</name>
    <message>
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Move to Group</source>
        <translation>グループに移動</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>GroupCarousel</name>
    <message>
        <source>Current group</source>
        <translation>現在のグループ</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Edit groups</source>
        <translation>グループを編集</translation>
    </message>
</context>
<context>
    <name>GroupCarouselModel</name>
    <message>
        <source>All entries</source>
        <translation>すべての項目</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>名称未設定</translation>
    </message>
    <message>
        <source>Dictations go into %1 while it&apos;s selected.</source>
        <translation>選択中は、音声入力が「%1」に入ります。</translation>
    </message>
</context>
<context>
    <name>GroupEditor</name>
    <message>
        <source>Groups</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Dictations go into the selected group. Deleting a group keeps its entries under All entries.</source>
        <translation>音声入力は選択中のグループに入ります。グループを削除しても、項目は「すべての項目」に残ります。</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>新しいグループ</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>グループ</translation>
    </message>
</context>
<context>
    <name>GroupRow</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Name of the group</source>
        <translation>グループの名前</translation>
    </message>
    <message>
        <source>Delete group</source>
        <translation>グループを削除</translation>
    </message>
</context>
<context>
    <name>HUDView</name>
    <message>
        <source>Dictating into %1</source>
        <translation>%1に音声入力</translation>
    </message>
    <message>
        <source>Listening — press again to stop</source>
        <translation>聞き取り中 — もう一度押すと停止</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>聞き取り中</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>文字起こし中…</translation>
    </message>
    <message>
        <source>No free tokens were left today</source>
        <translation>本日の無料トークンは終了しました</translation>
    </message>
    <message>
        <source>You&apos;re out of tokens</source>
        <translation>トークンがありません</translation>
    </message>
    <message>
        <source>Buy…</source>
        <translation>購入…</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>1 entry</source>
        <translation>1件</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%Ln件</numerusform>
        </translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>すべての項目</translation>
    </message>
</context>
<context>
    <name>HistoryView</name>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>No entries yet.</source>
        <translation>まだ項目がありません。</translation>
    </message>
    <message>
        <source>Dictate with %1 to see it here.</source>
        <translation>%1で音声入力すると、ここに表示されます。</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search transcriptions</source>
        <translation>文字起こしを検索</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>検索をクリア</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>Space</source>
        <translation>Space</translation>
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
        <translation>テンキーのEnter</translation>
    </message>
    <message>
        <source>Right ⌥ Option</source>
        <translation>右Alt</translation>
    </message>
    <message>
        <source>Right ⌘ Command</source>
        <translation>右Super</translation>
    </message>
    <message>
        <source>Right ⌃ Control</source>
        <translation>右Ctrl</translation>
    </message>
    <message>
        <source>Fn (🌐)</source>
        <translation>Fn</translation>
    </message>
    <message>
        <source>Hold to talk, or tap for hands-free</source>
        <translation>押し続けて話す、または押してハンズフリー</translation>
    </message>
    <message>
        <source>Hold to talk only</source>
        <translation>押し続けて話すのみ</translation>
    </message>
    <message>
        <source>Tap to start and stop</source>
        <translation>押して開始・停止</translation>
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
        <translation>Escは音声入力の取り消しに使います。</translation>
    </message>
    <message>
        <source>Add ⌘, ⌥ or ⌃ — or use an F-key — so it doesn&apos;t block typing.</source>
        <translation>入力の妨げにならないよう、Ctrl、Alt、Superのいずれかを加えるか、Fキーを使ってください。</translation>
    </message>
</context>
</TS>
