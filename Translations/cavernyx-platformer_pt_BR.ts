<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>AboutView</name>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>The Godot engine is free software under the MIT License (godotengine.org). It is downloaded from the official godotengine/godot releases and checked against the published SHA-512 checksum.</source>
        <translation>O motor Godot é um software livre sob a Licença MIT (godotengine.org). Ele é baixado dos lançamentos oficiais de godotengine/godot e verificado com a soma de verificação SHA-512 publicada.</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere except the two downloads (the game from GitHub and the engine from GitHub releases).</source>
        <translation>Nada é enviado a lugar algum, exceto pelos dois downloads (o jogo, do GitHub, e o motor, dos lançamentos do GitHub).</translation>
    </message>
</context>
<context>
    <name>AppError</name>
    <message>
        <source>The engine checksum list is larger than %1 MiB, so it was not read.</source>
        <translation>A lista de somas de verificação do motor é maior que %1&#xa0;MiB e, por isso, não foi lida.</translation>
    </message>
    <message>
        <source>Could not read the engine checksum list (HTTP %1).</source>
        <translation>Não foi possível ler a lista de somas de verificação do motor (HTTP&#xa0;%1).</translation>
    </message>
    <message>
        <source>The checksum list has no entry for %1.</source>
        <translation>A lista de somas de verificação não tem nenhuma entrada para %1.</translation>
    </message>
    <message>
        <source>The engine download did not match its official checksum, so it was discarded.</source>
        <translation>O motor baixado não corresponde à sua soma de verificação oficial e, por isso, foi descartado.</translation>
    </message>
    <message>
        <source>The engine was unpacked but its program was not found.</source>
        <translation>O motor foi descompactado, mas seu programa não foi encontrado.</translation>
    </message>
    <message>
        <source>Invalid engine URL.</source>
        <translation>O endereço do motor é inválido.</translation>
    </message>
    <message>
        <source>The server answered with HTTP %1 for %2.</source>
        <translation>O servidor respondeu com HTTP&#xa0;%1 para %2.</translation>
    </message>
    <message>
        <source>A part of the launcher, “%1”, cannot be loaded. Close the launcher and start it again, or install it again.</source>
        <translation>Não foi possível carregar “%1”, uma parte do lançador. Feche o lançador e abra-o novamente, ou reinstale-o.</translation>
    </message>
    <message>
        <source>The downloaded game does not contain a project.godot file.</source>
        <translation>O jogo baixado não contém um arquivo project.godot.</translation>
    </message>
    <message>
        <source>The game folder was unpacked but project.godot was not found.</source>
        <translation>A pasta do jogo foi descompactada, mas project.godot não foi encontrado.</translation>
    </message>
    <message>
        <source>Invalid game URL.</source>
        <translation>O endereço do jogo é inválido.</translation>
    </message>
    <message>
        <source>Unzipping failed (ditto exit code %1).</source>
        <extracomment>Where there is no program named ditto, a translation speaks of unpacking only.</extracomment>
        <translation>A descompactação falhou (código de saída&#xa0;%1).</translation>
    </message>
    <message>
        <source>The Godot 3 engine is not available for this computer&apos;s processor (%1).</source>
        <extracomment>%1 is a kind of processor, such as &quot;arm64&quot;.</extracomment>
        <translation>O motor Godot&#xa0;3 não está disponível para o processador deste computador (%1).</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>Needs something</source>
        <extracomment>The status after a failure: the player has to do something. The next line says what.</extracomment>
        <translation>Ação necessária</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <extracomment>The status: the game is not downloaded yet.</extracomment>
        <translation>Não baixado</translation>
    </message>
    <message>
        <source>Downloading</source>
        <extracomment>The status: the launcher is downloading the game or its engine.</extracomment>
        <translation>Baixando</translation>
    </message>
    <message>
        <source>Setting up</source>
        <extracomment>The status: the launcher is preparing the game for its first start.</extracomment>
        <translation>Preparando</translation>
    </message>
    <message>
        <source>Ready</source>
        <extracomment>The status: the game can be played.</extracomment>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Starting…</source>
        <extracomment>The status: the game is starting, or it is running.</extracomment>
        <translation>Iniciando…</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Jogando</translation>
    </message>
    <message>
        <source>Downloads the game and the Godot engine once, about %1 MB for the engine plus the game&apos;s files. Nothing to type.</source>
        <translation>O jogo e o motor Godot são baixados uma única vez: cerca de %1&#xa0;MB do motor, mais os arquivos do jogo. Não é preciso digitar nada.</translation>
    </message>
    <message>
        <source>Everything is installed. Press Play.</source>
        <translation>Tudo está instalado. Clique em “Jogar”.</translation>
    </message>
    <message numerus="yes">
        <source>The game was launched. Waiting %n seconds to make sure it stays open.</source>
        <translation>
            <numerusform>O jogo foi iniciado. Aguardando %n&#xa0;segundo para ter certeza de que ele continua aberto.</numerusform>
            <numerusform>O jogo foi iniciado. Aguardando %n&#xa0;segundos para ter certeza de que ele continua aberto.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game is running in its own window.</source>
        <translation>O jogo está em execução em sua própria janela.</translation>
    </message>
    <message>
        <source>The game is still running from an earlier start. Close it first.</source>
        <translation>O jogo ainda está aberto desde uma execução anterior. Feche-o primeiro.</translation>
    </message>
    <message>
        <source>The folder “%1” is on another disk than before. Connect that disk again, or try once more to use this one.</source>
        <translation>A pasta “%1” está em um disco diferente do anterior. Reconecte o disco anterior ou tente novamente para usar o atual.</translation>
    </message>
    <message>
        <source>What happened: %1

Last log lines:
%2</source>
        <extracomment>%1 is a whole sentence, and %2 are lines of the log, most of them in English.</extracomment>
        <translation>O que aconteceu: %1

Últimas linhas do registro:
%2</translation>
    </message>
    <message>
        <source>Step 4 of 4 · Play</source>
        <translation>Etapa&#xa0;4 de&#xa0;4 · Jogar</translation>
    </message>
    <message>
        <source>Update the game?</source>
        <translation>Atualizar o jogo?</translation>
    </message>
    <message>
        <source>The game is downloaded again from GitHub. Your save files are kept.</source>
        <translation>O jogo será baixado novamente do GitHub. Seus jogos salvos serão mantidos.</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Atualizar</translation>
    </message>
    <message>
        <source>Reinstall everything?</source>
        <translation>Reinstalar tudo?</translation>
    </message>
    <message>
        <source>The game and the engine are deleted and downloaded again. Your save files are kept.</source>
        <translation>O jogo e o motor serão excluídos e baixados novamente. Seus jogos salvos serão mantidos.</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Reinstalar</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees all downloaded files. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>O jogo e o motor baixados serão excluídos, o que libera o espaço de todos os arquivos baixados. Seus jogos salvos na pasta do Godot não serão alterados.</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees %1. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>O jogo e o motor baixados serão excluídos, o que libera %1. Seus jogos salvos na pasta do Godot não serão alterados.</translation>
    </message>
    <message>
        <source>Remove everything?</source>
        <extracomment>&quot;Remove&quot; is the button that answers the question.</extracomment>
        <translation>Remover tudo?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Could not remove the files: %1</source>
        <extracomment>%1 is a whole sentence, such as &quot;Could not remove “file”: Permission denied.&quot;</extracomment>
        <translation>Não foi possível remover os arquivos: %1</translation>
    </message>
    <message>
        <source>Quit and close the game?</source>
        <translation>Sair e fechar o jogo?</translation>
    </message>
    <message>
        <source>The game is still running. Quitting will close it.</source>
        <translation>O jogo ainda está em execução. Se você sair, ele será fechado.</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Step 1 of 4 · Downloading the game</source>
        <extracomment>The name of a step, shown below the title &quot;Downloading&quot;.</extracomment>
        <translation>Etapa&#xa0;1 de&#xa0;4 · Baixando o jogo</translation>
    </message>
    <message>
        <source>The downloaded folder has no readable project.godot.</source>
        <translation>A pasta baixada não tem um arquivo project.godot legível.</translation>
    </message>
    <message>
        <source>This game is made for Godot 4, but this app only knows how to install Godot 3.</source>
        <translation>Este jogo foi feito para o Godot&#xa0;4, mas este aplicativo só sabe instalar o Godot&#xa0;3.</translation>
    </message>
    <message>
        <source>Step 2 of 4 · Downloading the Godot engine (%1)</source>
        <extracomment>%1 is a version, such as &quot;3.5.3-stable-mono&quot;.</extracomment>
        <translation>Etapa&#xa0;2 de&#xa0;4 · Baixando o motor Godot (%1)</translation>
    </message>
    <message>
        <source>The Godot engine is missing.</source>
        <translation>O motor Godot não foi encontrado.</translation>
    </message>
    <message>
        <source>Step 3 of 4 · First-time setup, this can take a minute or more</source>
        <translation>Etapa&#xa0;3 de&#xa0;4 · Preparação inicial; pode levar um minuto ou mais</translation>
    </message>
    <message numerus="yes">
        <source>The first-time setup did not finish: %n game assets were not imported (engine exit code %1).</source>
        <translation>
            <numerusform>A preparação inicial não foi concluída: %n&#xa0;recurso do jogo não foi importado (código de saída do motor: %1).</numerusform>
            <numerusform>A preparação inicial não foi concluída: %n&#xa0;recursos do jogo não foram importados (código de saída do motor: %1).</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CavernyxPlatformerApp</name>
    <message>
        <source>%1 is already running, but does not answer. Close it first.</source>
        <translation>%1 já está em execução, mas não responde. Feche-o primeiro.</translation>
    </message>
    <message>
        <source>%1 is already running. Waiting for its answer…</source>
        <translation>%1 já está em execução. Aguardando sua resposta…</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Settings…</source>
        <translation>Configurações…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>The button that opens the sheet about the launcher and its game.</extracomment>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Controls</source>
        <extracomment>The title above the keys and buttons that the game is played with.</extracomment>
        <translation>Controles</translation>
    </message>
</context>
<context>
    <name>DownloadProgress</name>
    <message>
        <source>%1/s</source>
        <extracomment>The rate of a download: %1 is an amount, such as &quot;3 MB&quot;.</extracomment>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>What has been downloaded, and the rate: &quot;20.1 MB · 3 MB/s&quot;.</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 of %2 · %3</source>
        <extracomment>What of how much has been downloaded, and the rate: &quot;20.1 MB of 70.1 MB · 3 MB/s&quot;.</extracomment>
        <translation>%1 de %2 · %3</translation>
    </message>
</context>
<context>
    <name>FailureReport</name>
    <message>
        <source>Failure report</source>
        <extracomment>What a screen reader calls the box with the text of a failure.</extracomment>
        <translation>Relatório da falha</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>The button that copies the text of a failure.</extracomment>
        <translation>Copiar</translation>
    </message>
</context>
<context>
    <name>GameFacts</name>
    <message>
        <source>A 2D grappling-hook adventure</source>
        <extracomment>Below the game&apos;s name. &quot;2D&quot;: seen from the side, with no depth.</extracomment>
        <translation>Uma aventura 2D com gancho</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What a player of the game does; the keys and buttons for it follow.</extracomment>
        <translation>Mover-se</translation>
    </message>
    <message>
        <source>A / D, or the left stick</source>
        <extracomment>A and D are keys of the keyboard, the stick is one of a game controller.</extracomment>
        <translation>A / D ou o analógico esquerdo</translation>
    </message>
    <message>
        <source>Jump</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>Pular</translation>
    </message>
    <message>
        <source>Space or W, or the A button</source>
        <extracomment>Space and W are keys of the keyboard, A is a button of a game controller.</extracomment>
        <translation>Espaço ou W, ou o botão A do controle</translation>
    </message>
    <message>
        <source>Grappling hook</source>
        <extracomment>A hook on a rope, with which the player swings and pulls.</extracomment>
        <translation>Gancho</translation>
    </message>
    <message>
        <source>Left mouse button, or a shoulder button</source>
        <extracomment>The shoulder buttons of a game controller are those behind its front.</extracomment>
        <translation>Botão esquerdo do mouse ou um botão de ombro</translation>
    </message>
    <message>
        <source>Aim</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>Mirar</translation>
    </message>
    <message>
        <source>Hold F, or use the right stick</source>
        <translation>Segure F ou use o analógico direito</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>What a player of the game does: begin again.</extracomment>
        <translation>Reiniciar</translation>
    </message>
    <message>
        <source>Alt + R</source>
        <translation>Alt + R</translation>
    </message>
    <message>
        <source>The README has no controls list (see README); these come from the game&apos;s input settings.</source>
        <translation>O README não tem uma lista de controles (veja o README); estes vêm das configurações de entrada do jogo.</translation>
    </message>
    <message>
        <source>The game &quot;Snaglet!&quot; is made by Quennet and the Brindlework team, 2019, and is released under the MIT License. The game belongs to its author; this app is only a launcher that downloads it.</source>
        <translation>O jogo “Snaglet!” foi feito em 2019 por Quennet e pela equipe Brindlework e é distribuído sob a Licença MIT. O jogo pertence ao seu autor; este aplicativo é apenas um lançador que o baixa.</translation>
    </message>
    <message>
        <source>Based on brindlework-demos/tetherwalk, MIT License.</source>
        <translation>Baseado em brindlework-demos/tetherwalk, Licença MIT.</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Copy log</source>
        <translation>Copiar registro</translation>
    </message>
    <message>
        <source>Log</source>
        <extracomment>What a screen reader calls the box with the lines of the log.</extracomment>
        <translation>Registro</translation>
    </message>
</context>
<context>
    <name>PlatformError</name>
    <message>
        <source>The download of “%1” is %2 larger than what is free in “%3”. Make room there and try again.</source>
        <translation>Faltam %2 de espaço livre em “%3” para baixar “%1”. Libere espaço nesse local e tente novamente.</translation>
    </message>
    <message>
        <source>The download of “%1” takes up all that is free in “%2”, but for a reserve. Make room there and try again.</source>
        <translation>O download de “%1” ocupa todo o espaço livre em “%2”, exceto uma reserva. Libere espaço nesse local e tente novamente.</translation>
    </message>
    <message>
        <source>Could not save “%1”</source>
        <translation>Não foi possível salvar “%1”</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected to “%2”, which is not one of GitHub&apos;s own secure servers, so it was stopped.</source>
        <translation>O download de “%1” foi redirecionado para “%2”, que não é um dos servidores seguros do GitHub; por isso, foi interrompido.</translation>
    </message>
    <message>
        <source>The network library cannot be used.</source>
        <translation>A biblioteca de rede não pode ser usada.</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected too often, last to “%2”. Try again later.</source>
        <translation>O download de “%1” foi redirecionado vezes demais, a última para “%2”. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The certificate of “%1” is not yet valid. Check the date and time of this computer.</source>
        <translation>O certificado de “%1” ainda não é válido. Verifique a data e a hora deste computador.</translation>
    </message>
    <message>
        <source>The certificate of “%1” has expired. Check the date and time of this computer.</source>
        <translation>O certificado de “%1” expirou. Verifique a data e a hora deste computador.</translation>
    </message>
    <message>
        <source>The certificate of “%1” belongs to another server. Another network may help.</source>
        <translation>O certificado de “%1” pertence a outro servidor. Outra rede pode ajudar.</translation>
    </message>
    <message>
        <source>The certificate of “%1” cannot be trusted. Another network may help.</source>
        <translation>O certificado de “%1” não é confiável. Outra rede pode ajudar.</translation>
    </message>
    <message>
        <source>The proxy “%1” was not found. Check the proxy settings.</source>
        <translation>O proxy “%1” não foi encontrado. Verifique as configurações de proxy.</translation>
    </message>
    <message>
        <source>The proxy “%1” refused the connection (HTTP %2). Check the proxy settings.</source>
        <translation>O proxy “%1” recusou a conexão (HTTP&#xa0;%2). Verifique as configurações de proxy.</translation>
    </message>
    <message>
        <source>The proxy “%1” cannot be used. Check the proxy settings.</source>
        <translation>O proxy “%1” não pode ser usado. Verifique as configurações de proxy.</translation>
    </message>
    <message>
        <source>The server “%1” was not found. Check the internet connection.</source>
        <translation>O servidor “%1” não foi encontrado. Verifique a conexão com a internet.</translation>
    </message>
    <message>
        <source>The server “%1” cannot be reached. Check the internet connection.</source>
        <translation>Não foi possível acessar o servidor “%1”. Verifique a conexão com a internet.</translation>
    </message>
    <message>
        <source>The certificates that this system trusts cannot be read. Install its package of certificates.</source>
        <translation>Não foi possível ler os certificados em que este sistema confia. Instale o pacote que os fornece.</translation>
    </message>
    <message>
        <source>No secure connection to “%1” could be made. Another network may help.</source>
        <translation>Não foi possível estabelecer uma conexão segura com “%1”. Outra rede pode ajudar.</translation>
    </message>
    <message>
        <source>The connection to “%1” was lost. Check the internet connection and try again.</source>
        <translation>A conexão com “%1” foi perdida. Verifique a conexão com a internet e tente novamente.</translation>
    </message>
    <message>
        <source>There is not enough memory. Close other programs and try again.</source>
        <translation>Não há memória suficiente. Feche outros programas e tente novamente.</translation>
    </message>
    <message>
        <source>“%1” sent an answer that is not understood. Try again later.</source>
        <translation>“%1” enviou uma resposta incompreensível. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>The transfer from “%1” failed. Try again later.</source>
        <translation>A transferência de “%1” falhou. Tente novamente mais tarde.</translation>
    </message>
    <message>
        <source>Could not download “%1”</source>
        <translation>Não foi possível baixar “%1”</translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: the proxy “%2” did not answer within %n seconds. Check the proxy settings and try again.</source>
        <translation>
            <numerusform>O download de “%1” parou: o proxy “%2” não respondeu em %n&#xa0;segundo. Verifique as configurações de proxy e tente novamente.</numerusform>
            <numerusform>O download de “%1” parou: o proxy “%2” não respondeu em %n&#xa0;segundos. Verifique as configurações de proxy e tente novamente.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 sent nothing for %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>O download de “%1” parou: %2 não enviou nada por %n&#xa0;segundo. Verifique a conexão com a internet e tente novamente.</numerusform>
            <numerusform>O download de “%1” parou: %2 não enviou nada por %n&#xa0;segundos. Verifique a conexão com a internet e tente novamente.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 did not answer within %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>O download de “%1” parou: %2 não respondeu em %n&#xa0;segundo. Verifique a conexão com a internet e tente novamente.</numerusform>
            <numerusform>O download de “%1” parou: %2 não respondeu em %n&#xa0;segundos. Verifique a conexão com a internet e tente novamente.</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not create the folder “%1”</source>
        <translation>Não foi possível criar a pasta “%1”</translation>
    </message>
    <message>
        <source>Could not compute a SHA-512 checksum.</source>
        <translation>Não foi possível calcular uma soma de verificação SHA-512.</translation>
    </message>
    <message>
        <source>Could not create the temporary folder “%1”</source>
        <translation>Não foi possível criar a pasta temporária “%1”</translation>
    </message>
    <message>
        <source>Could not read the archive entry “%1”</source>
        <translation>Não foi possível ler a entrada “%1” do pacote compactado</translation>
    </message>
    <message>
        <source>Could not read “%1”</source>
        <translation>Não foi possível ler “%1”</translation>
    </message>
    <message>
        <source>Could not open the folder “%1”</source>
        <translation>Não foi possível abrir a pasta “%1”</translation>
    </message>
    <message>
        <source>Could not create the link “%1”</source>
        <translation>Não foi possível criar o link “%1”</translation>
    </message>
    <message>
        <source>Could not change “%1”</source>
        <translation>Não foi possível alterar “%1”</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Não é um arquivo.</translation>
    </message>
    <message>
        <source>Could not replace “%1”</source>
        <translation>Não foi possível substituir “%1”</translation>
    </message>
    <message>
        <source>Could not find your home folder: HOME is not set.</source>
        <translation>Não foi possível encontrar sua pasta pessoal: HOME não está definida.</translation>
    </message>
    <message>
        <source>Could not use the folder “%1”, because its name is not UTF-8.</source>
        <translation>Não foi possível usar a pasta “%1”, porque seu nome não está em UTF-8.</translation>
    </message>
    <message>
        <source>Could not start “%1”</source>
        <translation>Não foi possível iniciar “%1”</translation>
    </message>
    <message>
        <source>Could not create a pipe</source>
        <translation>Não foi possível criar um pipe</translation>
    </message>
    <message>
        <source>Could not start a thread</source>
        <translation>Não foi possível iniciar uma thread</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it and try again.</source>
        <translation>O disco está cheio. Libere espaço nele e tente novamente.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>Makes a sentence of a reason in the system&apos;s own words, such as &quot;Permission denied&quot;.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>What failed, such as &quot;Could not open “the file”&quot;, and the sentence that says why.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Could not exchange “%1” and “%2”</source>
        <translation>Não foi possível trocar “%1” e “%2” entre si</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”</source>
        <translation>Não foi possível mover “%1” para “%2”</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”. What was there before is now at “%3”.</source>
        <translation>Não foi possível mover “%1” para “%2”. O que havia lá antes está agora em “%3”.</translation>
    </message>
    <message>
        <source>Could not remove “%1”</source>
        <translation>Não foi possível remover “%1”</translation>
    </message>
    <message>
        <source>Could not open “%1”</source>
        <translation>Não foi possível abrir “%1”</translation>
    </message>
    <message>
        <source>The launcher is running a second time. Close the other one first.</source>
        <translation>O lançador está aberto duas vezes. Feche o outro primeiro.</translation>
    </message>
    <message>
        <source>Could not lock “%1”, without which nothing is installed or removed</source>
        <translation>Não foi possível bloquear “%1”, sem o que nada é instalado nem removido</translation>
    </message>
    <message>
        <source>Could not create “%1”</source>
        <translation>Não foi possível criar “%1”</translation>
    </message>
    <message>
        <source>Could not write “%1”</source>
        <translation>Não foi possível gravar “%1”</translation>
    </message>
    <message>
        <source>Could not write “%1” to the disk</source>
        <translation>Não foi possível gravar “%1” no disco</translation>
    </message>
    <message>
        <source>another file system is mounted there</source>
        <translation>há outro sistema de arquivos montado ali</translation>
    </message>
    <message>
        <source>it was moved meanwhile</source>
        <translation>o item foi movido nesse meio-tempo</translation>
    </message>
</context>
<context>
    <name>PlayOutcome</name>
    <message numerus="yes">
        <source>The game closed after %n seconds (exit code %1), so it did not start properly.</source>
        <translation>
            <numerusform>O jogo foi encerrado após %n&#xa0;segundo (código de saída&#xa0;%1); portanto, não foi iniciado corretamente.</numerusform>
            <numerusform>O jogo foi encerrado após %n&#xa0;segundos (código de saída&#xa0;%1); portanto, não foi iniciado corretamente.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game stopped unexpectedly (exit code %1).</source>
        <translation>O jogo parou inesperadamente (código de saída&#xa0;%1).</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Progress</source>
        <extracomment>What a screen reader calls the progress bar.</extracomment>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>The button that installs the game, if need be, and starts it.</extracomment>
        <translation>Jogar</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>The button that ends the running game.</extracomment>
        <translation>Parar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>The button that cancels the download or the setup.</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>Mostrar registro</translation>
    </message>
    <message>
        <source>Status: %1 – %2</source>
        <extracomment>What a screen reader says of the coloured dot: a status, and a sentence about it.</extracomment>
        <translation>Status: %1 – %2</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Game default</source>
        <extracomment>Among resolutions: the one that the game comes with.</extracomment>
        <translation>Padrão do jogo</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configurações</translation>
    </message>
    <message>
        <source>Update the game</source>
        <translation>Atualizar o jogo</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>Reinstalar</translation>
    </message>
    <message>
        <source>Show saves</source>
        <extracomment>Opens the folder in which the game keeps its saves.</extracomment>
        <translation>Mostrar jogos salvos</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <extracomment>Opens the file browser at the installed files. The Finder is that of one system only; a translation speaks of the file manager.</extracomment>
        <translation>Mostrar no gerenciador de arquivos</translation>
    </message>
    <message>
        <source>Applies the next time you press Play.</source>
        <translation>Será aplicado na próxima vez que você clicar em “Jogar”.</translation>
    </message>
    <message>
        <source>Updating downloads the game again. Save files are kept; they live in Godot&apos;s own folder.</source>
        <translation>A atualização baixa o jogo novamente. Os jogos salvos são mantidos; eles ficam na pasta própria do Godot.</translation>
    </message>
    <message>
        <source>No saves yet (Godot&apos;s user folder does not exist).</source>
        <translation>Ainda não há jogos salvos (a pasta de usuário do Godot não existe).</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>Whether the game runs in a window or on the whole screen.</extracomment>
        <translation>Janela</translation>
    </message>
    <message>
        <source>Windowed</source>
        <translation>Em janela</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Tela cheia</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <extracomment>%1 is an amount, such as &quot;70.1 MB&quot;.</extracomment>
        <translation>Remover tudo</translation>
    </message>
    <message>
        <source>Remove everything (frees %1)</source>
        <translation>Remover tudo (libera %1)</translation>
    </message>
</context>
<context>
    <name>SetupMonitor</name>
    <message>
        <source>The game is being installed.</source>
        <translation>O jogo está sendo instalado.</translation>
    </message>
    <message>
        <source>The game is ready and starting.</source>
        <translation>O jogo está pronto e está iniciando.</translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Done</source>
        <extracomment>The button that closes a sheet.</extracomment>
        <translation>Concluído</translation>
    </message>
</context>
<context>
    <name>Unit</name>
    <message>
        <source>%1 KB</source>
        <extracomment>Kilobytes: 1000 bytes, as the desktop&apos;s file manager writes it.</extracomment>
        <translation>%1&#xa0;kB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1&#xa0;TB</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1&#xa0;PB</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>0&#xa0;kB</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1&#xa0;byte</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n&#xa0;byte</numerusform>
            <numerusform>%n&#xa0;bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WidgetDesktop</name>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>Não foi possível abrir a pasta.</translation>
    </message>
    <message>
        <source>This desktop has no file browser. The folder is “%1”.</source>
        <extracomment>%1 is the path of a folder.</extracomment>
        <translation>Este ambiente não tem um gerenciador de arquivos. A pasta é “%1”.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
