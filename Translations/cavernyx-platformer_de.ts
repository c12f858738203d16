<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AboutView</name>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>The Godot engine is free software under the MIT License (godotengine.org). It is downloaded from the official godotengine/godot releases and checked against the published SHA-512 checksum.</source>
        <translation>Die Godot-Engine ist freie Software unter der MIT-Lizenz (godotengine.org). Sie wird aus den offiziellen Veröffentlichungen von godotengine/godot heruntergeladen und mit der veröffentlichten SHA-512-Prüfsumme abgeglichen.</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere except the two downloads (the game from GitHub and the engine from GitHub releases).</source>
        <translation>Abgesehen von den beiden Downloads (dem Spiel von GitHub und der Engine aus den GitHub-Veröffentlichungen) werden keine Daten übertragen.</translation>
    </message>
</context>
<context>
    <name>AppError</name>
    <message>
        <source>The engine checksum list is larger than %1 MiB, so it was not read.</source>
        <translation>Die Prüfsummenliste der Engine ist größer als %1&#xa0;MiB und wurde deshalb nicht gelesen.</translation>
    </message>
    <message>
        <source>Could not read the engine checksum list (HTTP %1).</source>
        <translation>Die Prüfsummenliste der Engine konnte nicht gelesen werden (HTTP&#xa0;%1).</translation>
    </message>
    <message>
        <source>The checksum list has no entry for %1.</source>
        <translation>Die Prüfsummenliste enthält keinen Eintrag für %1.</translation>
    </message>
    <message>
        <source>The engine download did not match its official checksum, so it was discarded.</source>
        <translation>Die heruntergeladene Engine stimmt nicht mit ihrer offiziellen Prüfsumme überein und wurde deshalb verworfen.</translation>
    </message>
    <message>
        <source>The engine was unpacked but its program was not found.</source>
        <translation>Die Engine wurde entpackt, aber ihr Programm wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Invalid engine URL.</source>
        <translation>Die Adresse der Engine ist ungültig.</translation>
    </message>
    <message>
        <source>The server answered with HTTP %1 for %2.</source>
        <translation>Der Server hat auf die Anfrage nach %2 mit HTTP&#xa0;%1 geantwortet.</translation>
    </message>
    <message>
        <source>A part of the launcher, “%1”, cannot be loaded. Close the launcher and start it again, or install it again.</source>
        <translation>Der Teil „%1“ dieses Programms kann nicht geladen werden. Schließen Sie das Programm und starten Sie es neu oder installieren Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The downloaded game does not contain a project.godot file.</source>
        <translation>Das heruntergeladene Spiel enthält keine Datei project.godot.</translation>
    </message>
    <message>
        <source>The game folder was unpacked but project.godot was not found.</source>
        <translation>Der Ordner des Spiels wurde entpackt, aber project.godot wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Invalid game URL.</source>
        <translation>Die Adresse des Spiels ist ungültig.</translation>
    </message>
    <message>
        <source>Unzipping failed (ditto exit code %1).</source>
        <extracomment>Where there is no program named ditto, a translation speaks of unpacking only.</extracomment>
        <translation>Das Entpacken ist fehlgeschlagen (Exit-Code&#xa0;%1).</translation>
    </message>
    <message>
        <source>The Godot 3 engine is not available for this computer&apos;s processor (%1).</source>
        <extracomment>%1 is a kind of processor, such as &quot;arm64&quot;.</extracomment>
        <translation>Die Godot-3-Engine ist für den Prozessor dieses Rechners (%1) nicht verfügbar.</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>Needs something</source>
        <extracomment>The status after a failure: the player has to do something. The next line says what.</extracomment>
        <translation>Aktion erforderlich</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <extracomment>The status: the game is not downloaded yet.</extracomment>
        <translation>Nicht heruntergeladen</translation>
    </message>
    <message>
        <source>Downloading</source>
        <extracomment>The status: the launcher is downloading the game or its engine.</extracomment>
        <translation>Wird heruntergeladen</translation>
    </message>
    <message>
        <source>Setting up</source>
        <extracomment>The status: the launcher is preparing the game for its first start.</extracomment>
        <translation>Wird eingerichtet</translation>
    </message>
    <message>
        <source>Ready</source>
        <extracomment>The status: the game can be played.</extracomment>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Starting…</source>
        <extracomment>The status: the game is starting, or it is running.</extracomment>
        <translation>Wird gestartet&#xa0;…</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Downloads the game and the Godot engine once, about %1 MB for the engine plus the game&apos;s files. Nothing to type.</source>
        <translation>Das Spiel und die Godot-Engine werden einmalig heruntergeladen: etwa %1&#xa0;MB für die Engine und dazu die Dateien des Spiels. Sie müssen nichts eintippen.</translation>
    </message>
    <message>
        <source>Everything is installed. Press Play.</source>
        <translation>Alles ist installiert. Klicken Sie auf „Spielen“.</translation>
    </message>
    <message numerus="yes">
        <source>The game was launched. Waiting %n seconds to make sure it stays open.</source>
        <translation>
            <numerusform>Das Spiel wurde gestartet. Es wird %n&#xa0;Sekunde lang geprüft, ob es geöffnet bleibt.</numerusform>
            <numerusform>Das Spiel wurde gestartet. Es wird %n&#xa0;Sekunden lang geprüft, ob es geöffnet bleibt.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game is running in its own window.</source>
        <translation>Das Spiel läuft in einem eigenen Fenster.</translation>
    </message>
    <message>
        <source>The game is still running from an earlier start. Close it first.</source>
        <translation>Das Spiel läuft noch von einem früheren Start. Schließen Sie es zuerst.</translation>
    </message>
    <message>
        <source>The folder “%1” is on another disk than before. Connect that disk again, or try once more to use this one.</source>
        <translation>Der Ordner „%1“ liegt auf einem anderen Datenträger als zuvor. Schließen Sie den bisherigen wieder an oder versuchen Sie es noch einmal, um den jetzigen zu verwenden.</translation>
    </message>
    <message>
        <source>What happened: %1

Last log lines:
%2</source>
        <extracomment>%1 is a whole sentence, and %2 are lines of the log, most of them in English.</extracomment>
        <translation>Das ist passiert: %1

Die letzten Zeilen des Protokolls:
%2</translation>
    </message>
    <message>
        <source>Step 4 of 4 · Play</source>
        <translation>Schritt&#xa0;4 von&#xa0;4 · Spielen</translation>
    </message>
    <message>
        <source>Update the game?</source>
        <translation>Das Spiel aktualisieren?</translation>
    </message>
    <message>
        <source>The game is downloaded again from GitHub. Your save files are kept.</source>
        <translation>Das Spiel wird erneut von GitHub heruntergeladen. Ihre Spielstände bleiben erhalten.</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Reinstall everything?</source>
        <translation>Alles neu installieren?</translation>
    </message>
    <message>
        <source>The game and the engine are deleted and downloaded again. Your save files are kept.</source>
        <translation>Das Spiel und die Engine werden gelöscht und erneut heruntergeladen. Ihre Spielstände bleiben erhalten.</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Neu installieren</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees all downloaded files. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>Das heruntergeladene Spiel und die Engine werden gelöscht. Damit wird der Speicherplatz aller heruntergeladenen Dateien frei. Ihre Spielstände im Ordner von Godot bleiben unberührt.</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees %1. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>Das heruntergeladene Spiel und die Engine werden gelöscht. Damit werden %1 frei. Ihre Spielstände im Ordner von Godot bleiben unberührt.</translation>
    </message>
    <message>
        <source>Remove everything?</source>
        <extracomment>&quot;Remove&quot; is the button that answers the question.</extracomment>
        <translation>Alles entfernen?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Could not remove the files: %1</source>
        <extracomment>%1 is a whole sentence, such as &quot;Could not remove “file”: Permission denied.&quot;</extracomment>
        <translation>Die Dateien konnten nicht entfernt werden: %1</translation>
    </message>
    <message>
        <source>Quit and close the game?</source>
        <translation>Beenden und das Spiel schließen?</translation>
    </message>
    <message>
        <source>The game is still running. Quitting will close it.</source>
        <translation>Das Spiel läuft noch. Beim Beenden wird es geschlossen.</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Step 1 of 4 · Downloading the game</source>
        <extracomment>The name of a step, shown below the title &quot;Downloading&quot;.</extracomment>
        <translation>Schritt&#xa0;1 von&#xa0;4 · Das Spiel wird heruntergeladen</translation>
    </message>
    <message>
        <source>The downloaded folder has no readable project.godot.</source>
        <translation>Der heruntergeladene Ordner enthält keine lesbare Datei project.godot.</translation>
    </message>
    <message>
        <source>This game is made for Godot 4, but this app only knows how to install Godot 3.</source>
        <translation>Dieses Spiel ist für Godot&#xa0;4 gemacht, dieses Programm kann aber nur Godot&#xa0;3 installieren.</translation>
    </message>
    <message>
        <source>Step 2 of 4 · Downloading the Godot engine (%1)</source>
        <extracomment>%1 is a version, such as &quot;3.5.3-stable-mono&quot;.</extracomment>
        <translation>Schritt&#xa0;2 von&#xa0;4 · Die Godot-Engine (%1) wird heruntergeladen</translation>
    </message>
    <message>
        <source>The Godot engine is missing.</source>
        <translation>Die Godot-Engine fehlt.</translation>
    </message>
    <message>
        <source>Step 3 of 4 · First-time setup, this can take a minute or more</source>
        <translation>Schritt&#xa0;3 von&#xa0;4 · Ersteinrichtung, das kann eine Minute oder länger dauern</translation>
    </message>
    <message numerus="yes">
        <source>The first-time setup did not finish: %n game assets were not imported (engine exit code %1).</source>
        <translation>
            <numerusform>Die Ersteinrichtung wurde nicht abgeschlossen: %n&#xa0;Asset des Spiels wurde nicht importiert (Exit-Code der Engine: %1).</numerusform>
            <numerusform>Die Ersteinrichtung wurde nicht abgeschlossen: %n&#xa0;Assets des Spiels wurden nicht importiert (Exit-Code der Engine: %1).</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CavernyxPlatformerApp</name>
    <message>
        <source>%1 is already running, but does not answer. Close it first.</source>
        <translation>%1 läuft bereits, antwortet aber nicht. Beenden Sie zuerst das laufende Programm.</translation>
    </message>
    <message>
        <source>%1 is already running. Waiting for its answer…</source>
        <translation>%1 läuft bereits. Es wird auf eine Antwort gewartet&#xa0;…</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Settings…</source>
        <translation>Einstellungen&#xa0;…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>The button that opens the sheet about the launcher and its game.</extracomment>
        <translation>Info</translation>
    </message>
    <message>
        <source>Controls</source>
        <extracomment>The title above the keys and buttons that the game is played with.</extracomment>
        <translation>Steuerung</translation>
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
        <translation>%1 von %2 · %3</translation>
    </message>
</context>
<context>
    <name>FailureReport</name>
    <message>
        <source>Failure report</source>
        <extracomment>What a screen reader calls the box with the text of a failure.</extracomment>
        <translation>Fehlerbericht</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>The button that copies the text of a failure.</extracomment>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>GameFacts</name>
    <message>
        <source>A 2D grappling-hook adventure</source>
        <extracomment>Below the game&apos;s name. &quot;2D&quot;: seen from the side, with no depth.</extracomment>
        <translation>Ein 2D-Abenteuer mit Enterhaken</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What a player of the game does; the keys and buttons for it follow.</extracomment>
        <translation>Bewegen</translation>
    </message>
    <message>
        <source>A / D, or the left stick</source>
        <extracomment>A and D are keys of the keyboard, the stick is one of a game controller.</extracomment>
        <translation>A / D oder der linke Stick</translation>
    </message>
    <message>
        <source>Jump</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>Springen</translation>
    </message>
    <message>
        <source>Space or W, or the A button</source>
        <extracomment>Space and W are keys of the keyboard, A is a button of a game controller.</extracomment>
        <translation>Leertaste, W oder die A-Taste des Gamepads</translation>
    </message>
    <message>
        <source>Grappling hook</source>
        <extracomment>A hook on a rope, with which the player swings and pulls.</extracomment>
        <translation>Enterhaken</translation>
    </message>
    <message>
        <source>Left mouse button, or a shoulder button</source>
        <extracomment>The shoulder buttons of a game controller are those behind its front.</extracomment>
        <translation>Linke Maustaste oder eine Schultertaste</translation>
    </message>
    <message>
        <source>Aim</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>Zielen</translation>
    </message>
    <message>
        <source>Hold F, or use the right stick</source>
        <translation>F gedrückt halten oder den rechten Stick verwenden</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>What a player of the game does: begin again.</extracomment>
        <translation>Neu starten</translation>
    </message>
    <message>
        <source>Alt + R</source>
        <translation>Alt + R</translation>
    </message>
    <message>
        <source>The README has no controls list (see README); these come from the game&apos;s input settings.</source>
        <translation>Die README enthält keine Übersicht der Steuerung (siehe README); diese Angaben stammen aus den Eingabeeinstellungen des Spiels.</translation>
    </message>
    <message>
        <source>The game &quot;Snaglet!&quot; is made by Quennet and the Brindlework team, 2019, and is released under the MIT License. The game belongs to its author; this app is only a launcher that downloads it.</source>
        <translation>Das Spiel „Snaglet!“ wurde 2019 von Quennet und dem Brindlework-Team entwickelt und ist unter der MIT-Lizenz veröffentlicht. Das Spiel gehört seinem Urheber; dieses Programm ist nur ein Starter, der es herunterlädt.</translation>
    </message>
    <message>
        <source>Based on brindlework-demos/tetherwalk, MIT License.</source>
        <translation>Basiert auf brindlework-demos/tetherwalk, MIT-Lizenz.</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Copy log</source>
        <translation>Protokoll kopieren</translation>
    </message>
    <message>
        <source>Log</source>
        <extracomment>What a screen reader calls the box with the lines of the log.</extracomment>
        <translation>Protokoll</translation>
    </message>
</context>
<context>
    <name>PlatformError</name>
    <message>
        <source>The download of “%1” is %2 larger than what is free in “%3”. Make room there and try again.</source>
        <translation>Für den Download von „%1“ fehlen in „%3“ %2 freier Speicherplatz. Schaffen Sie dort Platz und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The download of “%1” takes up all that is free in “%2”, but for a reserve. Make room there and try again.</source>
        <translation>Der Download von „%1“ belegt den gesamten freien Speicherplatz in „%2“ bis auf eine Reserve. Schaffen Sie dort Platz und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Could not save “%1”</source>
        <translation>„%1“ konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected to “%2”, which is not one of GitHub&apos;s own secure servers, so it was stopped.</source>
        <translation>Der Download von „%1“ wurde zu „%2“ umgeleitet. Das ist keiner der sicheren Server von GitHub, deshalb wurde der Download abgebrochen.</translation>
    </message>
    <message>
        <source>The network library cannot be used.</source>
        <translation>Die Netzwerkbibliothek kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected too often, last to “%2”. Try again later.</source>
        <translation>Der Download von „%1“ wurde zu oft umgeleitet, zuletzt zu „%2“. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The certificate of “%1” is not yet valid. Check the date and time of this computer.</source>
        <translation>Das Zertifikat von „%1“ ist noch nicht gültig. Prüfen Sie Datum und Uhrzeit dieses Rechners.</translation>
    </message>
    <message>
        <source>The certificate of “%1” has expired. Check the date and time of this computer.</source>
        <translation>Das Zertifikat von „%1“ ist abgelaufen. Prüfen Sie Datum und Uhrzeit dieses Rechners.</translation>
    </message>
    <message>
        <source>The certificate of “%1” belongs to another server. Another network may help.</source>
        <translation>Das Zertifikat von „%1“ gehört zu einem anderen Server. Ein anderes Netzwerk kann helfen.</translation>
    </message>
    <message>
        <source>The certificate of “%1” cannot be trusted. Another network may help.</source>
        <translation>Dem Zertifikat von „%1“ kann nicht vertraut werden. Ein anderes Netzwerk kann helfen.</translation>
    </message>
    <message>
        <source>The proxy “%1” was not found. Check the proxy settings.</source>
        <translation>Der Proxy „%1“ wurde nicht gefunden. Prüfen Sie die Proxy-Einstellungen.</translation>
    </message>
    <message>
        <source>The proxy “%1” refused the connection (HTTP %2). Check the proxy settings.</source>
        <translation>Der Proxy „%1“ hat die Verbindung verweigert (HTTP&#xa0;%2). Prüfen Sie die Proxy-Einstellungen.</translation>
    </message>
    <message>
        <source>The proxy “%1” cannot be used. Check the proxy settings.</source>
        <translation>Der Proxy „%1“ kann nicht verwendet werden. Prüfen Sie die Proxy-Einstellungen.</translation>
    </message>
    <message>
        <source>The server “%1” was not found. Check the internet connection.</source>
        <translation>Der Server „%1“ wurde nicht gefunden. Prüfen Sie die Internetverbindung.</translation>
    </message>
    <message>
        <source>The server “%1” cannot be reached. Check the internet connection.</source>
        <translation>Der Server „%1“ ist nicht erreichbar. Prüfen Sie die Internetverbindung.</translation>
    </message>
    <message>
        <source>The certificates that this system trusts cannot be read. Install its package of certificates.</source>
        <translation>Die Zertifikate, denen dieses System vertraut, können nicht gelesen werden. Installieren Sie das Paket mit den Zertifikaten.</translation>
    </message>
    <message>
        <source>No secure connection to “%1” could be made. Another network may help.</source>
        <translation>Zu „%1“ konnte keine sichere Verbindung aufgebaut werden. Ein anderes Netzwerk kann helfen.</translation>
    </message>
    <message>
        <source>The connection to “%1” was lost. Check the internet connection and try again.</source>
        <translation>Die Verbindung zu „%1“ ist abgebrochen. Prüfen Sie die Internetverbindung und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>There is not enough memory. Close other programs and try again.</source>
        <translation>Es ist nicht genug Arbeitsspeicher frei. Schließen Sie andere Programme und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>“%1” sent an answer that is not understood. Try again later.</source>
        <translation>„%1“ hat eine unverständliche Antwort geschickt. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The transfer from “%1” failed. Try again later.</source>
        <translation>Die Übertragung von „%1“ ist fehlgeschlagen. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>Could not download “%1”</source>
        <translation>„%1“ konnte nicht heruntergeladen werden</translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: the proxy “%2” did not answer within %n seconds. Check the proxy settings and try again.</source>
        <translation>
            <numerusform>Der Download von „%1“ ist stehen geblieben: Der Proxy „%2“ hat nicht innerhalb von %n&#xa0;Sekunde geantwortet. Prüfen Sie die Proxy-Einstellungen und versuchen Sie es noch einmal.</numerusform>
            <numerusform>Der Download von „%1“ ist stehen geblieben: Der Proxy „%2“ hat nicht innerhalb von %n&#xa0;Sekunden geantwortet. Prüfen Sie die Proxy-Einstellungen und versuchen Sie es noch einmal.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 sent nothing for %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>Der Download von „%1“ ist stehen geblieben: %2 hat %n&#xa0;Sekunde lang nichts gesendet. Prüfen Sie die Internetverbindung und versuchen Sie es noch einmal.</numerusform>
            <numerusform>Der Download von „%1“ ist stehen geblieben: %2 hat %n&#xa0;Sekunden lang nichts gesendet. Prüfen Sie die Internetverbindung und versuchen Sie es noch einmal.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 did not answer within %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>Der Download von „%1“ ist stehen geblieben: %2 hat nicht innerhalb von %n&#xa0;Sekunde geantwortet. Prüfen Sie die Internetverbindung und versuchen Sie es noch einmal.</numerusform>
            <numerusform>Der Download von „%1“ ist stehen geblieben: %2 hat nicht innerhalb von %n&#xa0;Sekunden geantwortet. Prüfen Sie die Internetverbindung und versuchen Sie es noch einmal.</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not create the folder “%1”</source>
        <translation>Der Ordner „%1“ konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>Could not compute a SHA-512 checksum.</source>
        <translation>Eine SHA-512-Prüfsumme konnte nicht berechnet werden.</translation>
    </message>
    <message>
        <source>Could not create the temporary folder “%1”</source>
        <translation>Der temporäre Ordner „%1“ konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>Could not read the archive entry “%1”</source>
        <translation>Der Archiveintrag „%1“ konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>Could not read “%1”</source>
        <translation>„%1“ konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>Could not open the folder “%1”</source>
        <translation>Der Ordner „%1“ konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Could not create the link “%1”</source>
        <translation>Die Verknüpfung „%1“ konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>Could not change “%1”</source>
        <translation>„%1“ konnte nicht geändert werden</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Es ist keine Datei.</translation>
    </message>
    <message>
        <source>Could not replace “%1”</source>
        <translation>„%1“ konnte nicht ersetzt werden</translation>
    </message>
    <message>
        <source>Could not find your home folder: HOME is not set.</source>
        <translation>Ihr persönlicher Ordner konnte nicht gefunden werden: HOME ist nicht gesetzt.</translation>
    </message>
    <message>
        <source>Could not use the folder “%1”, because its name is not UTF-8.</source>
        <translation>Der Ordner „%1“ konnte nicht verwendet werden, weil sein Name nicht in UTF-8 kodiert ist.</translation>
    </message>
    <message>
        <source>Could not start “%1”</source>
        <translation>„%1“ konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>Could not create a pipe</source>
        <translation>Eine Pipe konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>Could not start a thread</source>
        <translation>Ein Thread konnte nicht gestartet werden</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it and try again.</source>
        <translation>Der Datenträger ist voll. Schaffen Sie dort Platz und versuchen Sie es noch einmal.</translation>
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
        <translation>„%1“ und „%2“ konnten nicht vertauscht werden</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”</source>
        <translation>„%1“ konnte nicht nach „%2“ verschoben werden</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”. What was there before is now at “%3”.</source>
        <translation>„%1“ konnte nicht nach „%2“ verschoben werden. Was sich bisher dort befand, liegt jetzt unter „%3“.</translation>
    </message>
    <message>
        <source>Could not remove “%1”</source>
        <translation>„%1“ konnte nicht entfernt werden</translation>
    </message>
    <message>
        <source>Could not open “%1”</source>
        <translation>„%1“ konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>The launcher is running a second time. Close the other one first.</source>
        <translation>Dieses Programm läuft ein zweites Mal. Schließen Sie zuerst das andere.</translation>
    </message>
    <message>
        <source>Could not lock “%1”, without which nothing is installed or removed</source>
        <translation>„%1“ konnte nicht gesperrt werden; ohne diese Sperre wird nichts installiert oder entfernt</translation>
    </message>
    <message>
        <source>Could not create “%1”</source>
        <translation>„%1“ konnte nicht angelegt werden</translation>
    </message>
    <message>
        <source>Could not write “%1”</source>
        <translation>„%1“ konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Could not write “%1” to the disk</source>
        <translation>„%1“ konnte nicht auf den Datenträger geschrieben werden</translation>
    </message>
    <message>
        <source>another file system is mounted there</source>
        <translation>Dort ist ein anderes Dateisystem eingehängt</translation>
    </message>
    <message>
        <source>it was moved meanwhile</source>
        <translation>Es wurde inzwischen verschoben</translation>
    </message>
</context>
<context>
    <name>PlayOutcome</name>
    <message numerus="yes">
        <source>The game closed after %n seconds (exit code %1), so it did not start properly.</source>
        <translation>
            <numerusform>Das Spiel wurde nach %n&#xa0;Sekunde beendet (Exit-Code&#xa0;%1), es ist also nicht richtig gestartet.</numerusform>
            <numerusform>Das Spiel wurde nach %n&#xa0;Sekunden beendet (Exit-Code&#xa0;%1), es ist also nicht richtig gestartet.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game stopped unexpectedly (exit code %1).</source>
        <translation>Das Spiel wurde unerwartet beendet (Exit-Code&#xa0;%1).</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Progress</source>
        <extracomment>What a screen reader calls the progress bar.</extracomment>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>The button that installs the game, if need be, and starts it.</extracomment>
        <translation>Spielen</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>The button that ends the running game.</extracomment>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>The button that cancels the download or the setup.</extracomment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>Protokoll anzeigen</translation>
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
        <translation>Vorgabe des Spiels</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Update the game</source>
        <translation>Spiel aktualisieren</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>Neu installieren</translation>
    </message>
    <message>
        <source>Show saves</source>
        <extracomment>Opens the folder in which the game keeps its saves.</extracomment>
        <translation>Spielstände anzeigen</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <extracomment>Opens the file browser at the installed files. The Finder is that of one system only; a translation speaks of the file manager.</extracomment>
        <translation>In der Dateiverwaltung anzeigen</translation>
    </message>
    <message>
        <source>Applies the next time you press Play.</source>
        <translation>Gilt, sobald Sie das nächste Mal auf „Spielen“ klicken.</translation>
    </message>
    <message>
        <source>Updating downloads the game again. Save files are kept; they live in Godot&apos;s own folder.</source>
        <translation>Beim Aktualisieren wird das Spiel erneut heruntergeladen. Spielstände bleiben erhalten; sie liegen im eigenen Ordner von Godot.</translation>
    </message>
    <message>
        <source>No saves yet (Godot&apos;s user folder does not exist).</source>
        <translation>Noch keine Spielstände (der Benutzerordner von Godot existiert nicht).</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>Whether the game runs in a window or on the whole screen.</extracomment>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Windowed</source>
        <translation>Im Fenster</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <extracomment>%1 is an amount, such as &quot;70.1 MB&quot;.</extracomment>
        <translation>Alles entfernen</translation>
    </message>
    <message>
        <source>Remove everything (frees %1)</source>
        <translation>Alles entfernen (gibt %1 frei)</translation>
    </message>
</context>
<context>
    <name>SetupMonitor</name>
    <message>
        <source>The game is being installed.</source>
        <translation>Das Spiel wird installiert.</translation>
    </message>
    <message>
        <source>The game is ready and starting.</source>
        <translation>Das Spiel ist bereit und wird gestartet.</translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Done</source>
        <extracomment>The button that closes a sheet.</extracomment>
        <translation>Fertig</translation>
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
        <translation>1&#xa0;Byte</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n&#xa0;Byte</numerusform>
            <numerusform>%n&#xa0;Byte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WidgetDesktop</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>Der Ordner konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>This desktop has no file browser. The folder is “%1”.</source>
        <extracomment>%1 is the path of a folder.</extracomment>
        <translation>Auf diesem Desktop gibt es keine Dateiverwaltung. Der Ordner ist „%1“.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
