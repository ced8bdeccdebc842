<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AIConsent</name>
    <message>
        <source>Sending to OpenAI needs your permission first. Open Data &amp; AI from the menu bar.</source>
        <translation>L’envoi à OpenAI nécessite d’abord votre accord. Ouvrez Données et IA dans les réglages.</translation>
    </message>
</context>
<context>
    <name>Age</name>
    <message>
        <source>1 day</source>
        <extracomment>Part of how long ago something was.</extracomment>
        <translation>1 jour</translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%Ln jour</numerusform>
            <numerusform>%Ln jours</numerusform>
        </translation>
    </message>
    <message>
        <source>1 hr</source>
        <extracomment>Part of how long ago something was.</extracomment>
        <translation>1 h</translation>
    </message>
    <message numerus="yes">
        <source>%n hrs</source>
        <translation>
            <numerusform>%Ln h</numerusform>
            <numerusform>%Ln h</numerusform>
        </translation>
    </message>
    <message>
        <source>just now</source>
        <translation>à l’instant</translation>
    </message>
    <message numerus="yes">
        <source>%n min ago</source>
        <translation>
            <numerusform>il y a %Ln min</numerusform>
            <numerusform>il y a %Ln min</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 ago</source>
        <extracomment>%1: &quot;3 hrs&quot; or &quot;2 days&quot;.</extracomment>
        <translation>il y a %1</translation>
    </message>
    <message>
        <source>%1, %2 ago</source>
        <extracomment>%1: &quot;2 days&quot;, %2: &quot;3 hrs&quot;.</extracomment>
        <translation>il y a %1 et %2</translation>
    </message>
</context>
<context>
    <name>ApiError</name>
    <message>
        <source>Couldn&apos;t read the recording.</source>
        <translation>Impossible de lire l’enregistrement.</translation>
    </message>
    <message>
        <source>Nothing was recorded. Check microphone access.</source>
        <translation>Rien n’a été enregistré. Vérifiez l’accès au microphone.</translation>
    </message>
    <message>
        <source>The service is unavailable right now. Please try again later.</source>
        <translation>Le service est indisponible pour le moment. Veuillez réessayer plus tard.</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Erreur réseau. Vérifiez votre connexion.</translation>
    </message>
    <message>
        <source>Something went wrong. Please try again.</source>
        <translation>Une erreur s’est produite. Veuillez réessayer.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone.</source>
        <translation>Impossible de démarrer le microphone.</translation>
    </message>
    <message>
        <source>Unlock the keyring first</source>
        <translation>Déverrouillez d’abord le trousseau</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>All entries</source>
        <translation>Toutes les entrées</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Hold the dictation shortcut</source>
        <translation>Maintenir le raccourci de dictée</translation>
    </message>
    <message>
        <source>Let go of it</source>
        <translation>Le relâcher</translation>
    </message>
    <message>
        <source>Start dictating, or finish and paste</source>
        <translation>Commencer la dictée, ou finir et coller</translation>
    </message>
    <message>
        <source>Drop the recording</source>
        <translation>Abandonner l’enregistrement</translation>
    </message>
    <message>
        <source>Show the history</source>
        <translation>Afficher l’historique</translation>
    </message>
    <message>
        <source>Show the history with the group editor</source>
        <translation>Afficher l’historique avec l’éditeur de groupes</translation>
    </message>
    <message>
        <source>Show the settings</source>
        <translation>Afficher les réglages</translation>
    </message>
    <message>
        <source>Make the next group the current one</source>
        <translation>Passer au groupe suivant</translation>
    </message>
    <message>
        <source>Open the page where tokens are bought</source>
        <translation>Ouvrir la page d’achat de jetons</translation>
    </message>
    <message>
        <source>Print what the program is doing</source>
        <translation>Afficher ce que fait le programme</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Quitter le programme</translation>
    </message>
    <message>
        <source>Print the text of a recording; - reads standard input</source>
        <translation>Afficher le texte d’un enregistrement ; - lit l’entrée standard</translation>
    </message>
    <message>
        <source>Print what this desktop offers for dictation, and what is missing</source>
        <translation>Afficher ce que ce bureau offre pour la dictée, et ce qui manque</translation>
    </message>
    <message>
        <source>Usage: quillo [COMMAND]

Without a command Quillo starts, or shows its history if it runs already.
Hold the dictation shortcut, speak, let go: the words appear in the program in front.

Commands:
</source>
        <translation>Usage : quillo [COMMANDE]

Sans commande, Quillo démarre, ou affiche son historique s’il tourne déjà.
Maintenez le raccourci de dictée, parlez, relâchez : les mots apparaissent dans le programme au premier plan.

Commandes :
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
Options :
  -h, --help        Afficher cette aide
  -v, --version     Afficher la version

Code de retour : 0 fait, 1 échec, 2 ligne de commande incorrecte, 3 Quillo ne tourne pas.
</translation>
    </message>
    <message>
        <source>--json belongs to the command status.</source>
        <translation>--json appartient à la commande status.</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>La commande « %1 » n’existe pas.</translation>
    </message>
    <message>
        <source>transcribe takes one file.</source>
        <translation>transcribe prend un fichier.</translation>
    </message>
    <message>
        <source>%1 takes no argument.</source>
        <translation>%1 ne prend pas d’argument.</translation>
    </message>
    <message>
        <source>Take over what can be read in a damaged history</source>
        <translation>Reprendre ce qui est lisible d’un historique abîmé</translation>
    </message>
    <message>
        <source>--recover belongs to the command history.</source>
        <translation>--recover appartient à la commande history.</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>CopyPill</name>
    <message>
        <source>COPIED</source>
        <translation>COPIÉ</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>COPIER</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>DataSection</name>
    <message>
        <source>Data &amp; AI</source>
        <translation>Données et IA</translation>
    </message>
    <message>
        <source>Sending to OpenAI</source>
        <translation>Envoi à OpenAI</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Autorisé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Review…</source>
        <translation>Revoir…</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Jetons</translation>
    </message>
    <message>
        <source>Unmetered</source>
        <translation>Illimité</translation>
    </message>
    <message>
        <source>%1</source>
        <comment>number of tokens</comment>
        <translation>%L1</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualiser</translation>
    </message>
</context>
<context>
    <name>Dictation</name>
    <message>
        <source>Listening… (Esc to cancel)</source>
        <translation>À l’écoute… (Échap pour annuler)</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>Transcription…</translation>
    </message>
    <message>
        <source>Hold %1 to dictate</source>
        <translation>Maintenez %1 pour dicter</translation>
    </message>
    <message>
        <source>Tap %1 to dictate</source>
        <translation>Tapez %1 pour dicter</translation>
    </message>
    <message>
        <source>Hold or tap %1 to dictate</source>
        <translation>Maintenez ou tapez %1 pour dicter</translation>
    </message>
    <message>
        <source>Microphone access is off for Quillo</source>
        <translation>Quillo n’a pas accès au microphone</translation>
    </message>
    <message>
        <source>Microphone on — press %1 to dictate</source>
        <translation>Microphone activé – appuyez sur %1 pour dicter</translation>
    </message>
    <message>
        <source>The microphone was disconnected.</source>
        <translation>Le microphone a été débranché.</translation>
    </message>
    <message>
        <source>Nothing was recorded. Check the microphone.</source>
        <translation>Rien n’a été enregistré. Vérifiez le microphone.</translation>
    </message>
    <message>
        <source>Didn&apos;t catch anything</source>
        <translation>Rien entendu</translation>
    </message>
    <message>
        <source>Copied — press ⌘V to paste</source>
        <translation>Copié – collez avec Ctrl+V (Ctrl+Maj+V dans un terminal)</translation>
    </message>
    <message>
        <source>Couldn&apos;t paste. The text is in the history.</source>
        <translation>Collage impossible. Le texte est dans l’historique.</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulé</translation>
    </message>
</context>
<context>
    <name>DisclosureView</name>
    <message>
        <source>Data &amp; AI</source>
        <translation>Données et IA</translation>
    </message>
    <message>
        <source>Before we start</source>
        <translation>Avant de commencer</translation>
    </message>
    <message>
        <source>To turn your speech into text, this app sends your voice recording through our server to &lt;b&gt;OpenAI&lt;/b&gt;, a third-party AI service in the United States.</source>
        <translation>Pour transformer votre parole en texte, cette application envoie votre enregistrement par notre serveur à &lt;b&gt;OpenAI&lt;/b&gt;, un service d’IA tiers situé aux États-Unis.</translation>
    </message>
    <message>
        <source>Our server passes your recording on without storing it. It keeps only your token balance and purchases, under a random ID created on this Mac — no name, email, account or location. Your recording is deleted once it has been transcribed, and your transcripts are stored only on this Mac.</source>
        <translation>Notre serveur transmet l’enregistrement sans le conserver. Il ne garde que votre solde de jetons et vos achats, sous un identifiant aléatoire créé sur cet ordinateur : ni nom, ni e-mail, ni compte, ni position. L’enregistrement est supprimé dès qu’il est transcrit, et vos transcriptions ne sont conservées que sur cet ordinateur.</translation>
    </message>
    <message>
        <source>What OpenAI does with it ↗</source>
        <translation>Ce qu’OpenAI en fait ↗</translation>
    </message>
    <message>
        <source>Our privacy policy ↗</source>
        <translation>Notre politique de confidentialité ↗</translation>
    </message>
    <message>
        <source>You agreed on %1.</source>
        <translation>Vous avez accepté le %1.</translation>
    </message>
    <message>
        <source>Withdraw consent</source>
        <translation>Retirer le consentement</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Keep it on</source>
        <translation>Laisser activé</translation>
    </message>
    <message>
        <source>I agree — send to OpenAI</source>
        <translation>J’accepte – envoyer à OpenAI</translation>
    </message>
    <message>
        <source>You can withdraw this at any time from the menu bar under Data &amp; AI. Without it, dictation stays off.</source>
        <translation>Vous pouvez le retirer à tout moment dans les réglages, sous Données et IA. Sans lui, la dictée reste désactivée.</translation>
    </message>
    <message>
        <source>Recordings go to %1, on this computer: they stay here unless that server passes them on.</source>
        <translation>Les enregistrements vont à %1, sur cet ordinateur : ils y restent, sauf si ce serveur les transmet.</translation>
    </message>
    <message>
        <source>Recordings go to %1.</source>
        <translation>Les enregistrements vont à %1.</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>QUILLO_PLATFORM is &quot;%1&quot;; it can be x11 or wayland.</source>
        <translation>QUILLO_PLATFORM vaut « %1 » ; ce peut être x11 ou wayland.</translation>
    </message>
    <message>
        <source>Wayland sessions are not supported yet. Log in to an X11 session, or try QUILLO_PLATFORM=x11, which reaches only the programs that run through Xwayland.</source>
        <translation>Les sessions Wayland ne sont pas encore prises en charge. Ouvrez une session X11, ou essayez QUILLO_PLATFORM=x11, qui n’atteint que les programmes X11.</translation>
    </message>
    <message>
        <source>There is no X11 display (DISPLAY is not set).</source>
        <translation>Il n’y a pas d’affichage X11 (DISPLAY n’est pas définie).</translation>
    </message>
    <message>
        <source>The X11 display %1 can&apos;t be reached.</source>
        <translation>L’affichage X11 %1 est injoignable.</translation>
    </message>
</context>
<context>
    <name>EntryList</name>
    <message>
        <source>Entries</source>
        <translation>Entrées</translation>
    </message>
    <message>
        <source>No matches.</source>
        <translation>Aucun résultat.</translation>
    </message>
    <message>
        <source>Try a different search.</source>
        <translation>Essayez une autre recherche.</translation>
    </message>
</context>
<context>
    <name>EntryMenu</name>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Move to Group</source>
        <translation>Déplacer vers le groupe</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>Finding</name>
    <message>
        <source>there is no X server at $DISPLAY</source>
        <translation>aucun serveur X sur $DISPLAY</translation>
    </message>
    <message>
        <source>the X server has no keyboard extension (XKB)</source>
        <translation>le serveur X n’a pas d’extension clavier (XKB)</translation>
    </message>
    <message>
        <source>the X server has no XFIXES extension</source>
        <translation>le serveur X n’a pas l’extension XFIXES</translation>
    </message>
    <message>
        <source>Raw keys</source>
        <translation>Touches brutes</translation>
    </message>
    <message>
        <source>no XInput 2.2: the dictation shortcut is a single key</source>
        <translation>pas de XInput 2.2 : le raccourci de dictée est une touche seule</translation>
    </message>
    <message>
        <source>choose a key combination in the settings</source>
        <translation>choisir une combinaison de touches dans les réglages</translation>
    </message>
    <message>
        <source>no XInput 2.2: a single key can&apos;t be a shortcut</source>
        <translation>pas de XInput 2.2 : une touche seule ne peut pas être un raccourci</translation>
    </message>
    <message>
        <source>use a key combination</source>
        <translation>utiliser une combinaison de touches</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Clavier</translation>
    </message>
    <message>
        <source>no XKB</source>
        <translation>pas de XKB</translation>
    </message>
    <message>
        <source>enable the X server&apos;s XKEYBOARD extension</source>
        <translation>activer l’extension XKEYBOARD du serveur X</translation>
    </message>
    <message>
        <source>Key posting</source>
        <translation>Envoi de touches</translation>
    </message>
    <message>
        <source>no XTEST: text is copied, not pasted</source>
        <translation>pas de XTEST : le texte est copié, pas collé</translation>
    </message>
    <message>
        <source>paste with Ctrl+V, or enable the X server&apos;s XTEST extension</source>
        <translation>coller avec Ctrl+V, ou activer l’extension XTEST du serveur X</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Presse-papiers</translation>
    </message>
    <message>
        <source>no XFIXES</source>
        <translation>pas de XFIXES</translation>
    </message>
    <message>
        <source>enable the X server&apos;s XFIXES extension</source>
        <translation>activer l’extension XFIXES du serveur X</translation>
    </message>
    <message>
        <source>Display server</source>
        <translation>Serveur d’affichage</translation>
    </message>
    <message>
        <source>log in to an X11 session</source>
        <translation>ouvrir une session X11</translation>
    </message>
    <message>
        <source>X11 (%1), backend x11</source>
        <translation>X11 (%1), module x11</translation>
    </message>
    <message>
        <source>Window manager</source>
        <translation>Gestionnaire de fenêtres</translation>
    </message>
    <message>
        <source>there</source>
        <translation>présent</translation>
    </message>
    <message>
        <source>none: windows may not come to the front</source>
        <translation>aucun : les fenêtres peuvent rester derrière</translation>
    </message>
    <message>
        <source>start a window manager</source>
        <translation>lancer un gestionnaire de fenêtres</translation>
    </message>
    <message>
        <source>Compositor</source>
        <translation>Compositeur</translation>
    </message>
    <message>
        <source>none: the status panel has hard edges</source>
        <translation>aucun : le panneau a des bords durs</translation>
    </message>
    <message>
        <source>XEmbed tray</source>
        <translation>Zone XEmbed</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V does not paste in it</source>
        <translation>Ctrl+Maj+V n’y colle pas</translation>
    </message>
    <message>
        <source>add to ~/.Xresources and load it with xrdb -merge: %1</source>
        <translation>ajouter à ~/.Xresources et charger avec xrdb -merge : %1</translation>
    </message>
    <message>
        <source>Sound server</source>
        <translation>Serveur de son</translation>
    </message>
    <message>
        <source>refuses access</source>
        <translation>refuse l’accès</translation>
    </message>
    <message>
        <source>allow Quillo to record in the sandbox or sound settings</source>
        <translation>autoriser Quillo à enregistrer dans les réglages du bac à sable ou du son</translation>
    </message>
    <message>
        <source>not running</source>
        <translation>ne tourne pas</translation>
    </message>
    <message>
        <source>start PulseAudio or PipeWire (pipewire-pulse)</source>
        <translation>démarrer PulseAudio ou PipeWire (pipewire-pulse)</translation>
    </message>
    <message>
        <source>Microphone level</source>
        <translation>Niveau du micro</translation>
    </message>
    <message>
        <source>it can&apos;t be recorded</source>
        <translation>enregistrement impossible</translation>
    </message>
    <message>
        <source>choose another input device</source>
        <translation>choisir un autre périphérique d’entrée</translation>
    </message>
    <message>
        <source>silent</source>
        <translation>silencieux</translation>
    </message>
    <message>
        <source>unmute the input device in the sound settings</source>
        <translation>réactiver le son du périphérique dans les réglages</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microphone</translation>
    </message>
    <message>
        <source>no input device</source>
        <translation>aucun périphérique d’entrée</translation>
    </message>
    <message>
        <source>connect a microphone, or choose one in the sound settings</source>
        <translation>brancher un microphone, ou en choisir un dans les réglages du son</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Trousseau</translation>
    </message>
    <message>
        <source>absent: no Secret Service on the session bus</source>
        <translation>absent : pas de Secret Service sur le bus de session</translation>
    </message>
    <message>
        <source>install and start GNOME Keyring, KWallet or KeePassXC; until then the credential is kept in memory and each start is a new device</source>
        <translation>installer et lancer GNOME Keyring, KWallet ou KeePassXC ; d’ici là l’identifiant reste en mémoire et chaque démarrage est un nouvel appareil</translation>
    </message>
    <message>
        <source>there, without a default keyring</source>
        <translation>présent, sans trousseau par défaut</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>verrouillé</translation>
    </message>
    <message>
        <source>unlock the login keyring; until then the credential is kept in memory and each start is a new device</source>
        <translation>déverrouiller le trousseau de session ; d’ici là l’identifiant reste en mémoire et chaque démarrage est un nouvel appareil</translation>
    </message>
    <message>
        <source>usable</source>
        <translation>utilisable</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read or written</source>
        <translation>%1 ne peut être lu ou écrit</translation>
    </message>
    <message>
        <source>make it yours: chown and chmod u+rw</source>
        <translation>se l’approprier : chown et chmod u+rw</translation>
    </message>
    <message>
        <source>%1 is damaged: what can&apos;t be read counts as not set</source>
        <translation>%1 est abîmé : ce qui est illisible compte comme non défini</translation>
    </message>
    <message>
        <source>mend the file or move it away</source>
        <translation>réparer le fichier ou le déplacer</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Zone de notification</translation>
    </message>
    <message>
        <source>none on this desktop</source>
        <translation>aucune sur ce bureau</translation>
    </message>
    <message>
        <source>start quillo again for the history, use its commands (quillo --help), or add a tray to the panel</source>
        <translation>relancer quillo pour l’historique, utiliser ses commandes (quillo --help), ou ajouter une zone de notification</translation>
    </message>
    <message>
        <source>choose another one in the settings</source>
        <translation>en choisir un autre dans les réglages</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>the running Quillo does not answer</source>
        <translation>le Quillo en cours ne répond pas</translation>
    </message>
    <message>
        <source>end it and start it again</source>
        <translation>le quitter et le relancer</translation>
    </message>
    <message>
        <source>Hot key</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>held by the running Quillo</source>
        <translation>tenus par le Quillo en cours</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Bus de session</translation>
    </message>
    <message>
        <source>none: no tray item, no keyring, no commands</source>
        <translation>aucun : ni icône, ni trousseau, ni commandes</translation>
    </message>
    <message>
        <source>log in through a desktop session, or start one with dbus-run-session</source>
        <translation>ouvrir une session de bureau, ou en lancer une avec dbus-run-session</translation>
    </message>
    <message>
        <source>there; Quillo is running</source>
        <translation>présent ; Quillo tourne</translation>
    </message>
    <message>
        <source>there; Quillo isn&apos;t running</source>
        <translation>présent ; Quillo ne tourne pas</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1 est libre</translation>
    </message>
    <message>
        <source>%1 is taken by another program</source>
        <translation>%1 est pris par un autre programme</translation>
    </message>
    <message>
        <source>not tried: %1</source>
        <translation>pas essayé : %1</translation>
    </message>
    <message>
        <source>Backend</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>no usable address</source>
        <translation>aucune adresse utilisable</translation>
    </message>
    <message>
        <source>set apiURL in %1</source>
        <translation>définir apiURL dans %1</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 ne répond pas</translation>
    </message>
    <message>
        <source>check the network; a server of your own is started with quillo-backend</source>
        <translation>vérifier le réseau ; un serveur à soi se lance avec quillo-backend</translation>
    </message>
    <message>
        <source>%1 answers</source>
        <translation>%1 répond</translation>
    </message>
    <message>
        <source>%1 answers %2, which no Quillo backend does</source>
        <translation>%1 répond %2, ce qu’aucun serveur Quillo ne fait</translation>
    </message>
    <message>
        <source>check apiURL in %1</source>
        <translation>vérifier apiURL dans %1</translation>
    </message>
    <message>
        <source>Consent</source>
        <translation>Accord</translation>
    </message>
    <message>
        <source>given</source>
        <translation>donné</translation>
    </message>
    <message>
        <source>not given: dictation stays off</source>
        <translation>non donné : la dictée reste désactivée</translation>
    </message>
    <message>
        <source>start Quillo and agree</source>
        <translation>lancer Quillo et accepter</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Polices</translation>
    </message>
    <message>
        <source>Liberation Sans is missing: another face stands in</source>
        <translation>Liberation Sans manque : une autre police la remplace</translation>
    </message>
    <message>
        <source>install fonts-liberation</source>
        <translation>installer fonts-liberation</translation>
    </message>
    <message>
        <source>Liberation Sans; the system serif stands in for Fraunces</source>
        <translation>Liberation Sans ; la police à empattements du système remplace Fraunces</translation>
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
        <translation>MANQUE</translation>
    </message>
    <message>
        <source>
Dictation can work here.
</source>
        <translation>
La dictée peut fonctionner ici.
</translation>
    </message>
    <message>
        <source>
Dictation can&apos;t work here yet.
</source>
        <translation>
La dictée ne peut pas encore fonctionner ici.
</translation>
    </message>
    <message>
        <source>%1 begins neither with https:// nor http://</source>
        <translation>%1 ne commence ni par https:// ni par http://</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>%1 est illisible</translation>
    </message>
    <message>
        <source>it is kept; to take over what can be read: quillo history --recover %1</source>
        <translation>il est gardé ; pour reprendre ce qui est lisible : quillo history --recover %1</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: nothing new is kept</source>
        <translation>%1 ne peut être écrit : rien de nouveau n’est gardé</translation>
    </message>
    <message>
        <source>make it yours: chown and chmod u+rwx</source>
        <translation>se l’approprier : chown et chmod u+rwx</translation>
    </message>
    <message>
        <source>%1: the disk is full, nothing new is kept</source>
        <translation>%1 : le disque est plein, rien de nouveau n’est gardé</translation>
    </message>
    <message>
        <source>make room</source>
        <translation>faire de la place</translation>
    </message>
    <message>
        <source>%1; put aside because it couldn&apos;t be read: %2</source>
        <translation>%1 ; mis de côté car illisible : %2</translation>
    </message>
    <message>
        <source>it is made, with a password of yours, when tokens are bought; until then the credential is kept in memory and each start is a new device</source>
        <translation>il est créé, avec un mot de passe de votre choix, à l’achat de jetons ; d’ici là, l’identifiant reste en mémoire et chaque démarrage est un nouvel appareil</translation>
    </message>
</context>
<context>
    <name>GeneralSettings</name>
    <message>
        <source>Couldn&apos;t change Open at Login</source>
        <translation>Impossible de modifier l’ouverture à la connexion</translation>
    </message>
</context>
<context>
    <name>GroupCarousel</name>
    <message>
        <source>Current group</source>
        <translation>Groupe actuel</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Edit groups</source>
        <translation>Modifier les groupes</translation>
    </message>
</context>
<context>
    <name>GroupCarouselModel</name>
    <message>
        <source>All entries</source>
        <translation>Toutes les entrées</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans nom</translation>
    </message>
    <message>
        <source>Dictations go into %1 while it&apos;s selected.</source>
        <translation>Les dictées vont dans %1 tant que ce groupe est sélectionné.</translation>
    </message>
</context>
<context>
    <name>GroupEditor</name>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>Dictations go into the selected group. Deleting a group keeps its entries under All entries.</source>
        <translation>Les dictées vont dans le groupe sélectionné. Les entrées d’un groupe supprimé restent sous Toutes les entrées.</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>Nouveau groupe</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
</context>
<context>
    <name>GroupRow</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name of the group</source>
        <translation>Nom du groupe</translation>
    </message>
    <message>
        <source>Delete group</source>
        <translation>Supprimer le groupe</translation>
    </message>
</context>
<context>
    <name>GroupStore</name>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>Kept in memory: the groups can&apos;t be saved</source>
        <translation>Gardé en mémoire : les groupes ne peuvent être enregistrés</translation>
    </message>
    <message>
        <source>The groups can&apos;t be read: a new one begins, the old file is kept</source>
        <translation>Les groupes sont illisibles : de nouveaux commencent, l’ancien fichier est gardé</translation>
    </message>
</context>
<context>
    <name>GroupsSection</name>
    <message>
        <source>Groups &amp; History</source>
        <translation>Groupes et historique</translation>
    </message>
    <message>
        <source>New dictations go into the current group: %1.</source>
        <translation>Les nouvelles dictées vont dans le groupe actuel : %1.</translation>
    </message>
    <message>
        <source>Next group</source>
        <translation>Groupe suivant</translation>
    </message>
    <message>
        <source>Show or hide history</source>
        <translation>Afficher ou masquer l’historique</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Modifier…</translation>
    </message>
    <message>
        <source>Edit groups</source>
        <translation>Modifier les groupes</translation>
    </message>
</context>
<context>
    <name>HUDView</name>
    <message>
        <source>Dictating into %1</source>
        <translation>Dictée dans %1</translation>
    </message>
    <message>
        <source>Listening — press again to stop</source>
        <translation>À l’écoute – appuyez encore pour arrêter</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>À l’écoute</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>Transcription…</translation>
    </message>
    <message>
        <source>No free tokens were left today</source>
        <translation>Plus de jetons gratuits aujourd’hui</translation>
    </message>
    <message>
        <source>You&apos;re out of tokens</source>
        <translation>Vous n’avez plus de jetons</translation>
    </message>
    <message>
        <source>Buy…</source>
        <translation>Acheter…</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>1 entry</source>
        <translation>1 entrée</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%Ln entrée</numerusform>
            <numerusform>%Ln entrées</numerusform>
        </translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>Toutes les entrées</translation>
    </message>
</context>
<context>
    <name>HistorySection</name>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Transcripts on this Mac</source>
        <translation>Transcriptions sur cet ordinateur</translation>
    </message>
    <message>
        <source>Clear…</source>
        <translation>Effacer…</translation>
    </message>
    <message numerus="yes">
        <source>Delete all %n transcripts?</source>
        <translation>
            <numerusform>Supprimer la transcription ?</numerusform>
            <numerusform>Supprimer les %Ln transcriptions ?</numerusform>
        </translation>
    </message>
    <message>
        <source>They&apos;re stored only on this Mac, so this can&apos;t be undone.</source>
        <translation>Elles ne sont conservées que sur cet ordinateur : c’est irréversible.</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Tout supprimer</translation>
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
        <translation>Historique</translation>
    </message>
    <message>
        <source>No entries yet.</source>
        <translation>Aucune entrée pour l’instant.</translation>
    </message>
    <message>
        <source>Dictate with %1 to see it here.</source>
        <translation>Dictez avec %1 pour le voir ici.</translation>
    </message>
</context>
<context>
    <name>Instance</name>
    <message>
        <source>There is no session bus (DBUS_SESSION_BUS_ADDRESS), so Quillo can&apos;t be reached.</source>
        <translation>Il n’y a pas de bus de session (DBUS_SESSION_BUS_ADDRESS) : Quillo est injoignable.</translation>
    </message>
    <message>
        <source>Quillo isn&apos;t running. Start it with: quillo</source>
        <translation>Quillo ne tourne pas. Lancez-le avec : quillo</translation>
    </message>
    <message>
        <source>Quillo refused: %1</source>
        <translation>Quillo a refusé : %1</translation>
    </message>
    <message>
        <source>Quillo did not answer: %1</source>
        <translation>Quillo n’a pas répondu : %1</translation>
    </message>
</context>
<context>
    <name>LocalizedError</name>
    <message>
        <source>There is no microphone. Plug one in.</source>
        <translation>Il n’y a pas de micro. Branchez-en un.</translation>
    </message>
    <message>
        <source>%1 is no sound file that can be read.</source>
        <translation>%1 n’est pas un fichier audio lisible.</translation>
    </message>
    <message>
        <source>There is no sound in %1.</source>
        <translation>Il n’y a pas de son dans %1.</translation>
    </message>
    <message>
        <source>The sound of %1 can&apos;t be decoded.</source>
        <translation>Impossible de décoder le son de %1.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Arrêté.</translation>
    </message>
    <message>
        <source>The sound of %1 can&apos;t be converted.</source>
        <translation>Impossible de convertir le son de %1.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Le fichier %1 n’existe pas.</translation>
    </message>
    <message>
        <source>The converted recording can&apos;t be written.</source>
        <translation>Impossible d’écrire l’enregistrement converti.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone.</source>
        <translation>Impossible de démarrer le microphone.</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Unmetered (dev device)</source>
        <translation>Illimité (appareil de développement)</translation>
    </message>
    <message numerus="yes">
        <source>%1 tokens left</source>
        <translation>
            <numerusform>%L1 jeton restant</numerusform>
            <numerusform>%L1 jetons restants</numerusform>
        </translation>
    </message>
    <message>
        <source>Today&apos;s free tokens for new users ran out before you joined.</source>
        <translation>Les jetons gratuits du jour pour les nouveaux étaient déjà épuisés.</translation>
    </message>
    <message>
        <source>Buy Tokens…</source>
        <translation>Acheter des jetons…</translation>
    </message>
    <message>
        <source>Allow pasting into other apps…</source>
        <translation>Autoriser le collage dans d’autres applications…</translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>Toutes les entrées</translation>
    </message>
    <message>
        <source>Next Group</source>
        <translation>Groupe suivant</translation>
    </message>
    <message>
        <source>Edit Groups…</source>
        <translation>Modifier les groupes…</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Groupe : %1</translation>
    </message>
    <message>
        <source>Hide History</source>
        <translation>Masquer l’historique</translation>
    </message>
    <message>
        <source>Show History</source>
        <translation>Afficher l’historique</translation>
    </message>
    <message>
        <source>Copy Last Transcript</source>
        <translation>Copier la dernière transcription</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Effacer l’historique</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Récentes</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Réglages…</translation>
    </message>
    <message>
        <source>Quit Quillo</source>
        <translation>Quitter Quillo</translation>
    </message>
</context>
<context>
    <name>PermissionRow</name>
    <message>
        <source>Allowed</source>
        <translation>Autorisé</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Autoriser…</translation>
    </message>
    <message>
        <source>Allow %1</source>
        <translation>Autoriser %1</translation>
    </message>
</context>
<context>
    <name>Permissions</name>
    <message>
        <source>Allow an input device in the sound settings</source>
        <translation>Autorisez un périphérique d’entrée dans les réglages du son</translation>
    </message>
    <message>
        <source>Run “quillo doctor” to see what is missing</source>
        <translation>Lancez « quillo doctor » pour voir ce qui manque</translation>
    </message>
</context>
<context>
    <name>PermissionsSection</name>
    <message>
        <source>Permissions</source>
        <translation>Autorisations</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microphone</translation>
    </message>
    <message>
        <source>To hear what you say.</source>
        <translation>Pour entendre ce que vous dites.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accessibilité</translation>
    </message>
    <message>
        <source>To paste into other apps. Without it, text is copied and you press ⌘V.</source>
        <translation>Pour coller dans d’autres applications. Sinon le texte est copié et vous appuyez sur Ctrl+V (Ctrl+Maj+V dans un terminal).</translation>
    </message>
</context>
<context>
    <name>RecoverHistory</name>
    <message>
        <source>%1 can&apos;t be read.</source>
        <translation>Impossible de lire %1.</translation>
    </message>
    <message>
        <source>The history can&apos;t be saved: %1</source>
        <translation>Impossible d’enregistrer l’historique : %1</translation>
    </message>
    <message>
        <source>1 entry taken over.
</source>
        <translation>1 entrée reprise.
</translation>
    </message>
    <message numerus="yes">
        <source>%n entries taken over.
</source>
        <translation>
            <numerusform>%Ln entrée reprise.
</numerusform>
            <numerusform>%Ln entrées reprises.
</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RemoteControl</name>
    <message>
        <source>unmetered</source>
        <translation>illimité</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>L’action « %1 » n’existe pas.</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search transcriptions</source>
        <translation>Rechercher dans les transcriptions</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Effacer la recherche</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>All entries</source>
        <translation>Toutes les entrées</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Ouvrir à la connexion</translation>
    </message>
    <message>
        <source>Quillo Settings</source>
        <translation>Réglages de Quillo</translation>
    </message>
    <message>
        <source>Keep recordings that couldn&apos;t be sent</source>
        <translation>Garder les enregistrements non envoyés</translation>
    </message>
    <message>
        <source>For seven days. They are sent when the server answers again.</source>
        <translation>Pendant sept jours. Ils sont envoyés dès que le serveur répond à nouveau.</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>That can&apos;t be a shortcut on this keyboard. Try another one.</source>
        <translation>Cela ne peut pas être un raccourci sur ce clavier. Essayez-en un autre.</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Retour arrière</translation>
    </message>
    <message>
        <source>⌦</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Origine</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Page préc.</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Page suiv.</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Entrée (pavé num.)</translation>
    </message>
    <message>
        <source>Right ⌥ Option</source>
        <translation>Alt droite (Alt Gr)</translation>
    </message>
    <message>
        <source>Right ⌘ Command</source>
        <translation>Super droite</translation>
    </message>
    <message>
        <source>Right ⌃ Control</source>
        <translation>Ctrl droite</translation>
    </message>
    <message>
        <source>Fn (🌐)</source>
        <translation>Fn</translation>
    </message>
    <message>
        <source>Hold to talk, or tap for hands-free</source>
        <translation>Maintenir pour parler, ou taper pour mains libres</translation>
    </message>
    <message>
        <source>Hold to talk only</source>
        <translation>Maintenir pour parler seulement</translation>
    </message>
    <message>
        <source>Tap to start and stop</source>
        <translation>Taper pour démarrer et arrêter</translation>
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
        <translation>Maj+</translation>
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
        <translation>Échap sert à annuler une dictée.</translation>
    </message>
    <message>
        <source>Add ⌘, ⌥ or ⌃ — or use an F-key — so it doesn&apos;t block typing.</source>
        <translation>Ajoutez Ctrl, Alt ou Super – ou une touche F – pour ne pas gêner la saisie.</translation>
    </message>
</context>
<context>
    <name>ShortcutRecorder</name>
    <message>
        <source>Type shortcut…</source>
        <translation>Tapez le raccourci…</translation>
    </message>
</context>
<context>
    <name>ShortcutSection</name>
    <message>
        <source>Shortcut</source>
        <translation>Raccourci</translation>
    </message>
    <message>
        <source>Press Esc while recording to cancel.</source>
        <translation>Appuyez sur Échap pendant l’enregistrement pour annuler.</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Déclencheur</translation>
    </message>
    <message>
        <source>Key combination</source>
        <translation>Combinaison de touches</translation>
    </message>
    <message>
        <source>Hold a single key</source>
        <translation>Maintenir une touche</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Touche</translation>
    </message>
    <message>
        <source>Set System Settings › Keyboard › “Press 🌐 key to” to “Do Nothing”, or the emoji picker opens too.</source>
        <translation>La plupart des claviers gardent Fn pour eux. Si rien ne se passe quand vous la maintenez, choisissez une autre touche.</translation>
    </message>
    <message>
        <source>A single key needs Accessibility (below) before it works.</source>
        <translation>Une touche seule a besoin d’Accessibilité (ci-dessous) pour fonctionner.</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>Comportement</translation>
    </message>
    <message>
        <source>This key doesn&apos;t arrive here: the keyboard or the desktop keeps it to itself. Choose another one.</source>
        <translation>Cette touche n’arrive pas ici : le clavier ou le bureau la garde. Choisissez-en une autre.</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>%1 is already used by another app. Pick a different shortcut.</source>
        <translation>%1 est déjà utilisé par une autre application. Choisissez un autre raccourci.</translation>
    </message>
    <message>
        <source>%1 is already in use. Pick a different shortcut.</source>
        <translation>%1 est déjà utilisé. Choisissez un autre raccourci.</translation>
    </message>
</context>
<context>
    <name>Start</name>
    <message>
        <source>There is no session bus: no tray item but XEmbed&apos;s, no keyring, and commands can&apos;t reach Quillo.</source>
        <translation>Il n’y a pas de bus de session : pas d’icône hors XEmbed, pas de trousseau, et les commandes n’atteignent pas Quillo.</translation>
    </message>
    <message>
        <source>%1 See: quillo --help</source>
        <translation>%1 Voir : quillo --help</translation>
    </message>
</context>
<context>
    <name>Status</name>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>unmetered</source>
        <translation>illimité</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>pas encore connu</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>Toutes les entrées</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Jetons</translation>
    </message>
    <message>
        <source>Transcripts</source>
        <translation>Transcriptions</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microphone</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accessibilité</translation>
    </message>
    <message>
        <source>Consent</source>
        <translation>Accord</translation>
    </message>
</context>
<context>
    <name>StatusStrip</name>
    <message numerus="yes">
        <source>%1 tokens</source>
        <translation>
            <numerusform>%L1 jeton</numerusform>
            <numerusform>%L1 jetons</numerusform>
        </translation>
    </message>
    <message>
        <source>%1  next group   ·   %2  hide</source>
        <translation>%1  groupe suivant   ·   %2  masquer</translation>
    </message>
</context>
<context>
    <name>TokenBalance</name>
    <message>
        <source>Couldn&apos;t open the checkout page in a browser</source>
        <translation>Impossible d’ouvrir la page de paiement dans un navigateur</translation>
    </message>
</context>
<context>
    <name>Transcribe</name>
    <message>
        <source>Standard input can&apos;t be read.</source>
        <translation>Impossible de lire l’entrée standard.</translation>
    </message>
    <message>
        <source>The temporary folder is full.</source>
        <translation>Le dossier temporaire est plein.</translation>
    </message>
    <message>
        <source>The temporary folder can&apos;t be written.</source>
        <translation>Impossible d’écrire dans le dossier temporaire.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lecture…</translation>
    </message>
    <message>
        <source>Reading… %1 %</source>
        <translation>Lecture… %1 %</translation>
    </message>
    <message>
        <source>Transcribing… %1 s</source>
        <translation>Transcription… %1 s</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>Transcription…</translation>
    </message>
</context>
<context>
    <name>TranscriptionStore</name>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>Kept in memory: the history can&apos;t be saved</source>
        <translation>Gardé en mémoire : l’historique ne peut être enregistré</translation>
    </message>
    <message>
        <source>The history can&apos;t be read: a new one begins, the old file is kept</source>
        <translation>L’historique est illisible : un nouveau commence, l’ancien fichier est gardé</translation>
    </message>
</context>
<context>
    <name>UnsentStrip</name>
    <message>
        <source>Sending again…</source>
        <translation>Nouvel envoi…</translation>
    </message>
    <message>
        <source>One recording couldn&apos;t be sent.</source>
        <translation>Un enregistrement n’a pas pu être envoyé.</translation>
    </message>
    <message numerus="yes">
        <source>%n recordings couldn&apos;t be sent.</source>
        <translation>
            <numerusform>%Ln enregistrement n’a pas pu être envoyé.</numerusform>
            <numerusform>%Ln enregistrements n’ont pas pu être envoyés.</numerusform>
        </translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Renvoyer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
</TS>
