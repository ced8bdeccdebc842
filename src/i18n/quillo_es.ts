<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>AIConsent</name>
    <message>
        <source>Sending to OpenAI needs your permission first. Open Data &amp; AI from the menu bar.</source>
        <translation>El envío a OpenAI necesita antes su permiso. Abra Datos e IA en los ajustes.</translation>
    </message>
</context>
<context>
    <name>Age</name>
    <message>
        <source>1 day</source>
        <extracomment>Part of how long ago something was.</extracomment>
        <translation>1 día</translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%Ln día</numerusform>
            <numerusform>%Ln días</numerusform>
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
        <translation>ahora mismo</translation>
    </message>
    <message numerus="yes">
        <source>%n min ago</source>
        <translation>
            <numerusform>hace %Ln min</numerusform>
            <numerusform>hace %Ln min</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 ago</source>
        <extracomment>%1: &quot;3 hrs&quot; or &quot;2 days&quot;.</extracomment>
        <translation>hace %1</translation>
    </message>
    <message>
        <source>%1, %2 ago</source>
        <extracomment>%1: &quot;2 days&quot;, %2: &quot;3 hrs&quot;.</extracomment>
        <translation>hace %1 y %2</translation>
    </message>
</context>
<context>
    <name>ApiError</name>
    <message>
        <source>Couldn&apos;t read the recording.</source>
        <translation>No se pudo leer la grabación.</translation>
    </message>
    <message>
        <source>Nothing was recorded. Check microphone access.</source>
        <translation>No se grabó nada. Compruebe el acceso al micrófono.</translation>
    </message>
    <message>
        <source>The service is unavailable right now. Please try again later.</source>
        <translation>El servicio no está disponible ahora mismo. Inténtelo más tarde.</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Error de red. Compruebe la conexión.</translation>
    </message>
    <message>
        <source>Something went wrong. Please try again.</source>
        <translation>Algo ha ido mal. Inténtelo de nuevo.</translation>
    </message>
</context>
<context>
    <name>CopyPill</name>
    <message>
        <source>COPIED</source>
        <translation>COPIADO</translation>
    </message>
    <message>
        <source>COPY</source>
        <translation>COPIAR</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>DisclosureView</name>
    <message>
        <source>Data &amp; AI</source>
        <translation>Datos e IA</translation>
    </message>
    <message>
        <source>Before we start</source>
        <translation>Antes de empezar</translation>
    </message>
    <message>
        <source>To turn your speech into text, this app sends your voice recording through our server to &lt;b&gt;OpenAI&lt;/b&gt;, a third-party AI service in the United States.</source>
        <translation>Para convertir su voz en texto, esta aplicación envía la grabación a través de nuestro servidor a &lt;b&gt;OpenAI&lt;/b&gt;, un servicio de IA de terceros en Estados Unidos.</translation>
    </message>
    <message>
        <source>Our server passes your recording on without storing it. It keeps only your token balance and purchases, under a random ID created on this Mac — no name, email, account or location. Your recording is deleted once it has been transcribed, and your transcripts are stored only on this Mac.</source>
        <translation>Nuestro servidor reenvía la grabación sin almacenarla. Solo guarda su saldo de tokens y sus compras, con un identificador aleatorio creado en este equipo: ni nombre, ni correo, ni cuenta, ni ubicación. La grabación se elimina una vez transcrita, y las transcripciones se guardan solo en este equipo.</translation>
    </message>
    <message>
        <source>What OpenAI does with it ↗</source>
        <translation>Qué hace OpenAI con ella ↗</translation>
    </message>
    <message>
        <source>Our privacy policy ↗</source>
        <translation>Nuestra política de privacidad ↗</translation>
    </message>
    <message>
        <source>You agreed on %1.</source>
        <translation>Aceptó el %1.</translation>
    </message>
    <message>
        <source>Withdraw consent</source>
        <translation>Retirar el consentimiento</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Keep it on</source>
        <translation>Mantener</translation>
    </message>
    <message>
        <source>I agree — send to OpenAI</source>
        <translation>Acepto: enviar a OpenAI</translation>
    </message>
    <message>
        <source>You can withdraw this at any time from the menu bar under Data &amp; AI. Without it, dictation stays off.</source>
        <translation>Puede retirarlo en cualquier momento en los ajustes, en Datos e IA. Sin él, el dictado queda desactivado.</translation>
    </message>
</context>
<context>
    <name>EntryList</name>
    <message>
        <source>Entries</source>
        <translation>Entradas</translation>
    </message>
    <message>
        <source>No matches.</source>
        <translation>Sin coincidencias.</translation>
    </message>
    <message>
        <source>Try a different search.</source>
        <translation>Pruebe con otra búsqueda.</translation>
    </message>
</context>
<context>
    <name>EntryMenu</name>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Move to Group</source>
        <translation>Mover al grupo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
<context>
    <name>GroupCarousel</name>
    <message>
        <source>Current group</source>
        <translation>Grupo actual</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Edit groups</source>
        <translation>Editar grupos</translation>
    </message>
</context>
<context>
    <name>GroupCarouselModel</name>
    <message>
        <source>All entries</source>
        <translation>Todas las entradas</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sin nombre</translation>
    </message>
    <message>
        <source>Dictations go into %1 while it&apos;s selected.</source>
        <translation>Los dictados van a %1 mientras esté seleccionado.</translation>
    </message>
</context>
<context>
    <name>GroupEditor</name>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Dictations go into the selected group. Deleting a group keeps its entries under All entries.</source>
        <translation>Los dictados van al grupo seleccionado. Al eliminar un grupo, sus entradas se conservan en Todas las entradas.</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>Grupo nuevo</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
</context>
<context>
    <name>GroupList</name>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
</context>
<context>
    <name>GroupRow</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Name of the group</source>
        <translation>Nombre del grupo</translation>
    </message>
    <message>
        <source>Delete group</source>
        <translation>Eliminar grupo</translation>
    </message>
</context>
<context>
    <name>HUDView</name>
    <message>
        <source>Dictating into %1</source>
        <translation>Dictando en %1</translation>
    </message>
    <message>
        <source>Listening — press again to stop</source>
        <translation>Escuchando: pulse otra vez para parar</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Escuchando</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>Transcribiendo…</translation>
    </message>
    <message>
        <source>No free tokens were left today</source>
        <translation>Hoy ya no quedaban tokens gratuitos</translation>
    </message>
    <message>
        <source>You&apos;re out of tokens</source>
        <translation>Se ha quedado sin tokens</translation>
    </message>
    <message>
        <source>Buy…</source>
        <translation>Comprar…</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>1 entry</source>
        <translation>1 entrada</translation>
    </message>
    <message numerus="yes">
        <source>%n entries</source>
        <translation>
            <numerusform>%Ln entrada</numerusform>
            <numerusform>%Ln entradas</numerusform>
        </translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>Todas las entradas</translation>
    </message>
</context>
<context>
    <name>HistoryView</name>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>No entries yet.</source>
        <translation>Todavía no hay entradas.</translation>
    </message>
    <message>
        <source>Dictate with %1 to see it here.</source>
        <translation>Dicte con %1 y lo verá aquí.</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search transcriptions</source>
        <translation>Buscar en las transcripciones</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Borrar la búsqueda</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Intro</translation>
    </message>
    <message>
        <source>Tab</source>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Retroceso</translation>
    </message>
    <message>
        <source>⌦</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Page Up</source>
        <translation>Re Pág</translation>
    </message>
    <message>
        <source>Page Down</source>
        <translation>Av Pág</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Intro (numérico)</translation>
    </message>
    <message>
        <source>Right ⌥ Option</source>
        <translation>Alt derecha (Alt Gr)</translation>
    </message>
    <message>
        <source>Right ⌘ Command</source>
        <translation>Súper derecha</translation>
    </message>
    <message>
        <source>Right ⌃ Control</source>
        <translation>Ctrl derecha</translation>
    </message>
    <message>
        <source>Fn (🌐)</source>
        <translation>Fn</translation>
    </message>
    <message>
        <source>Hold to talk, or tap for hands-free</source>
        <translation>Mantener para hablar, o pulsar para manos libres</translation>
    </message>
    <message>
        <source>Hold to talk only</source>
        <translation>Solo mantener para hablar</translation>
    </message>
    <message>
        <source>Tap to start and stop</source>
        <translation>Pulsar para empezar y parar</translation>
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
        <translation>Mayús+</translation>
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
        <translation>Esc sirve para cancelar un dictado.</translation>
    </message>
    <message>
        <source>Add ⌘, ⌥ or ⌃ — or use an F-key — so it doesn&apos;t block typing.</source>
        <translation>Añada Ctrl, Alt o Súper (o use una tecla F) para que no estorbe al escribir.</translation>
    </message>
</context>
</TS>
