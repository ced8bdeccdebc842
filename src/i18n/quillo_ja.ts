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
    <message>
        <source>Couldn&apos;t start the microphone.</source>
        <translation>マイクを開始できませんでした。</translation>
    </message>
    <message>
        <source>Unlock the keyring first</source>
        <translation>先にキーリングのロックを解除してください</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>All entries</source>
        <translation>すべての項目</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Hold the dictation shortcut</source>
        <translation>音声入力のショートカットを押し続ける</translation>
    </message>
    <message>
        <source>Let go of it</source>
        <translation>離す</translation>
    </message>
    <message>
        <source>Start dictating, or finish and paste</source>
        <translation>音声入力を開始、または終了して貼り付け</translation>
    </message>
    <message>
        <source>Drop the recording</source>
        <translation>録音を破棄</translation>
    </message>
    <message>
        <source>Show the history</source>
        <translation>履歴を表示</translation>
    </message>
    <message>
        <source>Show the history with the group editor</source>
        <translation>履歴とグループ編集を表示</translation>
    </message>
    <message>
        <source>Show the settings</source>
        <translation>設定を表示</translation>
    </message>
    <message>
        <source>Make the next group the current one</source>
        <translation>次のグループに切り替え</translation>
    </message>
    <message>
        <source>Open the page where tokens are bought</source>
        <translation>トークンの購入ページを開く</translation>
    </message>
    <message>
        <source>Print what the program is doing</source>
        <translation>プログラムの状態を表示</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>プログラムを終了</translation>
    </message>
    <message>
        <source>Print the text of a recording; - reads standard input</source>
        <translation>録音のテキストを表示。-は標準入力</translation>
    </message>
    <message>
        <source>Print what this desktop offers for dictation, and what is missing</source>
        <translation>このデスクトップで使えるものと足りないものを表示</translation>
    </message>
    <message>
        <source>Usage: quillo [COMMAND]

Without a command Quillo starts, or shows its history if it runs already.
Hold the dictation shortcut, speak, let go: the words appear in the program in front.

Commands:
</source>
        <translation>使い方: quillo [コマンド]

コマンドなしではQuilloを起動し、起動済みなら履歴を表示します。
音声入力のショートカットを押し続けて話し、離すと、前面のプログラムに文字が入ります。

コマンド:
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
オプション:
  -h, --help        このヘルプを表示
  -v, --version     バージョンを表示

終了ステータス: 0 完了、1 失敗、2 コマンドラインの誤り、3 Quilloが起動していない。
</translation>
    </message>
    <message>
        <source>--json belongs to the command status.</source>
        <translation>--jsonはコマンドstatusで使います。</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>コマンド「%1」はありません。</translation>
    </message>
    <message>
        <source>transcribe takes one file.</source>
        <translation>transcribeにはファイルを1つ指定します。</translation>
    </message>
    <message>
        <source>%1 takes no argument.</source>
        <translation>%1に引数はありません。</translation>
    </message>
    <message>
        <source>Take over what can be read in a damaged history</source>
        <translation>壊れた履歴から読める項目を取り込む</translation>
    </message>
    <message>
        <source>--recover belongs to the command history.</source>
        <translation>--recoverはコマンドhistoryで使います。</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
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
    <name>DataSection</name>
    <message>
        <source>Data &amp; AI</source>
        <translation>データとAI</translation>
    </message>
    <message>
        <source>Sending to OpenAI</source>
        <translation>OpenAIへの送信</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>許可済み</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>Review…</source>
        <translation>確認…</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>トークン</translation>
    </message>
    <message>
        <source>Unmetered</source>
        <translation>無制限</translation>
    </message>
    <message>
        <source>%1</source>
        <comment>number of tokens</comment>
        <translation>%L1</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
</context>
<context>
    <name>Dictation</name>
    <message>
        <source>Listening… (Esc to cancel)</source>
        <translation>聞き取り中…（Escで取り消し）</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>文字起こし中…</translation>
    </message>
    <message>
        <source>Hold %1 to dictate</source>
        <translation>%1を押し続けて音声入力</translation>
    </message>
    <message>
        <source>Tap %1 to dictate</source>
        <translation>%1を押して音声入力</translation>
    </message>
    <message>
        <source>Hold or tap %1 to dictate</source>
        <translation>%1を押すか押し続けて音声入力</translation>
    </message>
    <message>
        <source>Microphone access is off for Quillo</source>
        <translation>Quilloのマイクアクセスがオフです</translation>
    </message>
    <message>
        <source>Microphone on — press %1 to dictate</source>
        <translation>マイクが使えます — %1で音声入力</translation>
    </message>
    <message>
        <source>The microphone was disconnected.</source>
        <translation>マイクが取り外されました。</translation>
    </message>
    <message>
        <source>Nothing was recorded. Check the microphone.</source>
        <translation>録音されませんでした。マイクを確認してください。</translation>
    </message>
    <message>
        <source>Didn&apos;t catch anything</source>
        <translation>聞き取れませんでした</translation>
    </message>
    <message>
        <source>Copied — press ⌘V to paste</source>
        <translation>コピーしました — Ctrl+Vで貼り付け（端末はCtrl+Shift+V）</translation>
    </message>
    <message>
        <source>Couldn&apos;t paste. The text is in the history.</source>
        <translation>貼り付けできませんでした。テキストは履歴にあります。</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>取り消しました</translation>
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
    <message>
        <source>Recordings go to %1, on this computer: they stay here unless that server passes them on.</source>
        <translation>録音はこのコンピューター上の%1に送られます。そのサーバーが転送しない限り、外には出ません。</translation>
    </message>
    <message>
        <source>Recordings go to %1.</source>
        <translation>録音の送信先: %1</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>QUILLO_PLATFORM is &quot;%1&quot;; it can be x11 or wayland.</source>
        <translation>QUILLO_PLATFORMが「%1」です。x11かwaylandを指定してください。</translation>
    </message>
    <message>
        <source>Wayland sessions are not supported yet. Log in to an X11 session, or try QUILLO_PLATFORM=x11, which reaches only the programs that run through Xwayland.</source>
        <translation>Waylandセッションにはまだ対応していません。X11セッションにログインするか、QUILLO_PLATFORM=x11（X11プログラムのみ）を試してください。</translation>
    </message>
    <message>
        <source>There is no X11 display (DISPLAY is not set).</source>
        <translation>X11ディスプレイがありません（DISPLAYが未設定）。</translation>
    </message>
    <message>
        <source>The X11 display %1 can&apos;t be reached.</source>
        <translation>X11ディスプレイ%1に接続できません。</translation>
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
    <name>Finding</name>
    <message>
        <source>there is no X server at $DISPLAY</source>
        <translation>$DISPLAYにXサーバーがありません</translation>
    </message>
    <message>
        <source>the X server has no keyboard extension (XKB)</source>
        <translation>Xサーバーにキーボード拡張（XKB）がありません</translation>
    </message>
    <message>
        <source>the X server has no XFIXES extension</source>
        <translation>XサーバーにXFIXES拡張がありません</translation>
    </message>
    <message>
        <source>Raw keys</source>
        <translation>単独キー</translation>
    </message>
    <message>
        <source>no XInput 2.2: the dictation shortcut is a single key</source>
        <translation>XInput 2.2がありません: ショートカットが単独キーです</translation>
    </message>
    <message>
        <source>choose a key combination in the settings</source>
        <translation>設定でキーの組み合わせを選ぶ</translation>
    </message>
    <message>
        <source>no XInput 2.2: a single key can&apos;t be a shortcut</source>
        <translation>XInput 2.2がありません: 単独キーは使えません</translation>
    </message>
    <message>
        <source>use a key combination</source>
        <translation>キーの組み合わせを使う</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>キーボード</translation>
    </message>
    <message>
        <source>no XKB</source>
        <translation>XKBなし</translation>
    </message>
    <message>
        <source>enable the X server&apos;s XKEYBOARD extension</source>
        <translation>XサーバーのXKEYBOARD拡張を有効にする</translation>
    </message>
    <message>
        <source>Key posting</source>
        <translation>キー送信</translation>
    </message>
    <message>
        <source>no XTEST: text is copied, not pasted</source>
        <translation>XTESTなし: 貼り付けずにコピーします</translation>
    </message>
    <message>
        <source>paste with Ctrl+V, or enable the X server&apos;s XTEST extension</source>
        <translation>Ctrl+Vで貼り付けるか、XサーバーのXTEST拡張を有効にする</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>クリップボード</translation>
    </message>
    <message>
        <source>no XFIXES</source>
        <translation>XFIXESなし</translation>
    </message>
    <message>
        <source>enable the X server&apos;s XFIXES extension</source>
        <translation>XサーバーのXFIXES拡張を有効にする</translation>
    </message>
    <message>
        <source>Display server</source>
        <translation>ディスプレイサーバー</translation>
    </message>
    <message>
        <source>log in to an X11 session</source>
        <translation>X11セッションにログイン</translation>
    </message>
    <message>
        <source>X11 (%1), backend x11</source>
        <translation>X11（%1）、バックエンドx11</translation>
    </message>
    <message>
        <source>Window manager</source>
        <translation>ウィンドウマネージャー</translation>
    </message>
    <message>
        <source>there</source>
        <translation>あり</translation>
    </message>
    <message>
        <source>none: windows may not come to the front</source>
        <translation>なし: ウィンドウが前面に来ないことがあります</translation>
    </message>
    <message>
        <source>start a window manager</source>
        <translation>ウィンドウマネージャーを起動</translation>
    </message>
    <message>
        <source>Compositor</source>
        <translation>コンポジター</translation>
    </message>
    <message>
        <source>none: the status panel has hard edges</source>
        <translation>なし: パネルの縁が粗くなります</translation>
    </message>
    <message>
        <source>XEmbed tray</source>
        <translation>XEmbedトレイ</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V does not paste in it</source>
        <translation>Ctrl+Shift+Vで貼り付けられません</translation>
    </message>
    <message>
        <source>add to ~/.Xresources and load it with xrdb -merge: %1</source>
        <translation>~/.Xresourcesに追加し、xrdb -mergeで読み込む: %1</translation>
    </message>
    <message>
        <source>Sound server</source>
        <translation>サウンドサーバー</translation>
    </message>
    <message>
        <source>refuses access</source>
        <translation>アクセスを拒否</translation>
    </message>
    <message>
        <source>allow Quillo to record in the sandbox or sound settings</source>
        <translation>サンドボックスまたはサウンド設定でQuilloの録音を許可</translation>
    </message>
    <message>
        <source>not running</source>
        <translation>起動していません</translation>
    </message>
    <message>
        <source>start PulseAudio or PipeWire (pipewire-pulse)</source>
        <translation>PulseAudioかPipeWire（pipewire-pulse）を起動</translation>
    </message>
    <message>
        <source>Microphone level</source>
        <translation>マイクの音量</translation>
    </message>
    <message>
        <source>it can&apos;t be recorded</source>
        <translation>録音できません</translation>
    </message>
    <message>
        <source>choose another input device</source>
        <translation>別の入力デバイスを選ぶ</translation>
    </message>
    <message>
        <source>silent</source>
        <translation>無音</translation>
    </message>
    <message>
        <source>unmute the input device in the sound settings</source>
        <translation>サウンド設定でミュートを解除</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>マイク</translation>
    </message>
    <message>
        <source>no input device</source>
        <translation>入力デバイスなし</translation>
    </message>
    <message>
        <source>connect a microphone, or choose one in the sound settings</source>
        <translation>マイクを接続するか、サウンド設定で選ぶ</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>キーリング</translation>
    </message>
    <message>
        <source>absent: no Secret Service on the session bus</source>
        <translation>なし: セッションバスにSecret Serviceがありません</translation>
    </message>
    <message>
        <source>install and start GNOME Keyring, KWallet or KeePassXC; until then the credential is kept in memory and each start is a new device</source>
        <translation>GNOME Keyring、KWallet、KeePassXCのいずれかを導入して起動。それまで資格情報はメモリにのみ保持され、起動ごとに新しいデバイスになります</translation>
    </message>
    <message>
        <source>there, without a default keyring</source>
        <translation>あり、既定のキーリングなし</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>ロック中</translation>
    </message>
    <message>
        <source>unlock the login keyring; until then the credential is kept in memory and each start is a new device</source>
        <translation>ログインキーリングのロックを解除。それまで資格情報はメモリにのみ保持され、起動ごとに新しいデバイスになります</translation>
    </message>
    <message>
        <source>usable</source>
        <translation>使用可</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>設定ファイル</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read or written</source>
        <translation>%1を読み書きできません</translation>
    </message>
    <message>
        <source>make it yours: chown and chmod u+rw</source>
        <translation>所有者を自分にする: chownとchmod u+rw</translation>
    </message>
    <message>
        <source>%1 is damaged: what can&apos;t be read counts as not set</source>
        <translation>%1が壊れています: 読めない部分は未設定として扱います</translation>
    </message>
    <message>
        <source>mend the file or move it away</source>
        <translation>ファイルを直すか移動する</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>トレイ</translation>
    </message>
    <message>
        <source>none on this desktop</source>
        <translation>このデスクトップにはありません</translation>
    </message>
    <message>
        <source>start quillo again for the history, use its commands (quillo --help), or add a tray to the panel</source>
        <translation>もう一度quilloを起動して履歴を表示、コマンド（quillo --help）を使う、またはパネルにトレイを追加</translation>
    </message>
    <message>
        <source>choose another one in the settings</source>
        <translation>設定で別のものを選ぶ</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>the running Quillo does not answer</source>
        <translation>起動中のQuilloが応答しません</translation>
    </message>
    <message>
        <source>end it and start it again</source>
        <translation>終了して起動し直す</translation>
    </message>
    <message>
        <source>Hot key</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>held by the running Quillo</source>
        <translation>起動中のQuilloが使用</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>セッションバス</translation>
    </message>
    <message>
        <source>none: no tray item, no keyring, no commands</source>
        <translation>なし: トレイ、キーリング、コマンドが使えません</translation>
    </message>
    <message>
        <source>log in through a desktop session, or start one with dbus-run-session</source>
        <translation>デスクトップセッションでログインするか、dbus-run-sessionで起動</translation>
    </message>
    <message>
        <source>there; Quillo is running</source>
        <translation>あり。Quilloは起動中</translation>
    </message>
    <message>
        <source>there; Quillo isn&apos;t running</source>
        <translation>あり。Quilloは起動していません</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1は空いています</translation>
    </message>
    <message>
        <source>%1 is taken by another program</source>
        <translation>%1は他のプログラムが使用</translation>
    </message>
    <message>
        <source>not tried: %1</source>
        <translation>未確認: %1</translation>
    </message>
    <message>
        <source>Backend</source>
        <translation>サーバー</translation>
    </message>
    <message>
        <source>no usable address</source>
        <translation>有効なアドレスがありません</translation>
    </message>
    <message>
        <source>set apiURL in %1</source>
        <translation>%1でapiURLを設定</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1が応答しません</translation>
    </message>
    <message>
        <source>check the network; a server of your own is started with quillo-backend</source>
        <translation>ネットワークを確認。自分のサーバーはquillo-backendで起動</translation>
    </message>
    <message>
        <source>%1 answers</source>
        <translation>%1が応答</translation>
    </message>
    <message>
        <source>%1 answers %2, which no Quillo backend does</source>
        <translation>%1の応答%2はQuilloのサーバーのものではありません</translation>
    </message>
    <message>
        <source>check apiURL in %1</source>
        <translation>%1のapiURLを確認</translation>
    </message>
    <message>
        <source>Consent</source>
        <translation>同意</translation>
    </message>
    <message>
        <source>given</source>
        <translation>同意済み</translation>
    </message>
    <message>
        <source>not given: dictation stays off</source>
        <translation>未同意: 音声入力はオフ</translation>
    </message>
    <message>
        <source>start Quillo and agree</source>
        <translation>Quilloを起動して同意</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Liberation Sans is missing: another face stands in</source>
        <translation>Liberation Sansがないため、別の書体で代用</translation>
    </message>
    <message>
        <source>install fonts-liberation</source>
        <translation>fonts-liberationをインストール</translation>
    </message>
    <message>
        <source>Liberation Sans; the system serif stands in for Fraunces</source>
        <translation>Liberation Sans。Frauncesはシステムのセリフ体で代用</translation>
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
        <translation>不足</translation>
    </message>
    <message>
        <source>
Dictation can work here.
</source>
        <translation>
ここで音声入力が使えます。
</translation>
    </message>
    <message>
        <source>
Dictation can&apos;t work here yet.
</source>
        <translation>
ここではまだ音声入力が使えません。
</translation>
    </message>
    <message>
        <source>%1 begins neither with https:// nor http://</source>
        <translation>%1はhttps://でもhttp://でも始まっていません</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1を読み取れません</translation>
    </message>
    <message>
        <source>it is kept; to take over what can be read: quillo history --recover %1</source>
        <translation>残してあります。読める内容を取り込むには: quillo history --recover %1</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: nothing new is kept</source>
        <translation>%1に書き込めません: 新しい内容は保存されません</translation>
    </message>
    <message>
        <source>make it yours: chown and chmod u+rwx</source>
        <translation>所有者を自分にする: chownとchmod u+rwx</translation>
    </message>
    <message>
        <source>%1: the disk is full, nothing new is kept</source>
        <translation>%1: ディスクがいっぱいで、新しい内容は保存されません</translation>
    </message>
    <message>
        <source>make room</source>
        <translation>空きを作る</translation>
    </message>
    <message>
        <source>%1; put aside because it couldn&apos;t be read: %2</source>
        <translation>%1。読めないため退避: %2</translation>
    </message>
    <message>
        <source>it is made, with a password of yours, when tokens are bought; until then the credential is kept in memory and each start is a new device</source>
        <translation>トークンの購入時に、ご自分のパスワードで作成されます。それまで資格情報はメモリー内に置かれ、起動のたびに新しいデバイスになります</translation>
    </message>
</context>
<context>
    <name>GeneralSettings</name>
    <message>
        <source>Couldn&apos;t change Open at Login</source>
        <translation>「ログイン時に開く」を変更できませんでした</translation>
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
    <name>GroupStore</name>
    <message>
        <source>Groups</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Kept in memory: the groups can&apos;t be saved</source>
        <translation>メモリにのみ保持: グループを保存できません</translation>
    </message>
    <message>
        <source>The groups can&apos;t be read: a new one begins, the old file is kept</source>
        <translation>グループを読み取れません: 新しく始め、古いファイルは残します</translation>
    </message>
</context>
<context>
    <name>GroupsSection</name>
    <message>
        <source>Groups &amp; History</source>
        <translation>グループと履歴</translation>
    </message>
    <message>
        <source>New dictations go into the current group: %1.</source>
        <translation>新しい音声入力は現在のグループに入ります: %1</translation>
    </message>
    <message>
        <source>Next group</source>
        <translation>次のグループ</translation>
    </message>
    <message>
        <source>Show or hide history</source>
        <translation>履歴を表示または隠す</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>編集…</translation>
    </message>
    <message>
        <source>Edit groups</source>
        <translation>グループを編集</translation>
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
    <name>HistorySection</name>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Transcripts on this Mac</source>
        <translation>このコンピューターの文字起こし</translation>
    </message>
    <message>
        <source>Clear…</source>
        <translation>消去…</translation>
    </message>
    <message numerus="yes">
        <source>Delete all %n transcripts?</source>
        <translation>
            <numerusform>%Ln件の文字起こしをすべて削除しますか？</numerusform>
        </translation>
    </message>
    <message>
        <source>They&apos;re stored only on this Mac, so this can&apos;t be undone.</source>
        <translation>このコンピューターにしか保存されていないため、元に戻せません。</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>すべて削除</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
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
    <name>Instance</name>
    <message>
        <source>There is no session bus (DBUS_SESSION_BUS_ADDRESS), so Quillo can&apos;t be reached.</source>
        <translation>セッションバス（DBUS_SESSION_BUS_ADDRESS）がないため、Quilloに接続できません。</translation>
    </message>
    <message>
        <source>Quillo isn&apos;t running. Start it with: quillo</source>
        <translation>Quilloは起動していません。起動するには: quillo</translation>
    </message>
    <message>
        <source>Quillo refused: %1</source>
        <translation>Quilloが拒否しました: %1</translation>
    </message>
    <message>
        <source>Quillo did not answer: %1</source>
        <translation>Quilloが応答しませんでした: %1</translation>
    </message>
</context>
<context>
    <name>LocalizedError</name>
    <message>
        <source>There is no microphone. Plug one in.</source>
        <translation>マイクがありません。接続してください。</translation>
    </message>
    <message>
        <source>%1 is no sound file that can be read.</source>
        <translation>%1は読み取れる音声ファイルではありません。</translation>
    </message>
    <message>
        <source>There is no sound in %1.</source>
        <translation>%1に音声がありません。</translation>
    </message>
    <message>
        <source>The sound of %1 can&apos;t be decoded.</source>
        <translation>%1の音声をデコードできません。</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>停止しました。</translation>
    </message>
    <message>
        <source>The sound of %1 can&apos;t be converted.</source>
        <translation>%1の音声を変換できません。</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>ファイル%1はありません。</translation>
    </message>
    <message>
        <source>The converted recording can&apos;t be written.</source>
        <translation>変換した録音を書き込めません。</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone.</source>
        <translation>マイクを開始できませんでした。</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Unmetered (dev device)</source>
        <translation>無制限（開発用デバイス）</translation>
    </message>
    <message numerus="yes">
        <source>%1 tokens left</source>
        <translation>
            <numerusform>残り%L1トークン</numerusform>
        </translation>
    </message>
    <message>
        <source>Today&apos;s free tokens for new users ran out before you joined.</source>
        <translation>新規ユーザー向けの本日の無料トークンは、登録前に終了しました。</translation>
    </message>
    <message>
        <source>Buy Tokens…</source>
        <translation>トークンを購入…</translation>
    </message>
    <message>
        <source>Allow pasting into other apps…</source>
        <translation>他のアプリへの貼り付けを許可…</translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>すべての項目</translation>
    </message>
    <message>
        <source>Next Group</source>
        <translation>次のグループ</translation>
    </message>
    <message>
        <source>Edit Groups…</source>
        <translation>グループを編集…</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>グループ: %1</translation>
    </message>
    <message>
        <source>Hide History</source>
        <translation>履歴を隠す</translation>
    </message>
    <message>
        <source>Show History</source>
        <translation>履歴を表示</translation>
    </message>
    <message>
        <source>Copy Last Transcript</source>
        <translation>最後の文字起こしをコピー</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>履歴を消去</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>最近</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>Quit Quillo</source>
        <translation>Quilloを終了</translation>
    </message>
</context>
<context>
    <name>PermissionRow</name>
    <message>
        <source>Allowed</source>
        <translation>許可済み</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>許可…</translation>
    </message>
    <message>
        <source>Allow %1</source>
        <translation>%1を許可</translation>
    </message>
</context>
<context>
    <name>Permissions</name>
    <message>
        <source>Allow an input device in the sound settings</source>
        <translation>サウンド設定で入力デバイスを許可してください</translation>
    </message>
    <message>
        <source>Run “quillo doctor” to see what is missing</source>
        <translation>「quillo doctor」で足りないものを確認できます</translation>
    </message>
</context>
<context>
    <name>PermissionsSection</name>
    <message>
        <source>Permissions</source>
        <translation>アクセス許可</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>マイク</translation>
    </message>
    <message>
        <source>To hear what you say.</source>
        <translation>話した内容を聞き取るため。</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>アクセシビリティ</translation>
    </message>
    <message>
        <source>To paste into other apps. Without it, text is copied and you press ⌘V.</source>
        <translation>他のアプリに貼り付けるため。許可がない場合はコピーされるので、Ctrl+V（端末ではCtrl+Shift+V）を押してください。</translation>
    </message>
</context>
<context>
    <name>RecoverHistory</name>
    <message>
        <source>%1 can&apos;t be read.</source>
        <translation>%1を読み取れません。</translation>
    </message>
    <message>
        <source>The history can&apos;t be saved: %1</source>
        <translation>履歴を保存できません: %1</translation>
    </message>
    <message>
        <source>1 entry taken over.
</source>
        <translation>1件を取り込みました。
</translation>
    </message>
    <message numerus="yes">
        <source>%n entries taken over.
</source>
        <translation>
            <numerusform>%Ln件を取り込みました。
</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RemoteControl</name>
    <message>
        <source>unmetered</source>
        <translation>無制限</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>アクション「%1」はありません。</translation>
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
    <name>SettingsModel</name>
    <message>
        <source>All entries</source>
        <translation>すべての項目</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>ログイン時に開く</translation>
    </message>
    <message>
        <source>Quillo Settings</source>
        <translation>Quilloの設定</translation>
    </message>
    <message>
        <source>Keep recordings that couldn&apos;t be sent</source>
        <translation>送信できなかった録音を残す</translation>
    </message>
    <message>
        <source>For seven days. They are sent when the server answers again.</source>
        <translation>7日間。サーバーが応答したら送信します。</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>That can&apos;t be a shortcut on this keyboard. Try another one.</source>
        <translation>このキーボードではショートカットにできません。別のものを試してください。</translation>
    </message>
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
<context>
    <name>ShortcutRecorder</name>
    <message>
        <source>Type shortcut…</source>
        <translation>キーを押してください…</translation>
    </message>
</context>
<context>
    <name>ShortcutSection</name>
    <message>
        <source>Shortcut</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Press Esc while recording to cancel.</source>
        <translation>録音中にEscを押すと取り消します。</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>起動方法</translation>
    </message>
    <message>
        <source>Key combination</source>
        <translation>キーの組み合わせ</translation>
    </message>
    <message>
        <source>Hold a single key</source>
        <translation>1つのキーを押し続ける</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Set System Settings › Keyboard › “Press 🌐 key to” to “Do Nothing”, or the emoji picker opens too.</source>
        <translation>多くのキーボードはFnキーを通知しません。押しても反応がない場合は、別のキーを選んでください。</translation>
    </message>
    <message>
        <source>A single key needs Accessibility (below) before it works.</source>
        <translation>1つのキーを使うには、下の「アクセシビリティ」が必要です。</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>This key doesn&apos;t arrive here: the keyboard or the desktop keeps it to itself. Choose another one.</source>
        <translation>このキーはここに届きません: キーボードかデスクトップが使っています。別のキーを選んでください。</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>%1 is already used by another app. Pick a different shortcut.</source>
        <translation>%1は他のアプリで使われています。別のショートカットを選んでください。</translation>
    </message>
    <message>
        <source>%1 is already in use. Pick a different shortcut.</source>
        <translation>%1は既に使われています。別のショートカットを選んでください。</translation>
    </message>
</context>
<context>
    <name>Start</name>
    <message>
        <source>There is no session bus: no tray item but XEmbed&apos;s, no keyring, and commands can&apos;t reach Quillo.</source>
        <translation>セッションバスがありません: トレイはXEmbedのみ、キーリングなし、コマンドはQuilloに届きません。</translation>
    </message>
    <message>
        <source>%1 See: quillo --help</source>
        <translation>%1 参照: quillo --help</translation>
    </message>
</context>
<context>
    <name>Status</name>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>unmetered</source>
        <translation>無制限</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>まだ不明</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>すべての項目</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>トークン</translation>
    </message>
    <message>
        <source>Transcripts</source>
        <translation>文字起こし</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>マイク</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>アクセシビリティ</translation>
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
            <numerusform>%L1トークン</numerusform>
        </translation>
    </message>
    <message>
        <source>%1  next group   ·   %2  hide</source>
        <translation>%1  次のグループ   ·   %2  隠す</translation>
    </message>
</context>
<context>
    <name>TokenBalance</name>
    <message>
        <source>Couldn&apos;t open the checkout page in a browser</source>
        <translation>支払いページをブラウザーで開けませんでした</translation>
    </message>
</context>
<context>
    <name>Transcribe</name>
    <message>
        <source>Standard input can&apos;t be read.</source>
        <translation>標準入力を読み取れません。</translation>
    </message>
    <message>
        <source>The temporary folder is full.</source>
        <translation>一時フォルダーがいっぱいです。</translation>
    </message>
    <message>
        <source>The temporary folder can&apos;t be written.</source>
        <translation>一時フォルダーに書き込めません。</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>Reading… %1 %</source>
        <translation>読み込み中… %1 %</translation>
    </message>
    <message>
        <source>Transcribing… %1 s</source>
        <translation>文字起こし中… %1 秒</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>文字起こし中…</translation>
    </message>
</context>
<context>
    <name>TranscriptionStore</name>
    <message>
        <source>History</source>
        <translation>履歴</translation>
    </message>
    <message>
        <source>Kept in memory: the history can&apos;t be saved</source>
        <translation>メモリにのみ保持: 履歴を保存できません</translation>
    </message>
    <message>
        <source>The history can&apos;t be read: a new one begins, the old file is kept</source>
        <translation>履歴を読み取れません: 新しく始め、古いファイルは残します</translation>
    </message>
</context>
<context>
    <name>UnsentStrip</name>
    <message>
        <source>Sending again…</source>
        <translation>再送信中…</translation>
    </message>
    <message>
        <source>One recording couldn&apos;t be sent.</source>
        <translation>録音1件を送信できませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>%n recordings couldn&apos;t be sent.</source>
        <translation>
            <numerusform>録音%Ln件を送信できませんでした。</numerusform>
        </translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>再送信</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
</context>
</TS>
