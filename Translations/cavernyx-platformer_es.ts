<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>AboutView</name>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>The Godot engine is free software under the MIT License (godotengine.org). It is downloaded from the official godotengine/godot releases and checked against the published SHA-512 checksum.</source>
        <translation>El motor Godot es software libre bajo la licencia MIT (godotengine.org). Se descarga de las publicaciones oficiales de godotengine/godot y se comprueba con la suma de verificación SHA-512 publicada.</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere except the two downloads (the game from GitHub and the engine from GitHub releases).</source>
        <translation>No se envía nada a ningún sitio, salvo lo que requieren las dos descargas (el juego desde GitHub y el motor desde las publicaciones de GitHub).</translation>
    </message>
</context>
<context>
    <name>AppError</name>
    <message>
        <source>The engine checksum list is larger than %1 MiB, so it was not read.</source>
        <translation>La lista de sumas de verificación del motor supera %1&#xa0;MiB, por lo que no se ha leído.</translation>
    </message>
    <message>
        <source>Could not read the engine checksum list (HTTP %1).</source>
        <translation>No se pudo leer la lista de sumas de verificación del motor (HTTP&#xa0;%1).</translation>
    </message>
    <message>
        <source>The checksum list has no entry for %1.</source>
        <translation>La lista de sumas de verificación no contiene ninguna entrada para %1.</translation>
    </message>
    <message>
        <source>The engine download did not match its official checksum, so it was discarded.</source>
        <translation>El motor descargado no coincide con su suma de verificación oficial, por lo que se ha descartado.</translation>
    </message>
    <message>
        <source>The engine was unpacked but its program was not found.</source>
        <translation>El motor se ha desempaquetado, pero no se ha encontrado su programa.</translation>
    </message>
    <message>
        <source>Invalid engine URL.</source>
        <translation>La dirección del motor no es válida.</translation>
    </message>
    <message>
        <source>The server answered with HTTP %1 for %2.</source>
        <translation>El servidor respondió con HTTP&#xa0;%1 al solicitar %2.</translation>
    </message>
    <message>
        <source>A part of the launcher, “%1”, cannot be loaded. Close the launcher and start it again, or install it again.</source>
        <translation>No se puede cargar «%1», una parte del lanzador. Cierre el lanzador y ábralo de nuevo, o vuelva a instalarlo.</translation>
    </message>
    <message>
        <source>The downloaded game does not contain a project.godot file.</source>
        <translation>El juego descargado no contiene ningún archivo project.godot.</translation>
    </message>
    <message>
        <source>The game folder was unpacked but project.godot was not found.</source>
        <translation>La carpeta del juego se ha desempaquetado, pero no se ha encontrado project.godot.</translation>
    </message>
    <message>
        <source>Invalid game URL.</source>
        <translation>La dirección del juego no es válida.</translation>
    </message>
    <message>
        <source>Unzipping failed (ditto exit code %1).</source>
        <extracomment>Where there is no program named ditto, a translation speaks of unpacking only.</extracomment>
        <translation>No se pudo desempaquetar (código de salida&#xa0;%1).</translation>
    </message>
    <message>
        <source>The Godot 3 engine is not available for this computer&apos;s processor (%1).</source>
        <extracomment>%1 is a kind of processor, such as &quot;arm64&quot;.</extracomment>
        <translation>El motor Godot&#xa0;3 no está disponible para el procesador de este equipo (%1).</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>Needs something</source>
        <extracomment>The status after a failure: the player has to do something. The next line says what.</extracomment>
        <translation>Se requiere una acción</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <extracomment>The status: the game is not downloaded yet.</extracomment>
        <translation>Sin descargar</translation>
    </message>
    <message>
        <source>Downloading</source>
        <extracomment>The status: the launcher is downloading the game or its engine.</extracomment>
        <translation>Descargando</translation>
    </message>
    <message>
        <source>Setting up</source>
        <extracomment>The status: the launcher is preparing the game for its first start.</extracomment>
        <translation>Preparando</translation>
    </message>
    <message>
        <source>Ready</source>
        <extracomment>The status: the game can be played.</extracomment>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Starting…</source>
        <extracomment>The status: the game is starting, or it is running.</extracomment>
        <translation>Iniciando…</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Jugando</translation>
    </message>
    <message>
        <source>Downloads the game and the Godot engine once, about %1 MB for the engine plus the game&apos;s files. Nothing to type.</source>
        <translation>El juego y el motor Godot se descargan una sola vez: unos %1&#xa0;MB del motor más los archivos del juego. No hay que escribir nada.</translation>
    </message>
    <message>
        <source>Everything is installed. Press Play.</source>
        <translation>Todo está instalado. Pulse «Jugar».</translation>
    </message>
    <message numerus="yes">
        <source>The game was launched. Waiting %n seconds to make sure it stays open.</source>
        <translation>
            <numerusform>El juego se ha iniciado. Esperando %n&#xa0;segundo para comprobar que sigue abierto.</numerusform>
            <numerusform>El juego se ha iniciado. Esperando %n&#xa0;segundos para comprobar que sigue abierto.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game is running in its own window.</source>
        <translation>El juego se está ejecutando en su propia ventana.</translation>
    </message>
    <message>
        <source>The game is still running from an earlier start. Close it first.</source>
        <translation>El juego sigue en ejecución desde un inicio anterior. Ciérrelo primero.</translation>
    </message>
    <message>
        <source>The folder “%1” is on another disk than before. Connect that disk again, or try once more to use this one.</source>
        <translation>La carpeta «%1» está en un disco distinto al de antes. Vuelva a conectar el disco anterior o inténtelo de nuevo para usar el actual.</translation>
    </message>
    <message>
        <source>What happened: %1

Last log lines:
%2</source>
        <extracomment>%1 is a whole sentence, and %2 are lines of the log, most of them in English.</extracomment>
        <translation>Lo que ha ocurrido: %1

Últimas líneas del registro:
%2</translation>
    </message>
    <message>
        <source>Step 4 of 4 · Play</source>
        <translation>Paso&#xa0;4 de&#xa0;4 · Jugar</translation>
    </message>
    <message>
        <source>Update the game?</source>
        <translation>¿Actualizar el juego?</translation>
    </message>
    <message>
        <source>The game is downloaded again from GitHub. Your save files are kept.</source>
        <translation>El juego se descargará de nuevo desde GitHub. Sus partidas guardadas se conservarán.</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Reinstall everything?</source>
        <translation>¿Reinstalar todo?</translation>
    </message>
    <message>
        <source>The game and the engine are deleted and downloaded again. Your save files are kept.</source>
        <translation>El juego y el motor se borrarán y se descargarán de nuevo. Sus partidas guardadas se conservarán.</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Reinstalar</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees all downloaded files. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>Se borrarán el juego y el motor descargados y se liberará el espacio de todos los archivos descargados. Sus partidas guardadas en la carpeta de Godot no se tocarán.</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees %1. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>Se borrarán el juego y el motor descargados y se liberarán %1. Sus partidas guardadas en la carpeta de Godot no se tocarán.</translation>
    </message>
    <message>
        <source>Remove everything?</source>
        <extracomment>&quot;Remove&quot; is the button that answers the question.</extracomment>
        <translation>¿Eliminar todo?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Could not remove the files: %1</source>
        <extracomment>%1 is a whole sentence, such as &quot;Could not remove “file”: Permission denied.&quot;</extracomment>
        <translation>No se pudieron eliminar los archivos: %1</translation>
    </message>
    <message>
        <source>Quit and close the game?</source>
        <translation>¿Salir y cerrar el juego?</translation>
    </message>
    <message>
        <source>The game is still running. Quitting will close it.</source>
        <translation>El juego sigue en ejecución. Si sale, se cerrará.</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Step 1 of 4 · Downloading the game</source>
        <extracomment>The name of a step, shown below the title &quot;Downloading&quot;.</extracomment>
        <translation>Paso&#xa0;1 de&#xa0;4 · Descargando el juego</translation>
    </message>
    <message>
        <source>The downloaded folder has no readable project.godot.</source>
        <translation>La carpeta descargada no contiene ningún archivo project.godot legible.</translation>
    </message>
    <message>
        <source>This game is made for Godot 4, but this app only knows how to install Godot 3.</source>
        <translation>Este juego está hecho para Godot&#xa0;4, pero esta aplicación solo sabe instalar Godot&#xa0;3.</translation>
    </message>
    <message>
        <source>Step 2 of 4 · Downloading the Godot engine (%1)</source>
        <extracomment>%1 is a version, such as &quot;3.5.3-stable-mono&quot;.</extracomment>
        <translation>Paso&#xa0;2 de&#xa0;4 · Descargando el motor Godot (%1)</translation>
    </message>
    <message>
        <source>The Godot engine is missing.</source>
        <translation>Falta el motor Godot.</translation>
    </message>
    <message>
        <source>Step 3 of 4 · First-time setup, this can take a minute or more</source>
        <translation>Paso&#xa0;3 de&#xa0;4 · Preparación inicial; puede tardar un minuto o más</translation>
    </message>
    <message numerus="yes">
        <source>The first-time setup did not finish: %n game assets were not imported (engine exit code %1).</source>
        <translation>
            <numerusform>La preparación inicial no ha terminado: no se ha importado %n&#xa0;recurso del juego (código de salida del motor: %1).</numerusform>
            <numerusform>La preparación inicial no ha terminado: no se han importado %n&#xa0;recursos del juego (código de salida del motor: %1).</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CavernyxPlatformerApp</name>
    <message>
        <source>%1 is already running, but does not answer. Close it first.</source>
        <translation>%1 ya está abierto, pero no responde. Ciérrelo primero.</translation>
    </message>
    <message>
        <source>%1 is already running. Waiting for its answer…</source>
        <translation>%1 ya está abierto. Esperando su respuesta…</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Settings…</source>
        <translation>Configuración…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>The button that opens the sheet about the launcher and its game.</extracomment>
        <translation>Acerca de</translation>
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
        <translation>Informe del fallo</translation>
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
        <translation>Una aventura 2D con gancho</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What a player of the game does; the keys and buttons for it follow.</extracomment>
        <translation>Moverse</translation>
    </message>
    <message>
        <source>A / D, or the left stick</source>
        <extracomment>A and D are keys of the keyboard, the stick is one of a game controller.</extracomment>
        <translation>A / D o la palanca izquierda</translation>
    </message>
    <message>
        <source>Jump</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>Saltar</translation>
    </message>
    <message>
        <source>Space or W, or the A button</source>
        <extracomment>Space and W are keys of the keyboard, A is a button of a game controller.</extracomment>
        <translation>Espacio o W, o el botón A del mando</translation>
    </message>
    <message>
        <source>Grappling hook</source>
        <extracomment>A hook on a rope, with which the player swings and pulls.</extracomment>
        <translation>Gancho</translation>
    </message>
    <message>
        <source>Left mouse button, or a shoulder button</source>
        <extracomment>The shoulder buttons of a game controller are those behind its front.</extracomment>
        <translation>Botón izquierdo del ratón o un botón lateral del mando</translation>
    </message>
    <message>
        <source>Aim</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>Apuntar</translation>
    </message>
    <message>
        <source>Hold F, or use the right stick</source>
        <translation>Mantener pulsada F o usar la palanca derecha</translation>
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
        <translation>El archivo README no contiene una lista de controles (véase README); estos proceden de la configuración de entrada del juego.</translation>
    </message>
    <message>
        <source>The game &quot;Snaglet!&quot; is made by Quennet and the Brindlework team, 2019, and is released under the MIT License. The game belongs to its author; this app is only a launcher that downloads it.</source>
        <translation>El juego «Snaglet!» fue creado en 2019 por Quennet y el equipo de Brindlework y se publica bajo la licencia MIT. El juego pertenece a su autor; esta aplicación es solo un lanzador que lo descarga.</translation>
    </message>
    <message>
        <source>Based on brindlework-demos/tetherwalk, MIT License.</source>
        <translation>Basado en brindlework-demos/tetherwalk, licencia MIT.</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Copy log</source>
        <translation>Copiar el registro</translation>
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
        <translation>Para descargar «%1» faltan %2 de espacio libre en «%3». Libere espacio allí e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The download of “%1” takes up all that is free in “%2”, but for a reserve. Make room there and try again.</source>
        <translation>La descarga de «%1» ocupa todo el espacio libre en «%2», salvo una reserva. Libere espacio allí e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Could not save “%1”</source>
        <translation>No se pudo guardar «%1»</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected to “%2”, which is not one of GitHub&apos;s own secure servers, so it was stopped.</source>
        <translation>La descarga de «%1» se redirigió a «%2», que no es uno de los servidores seguros de GitHub, por lo que se detuvo.</translation>
    </message>
    <message>
        <source>The network library cannot be used.</source>
        <translation>No se puede usar la biblioteca de red.</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected too often, last to “%2”. Try again later.</source>
        <translation>La descarga de «%1» se redirigió demasiadas veces, la última a «%2». Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The certificate of “%1” is not yet valid. Check the date and time of this computer.</source>
        <translation>El certificado de «%1» aún no es válido. Compruebe la fecha y la hora de este equipo.</translation>
    </message>
    <message>
        <source>The certificate of “%1” has expired. Check the date and time of this computer.</source>
        <translation>El certificado de «%1» ha caducado. Compruebe la fecha y la hora de este equipo.</translation>
    </message>
    <message>
        <source>The certificate of “%1” belongs to another server. Another network may help.</source>
        <translation>El certificado de «%1» pertenece a otro servidor. Puede que con otra red funcione.</translation>
    </message>
    <message>
        <source>The certificate of “%1” cannot be trusted. Another network may help.</source>
        <translation>El certificado de «%1» no es de confianza. Puede que con otra red funcione.</translation>
    </message>
    <message>
        <source>The proxy “%1” was not found. Check the proxy settings.</source>
        <translation>No se encontró el proxy «%1». Compruebe la configuración del proxy.</translation>
    </message>
    <message>
        <source>The proxy “%1” refused the connection (HTTP %2). Check the proxy settings.</source>
        <translation>El proxy «%1» rechazó la conexión (HTTP&#xa0;%2). Compruebe la configuración del proxy.</translation>
    </message>
    <message>
        <source>The proxy “%1” cannot be used. Check the proxy settings.</source>
        <translation>No se puede usar el proxy «%1». Compruebe la configuración del proxy.</translation>
    </message>
    <message>
        <source>The server “%1” was not found. Check the internet connection.</source>
        <translation>No se encontró el servidor «%1». Compruebe la conexión a Internet.</translation>
    </message>
    <message>
        <source>The server “%1” cannot be reached. Check the internet connection.</source>
        <translation>No se puede acceder al servidor «%1». Compruebe la conexión a Internet.</translation>
    </message>
    <message>
        <source>The certificates that this system trusts cannot be read. Install its package of certificates.</source>
        <translation>No se pueden leer los certificados en los que confía este sistema. Instale el paquete que los contiene.</translation>
    </message>
    <message>
        <source>No secure connection to “%1” could be made. Another network may help.</source>
        <translation>No se pudo establecer una conexión segura con «%1». Puede que con otra red funcione.</translation>
    </message>
    <message>
        <source>The connection to “%1” was lost. Check the internet connection and try again.</source>
        <translation>Se perdió la conexión con «%1». Compruebe la conexión a Internet e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>There is not enough memory. Close other programs and try again.</source>
        <translation>No hay memoria suficiente. Cierre otros programas e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>“%1” sent an answer that is not understood. Try again later.</source>
        <translation>«%1» envió una respuesta incomprensible. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>The transfer from “%1” failed. Try again later.</source>
        <translation>La transferencia desde «%1» falló. Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Could not download “%1”</source>
        <translation>No se pudo descargar «%1»</translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: the proxy “%2” did not answer within %n seconds. Check the proxy settings and try again.</source>
        <translation>
            <numerusform>La descarga de «%1» se ha detenido: el proxy «%2» no ha respondido en %n&#xa0;segundo. Compruebe la configuración del proxy e inténtelo de nuevo.</numerusform>
            <numerusform>La descarga de «%1» se ha detenido: el proxy «%2» no ha respondido en %n&#xa0;segundos. Compruebe la configuración del proxy e inténtelo de nuevo.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 sent nothing for %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>La descarga de «%1» se ha detenido: %2 no ha enviado nada durante %n&#xa0;segundo. Compruebe la conexión a Internet e inténtelo de nuevo.</numerusform>
            <numerusform>La descarga de «%1» se ha detenido: %2 no ha enviado nada durante %n&#xa0;segundos. Compruebe la conexión a Internet e inténtelo de nuevo.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 did not answer within %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>La descarga de «%1» se ha detenido: %2 no ha respondido en %n&#xa0;segundo. Compruebe la conexión a Internet e inténtelo de nuevo.</numerusform>
            <numerusform>La descarga de «%1» se ha detenido: %2 no ha respondido en %n&#xa0;segundos. Compruebe la conexión a Internet e inténtelo de nuevo.</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not create the folder “%1”</source>
        <translation>No se pudo crear la carpeta «%1»</translation>
    </message>
    <message>
        <source>Could not compute a SHA-512 checksum.</source>
        <translation>No se pudo calcular una suma de verificación SHA-512.</translation>
    </message>
    <message>
        <source>Could not create the temporary folder “%1”</source>
        <translation>No se pudo crear la carpeta temporal «%1»</translation>
    </message>
    <message>
        <source>Could not read the archive entry “%1”</source>
        <translation>No se pudo leer la entrada «%1» del archivo comprimido</translation>
    </message>
    <message>
        <source>Could not read “%1”</source>
        <translation>No se pudo leer «%1»</translation>
    </message>
    <message>
        <source>Could not open the folder “%1”</source>
        <translation>No se pudo abrir la carpeta «%1»</translation>
    </message>
    <message>
        <source>Could not create the link “%1”</source>
        <translation>No se pudo crear el enlace «%1»</translation>
    </message>
    <message>
        <source>Could not change “%1”</source>
        <translation>No se pudo modificar «%1»</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>No es un archivo.</translation>
    </message>
    <message>
        <source>Could not replace “%1”</source>
        <translation>No se pudo reemplazar «%1»</translation>
    </message>
    <message>
        <source>Could not find your home folder: HOME is not set.</source>
        <translation>No se pudo encontrar su carpeta personal: HOME no está definida.</translation>
    </message>
    <message>
        <source>Could not use the folder “%1”, because its name is not UTF-8.</source>
        <translation>No se pudo usar la carpeta «%1» porque su nombre no está en UTF-8.</translation>
    </message>
    <message>
        <source>Could not start “%1”</source>
        <translation>No se pudo iniciar «%1»</translation>
    </message>
    <message>
        <source>Could not create a pipe</source>
        <translation>No se pudo crear una tubería</translation>
    </message>
    <message>
        <source>Could not start a thread</source>
        <translation>No se pudo iniciar un hilo</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it and try again.</source>
        <translation>El disco está lleno. Libere espacio en él e inténtelo de nuevo.</translation>
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
        <translation>No se pudieron intercambiar «%1» y «%2»</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”</source>
        <translation>No se pudo mover «%1» a «%2»</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”. What was there before is now at “%3”.</source>
        <translation>No se pudo mover «%1» a «%2». Lo que había allí está ahora en «%3».</translation>
    </message>
    <message>
        <source>Could not remove “%1”</source>
        <translation>No se pudo eliminar «%1»</translation>
    </message>
    <message>
        <source>Could not open “%1”</source>
        <translation>No se pudo abrir «%1»</translation>
    </message>
    <message>
        <source>The launcher is running a second time. Close the other one first.</source>
        <translation>El lanzador está abierto dos veces. Cierre primero el otro.</translation>
    </message>
    <message>
        <source>Could not lock “%1”, without which nothing is installed or removed</source>
        <translation>No se pudo bloquear «%1», sin lo cual no se instala ni se elimina nada</translation>
    </message>
    <message>
        <source>Could not create “%1”</source>
        <translation>No se pudo crear «%1»</translation>
    </message>
    <message>
        <source>Could not write “%1”</source>
        <translation>No se pudo escribir «%1»</translation>
    </message>
    <message>
        <source>Could not write “%1” to the disk</source>
        <translation>No se pudo escribir «%1» en el disco</translation>
    </message>
    <message>
        <source>another file system is mounted there</source>
        <translation>ahí está montado otro sistema de archivos</translation>
    </message>
    <message>
        <source>it was moved meanwhile</source>
        <translation>se movió entretanto</translation>
    </message>
</context>
<context>
    <name>PlayOutcome</name>
    <message numerus="yes">
        <source>The game closed after %n seconds (exit code %1), so it did not start properly.</source>
        <translation>
            <numerusform>El juego se cerró tras %n&#xa0;segundo (código de salida&#xa0;%1), así que no se inició correctamente.</numerusform>
            <numerusform>El juego se cerró tras %n&#xa0;segundos (código de salida&#xa0;%1), así que no se inició correctamente.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game stopped unexpectedly (exit code %1).</source>
        <translation>El juego se detuvo inesperadamente (código de salida&#xa0;%1).</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Progress</source>
        <extracomment>What a screen reader calls the progress bar.</extracomment>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>The button that installs the game, if need be, and starts it.</extracomment>
        <translation>Jugar</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>The button that ends the running game.</extracomment>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>The button that cancels the download or the setup.</extracomment>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>Mostrar el registro</translation>
    </message>
    <message>
        <source>Status: %1 – %2</source>
        <extracomment>What a screen reader says of the coloured dot: a status, and a sentence about it.</extracomment>
        <translation>Estado: %1 – %2</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Game default</source>
        <extracomment>Among resolutions: the one that the game comes with.</extracomment>
        <translation>Predeterminada del juego</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Configuración</translation>
    </message>
    <message>
        <source>Update the game</source>
        <translation>Actualizar el juego</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>Reinstalar</translation>
    </message>
    <message>
        <source>Show saves</source>
        <extracomment>Opens the folder in which the game keeps its saves.</extracomment>
        <translation>Mostrar partidas guardadas</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <extracomment>Opens the file browser at the installed files. The Finder is that of one system only; a translation speaks of the file manager.</extracomment>
        <translation>Mostrar en el gestor de archivos</translation>
    </message>
    <message>
        <source>Applies the next time you press Play.</source>
        <translation>Se aplicará la próxima vez que pulse «Jugar».</translation>
    </message>
    <message>
        <source>Updating downloads the game again. Save files are kept; they live in Godot&apos;s own folder.</source>
        <translation>Al actualizar, se descarga de nuevo el juego. Las partidas guardadas se conservan; están en la carpeta propia de Godot.</translation>
    </message>
    <message>
        <source>No saves yet (Godot&apos;s user folder does not exist).</source>
        <translation>Aún no hay partidas guardadas (la carpeta de usuario de Godot no existe).</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>Whether the game runs in a window or on the whole screen.</extracomment>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>Windowed</source>
        <translation>En ventana</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <extracomment>%1 is an amount, such as &quot;70.1 MB&quot;.</extracomment>
        <translation>Eliminar todo</translation>
    </message>
    <message>
        <source>Remove everything (frees %1)</source>
        <translation>Eliminar todo (libera %1)</translation>
    </message>
</context>
<context>
    <name>SetupMonitor</name>
    <message>
        <source>The game is being installed.</source>
        <translation>El juego se está instalando.</translation>
    </message>
    <message>
        <source>The game is ready and starting.</source>
        <translation>El juego está listo y se está iniciando.</translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Done</source>
        <extracomment>The button that closes a sheet.</extracomment>
        <translation>Hecho</translation>
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
        <translation>No se pudo abrir la carpeta.</translation>
    </message>
    <message>
        <source>This desktop has no file browser. The folder is “%1”.</source>
        <extracomment>%1 is the path of a folder.</extracomment>
        <translation>Este escritorio no tiene gestor de archivos. La carpeta es «%1».</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
</TS>
