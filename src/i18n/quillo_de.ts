<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AIConsent</name>
    <message>
        <source>Sending to OpenAI needs your permission first. Open Data &amp; AI from the menu bar.</source>
        <translation>Zum Senden an OpenAI fehlt Ihre Zustimmung. Öffnen Sie „Daten und KI“ in den Einstellungen.</translation>
    </message>
</context>
<context>
    <name>Age</name>
    <message>
        <source>1 day</source>
        <extracomment>Part of how long ago something was.</extracomment>
        <translation>1 Tag</translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%Ln Tag</numerusform>
            <numerusform>%Ln Tagen</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hr</source>
        <extracomment>Part of how long ago something was.</extracomment>
        <translation>1 Std.</translation>
    </message>
    <message numerus="yes">
        <source>%n hrs</source>
        <translation>
            <numerusform>%Ln Std.</numerusform>
            <numerusform>%Ln Std.</numerusform>
        </translation>
    </message>
    <message>
        <source>just now</source>
        <translation>gerade eben</translation>
    </message>
    <message numerus="yes">
        <source>%n min ago</source>
        <translation>
            <numerusform>vor %Ln Min.</numerusform>
            <numerusform>vor %Ln Min.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 ago</source>
        <extracomment>%1: &quot;3 hrs&quot; or &quot;2 days&quot;.</extracomment>
        <translation>vor %1</translation>
    </message>
    <message>
        <source>%1, %2 ago</source>
        <extracomment>%1: &quot;2 days&quot;, %2: &quot;3 hrs&quot;.</extracomment>
        <translation>vor %1, %2</translation>
    </message>
</context>
<context>
    <name>ApiError</name>
    <message>
        <source>Couldn&apos;t read the recording.</source>
        <translation>Die Aufnahme ist nicht lesbar.</translation>
    </message>
    <message>
        <source>Nothing was recorded. Check microphone access.</source>
        <translation>Nichts aufgenommen. Prüfen Sie den Zugriff auf das Mikrofon.</translation>
    </message>
    <message>
        <source>The service is unavailable right now. Please try again later.</source>
        <translation>Der Dienst ist gerade nicht verfügbar. Bitte versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Netzwerkfehler. Bitte prüfen Sie die Verbindung.</translation>
    </message>
    <message>
        <source>Something went wrong. Please try again.</source>
        <translation>Etwas ist schiefgegangen. Bitte versuchen Sie es noch einmal.</translation>
    </message>
</context>
<context>
    <name>CopyPill</name>
    <message>
        <source>COPIED</source>
        <translation>KOPIERT</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>KOPIEREN</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>DisclosureView</name>
    <message>
        <source>Data &amp; AI</source>
        <translation>Daten und KI</translation>
    </message>
    <message>
        <source>Before we start</source>
        <translation>Bevor es losgeht</translation>
    </message>
    <message>
        <source>To turn your speech into text, this app sends your voice recording through our server to &lt;b&gt;OpenAI&lt;/b&gt;, a third-party AI service in the United States.</source>
        <translation>Um Gesprochenes in Text zu verwandeln, schickt dieses Programm Ihre Aufnahme über unseren Server an &lt;b&gt;OpenAI&lt;/b&gt;, einen KI-Dienst eines Dritten in den Vereinigten Staaten.</translation>
    </message>
    <message>
        <source>Our server passes your recording on without storing it. It keeps only your token balance and purchases, under a random ID created on this Mac — no name, email, account or location. Your recording is deleted once it has been transcribed, and your transcripts are stored only on this Mac.</source>
        <translation>Unser Server gibt die Aufnahme weiter, ohne sie zu speichern. Er behält nur Ihr Token-Guthaben und Ihre Käufe, unter einer zufälligen Kennung, die auf diesem Rechner entstanden ist – keinen Namen, keine E-Mail-Adresse, kein Konto, keinen Ort. Die Aufnahme wird gelöscht, sobald sie umgewandelt ist, und Ihre Texte liegen nur auf diesem Rechner.</translation>
    </message>
    <message>
        <source>What OpenAI does with it ↗</source>
        <translation>Was OpenAI damit macht ↗</translation>
    </message>
    <message>
        <source>Our privacy policy ↗</source>
        <translation>Unsere Datenschutzerklärung ↗</translation>
    </message>
    <message>
        <source>You agreed on %1.</source>
        <translation>Zugestimmt am %1.</translation>
    </message>
    <message>
        <source>Withdraw consent</source>
        <translation>Zustimmung widerrufen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Jetzt nicht</translation>
    </message>
    <message>
        <source>Keep it on</source>
        <translation>Dabei bleiben</translation>
    </message>
    <message>
        <source>I agree — send to OpenAI</source>
        <translation>Einverstanden – an OpenAI senden</translation>
    </message>
    <message>
        <source>You can withdraw this at any time from the menu bar under Data &amp; AI. Without it, dictation stays off.</source>
        <translation>Sie können das jederzeit in den Einstellungen unter „Daten und KI“ widerrufen. Ohne Zustimmung bleibt das Diktat aus.</translation>
    </message>
</context>
<context>
    <name>EntryList</name>
    <message>
        <source>Entries</source>
        <translation>Einträge</translation>
    </message>
    <message>
        <source>No matches.</source>
        <translation>Keine Treffer.</translation>
    </message>
    <message>
        <source>Try a different search.</source>
        <translation>Suchen Sie nach etwas anderem.</translation>
    </message>
</context>
<context>
    <name>EntryMenu</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Move to Group</source>
        <translation>In Gruppe verschieben</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>GroupCarousel</name>
    <message>
        <source>Current group</source>
        <translation>Aktuelle Gruppe</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Edit groups</source>
        <translation>Gruppen bearbeiten</translation>
    </message>
</context>
<context>
    <name>GroupCarouselModel</name>
    <message>
        <source>All entries</source>
        <translation>Alle Einträge</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Ohne Namen</translation>
    </message>
    <message>
        <source>Dictations go into %1 while it&apos;s selected.</source>
        <translation>Diktate landen in %1, solange die Gruppe gewählt ist.</translation>
    </message>
</context>
<context>
    <name>GroupEditor</name>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Dictations go into the selected group. Deleting a group keeps its entries under All entries.</source>
        <translation>Diktate landen in der gewählten Gruppe. Wird eine Gruppe gelöscht, bleiben ihre Einträge unter „Alle Einträge“.</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>Neue Gruppe</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
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
        <translation>Name der Gruppe</translation>
    </message>
    <message>
        <source>Delete group</source>
        <translation>Gruppe löschen</translation>
    </message>
</context>
<context>
    <name>HUDView</name>
    <message>
        <source>Dictating into %1</source>
        <translation>Diktat in %1</translation>
    </message>
    <message>
        <source>Listening — press again to stop</source>
        <translation>Ich höre zu – erneut drücken beendet</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Ich höre zu</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>Wird umgewandelt …</translation>
    </message>
    <message>
        <source>No free tokens were left today</source>
        <translation>Für heute sind keine freien Tokens mehr da</translation>
    </message>
    <message>
        <source>You&apos;re out of tokens</source>
        <translation>Ihre Tokens sind aufgebraucht</translation>
    </message>
    <message>
        <source>Buy…</source>
        <translation>Kaufen …</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>1 entry</source>
        <translation>1 Eintrag</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%Ln Eintrag</numerusform>
            <numerusform>%Ln Einträge</numerusform>
        </translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>Alle Einträge</translation>
    </message>
</context>
<context>
    <name>HistoryView</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>No entries yet.</source>
        <translation>Noch keine Einträge.</translation>
    </message>
    <message>
        <source>Dictate with %1 to see it here.</source>
        <translation>Diktieren Sie mit %1, dann steht es hier.</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search transcriptions</source>
        <translation>Texte durchsuchen</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Suche leeren</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Rücktaste</translation>
    </message>
    <message>
        <source>⌦</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Bild auf</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Bild ab</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Eingabe (Ziffernblock)</translation>
    </message>
    <message>
        <source>Right ⌥ Option</source>
        <translation>Alt Gr (rechtes Alt)</translation>
    </message>
    <message>
        <source>Right ⌘ Command</source>
        <translation>Rechte Super-Taste</translation>
    </message>
    <message>
        <source>Right ⌃ Control</source>
        <translation>Rechte Strg-Taste</translation>
    </message>
    <message>
        <source>Fn (🌐)</source>
        <translation>Fn</translation>
    </message>
    <message>
        <source>Hold to talk, or tap for hands-free</source>
        <translation>Halten zum Sprechen, Tippen für freihändig</translation>
    </message>
    <message>
        <source>Hold to talk only</source>
        <translation>Nur halten zum Sprechen</translation>
    </message>
    <message>
        <source>Tap to start and stop</source>
        <translation>Tippen startet und beendet</translation>
    </message>
    <message>
        <source>⌃</source>
        <translation>Strg+</translation>
    </message>
    <message>
        <source>⌥</source>
        <translation>Alt+</translation>
    </message>
    <message>
        <source>⇧</source>
        <translation>Umschalt+</translation>
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
        <translation>Esc bricht ein Diktat ab.</translation>
    </message>
    <message>
        <source>Add ⌘, ⌥ or ⌃ — or use an F-key — so it doesn&apos;t block typing.</source>
        <translation>Nehmen Sie Strg, Alt oder Super dazu – oder eine F-Taste –, damit es nicht beim Tippen stört.</translation>
    </message>
</context>
</TS>
