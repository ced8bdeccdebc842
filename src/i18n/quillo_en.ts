<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>AIConsent</name>
    <message>
        <source>Sending to OpenAI needs your permission first. Open Data &amp; AI from the menu bar.</source>
        <translation>Sending to OpenAI needs your permission first. Open Data &amp; AI in the settings.</translation>
    </message>
</context>
<context>
    <name>Age</name>
    <message>
        <source>1 day</source>
        <extracomment>Part of how long ago something was.</extracomment>
        <translation>1 day</translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%Ln day</numerusform>
            <numerusform>%Ln days</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hr</source>
        <extracomment>Part of how long ago something was.</extracomment>
        <translation>1 hr</translation>
    </message>
    <message numerus="yes">
        <source>%n hrs</source>
        <translation>
            <numerusform>%Ln hr</numerusform>
            <numerusform>%Ln hrs</numerusform>
        </translation>
    </message>
    <message>
        <source>just now</source>
        <translation>just now</translation>
    </message>
    <message numerus="yes">
        <source>%n min ago</source>
        <translation>
            <numerusform>%Ln min ago</numerusform>
            <numerusform>%Ln min ago</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 ago</source>
        <extracomment>%1: &quot;3 hrs&quot; or &quot;2 days&quot;.</extracomment>
        <translation>%1 ago</translation>
    </message>
    <message>
        <source>%1, %2 ago</source>
        <extracomment>%1: &quot;2 days&quot;, %2: &quot;3 hrs&quot;.</extracomment>
        <translation>%1, %2 ago</translation>
    </message>
</context>
<context>
    <name>ApiError</name>
    <message>
        <source>Couldn&apos;t read the recording.</source>
        <translation>Couldn&apos;t read the recording.</translation>
    </message>
    <message>
        <source>Nothing was recorded. Check microphone access.</source>
        <translation>Nothing was recorded. Check microphone access.</translation>
    </message>
    <message>
        <source>The service is unavailable right now. Please try again later.</source>
        <translation>The service is unavailable right now. Please try again later.</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Network error. Please check your connection.</translation>
    </message>
    <message>
        <source>Something went wrong. Please try again.</source>
        <translation>Something went wrong. Please try again.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone.</source>
        <translation>Couldn&apos;t start the microphone.</translation>
    </message>
    <message>
        <source>Unlock the keyring first</source>
        <translation>Unlock the keyring first</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>All entries</source>
        <translation>All entries</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Hold the dictation shortcut</source>
        <translation>Hold the dictation shortcut</translation>
    </message>
    <message>
        <source>Let go of it</source>
        <translation>Let go of it</translation>
    </message>
    <message>
        <source>Start dictating, or finish and paste</source>
        <translation>Start dictating, or finish and paste</translation>
    </message>
    <message>
        <source>Drop the recording</source>
        <translation>Drop the recording</translation>
    </message>
    <message>
        <source>Show the history</source>
        <translation>Show the history</translation>
    </message>
    <message>
        <source>Show the history with the group editor</source>
        <translation>Show the history with the group editor</translation>
    </message>
    <message>
        <source>Show the settings</source>
        <translation>Show the settings</translation>
    </message>
    <message>
        <source>Make the next group the current one</source>
        <translation>Make the next group the current one</translation>
    </message>
    <message>
        <source>Open the page where tokens are bought</source>
        <translation>Open the page where tokens are bought</translation>
    </message>
    <message>
        <source>Print what the program is doing</source>
        <translation>Print what the program is doing</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>End the program</translation>
    </message>
    <message>
        <source>Print the text of a recording; - reads standard input</source>
        <translation>Print the text of a recording; - reads standard input</translation>
    </message>
    <message>
        <source>Print what this desktop offers for dictation, and what is missing</source>
        <translation>Print what this desktop offers for dictation, and what is missing</translation>
    </message>
    <message>
        <source>Usage: quillo [COMMAND]

Without a command Quillo starts, or shows its history if it runs already.
Hold the dictation shortcut, speak, let go: the words appear in the program in front.

Commands:
</source>
        <translation>Usage: quillo [COMMAND]

Without a command Quillo starts, or shows its history if it runs already.
Hold the dictation shortcut, speak, let go: the words appear in the program in front.

Commands:
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
Options:
  -h, --help        Print this
  -v, --version     Print the version

Exit status: 0 done, 1 failed, 2 the command line is wrong, 3 Quillo isn&apos;t running.
</translation>
    </message>
    <message>
        <source>--json belongs to the command status.</source>
        <translation>--json belongs to the command status.</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>There is no command &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>transcribe takes one file.</source>
        <translation>transcribe takes one file.</translation>
    </message>
    <message>
        <source>%1 takes no argument.</source>
        <translation>%1 takes no argument.</translation>
    </message>
    <message>
        <source>Take over what can be read in a damaged history</source>
        <translation>Take over what can be read in a damaged history</translation>
    </message>
    <message>
        <source>--recover belongs to the command history.</source>
        <translation>--recover belongs to the command history.</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>CopyPill</name>
    <message>
        <source>COPIED</source>
        <translation>COPIED</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>COPY</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copied</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
</context>
<context>
    <name>DataSection</name>
    <message>
        <source>Data &amp; AI</source>
        <translation>Data &amp; AI</translation>
    </message>
    <message>
        <source>Sending to OpenAI</source>
        <translation>Sending to OpenAI</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Allowed</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message>
        <source>Review…</source>
        <translation>Review…</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Tokens</translation>
    </message>
    <message>
        <source>Unmetered</source>
        <translation>Unmetered</translation>
    </message>
    <message>
        <source>%1</source>
        <comment>number of tokens</comment>
        <translation>%L1</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Refresh</translation>
    </message>
</context>
<context>
    <name>Dictation</name>
    <message>
        <source>Listening… (Esc to cancel)</source>
        <translation>Listening… (Esc to cancel)</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>Transcribing…</translation>
    </message>
    <message>
        <source>Hold %1 to dictate</source>
        <translation>Hold %1 to dictate</translation>
    </message>
    <message>
        <source>Tap %1 to dictate</source>
        <translation>Tap %1 to dictate</translation>
    </message>
    <message>
        <source>Hold or tap %1 to dictate</source>
        <translation>Hold or tap %1 to dictate</translation>
    </message>
    <message>
        <source>Microphone access is off for Quillo</source>
        <translation>Microphone access is off for Quillo</translation>
    </message>
    <message>
        <source>Microphone on — press %1 to dictate</source>
        <translation>Microphone on — press %1 to dictate</translation>
    </message>
    <message>
        <source>The microphone was disconnected.</source>
        <translation>The microphone was disconnected.</translation>
    </message>
    <message>
        <source>Nothing was recorded. Check the microphone.</source>
        <translation>Nothing was recorded. Check the microphone.</translation>
    </message>
    <message>
        <source>Didn&apos;t catch anything</source>
        <translation>Didn&apos;t catch anything</translation>
    </message>
    <message>
        <source>Copied — press ⌘V to paste</source>
        <translation>Copied — paste with Ctrl+V (Ctrl+Shift+V in a terminal)</translation>
    </message>
    <message>
        <source>Couldn&apos;t paste. The text is in the history.</source>
        <translation>Couldn&apos;t paste. The text is in the history.</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelled</translation>
    </message>
</context>
<context>
    <name>DisclosureView</name>
    <message>
        <source>Data &amp; AI</source>
        <translation>Data &amp; AI</translation>
    </message>
    <message>
        <source>Before we start</source>
        <translation>Before we start</translation>
    </message>
    <message>
        <source>To turn your speech into text, this app sends your voice recording through our server to &lt;b&gt;OpenAI&lt;/b&gt;, a third-party AI service in the United States.</source>
        <translation>To turn your speech into text, this app sends your voice recording through our server to &lt;b&gt;OpenAI&lt;/b&gt;, a third-party AI service in the United States.</translation>
    </message>
    <message>
        <source>Our server passes your recording on without storing it. It keeps only your token balance and purchases, under a random ID created on this Mac — no name, email, account or location. Your recording is deleted once it has been transcribed, and your transcripts are stored only on this Mac.</source>
        <translation>Our server passes your recording on without storing it. It keeps only your token balance and purchases, under a random ID created on this computer — no name, email, account or location. Your recording is deleted once it has been transcribed, and your transcripts are stored only on this computer.</translation>
    </message>
    <message>
        <source>What OpenAI does with it ↗</source>
        <translation>What OpenAI does with it ↗</translation>
    </message>
    <message>
        <source>Our privacy policy ↗</source>
        <translation>Our privacy policy ↗</translation>
    </message>
    <message>
        <source>You agreed on %1.</source>
        <translation>You agreed on %1.</translation>
    </message>
    <message>
        <source>Withdraw consent</source>
        <translation>Withdraw consent</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Not now</translation>
    </message>
    <message>
        <source>Keep it on</source>
        <translation>Keep it on</translation>
    </message>
    <message>
        <source>I agree — send to OpenAI</source>
        <translation>I agree — send to OpenAI</translation>
    </message>
    <message>
        <source>You can withdraw this at any time from the menu bar under Data &amp; AI. Without it, dictation stays off.</source>
        <translation>You can withdraw this at any time in the settings under Data &amp; AI. Without it, dictation stays off.</translation>
    </message>
    <message>
        <source>Recordings go to %1, on this computer: they stay here unless that server passes them on.</source>
        <translation>Recordings go to %1, on this computer: they stay here unless that server passes them on.</translation>
    </message>
    <message>
        <source>Recordings go to %1.</source>
        <translation>Recordings go to %1.</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>QUILLO_PLATFORM is &quot;%1&quot;; it can be x11 or wayland.</source>
        <translation>QUILLO_PLATFORM is &quot;%1&quot;; it can be x11 or wayland.</translation>
    </message>
    <message>
        <source>Wayland sessions are not supported yet. Log in to an X11 session, or try QUILLO_PLATFORM=x11, which reaches only the programs that run through Xwayland.</source>
        <translation>Wayland sessions are not supported yet. Log in to an X11 session, or try QUILLO_PLATFORM=x11, which reaches only the programs that run through Xwayland.</translation>
    </message>
    <message>
        <source>There is no X11 display (DISPLAY is not set).</source>
        <translation>There is no X11 display (DISPLAY is not set).</translation>
    </message>
    <message>
        <source>The X11 display %1 can&apos;t be reached.</source>
        <translation>The X11 display %1 can&apos;t be reached.</translation>
    </message>
</context>
<context>
    <name>EntryList</name>
    <message>
        <source>Entries</source>
        <translation>Entries</translation>
    </message>
    <message>
        <source>No matches.</source>
        <translation>No matches.</translation>
    </message>
    <message>
        <source>Try a different search.</source>
        <translation>Try a different search.</translation>
    </message>
</context>
<context>
    <name>EntryMenu</name>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Move to Group</source>
        <translation>Move to Group</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
</context>
<context>
    <name>Finding</name>
    <message>
        <source>there is no X server at $DISPLAY</source>
        <translation>there is no X server at $DISPLAY</translation>
    </message>
    <message>
        <source>the X server has no keyboard extension (XKB)</source>
        <translation>the X server has no keyboard extension (XKB)</translation>
    </message>
    <message>
        <source>the X server has no XFIXES extension</source>
        <translation>the X server has no XFIXES extension</translation>
    </message>
    <message>
        <source>Raw keys</source>
        <translation>Raw keys</translation>
    </message>
    <message>
        <source>no XInput 2.2: the dictation shortcut is a single key</source>
        <translation>no XInput 2.2: the dictation shortcut is a single key</translation>
    </message>
    <message>
        <source>choose a key combination in the settings</source>
        <translation>choose a key combination in the settings</translation>
    </message>
    <message>
        <source>no XInput 2.2: a single key can&apos;t be a shortcut</source>
        <translation>no XInput 2.2: a single key can&apos;t be a shortcut</translation>
    </message>
    <message>
        <source>use a key combination</source>
        <translation>use a key combination</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Keyboard</translation>
    </message>
    <message>
        <source>no XKB</source>
        <translation>no XKB</translation>
    </message>
    <message>
        <source>enable the X server&apos;s XKEYBOARD extension</source>
        <translation>enable the X server&apos;s XKEYBOARD extension</translation>
    </message>
    <message>
        <source>Key posting</source>
        <translation>Key posting</translation>
    </message>
    <message>
        <source>no XTEST: text is copied, not pasted</source>
        <translation>no XTEST: text is copied, not pasted</translation>
    </message>
    <message>
        <source>paste with Ctrl+V, or enable the X server&apos;s XTEST extension</source>
        <translation>paste with Ctrl+V, or enable the X server&apos;s XTEST extension</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Clipboard</translation>
    </message>
    <message>
        <source>no XFIXES</source>
        <translation>no XFIXES</translation>
    </message>
    <message>
        <source>enable the X server&apos;s XFIXES extension</source>
        <translation>enable the X server&apos;s XFIXES extension</translation>
    </message>
    <message>
        <source>Display server</source>
        <translation>Display server</translation>
    </message>
    <message>
        <source>log in to an X11 session</source>
        <translation>log in to an X11 session</translation>
    </message>
    <message>
        <source>X11 (%1), backend x11</source>
        <translation>X11 (%1), backend x11</translation>
    </message>
    <message>
        <source>Window manager</source>
        <translation>Window manager</translation>
    </message>
    <message>
        <source>there</source>
        <translation>there</translation>
    </message>
    <message>
        <source>none: windows may not come to the front</source>
        <translation>none: windows may not come to the front</translation>
    </message>
    <message>
        <source>start a window manager</source>
        <translation>start a window manager</translation>
    </message>
    <message>
        <source>Compositor</source>
        <translation>Compositor</translation>
    </message>
    <message>
        <source>none: the status panel has hard edges</source>
        <translation>none: the status panel has hard edges</translation>
    </message>
    <message>
        <source>XEmbed tray</source>
        <translation>XEmbed tray</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V does not paste in it</source>
        <translation>Ctrl+Shift+V does not paste in it</translation>
    </message>
    <message>
        <source>add to ~/.Xresources and load it with xrdb -merge: %1</source>
        <translation>add to ~/.Xresources and load it with xrdb -merge: %1</translation>
    </message>
    <message>
        <source>Sound server</source>
        <translation>Sound server</translation>
    </message>
    <message>
        <source>refuses access</source>
        <translation>refuses access</translation>
    </message>
    <message>
        <source>allow Quillo to record in the sandbox or sound settings</source>
        <translation>allow Quillo to record in the sandbox or sound settings</translation>
    </message>
    <message>
        <source>not running</source>
        <translation>not running</translation>
    </message>
    <message>
        <source>start PulseAudio or PipeWire (pipewire-pulse)</source>
        <translation>start PulseAudio or PipeWire (pipewire-pulse)</translation>
    </message>
    <message>
        <source>Microphone level</source>
        <translation>Microphone level</translation>
    </message>
    <message>
        <source>it can&apos;t be recorded</source>
        <translation>it can&apos;t be recorded</translation>
    </message>
    <message>
        <source>choose another input device</source>
        <translation>choose another input device</translation>
    </message>
    <message>
        <source>silent</source>
        <translation>silent</translation>
    </message>
    <message>
        <source>unmute the input device in the sound settings</source>
        <translation>unmute the input device in the sound settings</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microphone</translation>
    </message>
    <message>
        <source>no input device</source>
        <translation>no input device</translation>
    </message>
    <message>
        <source>connect a microphone, or choose one in the sound settings</source>
        <translation>connect a microphone, or choose one in the sound settings</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Keyring</translation>
    </message>
    <message>
        <source>absent: no Secret Service on the session bus</source>
        <translation>absent: no Secret Service on the session bus</translation>
    </message>
    <message>
        <source>install and start GNOME Keyring, KWallet or KeePassXC; until then the credential is kept in memory and each start is a new device</source>
        <translation>install and start GNOME Keyring, KWallet or KeePassXC; until then the credential is kept in memory and each start is a new device</translation>
    </message>
    <message>
        <source>there, without a default keyring</source>
        <translation>there, without a default keyring</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>locked</translation>
    </message>
    <message>
        <source>unlock the login keyring; until then the credential is kept in memory and each start is a new device</source>
        <translation>unlock the login keyring; until then the credential is kept in memory and each start is a new device</translation>
    </message>
    <message>
        <source>usable</source>
        <translation>usable</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read or written</source>
        <translation>%1 can&apos;t be read or written</translation>
    </message>
    <message>
        <source>make it yours: chown and chmod u+rw</source>
        <translation>make it yours: chown and chmod u+rw</translation>
    </message>
    <message>
        <source>%1 is damaged: what can&apos;t be read counts as not set</source>
        <translation>%1 is damaged: what can&apos;t be read counts as not set</translation>
    </message>
    <message>
        <source>mend the file or move it away</source>
        <translation>mend the file or move it away</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Tray</translation>
    </message>
    <message>
        <source>none on this desktop</source>
        <translation>none on this desktop</translation>
    </message>
    <message>
        <source>start quillo again for the history, use its commands (quillo --help), or add a tray to the panel</source>
        <translation>start quillo again for the history, use its commands (quillo --help), or add a tray to the panel</translation>
    </message>
    <message>
        <source>choose another one in the settings</source>
        <translation>choose another one in the settings</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>Hot keys</translation>
    </message>
    <message>
        <source>the running Quillo does not answer</source>
        <translation>the running Quillo does not answer</translation>
    </message>
    <message>
        <source>end it and start it again</source>
        <translation>end it and start it again</translation>
    </message>
    <message>
        <source>Hot key</source>
        <translation>Hot key</translation>
    </message>
    <message>
        <source>held by the running Quillo</source>
        <translation>held by the running Quillo</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Session bus</translation>
    </message>
    <message>
        <source>none: no tray item, no keyring, no commands</source>
        <translation>none: no tray item, no keyring, no commands</translation>
    </message>
    <message>
        <source>log in through a desktop session, or start one with dbus-run-session</source>
        <translation>log in through a desktop session, or start one with dbus-run-session</translation>
    </message>
    <message>
        <source>there; Quillo is running</source>
        <translation>there; Quillo is running</translation>
    </message>
    <message>
        <source>there; Quillo isn&apos;t running</source>
        <translation>there; Quillo isn&apos;t running</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1 is free</translation>
    </message>
    <message>
        <source>%1 is taken by another program</source>
        <translation>%1 is taken by another program</translation>
    </message>
    <message>
        <source>not tried: %1</source>
        <translation>not tried: %1</translation>
    </message>
    <message>
        <source>Backend</source>
        <translation>Backend</translation>
    </message>
    <message>
        <source>no usable address</source>
        <translation>no usable address</translation>
    </message>
    <message>
        <source>set apiURL in %1</source>
        <translation>set apiURL in %1</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 does not answer</translation>
    </message>
    <message>
        <source>check the network; a server of your own is started with quillo-backend</source>
        <translation>check the network; a server of your own is started with quillo-backend</translation>
    </message>
    <message>
        <source>%1 answers</source>
        <translation>%1 answers</translation>
    </message>
    <message>
        <source>%1 answers %2, which no Quillo backend does</source>
        <translation>%1 answers %2, which no Quillo backend does</translation>
    </message>
    <message>
        <source>check apiURL in %1</source>
        <translation>check apiURL in %1</translation>
    </message>
    <message>
        <source>Consent</source>
        <translation>Consent</translation>
    </message>
    <message>
        <source>given</source>
        <translation>given</translation>
    </message>
    <message>
        <source>not given: dictation stays off</source>
        <translation>not given: dictation stays off</translation>
    </message>
    <message>
        <source>start Quillo and agree</source>
        <translation>start Quillo and agree</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Fonts</translation>
    </message>
    <message>
        <source>Liberation Sans is missing: another face stands in</source>
        <translation>Liberation Sans is missing: another face stands in</translation>
    </message>
    <message>
        <source>install fonts-liberation</source>
        <translation>install fonts-liberation</translation>
    </message>
    <message>
        <source>Liberation Sans; the system serif stands in for Fraunces</source>
        <translation>Liberation Sans; the system serif stands in for Fraunces</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>note</source>
        <translation>note</translation>
    </message>
    <message>
        <source>MISSING</source>
        <translation>MISSING</translation>
    </message>
    <message>
        <source>
Dictation can work here.
</source>
        <translation>
Dictation can work here.
</translation>
    </message>
    <message>
        <source>
Dictation can&apos;t work here yet.
</source>
        <translation>
Dictation can&apos;t work here yet.
</translation>
    </message>
    <message>
        <source>%1 begins neither with https:// nor http://</source>
        <translation>%1 begins neither with https:// nor http://</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1 can&apos;t be read</translation>
    </message>
    <message>
        <source>it is kept; to take over what can be read: quillo history --recover %1</source>
        <translation>it is kept; to take over what can be read: quillo history --recover %1</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: nothing new is kept</source>
        <translation>%1 can&apos;t be written: nothing new is kept</translation>
    </message>
    <message>
        <source>make it yours: chown and chmod u+rwx</source>
        <translation>make it yours: chown and chmod u+rwx</translation>
    </message>
    <message>
        <source>%1: the disk is full, nothing new is kept</source>
        <translation>%1: the disk is full, nothing new is kept</translation>
    </message>
    <message>
        <source>make room</source>
        <translation>make room</translation>
    </message>
    <message>
        <source>%1; put aside because it couldn&apos;t be read: %2</source>
        <translation>%1; put aside because it couldn&apos;t be read: %2</translation>
    </message>
    <message>
        <source>it is made, with a password of yours, when tokens are bought; until then the credential is kept in memory and each start is a new device</source>
        <translation>it is made, with a password of yours, when tokens are bought; until then the credential is kept in memory and each start is a new device</translation>
    </message>
</context>
<context>
    <name>GeneralSettings</name>
    <message>
        <source>Couldn&apos;t change Open at Login</source>
        <translation>Couldn&apos;t change Open at Login</translation>
    </message>
</context>
<context>
    <name>GroupCarousel</name>
    <message>
        <source>Current group</source>
        <translation>Current group</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Edit groups</source>
        <translation>Edit groups</translation>
    </message>
</context>
<context>
    <name>GroupCarouselModel</name>
    <message>
        <source>All entries</source>
        <translation>All entries</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>Dictations go into %1 while it&apos;s selected.</source>
        <translation>Dictations go into %1 while it&apos;s selected.</translation>
    </message>
</context>
<context>
    <name>GroupEditor</name>
    <message>
        <source>Groups</source>
        <translation>Groups</translation>
    </message>
    <message>
        <source>Dictations go into the selected group. Deleting a group keeps its entries under All entries.</source>
        <translation>Dictations go into the selected group. Deleting a group keeps its entries under All entries.</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>New group</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>Groups</translation>
    </message>
</context>
<context>
    <name>GroupRow</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name of the group</source>
        <translation>Name of the group</translation>
    </message>
    <message>
        <source>Delete group</source>
        <translation>Delete group</translation>
    </message>
</context>
<context>
    <name>GroupStore</name>
    <message>
        <source>Groups</source>
        <translation>Groups</translation>
    </message>
    <message>
        <source>Kept in memory: the groups can&apos;t be saved</source>
        <translation>Kept in memory: the groups can&apos;t be saved</translation>
    </message>
    <message>
        <source>The groups can&apos;t be read: a new one begins, the old file is kept</source>
        <translation>The groups can&apos;t be read: new ones begin, the old file is kept</translation>
    </message>
</context>
<context>
    <name>GroupsSection</name>
    <message>
        <source>Groups &amp; History</source>
        <translation>Groups &amp; History</translation>
    </message>
    <message>
        <source>New dictations go into the current group: %1.</source>
        <translation>New dictations go into the current group: %1.</translation>
    </message>
    <message>
        <source>Next group</source>
        <translation>Next group</translation>
    </message>
    <message>
        <source>Show or hide history</source>
        <translation>Show or hide history</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groups</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Edit…</translation>
    </message>
    <message>
        <source>Edit groups</source>
        <translation>Edit groups</translation>
    </message>
</context>
<context>
    <name>HUDView</name>
    <message>
        <source>Dictating into %1</source>
        <translation>Dictating into %1</translation>
    </message>
    <message>
        <source>Listening — press again to stop</source>
        <translation>Listening — press again to stop</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Listening</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>Transcribing…</translation>
    </message>
    <message>
        <source>No free tokens were left today</source>
        <translation>No free tokens were left today</translation>
    </message>
    <message>
        <source>You&apos;re out of tokens</source>
        <translation>You&apos;re out of tokens</translation>
    </message>
    <message>
        <source>Buy…</source>
        <translation>Buy…</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>1 entry</source>
        <translation>1 entry</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%Ln entry</numerusform>
            <numerusform>%Ln entries</numerusform>
        </translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>All entries</translation>
    </message>
</context>
<context>
    <name>HistorySection</name>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Transcripts on this Mac</source>
        <translation>Transcripts on this computer</translation>
    </message>
    <message>
        <source>Clear…</source>
        <translation>Clear…</translation>
    </message>
    <message numerus="yes">
        <source>Delete all %n transcripts?</source>
        <translation>
            <numerusform>Delete the transcript?</numerusform>
            <numerusform>Delete all %Ln transcripts?</numerusform>
        </translation>
    </message>
    <message>
        <source>They&apos;re stored only on this Mac, so this can&apos;t be undone.</source>
        <translation>They&apos;re stored only on this computer, so this can&apos;t be undone.</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Delete All</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
<context>
    <name>HistoryView</name>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>No entries yet.</source>
        <translation>No entries yet.</translation>
    </message>
    <message>
        <source>Dictate with %1 to see it here.</source>
        <translation>Dictate with %1 to see it here.</translation>
    </message>
</context>
<context>
    <name>Instance</name>
    <message>
        <source>There is no session bus (DBUS_SESSION_BUS_ADDRESS), so Quillo can&apos;t be reached.</source>
        <translation>There is no session bus (DBUS_SESSION_BUS_ADDRESS), so Quillo can&apos;t be reached.</translation>
    </message>
    <message>
        <source>Quillo isn&apos;t running. Start it with: quillo</source>
        <translation>Quillo isn&apos;t running. Start it with: quillo</translation>
    </message>
    <message>
        <source>Quillo refused: %1</source>
        <translation>Quillo refused: %1</translation>
    </message>
    <message>
        <source>Quillo did not answer: %1</source>
        <translation>Quillo did not answer: %1</translation>
    </message>
</context>
<context>
    <name>LocalizedError</name>
    <message>
        <source>There is no microphone. Plug one in.</source>
        <translation>There is no microphone. Plug one in.</translation>
    </message>
    <message>
        <source>%1 is no sound file that can be read.</source>
        <translation>%1 is no sound file that can be read.</translation>
    </message>
    <message>
        <source>There is no sound in %1.</source>
        <translation>There is no sound in %1.</translation>
    </message>
    <message>
        <source>The sound of %1 can&apos;t be decoded.</source>
        <translation>The sound of %1 can&apos;t be decoded.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Stopped.</translation>
    </message>
    <message>
        <source>The sound of %1 can&apos;t be converted.</source>
        <translation>The sound of %1 can&apos;t be converted.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>There is no file %1.</translation>
    </message>
    <message>
        <source>The converted recording can&apos;t be written.</source>
        <translation>The converted recording can&apos;t be written.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone.</source>
        <translation>Couldn&apos;t start the microphone.</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Unmetered (dev device)</source>
        <translation>Unmetered (dev device)</translation>
    </message>
    <message numerus="yes">
        <source>%1 tokens left</source>
        <translation>
            <numerusform>%L1 token left</numerusform>
            <numerusform>%L1 tokens left</numerusform>
        </translation>
    </message>
    <message>
        <source>Today&apos;s free tokens for new users ran out before you joined.</source>
        <translation>Today&apos;s free tokens for new users ran out before you joined.</translation>
    </message>
    <message>
        <source>Buy Tokens…</source>
        <translation>Buy Tokens…</translation>
    </message>
    <message>
        <source>Allow pasting into other apps…</source>
        <translation>Allow pasting into other apps…</translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>All entries</translation>
    </message>
    <message>
        <source>Next Group</source>
        <translation>Next Group</translation>
    </message>
    <message>
        <source>Edit Groups…</source>
        <translation>Edit Groups…</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Group: %1</translation>
    </message>
    <message>
        <source>Hide History</source>
        <translation>Hide History</translation>
    </message>
    <message>
        <source>Show History</source>
        <translation>Show History</translation>
    </message>
    <message>
        <source>Copy Last Transcript</source>
        <translation>Copy Last Transcript</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Clear History</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recent</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Settings…</translation>
    </message>
    <message>
        <source>Quit Quillo</source>
        <translation>Quit Quillo</translation>
    </message>
</context>
<context>
    <name>PermissionRow</name>
    <message>
        <source>Allowed</source>
        <translation>Allowed</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Allow…</translation>
    </message>
    <message>
        <source>Allow %1</source>
        <translation>Allow %1</translation>
    </message>
</context>
<context>
    <name>Permissions</name>
    <message>
        <source>Allow an input device in the sound settings</source>
        <translation>Allow an input device in the sound settings</translation>
    </message>
    <message>
        <source>Run “quillo doctor” to see what is missing</source>
        <translation>Run “quillo doctor” to see what is missing</translation>
    </message>
</context>
<context>
    <name>PermissionsSection</name>
    <message>
        <source>Permissions</source>
        <translation>Permissions</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microphone</translation>
    </message>
    <message>
        <source>To hear what you say.</source>
        <translation>To hear what you say.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accessibility</translation>
    </message>
    <message>
        <source>To paste into other apps. Without it, text is copied and you press ⌘V.</source>
        <translation>To paste into other apps. Without it, text is copied and you press Ctrl+V (Ctrl+Shift+V in a terminal).</translation>
    </message>
</context>
<context>
    <name>RecoverHistory</name>
    <message>
        <source>%1 can&apos;t be read.</source>
        <translation>%1 can&apos;t be read.</translation>
    </message>
    <message>
        <source>The history can&apos;t be saved: %1</source>
        <translation>The history can&apos;t be saved: %1</translation>
    </message>
    <message>
        <source>1 entry taken over.
</source>
        <translation>1 entry taken over.
</translation>
    </message>
    <message numerus="yes">
        <source>%n entries taken over.
</source>
        <translation>
            <numerusform>%Ln entry taken over.
</numerusform>
            <numerusform>%Ln entries taken over.
</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RemoteControl</name>
    <message>
        <source>unmetered</source>
        <translation>unmetered</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>There is no action &quot;%1&quot;.</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search transcriptions</source>
        <translation>Search transcriptions</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Clear search</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>All entries</source>
        <translation>All entries</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Open at login</translation>
    </message>
    <message>
        <source>Quillo Settings</source>
        <translation>Quillo Settings</translation>
    </message>
    <message>
        <source>Keep recordings that couldn&apos;t be sent</source>
        <translation>Keep recordings that couldn&apos;t be sent</translation>
    </message>
    <message>
        <source>For seven days. They are sent when the server answers again.</source>
        <translation>For seven days. They are sent when the server answers again.</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>That can&apos;t be a shortcut on this keyboard. Try another one.</source>
        <translation>That can&apos;t be a shortcut on this keyboard. Try another one.</translation>
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
        <translation>Keypad Enter</translation>
    </message>
    <message>
        <source>Right ⌥ Option</source>
        <translation>Right Alt (AltGr)</translation>
    </message>
    <message>
        <source>Right ⌘ Command</source>
        <translation>Right Super</translation>
    </message>
    <message>
        <source>Right ⌃ Control</source>
        <translation>Right Ctrl</translation>
    </message>
    <message>
        <source>Fn (🌐)</source>
        <translation>Fn</translation>
    </message>
    <message>
        <source>Hold to talk, or tap for hands-free</source>
        <translation>Hold to talk, or tap for hands-free</translation>
    </message>
    <message>
        <source>Hold to talk only</source>
        <translation>Hold to talk only</translation>
    </message>
    <message>
        <source>Tap to start and stop</source>
        <translation>Tap to start and stop</translation>
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
        <translation>Esc is used to cancel a dictation.</translation>
    </message>
    <message>
        <source>Add ⌘, ⌥ or ⌃ — or use an F-key — so it doesn&apos;t block typing.</source>
        <translation>Add Ctrl, Alt or Super — or use an F-key — so it doesn&apos;t block typing.</translation>
    </message>
</context>
<context>
    <name>ShortcutRecorder</name>
    <message>
        <source>Type shortcut…</source>
        <translation>Type shortcut…</translation>
    </message>
</context>
<context>
    <name>ShortcutSection</name>
    <message>
        <source>Shortcut</source>
        <translation>Shortcut</translation>
    </message>
    <message>
        <source>Press Esc while recording to cancel.</source>
        <translation>Press Esc while recording to cancel.</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Trigger</translation>
    </message>
    <message>
        <source>Key combination</source>
        <translation>Key combination</translation>
    </message>
    <message>
        <source>Hold a single key</source>
        <translation>Hold a single key</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Key</translation>
    </message>
    <message>
        <source>Set System Settings › Keyboard › “Press 🌐 key to” to “Do Nothing”, or the emoji picker opens too.</source>
        <translation>Most keyboards keep Fn to themselves. If nothing happens when you hold it, choose another key.</translation>
    </message>
    <message>
        <source>A single key needs Accessibility (below) before it works.</source>
        <translation>A single key needs Accessibility (below) before it works.</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>Behavior</translation>
    </message>
    <message>
        <source>This key doesn&apos;t arrive here: the keyboard or the desktop keeps it to itself. Choose another one.</source>
        <translation>This key doesn&apos;t arrive here: the keyboard or the desktop keeps it to itself. Choose another one.</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>%1 is already used by another app. Pick a different shortcut.</source>
        <translation>%1 is already used by another app. Pick a different shortcut.</translation>
    </message>
    <message>
        <source>%1 is already in use. Pick a different shortcut.</source>
        <translation>%1 is already in use. Pick a different shortcut.</translation>
    </message>
</context>
<context>
    <name>Start</name>
    <message>
        <source>There is no session bus: no tray item but XEmbed&apos;s, no keyring, and commands can&apos;t reach Quillo.</source>
        <translation>There is no session bus: no tray item but XEmbed&apos;s, no keyring, and commands can&apos;t reach Quillo.</translation>
    </message>
    <message>
        <source>%1 See: quillo --help</source>
        <translation>%1 See: quillo --help</translation>
    </message>
</context>
<context>
    <name>Status</name>
    <message>
        <source>yes</source>
        <translation>yes</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>unmetered</source>
        <translation>unmetered</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>not known yet</translation>
    </message>
    <message>
        <source>State</source>
        <translation>State</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>All entries</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Tokens</translation>
    </message>
    <message>
        <source>Transcripts</source>
        <translation>Transcripts</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microphone</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accessibility</translation>
    </message>
    <message>
        <source>Consent</source>
        <translation>Consent</translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message numerus="yes">
        <source>%1 tokens</source>
        <translation>
            <numerusform>%L1 token</numerusform>
            <numerusform>%L1 tokens</numerusform>
        </translation>
    </message>
    <message>
        <source>%1  next group   ·   %2  hide</source>
        <translation>%1  next group   ·   %2  hide</translation>
    </message>
</context>
<context>
    <name>TokenBalance</name>
    <message>
        <source>Couldn&apos;t open the checkout page in a browser</source>
        <translation>Couldn&apos;t open the checkout page in a browser</translation>
    </message>
</context>
<context>
    <name>Transcribe</name>
    <message>
        <source>Standard input can&apos;t be read.</source>
        <translation>Standard input can&apos;t be read.</translation>
    </message>
    <message>
        <source>The temporary folder is full.</source>
        <translation>The temporary folder is full.</translation>
    </message>
    <message>
        <source>The temporary folder can&apos;t be written.</source>
        <translation>The temporary folder can&apos;t be written.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Reading…</translation>
    </message>
    <message>
        <source>Reading… %1 %</source>
        <translation>Reading… %1 %</translation>
    </message>
    <message>
        <source>Transcribing… %1 s</source>
        <translation>Transcribing… %1 s</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>Transcribing…</translation>
    </message>
</context>
<context>
    <name>TranscriptionStore</name>
    <message>
        <source>History</source>
        <translation>History</translation>
    </message>
    <message>
        <source>Kept in memory: the history can&apos;t be saved</source>
        <translation>Kept in memory: the history can&apos;t be saved</translation>
    </message>
    <message>
        <source>The history can&apos;t be read: a new one begins, the old file is kept</source>
        <translation>The history can&apos;t be read: a new one begins, the old file is kept</translation>
    </message>
</context>
<context>
    <name>UnsentStrip</name>
    <message>
        <source>Sending again…</source>
        <translation>Sending again…</translation>
    </message>
    <message>
        <source>One recording couldn&apos;t be sent.</source>
        <translation>One recording couldn&apos;t be sent.</translation>
    </message>
    <message numerus="yes">
        <source>%n recordings couldn&apos;t be sent.</source>
        <translation>
            <numerusform>%Ln recording couldn&apos;t be sent.</numerusform>
            <numerusform>%Ln recordings couldn&apos;t be sent.</numerusform>
        </translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Send again</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
</context>
</TS>
