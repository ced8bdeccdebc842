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
    <message>
        <source>Couldn&apos;t start the microphone.</source>
        <translation>Das Mikrofon lässt sich nicht starten.</translation>
    </message>
    <message>
        <source>Unlock the keyring first</source>
        <translation>Entsperren Sie zuerst den Schlüsselbund</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>All entries</source>
        <translation>Alle Einträge</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Hold the dictation shortcut</source>
        <translation>Das Diktat-Tastenkürzel halten</translation>
    </message>
    <message>
        <source>Let go of it</source>
        <translation>Es loslassen</translation>
    </message>
    <message>
        <source>Start dictating, or finish and paste</source>
        <translation>Diktat beginnen, oder beenden und einfügen</translation>
    </message>
    <message>
        <source>Drop the recording</source>
        <translation>Die Aufnahme verwerfen</translation>
    </message>
    <message>
        <source>Show the history</source>
        <translation>Den Verlauf anzeigen</translation>
    </message>
    <message>
        <source>Show the history with the group editor</source>
        <translation>Den Verlauf mit den Gruppen anzeigen</translation>
    </message>
    <message>
        <source>Show the settings</source>
        <translation>Die Einstellungen anzeigen</translation>
    </message>
    <message>
        <source>Make the next group the current one</source>
        <translation>Zur nächsten Gruppe wechseln</translation>
    </message>
    <message>
        <source>Open the page where tokens are bought</source>
        <translation>Die Seite zum Kauf von Tokens öffnen</translation>
    </message>
    <message>
        <source>Print what the program is doing</source>
        <translation>Ausgeben, was das Programm gerade tut</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Das Programm beenden</translation>
    </message>
    <message>
        <source>Print the text of a recording; - reads standard input</source>
        <translation>Den Text einer Aufnahme ausgeben; - liest die Standardeingabe</translation>
    </message>
    <message>
        <source>Print what this desktop offers for dictation, and what is missing</source>
        <translation>Ausgeben, was dieser Desktop für das Diktat bietet und was fehlt</translation>
    </message>
    <message>
        <source>Usage: quillo [COMMAND]

Without a command Quillo starts, or shows its history if it runs already.
Hold the dictation shortcut, speak, let go: the words appear in the program in front.

Commands:
</source>
        <translation>Aufruf: quillo [BEFEHL]

Ohne Befehl startet Quillo oder zeigt seinen Verlauf, wenn es schon läuft.
Tastenkürzel halten, sprechen, loslassen: Die Wörter erscheinen im Programm im Vordergrund.

Befehle:
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
Optionen:
  -h, --help        Diese Hilfe ausgeben
  -v, --version     Die Version ausgeben

Rückgabewert: 0 erledigt, 1 misslungen, 2 Befehlszeile falsch, 3 Quillo läuft nicht.
</translation>
    </message>
    <message>
        <source>--json belongs to the command status.</source>
        <translation>--json gehört zum Befehl status.</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>Es gibt keinen Befehl „%1“.</translation>
    </message>
    <message>
        <source>transcribe takes one file.</source>
        <translation>transcribe braucht eine Datei.</translation>
    </message>
    <message>
        <source>%1 takes no argument.</source>
        <translation>%1 hat kein Argument.</translation>
    </message>
    <message>
        <source>Take over what can be read in a damaged history</source>
        <translation>Übernehmen, was in einem beschädigten Verlauf lesbar ist</translation>
    </message>
    <message>
        <source>--recover belongs to the command history.</source>
        <translation>--recover gehört zum Befehl history.</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
    <name>DataSection</name>
    <message>
        <source>Data &amp; AI</source>
        <translation>Daten und KI</translation>
    </message>
    <message>
        <source>Sending to OpenAI</source>
        <translation>Senden an OpenAI</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Erlaubt</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Review…</source>
        <translation>Ansehen …</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Tokens</translation>
    </message>
    <message>
        <source>Unmetered</source>
        <translation>Unbegrenzt</translation>
    </message>
    <message>
        <source>%1</source>
        <comment>number of tokens</comment>
        <translation>%L1</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
</context>
<context>
    <name>Dictation</name>
    <message>
        <source>Listening… (Esc to cancel)</source>
        <translation>Ich höre zu … (Esc bricht ab)</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>Wird umgewandelt …</translation>
    </message>
    <message>
        <source>Hold %1 to dictate</source>
        <translation>Zum Diktieren %1 halten</translation>
    </message>
    <message>
        <source>Tap %1 to dictate</source>
        <translation>Zum Diktieren %1 tippen</translation>
    </message>
    <message>
        <source>Hold or tap %1 to dictate</source>
        <translation>Zum Diktieren %1 halten oder tippen</translation>
    </message>
    <message>
        <source>Microphone access is off for Quillo</source>
        <translation>Quillo darf das Mikrofon nicht benutzen</translation>
    </message>
    <message>
        <source>Microphone on — press %1 to dictate</source>
        <translation>Mikrofon an – zum Diktieren %1 drücken</translation>
    </message>
    <message>
        <source>The microphone was disconnected.</source>
        <translation>Das Mikrofon wurde getrennt.</translation>
    </message>
    <message>
        <source>Nothing was recorded. Check the microphone.</source>
        <translation>Nichts aufgenommen. Prüfen Sie das Mikrofon.</translation>
    </message>
    <message>
        <source>Didn&apos;t catch anything</source>
        <translation>Nichts verstanden</translation>
    </message>
    <message>
        <source>Copied — press ⌘V to paste</source>
        <translation>Kopiert – Einfügen mit Strg+V (im Terminal Strg+Umschalt+V)</translation>
    </message>
    <message>
        <source>Couldn&apos;t paste. The text is in the history.</source>
        <translation>Einfügen misslang. Der Text steht im Verlauf.</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
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
    <message>
        <source>Recordings go to %1, on this computer: they stay here unless that server passes them on.</source>
        <translation>Aufnahmen gehen an %1 auf diesem Rechner: Sie bleiben hier, solange dieser Server sie nicht weitergibt.</translation>
    </message>
    <message>
        <source>Recordings go to %1.</source>
        <translation>Aufnahmen gehen an %1.</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>QUILLO_PLATFORM is &quot;%1&quot;; it can be x11 or wayland.</source>
        <translation>QUILLO_PLATFORM ist „%1“; möglich sind x11 und wayland.</translation>
    </message>
    <message>
        <source>Wayland sessions are not supported yet. Log in to an X11 session, or try QUILLO_PLATFORM=x11, which reaches only the programs that run through Xwayland.</source>
        <translation>Wayland-Sitzungen werden noch nicht unterstützt. Melden Sie sich in einer X11-Sitzung an, oder versuchen Sie QUILLO_PLATFORM=x11, das nur X11-Programme erreicht.</translation>
    </message>
    <message>
        <source>There is no X11 display (DISPLAY is not set).</source>
        <translation>Es gibt keine X11-Anzeige (DISPLAY ist nicht gesetzt).</translation>
    </message>
    <message>
        <source>The X11 display %1 can&apos;t be reached.</source>
        <translation>Die X11-Anzeige %1 ist nicht erreichbar.</translation>
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
    <name>Finding</name>
    <message>
        <source>there is no X server at $DISPLAY</source>
        <translation>unter $DISPLAY ist kein X-Server</translation>
    </message>
    <message>
        <source>the X server has no keyboard extension (XKB)</source>
        <translation>der X-Server hat keine Tastaturerweiterung (XKB)</translation>
    </message>
    <message>
        <source>the X server has no XFIXES extension</source>
        <translation>der X-Server hat keine Erweiterung XFIXES</translation>
    </message>
    <message>
        <source>Raw keys</source>
        <translation>Einzeltasten</translation>
    </message>
    <message>
        <source>no XInput 2.2: the dictation shortcut is a single key</source>
        <translation>kein XInput 2.2: Das Diktat-Kürzel ist eine einzelne Taste</translation>
    </message>
    <message>
        <source>choose a key combination in the settings</source>
        <translation>in den Einstellungen eine Tastenkombination wählen</translation>
    </message>
    <message>
        <source>no XInput 2.2: a single key can&apos;t be a shortcut</source>
        <translation>kein XInput 2.2: Eine einzelne Taste kann kein Kürzel sein</translation>
    </message>
    <message>
        <source>use a key combination</source>
        <translation>eine Tastenkombination verwenden</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Tastatur</translation>
    </message>
    <message>
        <source>no XKB</source>
        <translation>kein XKB</translation>
    </message>
    <message>
        <source>enable the X server&apos;s XKEYBOARD extension</source>
        <translation>die Erweiterung XKEYBOARD des X-Servers einschalten</translation>
    </message>
    <message>
        <source>Key posting</source>
        <translation>Tastensenden</translation>
    </message>
    <message>
        <source>no XTEST: text is copied, not pasted</source>
        <translation>kein XTEST: Text wird kopiert, nicht eingefügt</translation>
    </message>
    <message>
        <source>paste with Ctrl+V, or enable the X server&apos;s XTEST extension</source>
        <translation>mit Strg+V einfügen oder die Erweiterung XTEST des X-Servers einschalten</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>no XFIXES</source>
        <translation>kein XFIXES</translation>
    </message>
    <message>
        <source>enable the X server&apos;s XFIXES extension</source>
        <translation>die Erweiterung XFIXES des X-Servers einschalten</translation>
    </message>
    <message>
        <source>Display server</source>
        <translation>Anzeigeserver</translation>
    </message>
    <message>
        <source>log in to an X11 session</source>
        <translation>in einer X11-Sitzung anmelden</translation>
    </message>
    <message>
        <source>X11 (%1), backend x11</source>
        <translation>X11 (%1), Backend x11</translation>
    </message>
    <message>
        <source>Window manager</source>
        <translation>Fensterverwaltung</translation>
    </message>
    <message>
        <source>there</source>
        <translation>vorhanden</translation>
    </message>
    <message>
        <source>none: windows may not come to the front</source>
        <translation>keine: Fenster kommen vielleicht nicht nach vorn</translation>
    </message>
    <message>
        <source>start a window manager</source>
        <translation>eine Fensterverwaltung starten</translation>
    </message>
    <message>
        <source>Compositor</source>
        <translation>Compositor</translation>
    </message>
    <message>
        <source>none: the status panel has hard edges</source>
        <translation>keiner: Die Anzeige hat harte Kanten</translation>
    </message>
    <message>
        <source>XEmbed tray</source>
        <translation>XEmbed-Leiste</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V does not paste in it</source>
        <translation>Strg+Umschalt+V fügt darin nicht ein</translation>
    </message>
    <message>
        <source>add to ~/.Xresources and load it with xrdb -merge: %1</source>
        <translation>in ~/.Xresources eintragen und mit xrdb -merge laden: %1</translation>
    </message>
    <message>
        <source>Sound server</source>
        <translation>Tonserver</translation>
    </message>
    <message>
        <source>refuses access</source>
        <translation>verweigert den Zugriff</translation>
    </message>
    <message>
        <source>allow Quillo to record in the sandbox or sound settings</source>
        <translation>Quillo in den Sandbox- oder Klangeinstellungen die Aufnahme erlauben</translation>
    </message>
    <message>
        <source>not running</source>
        <translation>läuft nicht</translation>
    </message>
    <message>
        <source>start PulseAudio or PipeWire (pipewire-pulse)</source>
        <translation>PulseAudio oder PipeWire (pipewire-pulse) starten</translation>
    </message>
    <message>
        <source>Microphone level</source>
        <translation>Mikrofonpegel</translation>
    </message>
    <message>
        <source>it can&apos;t be recorded</source>
        <translation>davon lässt sich nicht aufnehmen</translation>
    </message>
    <message>
        <source>choose another input device</source>
        <translation>ein anderes Eingabegerät wählen</translation>
    </message>
    <message>
        <source>silent</source>
        <translation>still</translation>
    </message>
    <message>
        <source>unmute the input device in the sound settings</source>
        <translation>die Stummschaltung in den Klangeinstellungen aufheben</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>no input device</source>
        <translation>kein Eingabegerät</translation>
    </message>
    <message>
        <source>connect a microphone, or choose one in the sound settings</source>
        <translation>ein Mikrofon anschließen oder in den Klangeinstellungen wählen</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Schlüsselbund</translation>
    </message>
    <message>
        <source>absent: no Secret Service on the session bus</source>
        <translation>fehlt: kein Secret Service auf dem Sitzungsbus</translation>
    </message>
    <message>
        <source>install and start GNOME Keyring, KWallet or KeePassXC; until then the credential is kept in memory and each start is a new device</source>
        <translation>GNOME-Schlüsselbund, KWallet oder KeePassXC installieren und starten; bis dahin bleibt der Zugang im Speicher, und jeder Start ist ein neues Gerät</translation>
    </message>
    <message>
        <source>there, without a default keyring</source>
        <translation>vorhanden, ohne Standard-Schlüsselbund</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>unlock the login keyring; until then the credential is kept in memory and each start is a new device</source>
        <translation>den Anmelde-Schlüsselbund entsperren; bis dahin bleibt der Zugang im Speicher, und jeder Start ist ein neues Gerät</translation>
    </message>
    <message>
        <source>usable</source>
        <translation>nutzbar</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Konfiguration</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read or written</source>
        <translation>%1 ist nicht les- oder schreibbar</translation>
    </message>
    <message>
        <source>make it yours: chown and chmod u+rw</source>
        <translation>sich zu eigen machen: chown und chmod u+rw</translation>
    </message>
    <message>
        <source>%1 is damaged: what can&apos;t be read counts as not set</source>
        <translation>%1 ist beschädigt: Unlesbares gilt als nicht gesetzt</translation>
    </message>
    <message>
        <source>mend the file or move it away</source>
        <translation>die Datei reparieren oder wegräumen</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Systemleiste</translation>
    </message>
    <message>
        <source>none on this desktop</source>
        <translation>keine auf diesem Desktop</translation>
    </message>
    <message>
        <source>start quillo again for the history, use its commands (quillo --help), or add a tray to the panel</source>
        <translation>quillo noch einmal starten zeigt den Verlauf; Befehle siehe quillo --help; oder der Leiste einen Systembereich hinzufügen</translation>
    </message>
    <message>
        <source>choose another one in the settings</source>
        <translation>in den Einstellungen ein anderes wählen</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>the running Quillo does not answer</source>
        <translation>das laufende Quillo antwortet nicht</translation>
    </message>
    <message>
        <source>end it and start it again</source>
        <translation>beenden und neu starten</translation>
    </message>
    <message>
        <source>Hot key</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>held by the running Quillo</source>
        <translation>vom laufenden Quillo belegt</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Sitzungsbus</translation>
    </message>
    <message>
        <source>none: no tray item, no keyring, no commands</source>
        <translation>keiner: kein Symbol, kein Schlüsselbund, keine Befehle</translation>
    </message>
    <message>
        <source>log in through a desktop session, or start one with dbus-run-session</source>
        <translation>über eine Desktop-Sitzung anmelden oder mit dbus-run-session starten</translation>
    </message>
    <message>
        <source>there; Quillo is running</source>
        <translation>vorhanden; Quillo läuft</translation>
    </message>
    <message>
        <source>there; Quillo isn&apos;t running</source>
        <translation>vorhanden; Quillo läuft nicht</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1 ist frei</translation>
    </message>
    <message>
        <source>%1 is taken by another program</source>
        <translation>%1 gehört einem anderen Programm</translation>
    </message>
    <message>
        <source>not tried: %1</source>
        <translation>nicht versucht: %1</translation>
    </message>
    <message>
        <source>Backend</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>no usable address</source>
        <translation>keine brauchbare Adresse</translation>
    </message>
    <message>
        <source>set apiURL in %1</source>
        <translation>apiURL in %1 setzen</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 antwortet nicht</translation>
    </message>
    <message>
        <source>check the network; a server of your own is started with quillo-backend</source>
        <translation>das Netzwerk prüfen; ein eigener Server startet mit quillo-backend</translation>
    </message>
    <message>
        <source>%1 answers</source>
        <translation>%1 antwortet</translation>
    </message>
    <message>
        <source>%1 answers %2, which no Quillo backend does</source>
        <translation>%1 antwortet %2, was kein Quillo-Server tut</translation>
    </message>
    <message>
        <source>check apiURL in %1</source>
        <translation>apiURL in %1 prüfen</translation>
    </message>
    <message>
        <source>Consent</source>
        <translation>Zustimmung</translation>
    </message>
    <message>
        <source>given</source>
        <translation>erteilt</translation>
    </message>
    <message>
        <source>not given: dictation stays off</source>
        <translation>nicht erteilt: Das Diktat bleibt aus</translation>
    </message>
    <message>
        <source>start Quillo and agree</source>
        <translation>Quillo starten und zustimmen</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Schriften</translation>
    </message>
    <message>
        <source>Liberation Sans is missing: another face stands in</source>
        <translation>Liberation Sans fehlt: eine andere Schrift springt ein</translation>
    </message>
    <message>
        <source>install fonts-liberation</source>
        <translation>fonts-liberation installieren</translation>
    </message>
    <message>
        <source>Liberation Sans; the system serif stands in for Fraunces</source>
        <translation>Liberation Sans; für Fraunces springt die Serifenschrift des Systems ein</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>note</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>MISSING</source>
        <translation>FEHLT</translation>
    </message>
    <message>
        <source>
Dictation can work here.
</source>
        <translation>
Hier kann diktiert werden.
</translation>
    </message>
    <message>
        <source>
Dictation can&apos;t work here yet.
</source>
        <translation>
Hier kann noch nicht diktiert werden.
</translation>
    </message>
    <message>
        <source>%1 begins neither with https:// nor http://</source>
        <translation>%1 beginnt weder mit https:// noch mit http://</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1 ist nicht lesbar</translation>
    </message>
    <message>
        <source>it is kept; to take over what can be read: quillo history --recover %1</source>
        <translation>sie bleibt; Lesbares übernimmt: quillo history --recover %1</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: nothing new is kept</source>
        <translation>%1 ist nicht beschreibbar: Neues wird nicht gesichert</translation>
    </message>
    <message>
        <source>make it yours: chown and chmod u+rwx</source>
        <translation>sich zu eigen machen: chown und chmod u+rwx</translation>
    </message>
    <message>
        <source>%1: the disk is full, nothing new is kept</source>
        <translation>%1: Der Datenträger ist voll, Neues wird nicht gesichert</translation>
    </message>
    <message>
        <source>make room</source>
        <translation>Platz schaffen</translation>
    </message>
    <message>
        <source>%1; put aside because it couldn&apos;t be read: %2</source>
        <translation>%1; beiseitegelegt, weil nicht lesbar: %2</translation>
    </message>
    <message>
        <source>it is made, with a password of yours, when tokens are bought; until then the credential is kept in memory and each start is a new device</source>
        <translation>er entsteht mit einem Passwort von Ihnen, wenn Tokens gekauft werden; bis dahin bleibt der Zugang im Arbeitsspeicher, und jeder Start ist ein neues Gerät</translation>
    </message>
</context>
<context>
    <name>GeneralSettings</name>
    <message>
        <source>Couldn&apos;t change Open at Login</source>
        <translation>„Beim Anmelden starten“ ließ sich nicht ändern</translation>
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
    <name>GroupStore</name>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Kept in memory: the groups can&apos;t be saved</source>
        <translation>Nur im Speicher: Die Gruppen lassen sich nicht sichern</translation>
    </message>
    <message>
        <source>The groups can&apos;t be read: a new one begins, the old file is kept</source>
        <translation>Die Gruppen sind nicht lesbar: Neue beginnen, die alte Datei bleibt</translation>
    </message>
</context>
<context>
    <name>GroupsSection</name>
    <message>
        <source>Groups &amp; History</source>
        <translation>Gruppen und Verlauf</translation>
    </message>
    <message>
        <source>New dictations go into the current group: %1.</source>
        <translation>Neue Diktate landen in der aktuellen Gruppe: %1.</translation>
    </message>
    <message>
        <source>Next group</source>
        <translation>Nächste Gruppe</translation>
    </message>
    <message>
        <source>Show or hide history</source>
        <translation>Verlauf ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Bearbeiten …</translation>
    </message>
    <message>
        <source>Edit groups</source>
        <translation>Gruppen bearbeiten</translation>
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
    <name>HistorySection</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Transcripts on this Mac</source>
        <translation>Texte auf diesem Rechner</translation>
    </message>
    <message>
        <source>Clear…</source>
        <translation>Leeren …</translation>
    </message>
    <message numerus="yes">
        <source>Delete all %n transcripts?</source>
        <translation>
            <numerusform>Den Text löschen?</numerusform>
            <numerusform>Alle %Ln Texte löschen?</numerusform>
        </translation>
    </message>
    <message>
        <source>They&apos;re stored only on this Mac, so this can&apos;t be undone.</source>
        <translation>Sie liegen nur auf diesem Rechner; das lässt sich nicht rückgängig machen.</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Alle löschen</translation>
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
    <name>Instance</name>
    <message>
        <source>There is no session bus (DBUS_SESSION_BUS_ADDRESS), so Quillo can&apos;t be reached.</source>
        <translation>Es gibt keinen Sitzungsbus (DBUS_SESSION_BUS_ADDRESS), also ist Quillo nicht erreichbar.</translation>
    </message>
    <message>
        <source>Quillo isn&apos;t running. Start it with: quillo</source>
        <translation>Quillo läuft nicht. Es startet mit: quillo</translation>
    </message>
    <message>
        <source>Quillo refused: %1</source>
        <translation>Quillo hat abgelehnt: %1</translation>
    </message>
    <message>
        <source>Quillo did not answer: %1</source>
        <translation>Quillo hat nicht geantwortet: %1</translation>
    </message>
</context>
<context>
    <name>LocalizedError</name>
    <message>
        <source>There is no microphone. Plug one in.</source>
        <translation>Es ist kein Mikrofon da. Bitte eines anschließen.</translation>
    </message>
    <message>
        <source>%1 is no sound file that can be read.</source>
        <translation>%1 ist keine lesbare Tondatei.</translation>
    </message>
    <message>
        <source>There is no sound in %1.</source>
        <translation>%1 enthält keinen Ton.</translation>
    </message>
    <message>
        <source>The sound of %1 can&apos;t be decoded.</source>
        <translation>Der Ton von %1 lässt sich nicht dekodieren.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Angehalten.</translation>
    </message>
    <message>
        <source>The sound of %1 can&apos;t be converted.</source>
        <translation>Der Ton von %1 lässt sich nicht umwandeln.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Es gibt keine Datei %1.</translation>
    </message>
    <message>
        <source>The converted recording can&apos;t be written.</source>
        <translation>Die umgewandelte Aufnahme lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone.</source>
        <translation>Das Mikrofon lässt sich nicht starten.</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Unmetered (dev device)</source>
        <translation>Unbegrenzt (Entwicklungsgerät)</translation>
    </message>
    <message numerus="yes">
        <source>%1 tokens left</source>
        <translation>
            <numerusform>Noch %L1 Token</numerusform>
            <numerusform>Noch %L1 Tokens</numerusform>
        </translation>
    </message>
    <message>
        <source>Today&apos;s free tokens for new users ran out before you joined.</source>
        <translation>Die heutigen freien Tokens für neue Nutzer waren schon vergeben.</translation>
    </message>
    <message>
        <source>Buy Tokens…</source>
        <translation>Tokens kaufen …</translation>
    </message>
    <message>
        <source>Allow pasting into other apps…</source>
        <translation>Einfügen in andere Programme erlauben …</translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>Alle Einträge</translation>
    </message>
    <message>
        <source>Next Group</source>
        <translation>Nächste Gruppe</translation>
    </message>
    <message>
        <source>Edit Groups…</source>
        <translation>Gruppen bearbeiten …</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Gruppe: %1</translation>
    </message>
    <message>
        <source>Hide History</source>
        <translation>Verlauf ausblenden</translation>
    </message>
    <message>
        <source>Show History</source>
        <translation>Verlauf anzeigen</translation>
    </message>
    <message>
        <source>Copy Last Transcript</source>
        <translation>Letzten Text kopieren</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Verlauf löschen</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Zuletzt</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen …</translation>
    </message>
    <message>
        <source>Quit Quillo</source>
        <translation>Quillo beenden</translation>
    </message>
</context>
<context>
    <name>PermissionRow</name>
    <message>
        <source>Allowed</source>
        <translation>Erlaubt</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Erlauben …</translation>
    </message>
    <message>
        <source>Allow %1</source>
        <translation>%1 erlauben</translation>
    </message>
</context>
<context>
    <name>Permissions</name>
    <message>
        <source>Allow an input device in the sound settings</source>
        <translation>Erlauben Sie in den Klangeinstellungen ein Eingabegerät</translation>
    </message>
    <message>
        <source>Run “quillo doctor” to see what is missing</source>
        <translation>„quillo doctor“ zeigt, was fehlt</translation>
    </message>
</context>
<context>
    <name>PermissionsSection</name>
    <message>
        <source>Permissions</source>
        <translation>Berechtigungen</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>To hear what you say.</source>
        <translation>Um zu hören, was Sie sagen.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Bedienungshilfen</translation>
    </message>
    <message>
        <source>To paste into other apps. Without it, text is copied and you press ⌘V.</source>
        <translation>Um in andere Programme einzufügen. Sonst wird der Text kopiert, und Sie drücken Strg+V (im Terminal Strg+Umschalt+V).</translation>
    </message>
</context>
<context>
    <name>RecoverHistory</name>
    <message>
        <source>%1 can&apos;t be read.</source>
        <translation>%1 ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The history can&apos;t be saved: %1</source>
        <translation>Der Verlauf lässt sich nicht speichern: %1</translation>
    </message>
    <message>
        <source>1 entry taken over.
</source>
        <translation>1 Eintrag übernommen.
</translation>
    </message>
    <message numerus="yes">
        <source>%n entries taken over.
</source>
        <translation>
            <numerusform>%Ln Eintrag übernommen.
</numerusform>
            <numerusform>%Ln Einträge übernommen.
</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RemoteControl</name>
    <message>
        <source>unmetered</source>
        <translation>unbegrenzt</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>Es gibt keine Aktion „%1“.</translation>
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
    <name>SettingsModel</name>
    <message>
        <source>All entries</source>
        <translation>Alle Einträge</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Beim Anmelden starten</translation>
    </message>
    <message>
        <source>Quillo Settings</source>
        <translation>Quillo – Einstellungen</translation>
    </message>
    <message>
        <source>Keep recordings that couldn&apos;t be sent</source>
        <translation>Nicht gesendete Aufnahmen behalten</translation>
    </message>
    <message>
        <source>For seven days. They are sent when the server answers again.</source>
        <translation>Sieben Tage lang. Sie werden gesendet, sobald der Server wieder antwortet.</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>That can&apos;t be a shortcut on this keyboard. Try another one.</source>
        <translation>Das kann auf dieser Tastatur kein Tastenkürzel sein. Bitte ein anderes versuchen.</translation>
    </message>
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
<context>
    <name>ShortcutRecorder</name>
    <message>
        <source>Type shortcut…</source>
        <translation>Tasten drücken …</translation>
    </message>
</context>
<context>
    <name>ShortcutSection</name>
    <message>
        <source>Shortcut</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Press Esc while recording to cancel.</source>
        <translation>Esc während der Aufnahme bricht ab.</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Auslöser</translation>
    </message>
    <message>
        <source>Key combination</source>
        <translation>Tastenkombination</translation>
    </message>
    <message>
        <source>Hold a single key</source>
        <translation>Eine Taste halten</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Taste</translation>
    </message>
    <message>
        <source>Set System Settings › Keyboard › “Press 🌐 key to” to “Do Nothing”, or the emoji picker opens too.</source>
        <translation>Die meisten Tastaturen behalten Fn für sich. Geschieht beim Halten nichts, wählen Sie eine andere Taste.</translation>
    </message>
    <message>
        <source>A single key needs Accessibility (below) before it works.</source>
        <translation>Eine einzelne Taste braucht die Bedienungshilfen (unten), bevor sie wirkt.</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>Verhalten</translation>
    </message>
    <message>
        <source>This key doesn&apos;t arrive here: the keyboard or the desktop keeps it to itself. Choose another one.</source>
        <translation>Diese Taste kommt hier nicht an: Die Tastatur oder der Desktop behält sie für sich. Wählen Sie eine andere.</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>%1 is already used by another app. Pick a different shortcut.</source>
        <translation>%1 gehört schon einem anderen Programm. Wählen Sie ein anderes Tastenkürzel.</translation>
    </message>
    <message>
        <source>%1 is already in use. Pick a different shortcut.</source>
        <translation>%1 ist schon vergeben. Wählen Sie ein anderes Tastenkürzel.</translation>
    </message>
</context>
<context>
    <name>Start</name>
    <message>
        <source>There is no session bus: no tray item but XEmbed&apos;s, no keyring, and commands can&apos;t reach Quillo.</source>
        <translation>Es gibt keinen Sitzungsbus: kein Symbol außer über XEmbed, kein Schlüsselbund, und Befehle erreichen Quillo nicht.</translation>
    </message>
    <message>
        <source>%1 See: quillo --help</source>
        <translation>%1 Siehe: quillo --help</translation>
    </message>
</context>
<context>
    <name>Status</name>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>unmetered</source>
        <translation>unbegrenzt</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>noch unbekannt</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>Alle Einträge</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Tokens</translation>
    </message>
    <message>
        <source>Transcripts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Bedienungshilfen</translation>
    </message>
    <message>
        <source>Consent</source>
        <translation>Zustimmung</translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message numerus="yes">
        <source>%1 tokens</source>
        <translation>
            <numerusform>%L1 Token</numerusform>
            <numerusform>%L1 Tokens</numerusform>
        </translation>
    </message>
    <message>
        <source>%1  next group   ·   %2  hide</source>
        <translation>%1  nächste Gruppe   ·   %2  ausblenden</translation>
    </message>
</context>
<context>
    <name>TokenBalance</name>
    <message>
        <source>Couldn&apos;t open the checkout page in a browser</source>
        <translation>Die Bezahlseite ließ sich nicht im Browser öffnen</translation>
    </message>
</context>
<context>
    <name>Transcribe</name>
    <message>
        <source>Standard input can&apos;t be read.</source>
        <translation>Die Standardeingabe ist nicht lesbar.</translation>
    </message>
    <message>
        <source>The temporary folder is full.</source>
        <translation>Der Ordner für temporäre Dateien ist voll.</translation>
    </message>
    <message>
        <source>The temporary folder can&apos;t be written.</source>
        <translation>In den Ordner für temporäre Dateien lässt sich nicht schreiben.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen …</translation>
    </message>
    <message>
        <source>Reading… %1 %</source>
        <translation>Wird gelesen … %1 %</translation>
    </message>
    <message>
        <source>Transcribing… %1 s</source>
        <translation>Wird umgewandelt … %1 s</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>Wird umgewandelt …</translation>
    </message>
</context>
<context>
    <name>TranscriptionStore</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Kept in memory: the history can&apos;t be saved</source>
        <translation>Nur im Speicher: Der Verlauf lässt sich nicht sichern</translation>
    </message>
    <message>
        <source>The history can&apos;t be read: a new one begins, the old file is kept</source>
        <translation>Der Verlauf ist nicht lesbar: Ein neuer beginnt, die alte Datei bleibt</translation>
    </message>
</context>
<context>
    <name>UnsentStrip</name>
    <message>
        <source>Sending again…</source>
        <translation>Wird erneut gesendet …</translation>
    </message>
    <message>
        <source>One recording couldn&apos;t be sent.</source>
        <translation>Eine Aufnahme konnte nicht gesendet werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n recordings couldn&apos;t be sent.</source>
        <translation>
            <numerusform>%Ln Aufnahme konnte nicht gesendet werden.</numerusform>
            <numerusform>%Ln Aufnahmen konnten nicht gesendet werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Erneut senden</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
</TS>
