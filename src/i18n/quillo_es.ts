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
    <message>
        <source>Couldn&apos;t start the microphone.</source>
        <translation>No se pudo iniciar el micrófono.</translation>
    </message>
    <message>
        <source>Unlock the keyring first</source>
        <translation>Desbloquee primero el depósito de claves</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>All entries</source>
        <translation>Todas las entradas</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Hold the dictation shortcut</source>
        <translation>Mantener el atajo de dictado</translation>
    </message>
    <message>
        <source>Let go of it</source>
        <translation>Soltarlo</translation>
    </message>
    <message>
        <source>Start dictating, or finish and paste</source>
        <translation>Empezar a dictar, o terminar y pegar</translation>
    </message>
    <message>
        <source>Drop the recording</source>
        <translation>Descartar la grabación</translation>
    </message>
    <message>
        <source>Show the history</source>
        <translation>Mostrar el historial</translation>
    </message>
    <message>
        <source>Show the history with the group editor</source>
        <translation>Mostrar el historial con el editor de grupos</translation>
    </message>
    <message>
        <source>Show the settings</source>
        <translation>Mostrar los ajustes</translation>
    </message>
    <message>
        <source>Make the next group the current one</source>
        <translation>Pasar al grupo siguiente</translation>
    </message>
    <message>
        <source>Open the page where tokens are bought</source>
        <translation>Abrir la página de compra de tokens</translation>
    </message>
    <message>
        <source>Print what the program is doing</source>
        <translation>Mostrar qué está haciendo el programa</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Terminar el programa</translation>
    </message>
    <message>
        <source>Print the text of a recording; - reads standard input</source>
        <translation>Mostrar el texto de una grabación; - lee la entrada estándar</translation>
    </message>
    <message>
        <source>Print what this desktop offers for dictation, and what is missing</source>
        <translation>Mostrar qué ofrece este escritorio para el dictado y qué falta</translation>
    </message>
    <message>
        <source>Usage: quillo [COMMAND]

Without a command Quillo starts, or shows its history if it runs already.
Hold the dictation shortcut, speak, let go: the words appear in the program in front.

Commands:
</source>
        <translation>Uso: quillo [ORDEN]

Sin orden, Quillo se inicia, o muestra su historial si ya está en marcha.
Mantenga el atajo de dictado, hable y suelte: las palabras aparecen en el programa que está delante.

Órdenes:
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
Opciones:
  -h, --help        Mostrar esta ayuda
  -v, --version     Mostrar la versión

Estado de salida: 0 hecho, 1 fallo, 2 línea de órdenes incorrecta, 3 Quillo no está en marcha.
</translation>
    </message>
    <message>
        <source>--json belongs to the command status.</source>
        <translation>--json pertenece a la orden status.</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>No existe la orden «%1».</translation>
    </message>
    <message>
        <source>transcribe takes one file.</source>
        <translation>transcribe necesita un archivo.</translation>
    </message>
    <message>
        <source>%1 takes no argument.</source>
        <translation>%1 no lleva argumentos.</translation>
    </message>
    <message>
        <source>Take over what can be read in a damaged history</source>
        <translation>Recuperar lo legible de un historial dañado</translation>
    </message>
    <message>
        <source>--recover belongs to the command history.</source>
        <translation>--recover pertenece a la orden history.</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
    <name>DataSection</name>
    <message>
        <source>Data &amp; AI</source>
        <translation>Datos e IA</translation>
    </message>
    <message>
        <source>Sending to OpenAI</source>
        <translation>Envío a OpenAI</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Permitido</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desactivado</translation>
    </message>
    <message>
        <source>Review…</source>
        <translation>Revisar…</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Tokens</translation>
    </message>
    <message>
        <source>Unmetered</source>
        <translation>Sin límite</translation>
    </message>
    <message>
        <source>%1</source>
        <comment>number of tokens</comment>
        <translation>%L1</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Actualizar</translation>
    </message>
</context>
<context>
    <name>Dictation</name>
    <message>
        <source>Listening… (Esc to cancel)</source>
        <translation>Escuchando… (Esc para cancelar)</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>Transcribiendo…</translation>
    </message>
    <message>
        <source>Hold %1 to dictate</source>
        <translation>Mantenga %1 para dictar</translation>
    </message>
    <message>
        <source>Tap %1 to dictate</source>
        <translation>Pulse %1 para dictar</translation>
    </message>
    <message>
        <source>Hold or tap %1 to dictate</source>
        <translation>Mantenga o pulse %1 para dictar</translation>
    </message>
    <message>
        <source>Microphone access is off for Quillo</source>
        <translation>Quillo no tiene acceso al micrófono</translation>
    </message>
    <message>
        <source>Microphone on — press %1 to dictate</source>
        <translation>Micrófono activado: pulse %1 para dictar</translation>
    </message>
    <message>
        <source>The microphone was disconnected.</source>
        <translation>Se desconectó el micrófono.</translation>
    </message>
    <message>
        <source>Nothing was recorded. Check the microphone.</source>
        <translation>No se grabó nada. Compruebe el micrófono.</translation>
    </message>
    <message>
        <source>Didn&apos;t catch anything</source>
        <translation>No se entendió nada</translation>
    </message>
    <message>
        <source>Copied — press ⌘V to paste</source>
        <translation>Copiado: pegue con Ctrl+V (Ctrl+Mayús+V en un terminal)</translation>
    </message>
    <message>
        <source>Couldn&apos;t paste. The text is in the history.</source>
        <translation>No se pudo pegar. El texto está en el historial.</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
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
    <message>
        <source>Recordings go to %1, on this computer: they stay here unless that server passes them on.</source>
        <translation>Las grabaciones van a %1, en este equipo: se quedan aquí salvo que ese servidor las reenvíe.</translation>
    </message>
    <message>
        <source>Recordings go to %1.</source>
        <translation>Las grabaciones van a %1.</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>QUILLO_PLATFORM is &quot;%1&quot;; it can be x11 or wayland.</source>
        <translation>QUILLO_PLATFORM es «%1»; puede ser x11 o wayland.</translation>
    </message>
    <message>
        <source>Wayland sessions are not supported yet. Log in to an X11 session, or try QUILLO_PLATFORM=x11, which reaches only the programs that run through Xwayland.</source>
        <translation>Las sesiones Wayland aún no se admiten. Entre en una sesión X11 o pruebe QUILLO_PLATFORM=x11, que solo alcanza programas X11.</translation>
    </message>
    <message>
        <source>There is no X11 display (DISPLAY is not set).</source>
        <translation>No hay pantalla X11 (DISPLAY no está definida).</translation>
    </message>
    <message>
        <source>The X11 display %1 can&apos;t be reached.</source>
        <translation>No se puede acceder a la pantalla X11 %1.</translation>
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
    <name>Finding</name>
    <message>
        <source>there is no X server at $DISPLAY</source>
        <translation>no hay servidor X en $DISPLAY</translation>
    </message>
    <message>
        <source>the X server has no keyboard extension (XKB)</source>
        <translation>el servidor X no tiene extensión de teclado (XKB)</translation>
    </message>
    <message>
        <source>the X server has no XFIXES extension</source>
        <translation>el servidor X no tiene la extensión XFIXES</translation>
    </message>
    <message>
        <source>Raw keys</source>
        <translation>Teclas sueltas</translation>
    </message>
    <message>
        <source>no XInput 2.2: the dictation shortcut is a single key</source>
        <translation>sin XInput 2.2: el atajo de dictado es una sola tecla</translation>
    </message>
    <message>
        <source>choose a key combination in the settings</source>
        <translation>elija una combinación de teclas en los ajustes</translation>
    </message>
    <message>
        <source>no XInput 2.2: a single key can&apos;t be a shortcut</source>
        <translation>sin XInput 2.2: una sola tecla no puede ser un atajo</translation>
    </message>
    <message>
        <source>use a key combination</source>
        <translation>use una combinación de teclas</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Teclado</translation>
    </message>
    <message>
        <source>no XKB</source>
        <translation>sin XKB</translation>
    </message>
    <message>
        <source>enable the X server&apos;s XKEYBOARD extension</source>
        <translation>active la extensión XKEYBOARD del servidor X</translation>
    </message>
    <message>
        <source>Key posting</source>
        <translation>Envío de teclas</translation>
    </message>
    <message>
        <source>no XTEST: text is copied, not pasted</source>
        <translation>sin XTEST: el texto se copia, no se pega</translation>
    </message>
    <message>
        <source>paste with Ctrl+V, or enable the X server&apos;s XTEST extension</source>
        <translation>pegue con Ctrl+V o active la extensión XTEST del servidor X</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Portapapeles</translation>
    </message>
    <message>
        <source>no XFIXES</source>
        <translation>sin XFIXES</translation>
    </message>
    <message>
        <source>enable the X server&apos;s XFIXES extension</source>
        <translation>active la extensión XFIXES del servidor X</translation>
    </message>
    <message>
        <source>Display server</source>
        <translation>Servidor gráfico</translation>
    </message>
    <message>
        <source>log in to an X11 session</source>
        <translation>entre en una sesión X11</translation>
    </message>
    <message>
        <source>X11 (%1), backend x11</source>
        <translation>X11 (%1), módulo x11</translation>
    </message>
    <message>
        <source>Window manager</source>
        <translation>Gestor de ventanas</translation>
    </message>
    <message>
        <source>there</source>
        <translation>presente</translation>
    </message>
    <message>
        <source>none: windows may not come to the front</source>
        <translation>ninguno: las ventanas quizá no pasen al frente</translation>
    </message>
    <message>
        <source>start a window manager</source>
        <translation>inicie un gestor de ventanas</translation>
    </message>
    <message>
        <source>Compositor</source>
        <translation>Compositor</translation>
    </message>
    <message>
        <source>none: the status panel has hard edges</source>
        <translation>ninguno: el panel tiene bordes duros</translation>
    </message>
    <message>
        <source>XEmbed tray</source>
        <translation>Bandeja XEmbed</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V does not paste in it</source>
        <translation>Ctrl+Mayús+V no pega en él</translation>
    </message>
    <message>
        <source>add to ~/.Xresources and load it with xrdb -merge: %1</source>
        <translation>añada a ~/.Xresources y cargue con xrdb -merge: %1</translation>
    </message>
    <message>
        <source>Sound server</source>
        <translation>Servidor de sonido</translation>
    </message>
    <message>
        <source>refuses access</source>
        <translation>deniega el acceso</translation>
    </message>
    <message>
        <source>allow Quillo to record in the sandbox or sound settings</source>
        <translation>permita grabar a Quillo en los ajustes del aislamiento o de sonido</translation>
    </message>
    <message>
        <source>not running</source>
        <translation>no está en marcha</translation>
    </message>
    <message>
        <source>start PulseAudio or PipeWire (pipewire-pulse)</source>
        <translation>inicie PulseAudio o PipeWire (pipewire-pulse)</translation>
    </message>
    <message>
        <source>Microphone level</source>
        <translation>Nivel del micrófono</translation>
    </message>
    <message>
        <source>it can&apos;t be recorded</source>
        <translation>no se puede grabar</translation>
    </message>
    <message>
        <source>choose another input device</source>
        <translation>elija otro dispositivo de entrada</translation>
    </message>
    <message>
        <source>silent</source>
        <translation>en silencio</translation>
    </message>
    <message>
        <source>unmute the input device in the sound settings</source>
        <translation>quite el silencio en los ajustes de sonido</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Micrófono</translation>
    </message>
    <message>
        <source>no input device</source>
        <translation>sin dispositivo de entrada</translation>
    </message>
    <message>
        <source>connect a microphone, or choose one in the sound settings</source>
        <translation>conecte un micrófono o elíjalo en los ajustes de sonido</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Depósito de claves</translation>
    </message>
    <message>
        <source>absent: no Secret Service on the session bus</source>
        <translation>ausente: no hay Secret Service en el bus de sesión</translation>
    </message>
    <message>
        <source>install and start GNOME Keyring, KWallet or KeePassXC; until then the credential is kept in memory and each start is a new device</source>
        <translation>instale e inicie GNOME Keyring, KWallet o KeePassXC; hasta entonces la credencial queda en memoria y cada inicio es un dispositivo nuevo</translation>
    </message>
    <message>
        <source>there, without a default keyring</source>
        <translation>presente, sin depósito predeterminado</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>bloqueado</translation>
    </message>
    <message>
        <source>unlock the login keyring; until then the credential is kept in memory and each start is a new device</source>
        <translation>desbloquee el depósito de inicio de sesión; hasta entonces la credencial queda en memoria y cada inicio es un dispositivo nuevo</translation>
    </message>
    <message>
        <source>usable</source>
        <translation>utilizable</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read or written</source>
        <translation>%1 no se puede leer o escribir</translation>
    </message>
    <message>
        <source>make it yours: chown and chmod u+rw</source>
        <translation>hágalo suyo: chown y chmod u+rw</translation>
    </message>
    <message>
        <source>%1 is damaged: what can&apos;t be read counts as not set</source>
        <translation>%1 está dañado: lo ilegible cuenta como no definido</translation>
    </message>
    <message>
        <source>mend the file or move it away</source>
        <translation>repare el archivo o muévalo</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Bandeja</translation>
    </message>
    <message>
        <source>none on this desktop</source>
        <translation>ninguna en este escritorio</translation>
    </message>
    <message>
        <source>start quillo again for the history, use its commands (quillo --help), or add a tray to the panel</source>
        <translation>inicie quillo otra vez para el historial, use sus órdenes (quillo --help) o añada una bandeja al panel</translation>
    </message>
    <message>
        <source>choose another one in the settings</source>
        <translation>elija otro en los ajustes</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <source>the running Quillo does not answer</source>
        <translation>el Quillo en marcha no responde</translation>
    </message>
    <message>
        <source>end it and start it again</source>
        <translation>termínelo e inícielo de nuevo</translation>
    </message>
    <message>
        <source>Hot key</source>
        <translation>Atajo</translation>
    </message>
    <message>
        <source>held by the running Quillo</source>
        <translation>en manos del Quillo en marcha</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Bus de sesión</translation>
    </message>
    <message>
        <source>none: no tray item, no keyring, no commands</source>
        <translation>ninguno: sin icono, sin depósito de claves, sin órdenes</translation>
    </message>
    <message>
        <source>log in through a desktop session, or start one with dbus-run-session</source>
        <translation>entre con una sesión de escritorio o inicie una con dbus-run-session</translation>
    </message>
    <message>
        <source>there; Quillo is running</source>
        <translation>presente; Quillo está en marcha</translation>
    </message>
    <message>
        <source>there; Quillo isn&apos;t running</source>
        <translation>presente; Quillo no está en marcha</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1 está libre</translation>
    </message>
    <message>
        <source>%1 is taken by another program</source>
        <translation>otro programa usa %1</translation>
    </message>
    <message>
        <source>not tried: %1</source>
        <translation>no se probó: %1</translation>
    </message>
    <message>
        <source>Backend</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>no usable address</source>
        <translation>sin dirección utilizable</translation>
    </message>
    <message>
        <source>set apiURL in %1</source>
        <translation>defina apiURL en %1</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 no responde</translation>
    </message>
    <message>
        <source>check the network; a server of your own is started with quillo-backend</source>
        <translation>compruebe la red; un servidor propio se inicia con quillo-backend</translation>
    </message>
    <message>
        <source>%1 answers</source>
        <translation>%1 responde</translation>
    </message>
    <message>
        <source>%1 answers %2, which no Quillo backend does</source>
        <translation>%1 responde %2, lo que ningún servidor de Quillo hace</translation>
    </message>
    <message>
        <source>check apiURL in %1</source>
        <translation>compruebe apiURL en %1</translation>
    </message>
    <message>
        <source>Consent</source>
        <translation>Consentimiento</translation>
    </message>
    <message>
        <source>given</source>
        <translation>otorgado</translation>
    </message>
    <message>
        <source>not given: dictation stays off</source>
        <translation>no otorgado: el dictado queda desactivado</translation>
    </message>
    <message>
        <source>start Quillo and agree</source>
        <translation>inicie Quillo y acepte</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Tipos de letra</translation>
    </message>
    <message>
        <source>Liberation Sans is missing: another face stands in</source>
        <translation>falta Liberation Sans: la sustituye otro tipo</translation>
    </message>
    <message>
        <source>install fonts-liberation</source>
        <translation>instale fonts-liberation</translation>
    </message>
    <message>
        <source>Liberation Sans; the system serif stands in for Fraunces</source>
        <translation>Liberation Sans; la serif del sistema sustituye a Fraunces</translation>
    </message>
    <message>
        <source>ok</source>
        <translation>ok</translation>
    </message>
    <message>
        <source>note</source>
        <translation>nota</translation>
    </message>
    <message>
        <source>MISSING</source>
        <translation>FALTA</translation>
    </message>
    <message>
        <source>
Dictation can work here.
</source>
        <translation>
El dictado puede funcionar aquí.
</translation>
    </message>
    <message>
        <source>
Dictation can&apos;t work here yet.
</source>
        <translation>
El dictado todavía no puede funcionar aquí.
</translation>
    </message>
    <message>
        <source>%1 begins neither with https:// nor http://</source>
        <translation>%1 no empieza por https:// ni por http://</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>no se puede leer %1</translation>
    </message>
    <message>
        <source>it is kept; to take over what can be read: quillo history --recover %1</source>
        <translation>se conserva; para recuperar lo legible: quillo history --recover %1</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: nothing new is kept</source>
        <translation>no se puede escribir en %1: no se conserva nada nuevo</translation>
    </message>
    <message>
        <source>make it yours: chown and chmod u+rwx</source>
        <translation>hágalo suyo: chown y chmod u+rwx</translation>
    </message>
    <message>
        <source>%1: the disk is full, nothing new is kept</source>
        <translation>%1: el disco está lleno, no se conserva nada nuevo</translation>
    </message>
    <message>
        <source>make room</source>
        <translation>libere espacio</translation>
    </message>
    <message>
        <source>%1; put aside because it couldn&apos;t be read: %2</source>
        <translation>%1; apartado por ilegible: %2</translation>
    </message>
    <message>
        <source>it is made, with a password of yours, when tokens are bought; until then the credential is kept in memory and each start is a new device</source>
        <translation>se crea, con una contraseña suya, al comprar tokens; hasta entonces la credencial queda en memoria y cada inicio es un dispositivo nuevo</translation>
    </message>
</context>
<context>
    <name>GeneralSettings</name>
    <message>
        <source>Couldn&apos;t change Open at Login</source>
        <translation>No se pudo cambiar Abrir al iniciar sesión</translation>
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
    <name>GroupStore</name>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Kept in memory: the groups can&apos;t be saved</source>
        <translation>Solo en memoria: no se pueden guardar los grupos</translation>
    </message>
    <message>
        <source>The groups can&apos;t be read: a new one begins, the old file is kept</source>
        <translation>No se pueden leer los grupos: empiezan otros nuevos y se conserva el archivo anterior</translation>
    </message>
</context>
<context>
    <name>GroupsSection</name>
    <message>
        <source>Groups &amp; History</source>
        <translation>Grupos e historial</translation>
    </message>
    <message>
        <source>New dictations go into the current group: %1.</source>
        <translation>Los dictados nuevos van al grupo actual: %1.</translation>
    </message>
    <message>
        <source>Next group</source>
        <translation>Grupo siguiente</translation>
    </message>
    <message>
        <source>Show or hide history</source>
        <translation>Mostrar u ocultar el historial</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Edit…</source>
        <translation>Editar…</translation>
    </message>
    <message>
        <source>Edit groups</source>
        <translation>Editar grupos</translation>
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
    <name>HistorySection</name>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Transcripts on this Mac</source>
        <translation>Transcripciones en este equipo</translation>
    </message>
    <message>
        <source>Clear…</source>
        <translation>Vaciar…</translation>
    </message>
    <message numerus="yes">
        <source>Delete all %n transcripts?</source>
        <translation>
            <numerusform>¿Eliminar la transcripción?</numerusform>
            <numerusform>¿Eliminar las %Ln transcripciones?</numerusform>
        </translation>
    </message>
    <message>
        <source>They&apos;re stored only on this Mac, so this can&apos;t be undone.</source>
        <translation>Solo están guardadas en este equipo, así que no se puede deshacer.</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Eliminar todo</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
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
    <name>Instance</name>
    <message>
        <source>There is no session bus (DBUS_SESSION_BUS_ADDRESS), so Quillo can&apos;t be reached.</source>
        <translation>No hay bus de sesión (DBUS_SESSION_BUS_ADDRESS), así que no se puede contactar con Quillo.</translation>
    </message>
    <message>
        <source>Quillo isn&apos;t running. Start it with: quillo</source>
        <translation>Quillo no está en marcha. Inícielo con: quillo</translation>
    </message>
    <message>
        <source>Quillo refused: %1</source>
        <translation>Quillo se negó: %1</translation>
    </message>
    <message>
        <source>Quillo did not answer: %1</source>
        <translation>Quillo no respondió: %1</translation>
    </message>
</context>
<context>
    <name>LocalizedError</name>
    <message>
        <source>There is no microphone. Plug one in.</source>
        <translation>No hay ningún micrófono. Conecte uno.</translation>
    </message>
    <message>
        <source>%1 is no sound file that can be read.</source>
        <translation>%1 no es un archivo de sonido legible.</translation>
    </message>
    <message>
        <source>There is no sound in %1.</source>
        <translation>No hay sonido en %1.</translation>
    </message>
    <message>
        <source>The sound of %1 can&apos;t be decoded.</source>
        <translation>No se puede decodificar el sonido de %1.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Detenido.</translation>
    </message>
    <message>
        <source>The sound of %1 can&apos;t be converted.</source>
        <translation>No se puede convertir el sonido de %1.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>No existe el archivo %1.</translation>
    </message>
    <message>
        <source>The converted recording can&apos;t be written.</source>
        <translation>No se puede escribir la grabación convertida.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone.</source>
        <translation>No se pudo iniciar el micrófono.</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Unmetered (dev device)</source>
        <translation>Sin límite (dispositivo de desarrollo)</translation>
    </message>
    <message numerus="yes">
        <source>%1 tokens left</source>
        <translation>
            <numerusform>Queda %L1 token</numerusform>
            <numerusform>Quedan %L1 tokens</numerusform>
        </translation>
    </message>
    <message>
        <source>Today&apos;s free tokens for new users ran out before you joined.</source>
        <translation>Los tokens gratuitos de hoy para usuarios nuevos se agotaron antes de que llegara.</translation>
    </message>
    <message>
        <source>Buy Tokens…</source>
        <translation>Comprar tokens…</translation>
    </message>
    <message>
        <source>Allow pasting into other apps…</source>
        <translation>Permitir pegar en otras aplicaciones…</translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>Todas las entradas</translation>
    </message>
    <message>
        <source>Next Group</source>
        <translation>Grupo siguiente</translation>
    </message>
    <message>
        <source>Edit Groups…</source>
        <translation>Editar grupos…</translation>
    </message>
    <message>
        <source>Group: %1</source>
        <translation>Grupo: %1</translation>
    </message>
    <message>
        <source>Hide History</source>
        <translation>Ocultar el historial</translation>
    </message>
    <message>
        <source>Show History</source>
        <translation>Mostrar el historial</translation>
    </message>
    <message>
        <source>Copy Last Transcript</source>
        <translation>Copiar la última transcripción</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Borrar el historial</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recientes</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Ajustes…</translation>
    </message>
    <message>
        <source>Quit Quillo</source>
        <translation>Salir de Quillo</translation>
    </message>
</context>
<context>
    <name>PermissionRow</name>
    <message>
        <source>Allowed</source>
        <translation>Permitido</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Permitir…</translation>
    </message>
    <message>
        <source>Allow %1</source>
        <translation>Permitir %1</translation>
    </message>
</context>
<context>
    <name>Permissions</name>
    <message>
        <source>Allow an input device in the sound settings</source>
        <translation>Permita un dispositivo de entrada en los ajustes de sonido</translation>
    </message>
    <message>
        <source>Run “quillo doctor” to see what is missing</source>
        <translation>Ejecute «quillo doctor» para ver qué falta</translation>
    </message>
</context>
<context>
    <name>PermissionsSection</name>
    <message>
        <source>Permissions</source>
        <translation>Permisos</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Micrófono</translation>
    </message>
    <message>
        <source>To hear what you say.</source>
        <translation>Para oír lo que dice.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accesibilidad</translation>
    </message>
    <message>
        <source>To paste into other apps. Without it, text is copied and you press ⌘V.</source>
        <translation>Para pegar en otras aplicaciones. Sin ella, el texto se copia y usted pulsa Ctrl+V (Ctrl+Mayús+V en un terminal).</translation>
    </message>
</context>
<context>
    <name>RecoverHistory</name>
    <message>
        <source>%1 can&apos;t be read.</source>
        <translation>No se puede leer %1.</translation>
    </message>
    <message>
        <source>The history can&apos;t be saved: %1</source>
        <translation>No se puede guardar el historial: %1</translation>
    </message>
    <message>
        <source>1 entry taken over.
</source>
        <translation>1 entrada recuperada.
</translation>
    </message>
    <message numerus="yes">
        <source>%n entries taken over.
</source>
        <translation>
            <numerusform>%Ln entrada recuperada.
</numerusform>
            <numerusform>%Ln entradas recuperadas.
</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>RemoteControl</name>
    <message>
        <source>unmetered</source>
        <translation>sin límite</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>No existe la acción «%1».</translation>
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
    <name>SettingsModel</name>
    <message>
        <source>All entries</source>
        <translation>Todas las entradas</translation>
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
        <translation>Abrir al iniciar sesión</translation>
    </message>
    <message>
        <source>Quillo Settings</source>
        <translation>Ajustes de Quillo</translation>
    </message>
    <message>
        <source>Keep recordings that couldn&apos;t be sent</source>
        <translation>Conservar las grabaciones no enviadas</translation>
    </message>
    <message>
        <source>For seven days. They are sent when the server answers again.</source>
        <translation>Durante siete días. Se envían cuando el servidor vuelve a responder.</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>That can&apos;t be a shortcut on this keyboard. Try another one.</source>
        <translation>Eso no puede ser un atajo en este teclado. Pruebe con otro.</translation>
    </message>
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
<context>
    <name>ShortcutRecorder</name>
    <message>
        <source>Type shortcut…</source>
        <translation>Pulse el atajo…</translation>
    </message>
</context>
<context>
    <name>ShortcutSection</name>
    <message>
        <source>Shortcut</source>
        <translation>Atajo</translation>
    </message>
    <message>
        <source>Press Esc while recording to cancel.</source>
        <translation>Pulse Esc durante la grabación para cancelar.</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Activador</translation>
    </message>
    <message>
        <source>Key combination</source>
        <translation>Combinación de teclas</translation>
    </message>
    <message>
        <source>Hold a single key</source>
        <translation>Mantener una tecla</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>Set System Settings › Keyboard › “Press 🌐 key to” to “Do Nothing”, or the emoji picker opens too.</source>
        <translation>La mayoría de los teclados no comunican Fn. Si no ocurre nada al mantenerla, elija otra tecla.</translation>
    </message>
    <message>
        <source>A single key needs Accessibility (below) before it works.</source>
        <translation>Una sola tecla necesita Accesibilidad (abajo) para funcionar.</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>Comportamiento</translation>
    </message>
    <message>
        <source>This key doesn&apos;t arrive here: the keyboard or the desktop keeps it to itself. Choose another one.</source>
        <translation>Esta tecla no llega aquí: el teclado o el escritorio se la queda. Elija otra.</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>%1 is already used by another app. Pick a different shortcut.</source>
        <translation>Otra aplicación ya usa %1. Elija otro atajo.</translation>
    </message>
    <message>
        <source>%1 is already in use. Pick a different shortcut.</source>
        <translation>%1 ya está en uso. Elija otro atajo.</translation>
    </message>
</context>
<context>
    <name>Start</name>
    <message>
        <source>There is no session bus: no tray item but XEmbed&apos;s, no keyring, and commands can&apos;t reach Quillo.</source>
        <translation>No hay bus de sesión: sin icono salvo el de XEmbed, sin depósito de claves, y las órdenes no llegan a Quillo.</translation>
    </message>
    <message>
        <source>%1 See: quillo --help</source>
        <translation>%1 Véase: quillo --help</translation>
    </message>
</context>
<context>
    <name>Status</name>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <source>unmetered</source>
        <translation>sin límite</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>aún desconocido</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>Todas las entradas</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Tokens</translation>
    </message>
    <message>
        <source>Transcripts</source>
        <translation>Transcripciones</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Micrófono</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Accesibilidad</translation>
    </message>
    <message>
        <source>Consent</source>
        <translation>Consentimiento</translation>
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
        <translation>%1  grupo siguiente   ·   %2  ocultar</translation>
    </message>
</context>
<context>
    <name>TokenBalance</name>
    <message>
        <source>Couldn&apos;t open the checkout page in a browser</source>
        <translation>No se pudo abrir la página de pago en un navegador</translation>
    </message>
</context>
<context>
    <name>Transcribe</name>
    <message>
        <source>Standard input can&apos;t be read.</source>
        <translation>No se puede leer la entrada estándar.</translation>
    </message>
    <message>
        <source>The temporary folder is full.</source>
        <translation>La carpeta temporal está llena.</translation>
    </message>
    <message>
        <source>The temporary folder can&apos;t be written.</source>
        <translation>No se puede escribir en la carpeta temporal.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>Reading… %1 %</source>
        <translation>Leyendo… %1 %</translation>
    </message>
    <message>
        <source>Transcribing… %1 s</source>
        <translation>Transcribiendo… %1 s</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>Transcribiendo…</translation>
    </message>
</context>
<context>
    <name>TranscriptionStore</name>
    <message>
        <source>History</source>
        <translation>Historial</translation>
    </message>
    <message>
        <source>Kept in memory: the history can&apos;t be saved</source>
        <translation>Solo en memoria: no se puede guardar el historial</translation>
    </message>
    <message>
        <source>The history can&apos;t be read: a new one begins, the old file is kept</source>
        <translation>No se puede leer el historial: empieza uno nuevo y se conserva el archivo anterior</translation>
    </message>
</context>
<context>
    <name>UnsentStrip</name>
    <message>
        <source>Sending again…</source>
        <translation>Enviando de nuevo…</translation>
    </message>
    <message>
        <source>One recording couldn&apos;t be sent.</source>
        <translation>No se pudo enviar una grabación.</translation>
    </message>
    <message numerus="yes">
        <source>%n recordings couldn&apos;t be sent.</source>
        <translation>
            <numerusform>No se pudo enviar %Ln grabación.</numerusform>
            <numerusform>No se pudieron enviar %Ln grabaciones.</numerusform>
        </translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Enviar de nuevo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
</context>
</TS>
