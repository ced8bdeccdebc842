<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>AIConsent</name>
    <message>
        <source>Sending to OpenAI needs your permission first. Open Data &amp; AI from the menu bar.</source>
        <translation>O envio à OpenAI precisa antes da sua permissão. Abra Dados e IA nas configurações.</translation>
    </message>
</context>
<context>
    <name>Age</name>
    <message>
        <source>1 day</source>
        <extracomment>Part of how long ago something was.</extracomment>
        <translation>1 dia</translation>
    </message>
    <message numerus="yes">
        <source>%n days</source>
        <translation>
            <numerusform>%Ln dia</numerusform>
            <numerusform>%Ln dias</numerusform>
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
        <translation>agora mesmo</translation>
    </message>
    <message numerus="yes">
        <source>%n min ago</source>
        <translation>
            <numerusform>há %Ln min</numerusform>
            <numerusform>há %Ln min</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 ago</source>
        <extracomment>%1: &quot;3 hrs&quot; or &quot;2 days&quot;.</extracomment>
        <translation>há %1</translation>
    </message>
    <message>
        <source>%1, %2 ago</source>
        <extracomment>%1: &quot;2 days&quot;, %2: &quot;3 hrs&quot;.</extracomment>
        <translation>há %1 e %2</translation>
    </message>
</context>
<context>
    <name>ApiError</name>
    <message>
        <source>Couldn&apos;t read the recording.</source>
        <translation>Não foi possível ler a gravação.</translation>
    </message>
    <message>
        <source>Nothing was recorded. Check microphone access.</source>
        <translation>Nada foi gravado. Verifique o acesso ao microfone.</translation>
    </message>
    <message>
        <source>The service is unavailable right now. Please try again later.</source>
        <translation>O serviço está indisponível no momento. Tente mais tarde.</translation>
    </message>
    <message>
        <source>Network error. Please check your connection.</source>
        <translation>Erro de rede. Verifique sua conexão.</translation>
    </message>
    <message>
        <source>Something went wrong. Please try again.</source>
        <translation>Algo deu errado. Tente de novo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone.</source>
        <translation>Não foi possível iniciar o microfone.</translation>
    </message>
    <message>
        <source>Unlock the keyring first</source>
        <translation>Desbloqueie primeiro o chaveiro</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>All entries</source>
        <translation>Todas as entradas</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Hold the dictation shortcut</source>
        <translation>Segurar o atalho de ditado</translation>
    </message>
    <message>
        <source>Let go of it</source>
        <translation>Soltá-lo</translation>
    </message>
    <message>
        <source>Start dictating, or finish and paste</source>
        <translation>Começar a ditar, ou terminar e colar</translation>
    </message>
    <message>
        <source>Drop the recording</source>
        <translation>Descartar a gravação</translation>
    </message>
    <message>
        <source>Show the history</source>
        <translation>Mostrar o histórico</translation>
    </message>
    <message>
        <source>Show the history with the group editor</source>
        <translation>Mostrar o histórico com o editor de grupos</translation>
    </message>
    <message>
        <source>Show the settings</source>
        <translation>Mostrar as configurações</translation>
    </message>
    <message>
        <source>Make the next group the current one</source>
        <translation>Passar para o próximo grupo</translation>
    </message>
    <message>
        <source>Open the page where tokens are bought</source>
        <translation>Abrir a página de compra de tokens</translation>
    </message>
    <message>
        <source>Print what the program is doing</source>
        <translation>Mostrar o que o programa está fazendo</translation>
    </message>
    <message>
        <source>End the program</source>
        <translation>Encerrar o programa</translation>
    </message>
    <message>
        <source>Print the text of a recording; - reads standard input</source>
        <translation>Mostrar o texto de uma gravação; - lê a entrada padrão</translation>
    </message>
    <message>
        <source>Print what this desktop offers for dictation, and what is missing</source>
        <translation>Mostrar o que esta área de trabalho oferece para o ditado e o que falta</translation>
    </message>
    <message>
        <source>Usage: quillo [COMMAND]

Without a command Quillo starts, or shows its history if it runs already.
Hold the dictation shortcut, speak, let go: the words appear in the program in front.

Commands:
</source>
        <translation>Uso: quillo [COMANDO]

Sem comando, o Quillo inicia, ou mostra seu histórico se já estiver em execução.
Segure o atalho de ditado, fale e solte: as palavras aparecem no programa em primeiro plano.

Comandos:
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
Opções:
  -h, --help        Mostrar esta ajuda
  -v, --version     Mostrar a versão

Status de saída: 0 feito, 1 falhou, 2 linha de comando errada, 3 o Quillo não está em execução.
</translation>
    </message>
    <message>
        <source>--json belongs to the command status.</source>
        <translation>--json pertence ao comando status.</translation>
    </message>
    <message>
        <source>There is no command &quot;%1&quot;.</source>
        <translation>Não existe o comando “%1”.</translation>
    </message>
    <message>
        <source>transcribe takes one file.</source>
        <translation>transcribe recebe um arquivo.</translation>
    </message>
    <message>
        <source>%1 takes no argument.</source>
        <translation>%1 não recebe argumento.</translation>
    </message>
    <message>
        <source>Take over what can be read in a damaged history</source>
        <translation>Recuperar o que é legível de um histórico danificado</translation>
    </message>
    <message>
        <source>--recover belongs to the command history.</source>
        <translation>--recover pertence ao comando history.</translation>
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
        <translation>Dados e IA</translation>
    </message>
    <message>
        <source>Sending to OpenAI</source>
        <translation>Envio à OpenAI</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Permitido</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Desligado</translation>
    </message>
    <message>
        <source>Review…</source>
        <translation>Rever…</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Tokens</translation>
    </message>
    <message>
        <source>Unmetered</source>
        <translation>Sem limite</translation>
    </message>
    <message>
        <source>%1</source>
        <comment>number of tokens</comment>
        <translation>%L1</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Atualizar</translation>
    </message>
</context>
<context>
    <name>Dictation</name>
    <message>
        <source>Listening… (Esc to cancel)</source>
        <translation>Ouvindo… (Esc cancela)</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>Transcrevendo…</translation>
    </message>
    <message>
        <source>Hold %1 to dictate</source>
        <translation>Segure %1 para ditar</translation>
    </message>
    <message>
        <source>Tap %1 to dictate</source>
        <translation>Toque em %1 para ditar</translation>
    </message>
    <message>
        <source>Hold or tap %1 to dictate</source>
        <translation>Segure ou toque em %1 para ditar</translation>
    </message>
    <message>
        <source>Microphone access is off for Quillo</source>
        <translation>O Quillo está sem acesso ao microfone</translation>
    </message>
    <message>
        <source>Microphone on — press %1 to dictate</source>
        <translation>Microfone ligado — pressione %1 para ditar</translation>
    </message>
    <message>
        <source>The microphone was disconnected.</source>
        <translation>O microfone foi desconectado.</translation>
    </message>
    <message>
        <source>Nothing was recorded. Check the microphone.</source>
        <translation>Nada foi gravado. Verifique o microfone.</translation>
    </message>
    <message>
        <source>Didn&apos;t catch anything</source>
        <translation>Não entendi nada</translation>
    </message>
    <message>
        <source>Copied — press ⌘V to paste</source>
        <translation>Copiado — cole com Ctrl+V (Ctrl+Shift+V no terminal)</translation>
    </message>
    <message>
        <source>Couldn&apos;t paste. The text is in the history.</source>
        <translation>Não foi possível colar. O texto está no histórico.</translation>
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
        <translation>Dados e IA</translation>
    </message>
    <message>
        <source>Before we start</source>
        <translation>Antes de começar</translation>
    </message>
    <message>
        <source>To turn your speech into text, this app sends your voice recording through our server to &lt;b&gt;OpenAI&lt;/b&gt;, a third-party AI service in the United States.</source>
        <translation>Para transformar sua fala em texto, este aplicativo envia a gravação pelo nosso servidor à &lt;b&gt;OpenAI&lt;/b&gt;, um serviço de IA de terceiros nos Estados Unidos.</translation>
    </message>
    <message>
        <source>Our server passes your recording on without storing it. It keeps only your token balance and purchases, under a random ID created on this Mac — no name, email, account or location. Your recording is deleted once it has been transcribed, and your transcripts are stored only on this Mac.</source>
        <translation>Nosso servidor repassa a gravação sem armazená-la. Ele guarda apenas seu saldo de tokens e suas compras, sob um identificador aleatório criado neste computador — sem nome, e-mail, conta ou localização. A gravação é excluída assim que é transcrita, e suas transcrições ficam somente neste computador.</translation>
    </message>
    <message>
        <source>What OpenAI does with it ↗</source>
        <translation>O que a OpenAI faz com ela ↗</translation>
    </message>
    <message>
        <source>Our privacy policy ↗</source>
        <translation>Nossa política de privacidade ↗</translation>
    </message>
    <message>
        <source>You agreed on %1.</source>
        <translation>Você concordou em %1.</translation>
    </message>
    <message>
        <source>Withdraw consent</source>
        <translation>Retirar consentimento</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Agora não</translation>
    </message>
    <message>
        <source>Keep it on</source>
        <translation>Manter ativo</translation>
    </message>
    <message>
        <source>I agree — send to OpenAI</source>
        <translation>Concordo — enviar à OpenAI</translation>
    </message>
    <message>
        <source>You can withdraw this at any time from the menu bar under Data &amp; AI. Without it, dictation stays off.</source>
        <translation>Você pode retirá-lo a qualquer momento nas configurações, em Dados e IA. Sem ele, o ditado fica desligado.</translation>
    </message>
    <message>
        <source>Recordings go to %1, on this computer: they stay here unless that server passes them on.</source>
        <translation>As gravações vão para %1, neste computador: ficam aqui, a menos que esse servidor as repasse.</translation>
    </message>
    <message>
        <source>Recordings go to %1.</source>
        <translation>As gravações vão para %1.</translation>
    </message>
</context>
<context>
    <name>Display</name>
    <message>
        <source>QUILLO_PLATFORM is &quot;%1&quot;; it can be x11 or wayland.</source>
        <translation>QUILLO_PLATFORM é “%1”; pode ser x11 ou wayland.</translation>
    </message>
    <message>
        <source>Wayland sessions are not supported yet. Log in to an X11 session, or try QUILLO_PLATFORM=x11, which reaches only the programs that run through Xwayland.</source>
        <translation>Sessões Wayland ainda não são suportadas. Entre em uma sessão X11 ou tente QUILLO_PLATFORM=x11, que só alcança programas X11.</translation>
    </message>
    <message>
        <source>There is no X11 display (DISPLAY is not set).</source>
        <translation>Não há tela X11 (DISPLAY não está definida).</translation>
    </message>
    <message>
        <source>The X11 display %1 can&apos;t be reached.</source>
        <translation>Não é possível acessar a tela X11 %1.</translation>
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
        <translation>Nenhum resultado.</translation>
    </message>
    <message>
        <source>Try a different search.</source>
        <translation>Tente outra pesquisa.</translation>
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
        <translation>Mover para o grupo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
</context>
<context>
    <name>Finding</name>
    <message>
        <source>there is no X server at $DISPLAY</source>
        <translation>não há servidor X em $DISPLAY</translation>
    </message>
    <message>
        <source>the X server has no keyboard extension (XKB)</source>
        <translation>o servidor X não tem extensão de teclado (XKB)</translation>
    </message>
    <message>
        <source>the X server has no XFIXES extension</source>
        <translation>o servidor X não tem a extensão XFIXES</translation>
    </message>
    <message>
        <source>Raw keys</source>
        <translation>Teclas avulsas</translation>
    </message>
    <message>
        <source>no XInput 2.2: the dictation shortcut is a single key</source>
        <translation>sem XInput 2.2: o atalho de ditado é uma única tecla</translation>
    </message>
    <message>
        <source>choose a key combination in the settings</source>
        <translation>escolha uma combinação de teclas nas configurações</translation>
    </message>
    <message>
        <source>no XInput 2.2: a single key can&apos;t be a shortcut</source>
        <translation>sem XInput 2.2: uma única tecla não pode ser um atalho</translation>
    </message>
    <message>
        <source>use a key combination</source>
        <translation>use uma combinação de teclas</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <translation>Teclado</translation>
    </message>
    <message>
        <source>no XKB</source>
        <translation>sem XKB</translation>
    </message>
    <message>
        <source>enable the X server&apos;s XKEYBOARD extension</source>
        <translation>ative a extensão XKEYBOARD do servidor X</translation>
    </message>
    <message>
        <source>Key posting</source>
        <translation>Envio de teclas</translation>
    </message>
    <message>
        <source>no XTEST: text is copied, not pasted</source>
        <translation>sem XTEST: o texto é copiado, não colado</translation>
    </message>
    <message>
        <source>paste with Ctrl+V, or enable the X server&apos;s XTEST extension</source>
        <translation>cole com Ctrl+V ou ative a extensão XTEST do servidor X</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Área de transferência</translation>
    </message>
    <message>
        <source>no XFIXES</source>
        <translation>sem XFIXES</translation>
    </message>
    <message>
        <source>enable the X server&apos;s XFIXES extension</source>
        <translation>ative a extensão XFIXES do servidor X</translation>
    </message>
    <message>
        <source>Display server</source>
        <translation>Servidor gráfico</translation>
    </message>
    <message>
        <source>log in to an X11 session</source>
        <translation>entre em uma sessão X11</translation>
    </message>
    <message>
        <source>X11 (%1), backend x11</source>
        <translation>X11 (%1), módulo x11</translation>
    </message>
    <message>
        <source>Window manager</source>
        <translation>Gerenciador de janelas</translation>
    </message>
    <message>
        <source>there</source>
        <translation>presente</translation>
    </message>
    <message>
        <source>none: windows may not come to the front</source>
        <translation>nenhum: as janelas podem não vir para a frente</translation>
    </message>
    <message>
        <source>start a window manager</source>
        <translation>inicie um gerenciador de janelas</translation>
    </message>
    <message>
        <source>Compositor</source>
        <translation>Compositor</translation>
    </message>
    <message>
        <source>none: the status panel has hard edges</source>
        <translation>nenhum: o painel tem bordas duras</translation>
    </message>
    <message>
        <source>XEmbed tray</source>
        <translation>Bandeja XEmbed</translation>
    </message>
    <message>
        <source>Ctrl+Shift+V does not paste in it</source>
        <translation>Ctrl+Shift+V não cola nele</translation>
    </message>
    <message>
        <source>add to ~/.Xresources and load it with xrdb -merge: %1</source>
        <translation>adicione a ~/.Xresources e carregue com xrdb -merge: %1</translation>
    </message>
    <message>
        <source>Sound server</source>
        <translation>Servidor de som</translation>
    </message>
    <message>
        <source>refuses access</source>
        <translation>recusa o acesso</translation>
    </message>
    <message>
        <source>allow Quillo to record in the sandbox or sound settings</source>
        <translation>permita que o Quillo grave nas configurações de isolamento ou de som</translation>
    </message>
    <message>
        <source>not running</source>
        <translation>não está em execução</translation>
    </message>
    <message>
        <source>start PulseAudio or PipeWire (pipewire-pulse)</source>
        <translation>inicie o PulseAudio ou o PipeWire (pipewire-pulse)</translation>
    </message>
    <message>
        <source>Microphone level</source>
        <translation>Nível do microfone</translation>
    </message>
    <message>
        <source>it can&apos;t be recorded</source>
        <translation>não é possível gravar</translation>
    </message>
    <message>
        <source>choose another input device</source>
        <translation>escolha outro dispositivo de entrada</translation>
    </message>
    <message>
        <source>silent</source>
        <translation>em silêncio</translation>
    </message>
    <message>
        <source>unmute the input device in the sound settings</source>
        <translation>desative o mudo nas configurações de som</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microfone</translation>
    </message>
    <message>
        <source>no input device</source>
        <translation>sem dispositivo de entrada</translation>
    </message>
    <message>
        <source>connect a microphone, or choose one in the sound settings</source>
        <translation>conecte um microfone ou escolha um nas configurações de som</translation>
    </message>
    <message>
        <source>Keyring</source>
        <translation>Chaveiro</translation>
    </message>
    <message>
        <source>absent: no Secret Service on the session bus</source>
        <translation>ausente: não há Secret Service no barramento de sessão</translation>
    </message>
    <message>
        <source>install and start GNOME Keyring, KWallet or KeePassXC; until then the credential is kept in memory and each start is a new device</source>
        <translation>instale e inicie o GNOME Keyring, o KWallet ou o KeePassXC; até lá a credencial fica na memória e cada início é um novo dispositivo</translation>
    </message>
    <message>
        <source>there, without a default keyring</source>
        <translation>presente, sem chaveiro padrão</translation>
    </message>
    <message>
        <source>locked</source>
        <translation>bloqueado</translation>
    </message>
    <message>
        <source>unlock the login keyring; until then the credential is kept in memory and each start is a new device</source>
        <translation>desbloqueie o chaveiro de login; até lá a credencial fica na memória e cada início é um novo dispositivo</translation>
    </message>
    <message>
        <source>usable</source>
        <translation>utilizável</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read or written</source>
        <translation>%1 não pode ser lido ou gravado</translation>
    </message>
    <message>
        <source>make it yours: chown and chmod u+rw</source>
        <translation>torne-o seu: chown e chmod u+rw</translation>
    </message>
    <message>
        <source>%1 is damaged: what can&apos;t be read counts as not set</source>
        <translation>%1 está danificado: o ilegível conta como não definido</translation>
    </message>
    <message>
        <source>mend the file or move it away</source>
        <translation>conserte o arquivo ou mova-o</translation>
    </message>
    <message>
        <source>Tray</source>
        <translation>Bandeja</translation>
    </message>
    <message>
        <source>none on this desktop</source>
        <translation>nenhuma nesta área de trabalho</translation>
    </message>
    <message>
        <source>start quillo again for the history, use its commands (quillo --help), or add a tray to the panel</source>
        <translation>inicie o quillo de novo para ver o histórico, use os comandos (quillo --help) ou adicione uma bandeja ao painel</translation>
    </message>
    <message>
        <source>choose another one in the settings</source>
        <translation>escolha outro nas configurações</translation>
    </message>
    <message>
        <source>Hot keys</source>
        <translation>Atalhos</translation>
    </message>
    <message>
        <source>the running Quillo does not answer</source>
        <translation>o Quillo em execução não responde</translation>
    </message>
    <message>
        <source>end it and start it again</source>
        <translation>encerre e inicie de novo</translation>
    </message>
    <message>
        <source>Hot key</source>
        <translation>Atalho</translation>
    </message>
    <message>
        <source>held by the running Quillo</source>
        <translation>em uso pelo Quillo em execução</translation>
    </message>
    <message>
        <source>Session bus</source>
        <translation>Barramento de sessão</translation>
    </message>
    <message>
        <source>none: no tray item, no keyring, no commands</source>
        <translation>nenhum: sem ícone, sem chaveiro, sem comandos</translation>
    </message>
    <message>
        <source>log in through a desktop session, or start one with dbus-run-session</source>
        <translation>entre por uma sessão gráfica ou inicie uma com dbus-run-session</translation>
    </message>
    <message>
        <source>there; Quillo is running</source>
        <translation>presente; o Quillo está em execução</translation>
    </message>
    <message>
        <source>there; Quillo isn&apos;t running</source>
        <translation>presente; o Quillo não está em execução</translation>
    </message>
    <message>
        <source>%1 is free</source>
        <translation>%1 está livre</translation>
    </message>
    <message>
        <source>%1 is taken by another program</source>
        <translation>%1 está em uso por outro programa</translation>
    </message>
    <message>
        <source>not tried: %1</source>
        <translation>não testado: %1</translation>
    </message>
    <message>
        <source>Backend</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>no usable address</source>
        <translation>sem endereço utilizável</translation>
    </message>
    <message>
        <source>set apiURL in %1</source>
        <translation>defina apiURL em %1</translation>
    </message>
    <message>
        <source>%1 does not answer</source>
        <translation>%1 não responde</translation>
    </message>
    <message>
        <source>check the network; a server of your own is started with quillo-backend</source>
        <translation>verifique a rede; um servidor próprio é iniciado com quillo-backend</translation>
    </message>
    <message>
        <source>%1 answers</source>
        <translation>%1 responde</translation>
    </message>
    <message>
        <source>%1 answers %2, which no Quillo backend does</source>
        <translation>%1 responde %2, o que nenhum servidor do Quillo faz</translation>
    </message>
    <message>
        <source>check apiURL in %1</source>
        <translation>verifique apiURL em %1</translation>
    </message>
    <message>
        <source>Consent</source>
        <translation>Consentimento</translation>
    </message>
    <message>
        <source>given</source>
        <translation>dado</translation>
    </message>
    <message>
        <source>not given: dictation stays off</source>
        <translation>não dado: o ditado fica desligado</translation>
    </message>
    <message>
        <source>start Quillo and agree</source>
        <translation>inicie o Quillo e concorde</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>Fontes</translation>
    </message>
    <message>
        <source>Liberation Sans is missing: another face stands in</source>
        <translation>falta a Liberation Sans: outra fonte a substitui</translation>
    </message>
    <message>
        <source>install fonts-liberation</source>
        <translation>instale fonts-liberation</translation>
    </message>
    <message>
        <source>Liberation Sans; the system serif stands in for Fraunces</source>
        <translation>Liberation Sans; a serifada do sistema substitui a Fraunces</translation>
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
O ditado pode funcionar aqui.
</translation>
    </message>
    <message>
        <source>
Dictation can&apos;t work here yet.
</source>
        <translation>
O ditado ainda não pode funcionar aqui.
</translation>
    </message>
    <message>
        <source>%1 begins neither with https:// nor http://</source>
        <translation>%1 não começa com https:// nem com http://</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read</source>
        <translation>não é possível ler %1</translation>
    </message>
    <message>
        <source>it is kept; to take over what can be read: quillo history --recover %1</source>
        <translation>ele é mantido; para recuperar o que é legível: quillo history --recover %1</translation>
    </message>
    <message>
        <source>%1 can&apos;t be written: nothing new is kept</source>
        <translation>não é possível gravar em %1: nada novo é mantido</translation>
    </message>
    <message>
        <source>make it yours: chown and chmod u+rwx</source>
        <translation>torne-o seu: chown e chmod u+rwx</translation>
    </message>
    <message>
        <source>%1: the disk is full, nothing new is kept</source>
        <translation>%1: o disco está cheio, nada novo é mantido</translation>
    </message>
    <message>
        <source>make room</source>
        <translation>libere espaço</translation>
    </message>
    <message>
        <source>%1; put aside because it couldn&apos;t be read: %2</source>
        <translation>%1; posto de lado por estar ilegível: %2</translation>
    </message>
    <message>
        <source>it is made, with a password of yours, when tokens are bought; until then the credential is kept in memory and each start is a new device</source>
        <translation>ele é criado, com uma senha sua, na compra de tokens; até lá a credencial fica na memória e cada início é um novo dispositivo</translation>
    </message>
</context>
<context>
    <name>GeneralSettings</name>
    <message>
        <source>Couldn&apos;t change Open at Login</source>
        <translation>Não foi possível alterar Abrir ao iniciar a sessão</translation>
    </message>
</context>
<context>
    <name>GroupCarousel</name>
    <message>
        <source>Current group</source>
        <translation>Grupo atual</translation>
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
        <translation>Todas as entradas</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sem nome</translation>
    </message>
    <message>
        <source>Dictations go into %1 while it&apos;s selected.</source>
        <translation>Os ditados vão para %1 enquanto o grupo estiver selecionado.</translation>
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
        <translation>Os ditados vão para o grupo selecionado. Ao excluir um grupo, as entradas dele continuam em Todas as entradas.</translation>
    </message>
    <message>
        <source>New group</source>
        <translation>Novo grupo</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
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
        <translation>Nome</translation>
    </message>
    <message>
        <source>Name of the group</source>
        <translation>Nome do grupo</translation>
    </message>
    <message>
        <source>Delete group</source>
        <translation>Excluir grupo</translation>
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
        <translation>Só na memória: não é possível salvar os grupos</translation>
    </message>
    <message>
        <source>The groups can&apos;t be read: a new one begins, the old file is kept</source>
        <translation>Não é possível ler os grupos: começam novos, o arquivo antigo é mantido</translation>
    </message>
</context>
<context>
    <name>GroupsSection</name>
    <message>
        <source>Groups &amp; History</source>
        <translation>Grupos e histórico</translation>
    </message>
    <message>
        <source>New dictations go into the current group: %1.</source>
        <translation>Novos ditados vão para o grupo atual: %1.</translation>
    </message>
    <message>
        <source>Next group</source>
        <translation>Próximo grupo</translation>
    </message>
    <message>
        <source>Show or hide history</source>
        <translation>Mostrar ou ocultar o histórico</translation>
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
        <translation>Ditando em %1</translation>
    </message>
    <message>
        <source>Listening — press again to stop</source>
        <translation>Ouvindo — pressione de novo para parar</translation>
    </message>
    <message>
        <source>Listening</source>
        <translation>Ouvindo</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>Transcrevendo…</translation>
    </message>
    <message>
        <source>No free tokens were left today</source>
        <translation>Hoje não há mais tokens grátis</translation>
    </message>
    <message>
        <source>You&apos;re out of tokens</source>
        <translation>Seus tokens acabaram</translation>
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
        <translation>Todas as entradas</translation>
    </message>
</context>
<context>
    <name>HistorySection</name>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Transcripts on this Mac</source>
        <translation>Transcrições neste computador</translation>
    </message>
    <message>
        <source>Clear…</source>
        <translation>Limpar…</translation>
    </message>
    <message numerus="yes">
        <source>Delete all %n transcripts?</source>
        <translation>
            <numerusform>Excluir a transcrição?</numerusform>
            <numerusform>Excluir todas as %Ln transcrições?</numerusform>
        </translation>
    </message>
    <message>
        <source>They&apos;re stored only on this Mac, so this can&apos;t be undone.</source>
        <translation>Elas só existem neste computador; não é possível desfazer.</translation>
    </message>
    <message>
        <source>Delete All</source>
        <translation>Excluir tudo</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
</context>
<context>
    <name>HistoryView</name>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>No entries yet.</source>
        <translation>Nenhuma entrada ainda.</translation>
    </message>
    <message>
        <source>Dictate with %1 to see it here.</source>
        <translation>Dite com %1 para ver aqui.</translation>
    </message>
</context>
<context>
    <name>Instance</name>
    <message>
        <source>There is no session bus (DBUS_SESSION_BUS_ADDRESS), so Quillo can&apos;t be reached.</source>
        <translation>Não há barramento de sessão (DBUS_SESSION_BUS_ADDRESS), então não é possível falar com o Quillo.</translation>
    </message>
    <message>
        <source>Quillo isn&apos;t running. Start it with: quillo</source>
        <translation>O Quillo não está em execução. Inicie com: quillo</translation>
    </message>
    <message>
        <source>Quillo refused: %1</source>
        <translation>O Quillo recusou: %1</translation>
    </message>
    <message>
        <source>Quillo did not answer: %1</source>
        <translation>O Quillo não respondeu: %1</translation>
    </message>
</context>
<context>
    <name>LocalizedError</name>
    <message>
        <source>There is no microphone. Plug one in.</source>
        <translation>Não há microfone. Conecte um.</translation>
    </message>
    <message>
        <source>%1 is no sound file that can be read.</source>
        <translation>%1 não é um arquivo de som legível.</translation>
    </message>
    <message>
        <source>There is no sound in %1.</source>
        <translation>Não há som em %1.</translation>
    </message>
    <message>
        <source>The sound of %1 can&apos;t be decoded.</source>
        <translation>Não é possível decodificar o som de %1.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Interrompido.</translation>
    </message>
    <message>
        <source>The sound of %1 can&apos;t be converted.</source>
        <translation>Não é possível converter o som de %1.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>O arquivo %1 não existe.</translation>
    </message>
    <message>
        <source>The converted recording can&apos;t be written.</source>
        <translation>Não é possível gravar a gravação convertida.</translation>
    </message>
    <message>
        <source>Couldn&apos;t start the microphone.</source>
        <translation>Não foi possível iniciar o microfone.</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Unmetered (dev device)</source>
        <translation>Sem limite (dispositivo de desenvolvimento)</translation>
    </message>
    <message numerus="yes">
        <source>%1 tokens left</source>
        <translation>
            <numerusform>Resta %L1 token</numerusform>
            <numerusform>Restam %L1 tokens</numerusform>
        </translation>
    </message>
    <message>
        <source>Today&apos;s free tokens for new users ran out before you joined.</source>
        <translation>Os tokens grátis de hoje para novos usuários acabaram antes de você entrar.</translation>
    </message>
    <message>
        <source>Buy Tokens…</source>
        <translation>Comprar tokens…</translation>
    </message>
    <message>
        <source>Allow pasting into other apps…</source>
        <translation>Permitir colar em outros aplicativos…</translation>
    </message>
    <message>
        <source>All entries</source>
        <translation>Todas as entradas</translation>
    </message>
    <message>
        <source>Next Group</source>
        <translation>Próximo grupo</translation>
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
        <translation>Ocultar histórico</translation>
    </message>
    <message>
        <source>Show History</source>
        <translation>Mostrar histórico</translation>
    </message>
    <message>
        <source>Copy Last Transcript</source>
        <translation>Copiar última transcrição</translation>
    </message>
    <message>
        <source>Clear History</source>
        <translation>Limpar histórico</translation>
    </message>
    <message>
        <source>Recent</source>
        <translation>Recentes</translation>
    </message>
    <message>
        <source>Settings…</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>Quit Quillo</source>
        <translation>Sair do Quillo</translation>
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
        <translation>Permita um dispositivo de entrada nas configurações de som</translation>
    </message>
    <message>
        <source>Run “quillo doctor” to see what is missing</source>
        <translation>Execute “quillo doctor” para ver o que falta</translation>
    </message>
</context>
<context>
    <name>PermissionsSection</name>
    <message>
        <source>Permissions</source>
        <translation>Permissões</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microfone</translation>
    </message>
    <message>
        <source>To hear what you say.</source>
        <translation>Para ouvir o que você diz.</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Acessibilidade</translation>
    </message>
    <message>
        <source>To paste into other apps. Without it, text is copied and you press ⌘V.</source>
        <translation>Para colar em outros aplicativos. Sem ela, o texto é copiado e você pressiona Ctrl+V (Ctrl+Shift+V em um terminal).</translation>
    </message>
</context>
<context>
    <name>RecoverHistory</name>
    <message>
        <source>%1 can&apos;t be read.</source>
        <translation>Não é possível ler %1.</translation>
    </message>
    <message>
        <source>The history can&apos;t be saved: %1</source>
        <translation>Não é possível salvar o histórico: %1</translation>
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
        <translation>sem limite</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>Não existe a ação “%1”.</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search transcriptions</source>
        <translation>Pesquisar nas transcrições</translation>
    </message>
    <message>
        <source>Clear search</source>
        <translation>Limpar pesquisa</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>All entries</source>
        <translation>Todas as entradas</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Open at login</source>
        <translation>Abrir ao iniciar a sessão</translation>
    </message>
    <message>
        <source>Quillo Settings</source>
        <translation>Configurações do Quillo</translation>
    </message>
    <message>
        <source>Keep recordings that couldn&apos;t be sent</source>
        <translation>Manter gravações não enviadas</translation>
    </message>
    <message>
        <source>For seven days. They are sent when the server answers again.</source>
        <translation>Por sete dias. São enviadas quando o servidor voltar a responder.</translation>
    </message>
</context>
<context>
    <name>Shortcut</name>
    <message>
        <source>That can&apos;t be a shortcut on this keyboard. Try another one.</source>
        <translation>Isso não pode ser um atalho neste teclado. Tente outro.</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espaço</translation>
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
        <translation>Enter (numérico)</translation>
    </message>
    <message>
        <source>Right ⌥ Option</source>
        <translation>Alt direito (Alt Gr)</translation>
    </message>
    <message>
        <source>Right ⌘ Command</source>
        <translation>Super direita</translation>
    </message>
    <message>
        <source>Right ⌃ Control</source>
        <translation>Ctrl direita</translation>
    </message>
    <message>
        <source>Fn (🌐)</source>
        <translation>Fn</translation>
    </message>
    <message>
        <source>Hold to talk, or tap for hands-free</source>
        <translation>Segurar para falar, ou tocar para mãos livres</translation>
    </message>
    <message>
        <source>Hold to talk only</source>
        <translation>Somente segurar para falar</translation>
    </message>
    <message>
        <source>Tap to start and stop</source>
        <translation>Tocar para começar e parar</translation>
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
        <translation>Esc serve para cancelar um ditado.</translation>
    </message>
    <message>
        <source>Add ⌘, ⌥ or ⌃ — or use an F-key — so it doesn&apos;t block typing.</source>
        <translation>Adicione Ctrl, Alt ou Super — ou use uma tecla F — para não atrapalhar a digitação.</translation>
    </message>
</context>
<context>
    <name>ShortcutRecorder</name>
    <message>
        <source>Type shortcut…</source>
        <translation>Pressione o atalho…</translation>
    </message>
</context>
<context>
    <name>ShortcutSection</name>
    <message>
        <source>Shortcut</source>
        <translation>Atalho</translation>
    </message>
    <message>
        <source>Press Esc while recording to cancel.</source>
        <translation>Pressione Esc durante a gravação para cancelar.</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>Acionamento</translation>
    </message>
    <message>
        <source>Key combination</source>
        <translation>Combinação de teclas</translation>
    </message>
    <message>
        <source>Hold a single key</source>
        <translation>Segurar uma tecla</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Tecla</translation>
    </message>
    <message>
        <source>Set System Settings › Keyboard › “Press 🌐 key to” to “Do Nothing”, or the emoji picker opens too.</source>
        <translation>A maioria dos teclados não informa a tecla Fn. Se nada acontecer ao segurá-la, escolha outra.</translation>
    </message>
    <message>
        <source>A single key needs Accessibility (below) before it works.</source>
        <translation>Uma única tecla precisa de Acessibilidade (abaixo) para funcionar.</translation>
    </message>
    <message>
        <source>Behavior</source>
        <translation>Comportamento</translation>
    </message>
    <message>
        <source>This key doesn&apos;t arrive here: the keyboard or the desktop keeps it to itself. Choose another one.</source>
        <translation>Esta tecla não chega aqui: o teclado ou a área de trabalho fica com ela. Escolha outra.</translation>
    </message>
</context>
<context>
    <name>Shortcuts</name>
    <message>
        <source>%1 is already used by another app. Pick a different shortcut.</source>
        <translation>%1 já é usado por outro aplicativo. Escolha outro atalho.</translation>
    </message>
    <message>
        <source>%1 is already in use. Pick a different shortcut.</source>
        <translation>%1 já está em uso. Escolha outro atalho.</translation>
    </message>
</context>
<context>
    <name>Start</name>
    <message>
        <source>There is no session bus: no tray item but XEmbed&apos;s, no keyring, and commands can&apos;t reach Quillo.</source>
        <translation>Não há barramento de sessão: sem ícone além do XEmbed, sem chaveiro, e os comandos não chegam ao Quillo.</translation>
    </message>
    <message>
        <source>%1 See: quillo --help</source>
        <translation>%1 Veja: quillo --help</translation>
    </message>
</context>
<context>
    <name>Status</name>
    <message>
        <source>yes</source>
        <translation>sim</translation>
    </message>
    <message>
        <source>no</source>
        <translation>não</translation>
    </message>
    <message>
        <source>unmetered</source>
        <translation>sem limite</translation>
    </message>
    <message>
        <source>not known yet</source>
        <translation>ainda desconhecido</translation>
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
        <translation>Todas as entradas</translation>
    </message>
    <message>
        <source>Tokens</source>
        <translation>Tokens</translation>
    </message>
    <message>
        <source>Transcripts</source>
        <translation>Transcrições</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microfone</translation>
    </message>
    <message>
        <source>Accessibility</source>
        <translation>Acessibilidade</translation>
    </message>
    <message>
        <source>Consent</source>
        <translation>Consentimento</translation>
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
        <translation>%1  próximo grupo   ·   %2  ocultar</translation>
    </message>
</context>
<context>
    <name>TokenBalance</name>
    <message>
        <source>Couldn&apos;t open the checkout page in a browser</source>
        <translation>Não foi possível abrir a página de pagamento no navegador</translation>
    </message>
</context>
<context>
    <name>Transcribe</name>
    <message>
        <source>Standard input can&apos;t be read.</source>
        <translation>Não é possível ler a entrada padrão.</translation>
    </message>
    <message>
        <source>The temporary folder is full.</source>
        <translation>A pasta temporária está cheia.</translation>
    </message>
    <message>
        <source>The temporary folder can&apos;t be written.</source>
        <translation>Não é possível gravar na pasta temporária.</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lendo…</translation>
    </message>
    <message>
        <source>Reading… %1 %</source>
        <translation>Lendo… %1 %</translation>
    </message>
    <message>
        <source>Transcribing… %1 s</source>
        <translation>Transcrevendo… %1 s</translation>
    </message>
    <message>
        <source>Transcribing…</source>
        <translation>Transcrevendo…</translation>
    </message>
</context>
<context>
    <name>TranscriptionStore</name>
    <message>
        <source>History</source>
        <translation>Histórico</translation>
    </message>
    <message>
        <source>Kept in memory: the history can&apos;t be saved</source>
        <translation>Só na memória: não é possível salvar o histórico</translation>
    </message>
    <message>
        <source>The history can&apos;t be read: a new one begins, the old file is kept</source>
        <translation>Não é possível ler o histórico: começa um novo, o arquivo antigo é mantido</translation>
    </message>
</context>
<context>
    <name>UnsentStrip</name>
    <message>
        <source>Sending again…</source>
        <translation>Enviando de novo…</translation>
    </message>
    <message>
        <source>One recording couldn&apos;t be sent.</source>
        <translation>Uma gravação não pôde ser enviada.</translation>
    </message>
    <message numerus="yes">
        <source>%n recordings couldn&apos;t be sent.</source>
        <translation>
            <numerusform>%Ln gravação não pôde ser enviada.</numerusform>
            <numerusform>%Ln gravações não puderam ser enviadas.</numerusform>
        </translation>
    </message>
    <message>
        <source>Send again</source>
        <translation>Enviar de novo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
</context>
</TS>
