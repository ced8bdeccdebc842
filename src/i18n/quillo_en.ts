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
</TS>
