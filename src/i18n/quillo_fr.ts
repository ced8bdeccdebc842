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
    <name>Shortcut</name>
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
</TS>
