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
    <name>Shortcut</name>
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
</TS>
