<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>AboutView</name>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>The Godot engine is free software under the MIT License (godotengine.org). It is downloaded from the official godotengine/godot releases and checked against the published SHA-512 checksum.</source>
        <translation>Il motore Godot è software libero sotto licenza MIT (godotengine.org). Viene scaricato dai rilasci ufficiali di godotengine/godot e verificato con la somma di controllo SHA-512 pubblicata.</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere except the two downloads (the game from GitHub and the engine from GitHub releases).</source>
        <translation>Non viene inviato nulla da nessuna parte, a eccezione dei due scaricamenti (il gioco da GitHub e il motore dai rilasci di GitHub).</translation>
    </message>
</context>
<context>
    <name>AppError</name>
    <message>
        <source>The engine checksum list is larger than %1 MiB, so it was not read.</source>
        <translation>L’elenco delle somme di controllo del motore supera %1&#xa0;MiB, quindi non è stato letto.</translation>
    </message>
    <message>
        <source>Could not read the engine checksum list (HTTP %1).</source>
        <translation>Impossibile leggere l’elenco delle somme di controllo del motore (HTTP&#xa0;%1).</translation>
    </message>
    <message>
        <source>The checksum list has no entry for %1.</source>
        <translation>L’elenco delle somme di controllo non contiene alcuna voce per %1.</translation>
    </message>
    <message>
        <source>The engine download did not match its official checksum, so it was discarded.</source>
        <translation>Il motore scaricato non corrisponde alla sua somma di controllo ufficiale, quindi è stato scartato.</translation>
    </message>
    <message>
        <source>The engine was unpacked but its program was not found.</source>
        <translation>Il motore è stato estratto, ma il suo programma non è stato trovato.</translation>
    </message>
    <message>
        <source>Invalid engine URL.</source>
        <translation>L’indirizzo del motore non è valido.</translation>
    </message>
    <message>
        <source>The server answered with HTTP %1 for %2.</source>
        <translation>Il server ha risposto con HTTP&#xa0;%1 per %2.</translation>
    </message>
    <message>
        <source>A part of the launcher, “%1”, cannot be loaded. Close the launcher and start it again, or install it again.</source>
        <translation>Impossibile caricare «%1», una parte del programma di avvio. Chiudere il programma e riavviarlo, oppure reinstallarlo.</translation>
    </message>
    <message>
        <source>The downloaded game does not contain a project.godot file.</source>
        <translation>Il gioco scaricato non contiene un file project.godot.</translation>
    </message>
    <message>
        <source>The game folder was unpacked but project.godot was not found.</source>
        <translation>La cartella del gioco è stata estratta, ma project.godot non è stato trovato.</translation>
    </message>
    <message>
        <source>Invalid game URL.</source>
        <translation>L’indirizzo del gioco non è valido.</translation>
    </message>
    <message>
        <source>Unzipping failed (ditto exit code %1).</source>
        <extracomment>Where there is no program named ditto, a translation speaks of unpacking only.</extracomment>
        <translation>Estrazione non riuscita (codice di uscita&#xa0;%1).</translation>
    </message>
    <message>
        <source>The Godot 3 engine is not available for this computer&apos;s processor (%1).</source>
        <extracomment>%1 is a kind of processor, such as &quot;arm64&quot;.</extracomment>
        <translation>Il motore Godot&#xa0;3 non è disponibile per il processore di questo computer (%1).</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>Needs something</source>
        <extracomment>The status after a failure: the player has to do something. The next line says what.</extracomment>
        <translation>Intervento richiesto</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <extracomment>The status: the game is not downloaded yet.</extracomment>
        <translation>Non scaricato</translation>
    </message>
    <message>
        <source>Downloading</source>
        <extracomment>The status: the launcher is downloading the game or its engine.</extracomment>
        <translation>Scaricamento</translation>
    </message>
    <message>
        <source>Setting up</source>
        <extracomment>The status: the launcher is preparing the game for its first start.</extracomment>
        <translation>Preparazione</translation>
    </message>
    <message>
        <source>Ready</source>
        <extracomment>The status: the game can be played.</extracomment>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Starting…</source>
        <extracomment>The status: the game is starting, or it is running.</extracomment>
        <translation>Avvio…</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Partita in corso</translation>
    </message>
    <message>
        <source>Downloads the game and the Godot engine once, about %1 MB for the engine plus the game&apos;s files. Nothing to type.</source>
        <translation>Il gioco e il motore Godot vengono scaricati una sola volta: circa %1&#xa0;MB per il motore, più i file del gioco. Non c’è nulla da digitare.</translation>
    </message>
    <message>
        <source>Everything is installed. Press Play.</source>
        <translation>È tutto installato. Premere «Gioca».</translation>
    </message>
    <message numerus="yes">
        <source>The game was launched. Waiting %n seconds to make sure it stays open.</source>
        <translation>
            <numerusform>Il gioco è stato avviato. Attesa di %n&#xa0;secondo per verificare che resti aperto.</numerusform>
            <numerusform>Il gioco è stato avviato. Attesa di %n&#xa0;secondi per verificare che resti aperto.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game is running in its own window.</source>
        <translation>Il gioco è in esecuzione nella propria finestra.</translation>
    </message>
    <message>
        <source>The game is still running from an earlier start. Close it first.</source>
        <translation>Il gioco è ancora in esecuzione da un avvio precedente. Chiuderlo prima di continuare.</translation>
    </message>
    <message>
        <source>The folder “%1” is on another disk than before. Connect that disk again, or try once more to use this one.</source>
        <translation>La cartella «%1» si trova su un disco diverso da prima. Ricollegare il disco precedente, oppure riprovare per usare quello attuale.</translation>
    </message>
    <message>
        <source>What happened: %1

Last log lines:
%2</source>
        <extracomment>%1 is a whole sentence, and %2 are lines of the log, most of them in English.</extracomment>
        <translation>Cosa è successo: %1

Ultime righe del registro:
%2</translation>
    </message>
    <message>
        <source>Step 4 of 4 · Play</source>
        <translation>Passo&#xa0;4 di&#xa0;4 · Gioco</translation>
    </message>
    <message>
        <source>Update the game?</source>
        <translation>Aggiornare il gioco?</translation>
    </message>
    <message>
        <source>The game is downloaded again from GitHub. Your save files are kept.</source>
        <translation>Il gioco verrà scaricato di nuovo da GitHub. I salvataggi verranno conservati.</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Reinstall everything?</source>
        <translation>Reinstallare tutto?</translation>
    </message>
    <message>
        <source>The game and the engine are deleted and downloaded again. Your save files are kept.</source>
        <translation>Il gioco e il motore verranno eliminati e scaricati di nuovo. I salvataggi verranno conservati.</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Reinstalla</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees all downloaded files. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>Il gioco e il motore scaricati verranno eliminati, liberando lo spazio di tutti i file scaricati. I salvataggi nella cartella di Godot non verranno toccati.</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees %1. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>Il gioco e il motore scaricati verranno eliminati, liberando %1. I salvataggi nella cartella di Godot non verranno toccati.</translation>
    </message>
    <message>
        <source>Remove everything?</source>
        <extracomment>&quot;Remove&quot; is the button that answers the question.</extracomment>
        <translation>Rimuovere tutto?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Could not remove the files: %1</source>
        <extracomment>%1 is a whole sentence, such as &quot;Could not remove “file”: Permission denied.&quot;</extracomment>
        <translation>Impossibile rimuovere i file: %1</translation>
    </message>
    <message>
        <source>Quit and close the game?</source>
        <translation>Uscire e chiudere il gioco?</translation>
    </message>
    <message>
        <source>The game is still running. Quitting will close it.</source>
        <translation>Il gioco è ancora in esecuzione. Se si esce, verrà chiuso.</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Step 1 of 4 · Downloading the game</source>
        <extracomment>The name of a step, shown below the title &quot;Downloading&quot;.</extracomment>
        <translation>Passo&#xa0;1 di&#xa0;4 · Scaricamento del gioco</translation>
    </message>
    <message>
        <source>The downloaded folder has no readable project.godot.</source>
        <translation>La cartella scaricata non contiene un file project.godot leggibile.</translation>
    </message>
    <message>
        <source>This game is made for Godot 4, but this app only knows how to install Godot 3.</source>
        <translation>Questo gioco è fatto per Godot&#xa0;4, ma questa applicazione può installare solo Godot&#xa0;3.</translation>
    </message>
    <message>
        <source>Step 2 of 4 · Downloading the Godot engine (%1)</source>
        <extracomment>%1 is a version, such as &quot;3.5.3-stable-mono&quot;.</extracomment>
        <translation>Passo&#xa0;2 di&#xa0;4 · Scaricamento del motore Godot (%1)</translation>
    </message>
    <message>
        <source>The Godot engine is missing.</source>
        <translation>Il motore Godot non è presente.</translation>
    </message>
    <message>
        <source>Step 3 of 4 · First-time setup, this can take a minute or more</source>
        <translation>Passo&#xa0;3 di&#xa0;4 · Preparazione iniziale, può richiedere un minuto o più</translation>
    </message>
    <message numerus="yes">
        <source>The first-time setup did not finish: %n game assets were not imported (engine exit code %1).</source>
        <translation>
            <numerusform>La preparazione iniziale non è stata completata: %n&#xa0;risorsa del gioco non è stata importata (codice di uscita del motore: %1).</numerusform>
            <numerusform>La preparazione iniziale non è stata completata: %n&#xa0;risorse del gioco non sono state importate (codice di uscita del motore: %1).</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CavernyxPlatformerApp</name>
    <message>
        <source>%1 is already running, but does not answer. Close it first.</source>
        <translation>%1 è già in esecuzione, ma non risponde. Chiuderlo prima di continuare.</translation>
    </message>
    <message>
        <source>%1 is already running. Waiting for its answer…</source>
        <translation>%1 è già in esecuzione. In attesa della sua risposta…</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Settings…</source>
        <translation>Impostazioni…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>The button that opens the sheet about the launcher and its game.</extracomment>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Controls</source>
        <extracomment>The title above the keys and buttons that the game is played with.</extracomment>
        <translation>Comandi</translation>
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
        <translation>%1 di %2 · %3</translation>
    </message>
</context>
<context>
    <name>FailureReport</name>
    <message>
        <source>Failure report</source>
        <extracomment>What a screen reader calls the box with the text of a failure.</extracomment>
        <translation>Resoconto dell’errore</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>The button that copies the text of a failure.</extracomment>
        <translation>Copia</translation>
    </message>
</context>
<context>
    <name>GameFacts</name>
    <message>
        <source>A 2D grappling-hook adventure</source>
        <extracomment>Below the game&apos;s name. &quot;2D&quot;: seen from the side, with no depth.</extracomment>
        <translation>Un’avventura 2D con rampino</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What a player of the game does; the keys and buttons for it follow.</extracomment>
        <translation>Muoversi</translation>
    </message>
    <message>
        <source>A / D, or the left stick</source>
        <extracomment>A and D are keys of the keyboard, the stick is one of a game controller.</extracomment>
        <translation>A / D o la levetta sinistra</translation>
    </message>
    <message>
        <source>Jump</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>Saltare</translation>
    </message>
    <message>
        <source>Space or W, or the A button</source>
        <extracomment>Space and W are keys of the keyboard, A is a button of a game controller.</extracomment>
        <translation>Spazio o W, o il pulsante A del controller</translation>
    </message>
    <message>
        <source>Grappling hook</source>
        <extracomment>A hook on a rope, with which the player swings and pulls.</extracomment>
        <translation>Rampino</translation>
    </message>
    <message>
        <source>Left mouse button, or a shoulder button</source>
        <extracomment>The shoulder buttons of a game controller are those behind its front.</extracomment>
        <translation>Pulsante sinistro del mouse o un dorsale del controller</translation>
    </message>
    <message>
        <source>Aim</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>Mirare</translation>
    </message>
    <message>
        <source>Hold F, or use the right stick</source>
        <translation>Tenere premuto F o usare la levetta destra</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>What a player of the game does: begin again.</extracomment>
        <translation>Ricominciare</translation>
    </message>
    <message>
        <source>Alt + R</source>
        <translation>Alt + R</translation>
    </message>
    <message>
        <source>The README has no controls list (see README); these come from the game&apos;s input settings.</source>
        <translation>Il README non contiene un elenco dei comandi (vedere il README); questi provengono dalle impostazioni di input del gioco.</translation>
    </message>
    <message>
        <source>The game &quot;Snaglet!&quot; is made by Quennet and the Brindlework team, 2019, and is released under the MIT License. The game belongs to its author; this app is only a launcher that downloads it.</source>
        <translation>Il gioco «Snaglet!» è stato realizzato nel 2019 da Quennet e dal team Brindlework ed è rilasciato sotto licenza MIT. Il gioco appartiene al suo autore; questa applicazione è solo un programma di avvio che lo scarica.</translation>
    </message>
    <message>
        <source>Based on brindlework-demos/tetherwalk, MIT License.</source>
        <translation>Basato su brindlework-demos/tetherwalk, licenza MIT.</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Copy log</source>
        <translation>Copia registro</translation>
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
        <translation>Per scaricare «%1» mancano %2 di spazio libero in «%3». Liberare spazio e riprovare.</translation>
    </message>
    <message>
        <source>The download of “%1” takes up all that is free in “%2”, but for a reserve. Make room there and try again.</source>
        <translation>Lo scaricamento di «%1» occupa tutto lo spazio libero in «%2», salvo una riserva. Liberare spazio e riprovare.</translation>
    </message>
    <message>
        <source>Could not save “%1”</source>
        <translation>Impossibile salvare «%1»</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected to “%2”, which is not one of GitHub&apos;s own secure servers, so it was stopped.</source>
        <translation>Lo scaricamento di «%1» è stato reindirizzato a «%2», che non è uno dei server sicuri di GitHub, quindi è stato interrotto.</translation>
    </message>
    <message>
        <source>The network library cannot be used.</source>
        <translation>Impossibile usare la libreria di rete.</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected too often, last to “%2”. Try again later.</source>
        <translation>Lo scaricamento di «%1» è stato reindirizzato troppe volte, l’ultima a «%2». Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The certificate of “%1” is not yet valid. Check the date and time of this computer.</source>
        <translation>Il certificato di «%1» non è ancora valido. Controllare la data e l’ora di questo computer.</translation>
    </message>
    <message>
        <source>The certificate of “%1” has expired. Check the date and time of this computer.</source>
        <translation>Il certificato di «%1» è scaduto. Controllare la data e l’ora di questo computer.</translation>
    </message>
    <message>
        <source>The certificate of “%1” belongs to another server. Another network may help.</source>
        <translation>Il certificato di «%1» appartiene a un altro server. Un’altra rete potrebbe risolvere il problema.</translation>
    </message>
    <message>
        <source>The certificate of “%1” cannot be trusted. Another network may help.</source>
        <translation>Il certificato di «%1» non è attendibile. Un’altra rete potrebbe risolvere il problema.</translation>
    </message>
    <message>
        <source>The proxy “%1” was not found. Check the proxy settings.</source>
        <translation>Il proxy «%1» non è stato trovato. Controllare le impostazioni del proxy.</translation>
    </message>
    <message>
        <source>The proxy “%1” refused the connection (HTTP %2). Check the proxy settings.</source>
        <translation>Il proxy «%1» ha rifiutato la connessione (HTTP&#xa0;%2). Controllare le impostazioni del proxy.</translation>
    </message>
    <message>
        <source>The proxy “%1” cannot be used. Check the proxy settings.</source>
        <translation>Impossibile usare il proxy «%1». Controllare le impostazioni del proxy.</translation>
    </message>
    <message>
        <source>The server “%1” was not found. Check the internet connection.</source>
        <translation>Il server «%1» non è stato trovato. Controllare la connessione a Internet.</translation>
    </message>
    <message>
        <source>The server “%1” cannot be reached. Check the internet connection.</source>
        <translation>Il server «%1» non è raggiungibile. Controllare la connessione a Internet.</translation>
    </message>
    <message>
        <source>The certificates that this system trusts cannot be read. Install its package of certificates.</source>
        <translation>Impossibile leggere i certificati ritenuti attendibili da questo sistema. Installare il pacchetto che li contiene.</translation>
    </message>
    <message>
        <source>No secure connection to “%1” could be made. Another network may help.</source>
        <translation>Impossibile stabilire una connessione sicura con «%1». Un’altra rete potrebbe risolvere il problema.</translation>
    </message>
    <message>
        <source>The connection to “%1” was lost. Check the internet connection and try again.</source>
        <translation>La connessione a «%1» è stata interrotta. Controllare la connessione a Internet e riprovare.</translation>
    </message>
    <message>
        <source>There is not enough memory. Close other programs and try again.</source>
        <translation>La memoria non è sufficiente. Chiudere altri programmi e riprovare.</translation>
    </message>
    <message>
        <source>“%1” sent an answer that is not understood. Try again later.</source>
        <translation>«%1» ha inviato una risposta incomprensibile. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>The transfer from “%1” failed. Try again later.</source>
        <translation>Il trasferimento da «%1» non è riuscito. Riprovare più tardi.</translation>
    </message>
    <message>
        <source>Could not download “%1”</source>
        <translation>Impossibile scaricare «%1»</translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: the proxy “%2” did not answer within %n seconds. Check the proxy settings and try again.</source>
        <translation>
            <numerusform>Lo scaricamento di «%1» si è bloccato: il proxy «%2» non ha risposto entro %n&#xa0;secondo. Controllare le impostazioni del proxy e riprovare.</numerusform>
            <numerusform>Lo scaricamento di «%1» si è bloccato: il proxy «%2» non ha risposto entro %n&#xa0;secondi. Controllare le impostazioni del proxy e riprovare.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 sent nothing for %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>Lo scaricamento di «%1» si è bloccato: %2 non ha inviato nulla per %n&#xa0;secondo. Controllare la connessione a Internet e riprovare.</numerusform>
            <numerusform>Lo scaricamento di «%1» si è bloccato: %2 non ha inviato nulla per %n&#xa0;secondi. Controllare la connessione a Internet e riprovare.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 did not answer within %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>Lo scaricamento di «%1» si è bloccato: %2 non ha risposto entro %n&#xa0;secondo. Controllare la connessione a Internet e riprovare.</numerusform>
            <numerusform>Lo scaricamento di «%1» si è bloccato: %2 non ha risposto entro %n&#xa0;secondi. Controllare la connessione a Internet e riprovare.</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not create the folder “%1”</source>
        <translation>Impossibile creare la cartella «%1»</translation>
    </message>
    <message>
        <source>Could not compute a SHA-512 checksum.</source>
        <translation>Impossibile calcolare una somma di controllo SHA-512.</translation>
    </message>
    <message>
        <source>Could not create the temporary folder “%1”</source>
        <translation>Impossibile creare la cartella temporanea «%1»</translation>
    </message>
    <message>
        <source>Could not read the archive entry “%1”</source>
        <translation>Impossibile leggere la voce «%1» dell’archivio</translation>
    </message>
    <message>
        <source>Could not read “%1”</source>
        <translation>Impossibile leggere «%1»</translation>
    </message>
    <message>
        <source>Could not open the folder “%1”</source>
        <translation>Impossibile aprire la cartella «%1»</translation>
    </message>
    <message>
        <source>Could not create the link “%1”</source>
        <translation>Impossibile creare il collegamento «%1»</translation>
    </message>
    <message>
        <source>Could not change “%1”</source>
        <translation>Impossibile modificare «%1»</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Non è un file.</translation>
    </message>
    <message>
        <source>Could not replace “%1”</source>
        <translation>Impossibile sostituire «%1»</translation>
    </message>
    <message>
        <source>Could not find your home folder: HOME is not set.</source>
        <translation>Impossibile trovare la cartella personale: HOME non è impostata.</translation>
    </message>
    <message>
        <source>Could not use the folder “%1”, because its name is not UTF-8.</source>
        <translation>Impossibile usare la cartella «%1», perché il suo nome non è in UTF-8.</translation>
    </message>
    <message>
        <source>Could not start “%1”</source>
        <translation>Impossibile avviare «%1»</translation>
    </message>
    <message>
        <source>Could not create a pipe</source>
        <translation>Impossibile creare una pipe</translation>
    </message>
    <message>
        <source>Could not start a thread</source>
        <translation>Impossibile avviare un thread</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it and try again.</source>
        <translation>Il disco è pieno. Liberare spazio e riprovare.</translation>
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
        <translation>Impossibile scambiare «%1» e «%2»</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”</source>
        <translation>Impossibile spostare «%1» in «%2»</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”. What was there before is now at “%3”.</source>
        <translation>Impossibile spostare «%1» in «%2». Ciò che si trovava lì prima è ora in «%3».</translation>
    </message>
    <message>
        <source>Could not remove “%1”</source>
        <translation>Impossibile rimuovere «%1»</translation>
    </message>
    <message>
        <source>Could not open “%1”</source>
        <translation>Impossibile aprire «%1»</translation>
    </message>
    <message>
        <source>The launcher is running a second time. Close the other one first.</source>
        <translation>Il programma di avvio è aperto due volte. Chiudere prima l’altro.</translation>
    </message>
    <message>
        <source>Could not lock “%1”, without which nothing is installed or removed</source>
        <translation>Impossibile bloccare «%1»; senza questo blocco nulla viene installato o rimosso</translation>
    </message>
    <message>
        <source>Could not create “%1”</source>
        <translation>Impossibile creare «%1»</translation>
    </message>
    <message>
        <source>Could not write “%1”</source>
        <translation>Impossibile scrivere «%1»</translation>
    </message>
    <message>
        <source>Could not write “%1” to the disk</source>
        <translation>Impossibile scrivere «%1» sul disco</translation>
    </message>
    <message>
        <source>another file system is mounted there</source>
        <translation>vi è montato un altro file system</translation>
    </message>
    <message>
        <source>it was moved meanwhile</source>
        <translation>nel frattempo è stato spostato</translation>
    </message>
</context>
<context>
    <name>PlayOutcome</name>
    <message numerus="yes">
        <source>The game closed after %n seconds (exit code %1), so it did not start properly.</source>
        <translation>
            <numerusform>Il gioco si è chiuso dopo %n&#xa0;secondo (codice di uscita&#xa0;%1), quindi non si è avviato correttamente.</numerusform>
            <numerusform>Il gioco si è chiuso dopo %n&#xa0;secondi (codice di uscita&#xa0;%1), quindi non si è avviato correttamente.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game stopped unexpectedly (exit code %1).</source>
        <translation>Il gioco si è interrotto in modo inatteso (codice di uscita&#xa0;%1).</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Progress</source>
        <extracomment>What a screen reader calls the progress bar.</extracomment>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>The button that installs the game, if need be, and starts it.</extracomment>
        <translation>Gioca</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>The button that ends the running game.</extracomment>
        <translation>Ferma</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>The button that cancels the download or the setup.</extracomment>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>Mostra registro</translation>
    </message>
    <message>
        <source>Status: %1 – %2</source>
        <extracomment>What a screen reader says of the coloured dot: a status, and a sentence about it.</extracomment>
        <translation>Stato: %1 – %2</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Game default</source>
        <extracomment>Among resolutions: the one that the game comes with.</extracomment>
        <translation>Predefinita del gioco</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Update the game</source>
        <translation>Aggiorna il gioco</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>Reinstalla</translation>
    </message>
    <message>
        <source>Show saves</source>
        <extracomment>Opens the folder in which the game keeps its saves.</extracomment>
        <translation>Mostra salvataggi</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <extracomment>Opens the file browser at the installed files. The Finder is that of one system only; a translation speaks of the file manager.</extracomment>
        <translation>Mostra nel gestore di file</translation>
    </message>
    <message>
        <source>Applies the next time you press Play.</source>
        <translation>Avrà effetto la prossima volta che si preme «Gioca».</translation>
    </message>
    <message>
        <source>Updating downloads the game again. Save files are kept; they live in Godot&apos;s own folder.</source>
        <translation>L’aggiornamento scarica di nuovo il gioco. I salvataggi vengono conservati; si trovano nella cartella propria di Godot.</translation>
    </message>
    <message>
        <source>No saves yet (Godot&apos;s user folder does not exist).</source>
        <translation>Ancora nessun salvataggio (la cartella utente di Godot non esiste).</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>Whether the game runs in a window or on the whole screen.</extracomment>
        <translation>Finestra</translation>
    </message>
    <message>
        <source>Windowed</source>
        <translation>In finestra</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Schermo intero</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <extracomment>%1 is an amount, such as &quot;70.1 MB&quot;.</extracomment>
        <translation>Rimuovi tutto</translation>
    </message>
    <message>
        <source>Remove everything (frees %1)</source>
        <translation>Rimuovi tutto (libera %1)</translation>
    </message>
</context>
<context>
    <name>SetupMonitor</name>
    <message>
        <source>The game is being installed.</source>
        <translation>Il gioco è in fase di installazione.</translation>
    </message>
    <message>
        <source>The game is ready and starting.</source>
        <translation>Il gioco è pronto e si sta avviando.</translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Done</source>
        <extracomment>The button that closes a sheet.</extracomment>
        <translation>Fatto</translation>
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
            <numerusform>%n&#xa0;byte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WidgetDesktop</name>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>Impossibile aprire la cartella.</translation>
    </message>
    <message>
        <source>This desktop has no file browser. The folder is “%1”.</source>
        <extracomment>%1 is the path of a folder.</extracomment>
        <translation>Questo ambiente non ha un gestore di file. La cartella è «%1».</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
