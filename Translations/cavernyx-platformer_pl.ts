<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>AboutView</name>
    <message>
        <source>About</source>
        <translation>O&#xa0;programie</translation>
    </message>
    <message>
        <source>The Godot engine is free software under the MIT License (godotengine.org). It is downloaded from the official godotengine/godot releases and checked against the published SHA-512 checksum.</source>
        <translation>Silnik Godot jest wolnym oprogramowaniem na licencji MIT (godotengine.org). Jest pobierany z&#xa0;oficjalnych wydań godotengine/godot i&#xa0;weryfikowany za pomocą opublikowanej sumy kontrolnej SHA-512.</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere except the two downloads (the game from GitHub and the engine from GitHub releases).</source>
        <translation>Poza dwoma pobraniami (gry z&#xa0;GitHuba i&#xa0;silnika z&#xa0;wydań w&#xa0;serwisie GitHub) żadne dane nie są nigdzie wysyłane.</translation>
    </message>
</context>
<context>
    <name>AppError</name>
    <message>
        <source>The engine checksum list is larger than %1 MiB, so it was not read.</source>
        <translation>Lista sum kontrolnych silnika jest większa niż %1&#xa0;MiB, więc nie została odczytana.</translation>
    </message>
    <message>
        <source>Could not read the engine checksum list (HTTP %1).</source>
        <translation>Nie można odczytać listy sum kontrolnych silnika (HTTP&#xa0;%1).</translation>
    </message>
    <message>
        <source>The checksum list has no entry for %1.</source>
        <translation>Lista sum kontrolnych nie zawiera wpisu dla %1.</translation>
    </message>
    <message>
        <source>The engine download did not match its official checksum, so it was discarded.</source>
        <translation>Pobrany silnik nie zgadza się z&#xa0;oficjalną sumą kontrolną, więc został odrzucony.</translation>
    </message>
    <message>
        <source>The engine was unpacked but its program was not found.</source>
        <translation>Silnik został rozpakowany, ale nie odnaleziono jego programu.</translation>
    </message>
    <message>
        <source>Invalid engine URL.</source>
        <translation>Adres silnika jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>The server answered with HTTP %1 for %2.</source>
        <translation>Serwer odpowiedział kodem HTTP&#xa0;%1 na żądanie adresu %2.</translation>
    </message>
    <message>
        <source>A part of the launcher, “%1”, cannot be loaded. Close the launcher and start it again, or install it again.</source>
        <translation>Nie można wczytać „%1”, części tego programu. Zamknij program i&#xa0;uruchom go ponownie albo zainstaluj go jeszcze raz.</translation>
    </message>
    <message>
        <source>The downloaded game does not contain a project.godot file.</source>
        <translation>Pobrana gra nie zawiera pliku project.godot.</translation>
    </message>
    <message>
        <source>The game folder was unpacked but project.godot was not found.</source>
        <translation>Katalog gry został rozpakowany, ale nie odnaleziono w&#xa0;nim pliku project.godot.</translation>
    </message>
    <message>
        <source>Invalid game URL.</source>
        <translation>Adres gry jest nieprawidłowy.</translation>
    </message>
    <message>
        <source>Unzipping failed (ditto exit code %1).</source>
        <extracomment>Where there is no program named ditto, a translation speaks of unpacking only.</extracomment>
        <translation>Rozpakowanie się nie powiodło (kod wyjścia&#xa0;%1).</translation>
    </message>
    <message>
        <source>The Godot 3 engine is not available for this computer&apos;s processor (%1).</source>
        <extracomment>%1 is a kind of processor, such as &quot;arm64&quot;.</extracomment>
        <translation>Silnik Godot&#xa0;3 nie jest dostępny dla procesora tego komputera (%1).</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>Needs something</source>
        <extracomment>The status after a failure: the player has to do something. The next line says what.</extracomment>
        <translation>Wymagane działanie</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <extracomment>The status: the game is not downloaded yet.</extracomment>
        <translation>Nie pobrano</translation>
    </message>
    <message>
        <source>Downloading</source>
        <extracomment>The status: the launcher is downloading the game or its engine.</extracomment>
        <translation>Pobieranie</translation>
    </message>
    <message>
        <source>Setting up</source>
        <extracomment>The status: the launcher is preparing the game for its first start.</extracomment>
        <translation>Przygotowywanie</translation>
    </message>
    <message>
        <source>Ready</source>
        <extracomment>The status: the game can be played.</extracomment>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Starting…</source>
        <extracomment>The status: the game is starting, or it is running.</extracomment>
        <translation>Uruchamianie…</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Trwa gra</translation>
    </message>
    <message>
        <source>Downloads the game and the Godot engine once, about %1 MB for the engine plus the game&apos;s files. Nothing to type.</source>
        <translation>Gra i&#xa0;silnik Godot są pobierane jednorazowo: około %1&#xa0;MB silnika oraz pliki gry. Niczego nie trzeba wpisywać.</translation>
    </message>
    <message>
        <source>Everything is installed. Press Play.</source>
        <translation>Wszystko jest zainstalowane. Kliknij „Graj”.</translation>
    </message>
    <message numerus="yes">
        <source>The game was launched. Waiting %n seconds to make sure it stays open.</source>
        <translation>
            <numerusform>Gra została uruchomiona. Sprawdzanie przez %n&#xa0;sekundę, czy pozostanie otwarta.</numerusform>
            <numerusform>Gra została uruchomiona. Sprawdzanie przez %n&#xa0;sekundy, czy pozostanie otwarta.</numerusform>
            <numerusform>Gra została uruchomiona. Sprawdzanie przez %n&#xa0;sekund, czy pozostanie otwarta.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game is running in its own window.</source>
        <translation>Gra działa we własnym oknie.</translation>
    </message>
    <message>
        <source>The game is still running from an earlier start. Close it first.</source>
        <translation>Gra nadal działa od poprzedniego uruchomienia. Najpierw ją zamknij.</translation>
    </message>
    <message>
        <source>The folder “%1” is on another disk than before. Connect that disk again, or try once more to use this one.</source>
        <translation>Katalog „%1” znajduje się na innym dysku niż wcześniej. Podłącz ponownie poprzedni dysk albo spróbuj jeszcze raz, aby użyć obecnego.</translation>
    </message>
    <message>
        <source>What happened: %1

Last log lines:
%2</source>
        <extracomment>%1 is a whole sentence, and %2 are lines of the log, most of them in English.</extracomment>
        <translation>Co się stało: %1

Ostatnie wiersze dziennika:
%2</translation>
    </message>
    <message>
        <source>Step 4 of 4 · Play</source>
        <translation>Krok&#xa0;4 z&#xa0;4 · Gra</translation>
    </message>
    <message>
        <source>Update the game?</source>
        <translation>Zaktualizować grę?</translation>
    </message>
    <message>
        <source>The game is downloaded again from GitHub. Your save files are kept.</source>
        <translation>Gra zostanie ponownie pobrana z&#xa0;GitHuba. Zapisy gry zostaną zachowane.</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Zaktualizuj</translation>
    </message>
    <message>
        <source>Reinstall everything?</source>
        <translation>Zainstalować wszystko ponownie?</translation>
    </message>
    <message>
        <source>The game and the engine are deleted and downloaded again. Your save files are kept.</source>
        <translation>Gra i&#xa0;silnik zostaną usunięte i&#xa0;pobrane ponownie. Zapisy gry zostaną zachowane.</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Zainstaluj ponownie</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees all downloaded files. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>Pobrana gra i&#xa0;silnik zostaną usunięte, co zwolni miejsce po wszystkich pobranych plikach. Zapisy gry w&#xa0;katalogu Godota pozostaną nienaruszone.</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees %1. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>Pobrana gra i&#xa0;silnik zostaną usunięte, co zwolni %1. Zapisy gry w&#xa0;katalogu Godota pozostaną nienaruszone.</translation>
    </message>
    <message>
        <source>Remove everything?</source>
        <extracomment>&quot;Remove&quot; is the button that answers the question.</extracomment>
        <translation>Usunąć wszystko?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>Could not remove the files: %1</source>
        <extracomment>%1 is a whole sentence, such as &quot;Could not remove “file”: Permission denied.&quot;</extracomment>
        <translation>Nie można usunąć plików: %1</translation>
    </message>
    <message>
        <source>Quit and close the game?</source>
        <translation>Zakończyć program i&#xa0;zamknąć grę?</translation>
    </message>
    <message>
        <source>The game is still running. Quitting will close it.</source>
        <translation>Gra nadal działa. Zakończenie programu spowoduje jej zamknięcie.</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Step 1 of 4 · Downloading the game</source>
        <extracomment>The name of a step, shown below the title &quot;Downloading&quot;.</extracomment>
        <translation>Krok&#xa0;1 z&#xa0;4 · Pobieranie gry</translation>
    </message>
    <message>
        <source>The downloaded folder has no readable project.godot.</source>
        <translation>Pobrany katalog nie zawiera pliku project.godot, który można odczytać.</translation>
    </message>
    <message>
        <source>This game is made for Godot 4, but this app only knows how to install Godot 3.</source>
        <translation>Ta gra jest przeznaczona dla Godota&#xa0;4, ale ten program potrafi zainstalować tylko Godota&#xa0;3.</translation>
    </message>
    <message>
        <source>Step 2 of 4 · Downloading the Godot engine (%1)</source>
        <extracomment>%1 is a version, such as &quot;3.5.3-stable-mono&quot;.</extracomment>
        <translation>Krok&#xa0;2 z&#xa0;4 · Pobieranie silnika Godot (%1)</translation>
    </message>
    <message>
        <source>The Godot engine is missing.</source>
        <translation>Brak silnika Godot.</translation>
    </message>
    <message>
        <source>Step 3 of 4 · First-time setup, this can take a minute or more</source>
        <translation>Krok&#xa0;3 z&#xa0;4 · Wstępne przygotowanie, może potrwać minutę lub dłużej</translation>
    </message>
    <message numerus="yes">
        <source>The first-time setup did not finish: %n game assets were not imported (engine exit code %1).</source>
        <translation>
            <numerusform>Wstępne przygotowanie nie zostało ukończone: nie zaimportowano %n&#xa0;zasobu gry (kod wyjścia silnika: %1).</numerusform>
            <numerusform>Wstępne przygotowanie nie zostało ukończone: nie zaimportowano %n&#xa0;zasobów gry (kod wyjścia silnika: %1).</numerusform>
            <numerusform>Wstępne przygotowanie nie zostało ukończone: nie zaimportowano %n&#xa0;zasobów gry (kod wyjścia silnika: %1).</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CavernyxPlatformerApp</name>
    <message>
        <source>%1 is already running, but does not answer. Close it first.</source>
        <translation>Program %1 jest już uruchomiony, ale nie odpowiada. Najpierw go zamknij.</translation>
    </message>
    <message>
        <source>%1 is already running. Waiting for its answer…</source>
        <translation>Program %1 jest już uruchomiony. Oczekiwanie na odpowiedź…</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Settings…</source>
        <translation>Ustawienia…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>The button that opens the sheet about the launcher and its game.</extracomment>
        <translation>O&#xa0;programie</translation>
    </message>
    <message>
        <source>Controls</source>
        <extracomment>The title above the keys and buttons that the game is played with.</extracomment>
        <translation>Sterowanie</translation>
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
        <translation>%1 z&#xa0;%2 · %3</translation>
    </message>
</context>
<context>
    <name>FailureReport</name>
    <message>
        <source>Failure report</source>
        <extracomment>What a screen reader calls the box with the text of a failure.</extracomment>
        <translation>Raport o&#xa0;błędzie</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>The button that copies the text of a failure.</extracomment>
        <translation>Skopiuj</translation>
    </message>
</context>
<context>
    <name>GameFacts</name>
    <message>
        <source>A 2D grappling-hook adventure</source>
        <extracomment>Below the game&apos;s name. &quot;2D&quot;: seen from the side, with no depth.</extracomment>
        <translation>Dwuwymiarowa przygoda z&#xa0;hakiem na linie</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What a player of the game does; the keys and buttons for it follow.</extracomment>
        <translation>Ruch</translation>
    </message>
    <message>
        <source>A / D, or the left stick</source>
        <extracomment>A and D are keys of the keyboard, the stick is one of a game controller.</extracomment>
        <translation>A / D lub lewa gałka</translation>
    </message>
    <message>
        <source>Jump</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>Skok</translation>
    </message>
    <message>
        <source>Space or W, or the A button</source>
        <extracomment>Space and W are keys of the keyboard, A is a button of a game controller.</extracomment>
        <translation>Spacja lub W albo przycisk A pada</translation>
    </message>
    <message>
        <source>Grappling hook</source>
        <extracomment>A hook on a rope, with which the player swings and pulls.</extracomment>
        <translation>Hak na linie</translation>
    </message>
    <message>
        <source>Left mouse button, or a shoulder button</source>
        <extracomment>The shoulder buttons of a game controller are those behind its front.</extracomment>
        <translation>Lewy przycisk myszy lub górny przycisk boczny pada</translation>
    </message>
    <message>
        <source>Aim</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>Celowanie</translation>
    </message>
    <message>
        <source>Hold F, or use the right stick</source>
        <translation>Przytrzymaj F lub użyj prawej gałki</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>What a player of the game does: begin again.</extracomment>
        <translation>Od nowa</translation>
    </message>
    <message>
        <source>Alt + R</source>
        <translation>Alt + R</translation>
    </message>
    <message>
        <source>The README has no controls list (see README); these come from the game&apos;s input settings.</source>
        <translation>Plik README nie zawiera opisu sterowania (zobacz README); ten opis pochodzi z&#xa0;ustawień sterowania gry.</translation>
    </message>
    <message>
        <source>The game &quot;Snaglet!&quot; is made by Quennet and the Brindlework team, 2019, and is released under the MIT License. The game belongs to its author; this app is only a launcher that downloads it.</source>
        <translation>Grę „Snaglet!” stworzył w&#xa0;2019 roku Quennet wraz z&#xa0;zespołem Brindlework; jest wydana na licencji MIT. Gra należy do swojego autora; ten program jedynie ją pobiera i&#xa0;uruchamia.</translation>
    </message>
    <message>
        <source>Based on brindlework-demos/tetherwalk, MIT License.</source>
        <translation>Na podstawie brindlework-demos/tetherwalk, licencja MIT.</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Copy log</source>
        <translation>Skopiuj dziennik</translation>
    </message>
    <message>
        <source>Log</source>
        <extracomment>What a screen reader calls the box with the lines of the log.</extracomment>
        <translation>Dziennik</translation>
    </message>
</context>
<context>
    <name>PlatformError</name>
    <message>
        <source>The download of “%1” is %2 larger than what is free in “%3”. Make room there and try again.</source>
        <translation>Do pobrania „%1” brakuje %2 wolnego miejsca w&#xa0;„%3”. Zwolnij tam miejsce i&#xa0;spróbuj ponownie.</translation>
    </message>
    <message>
        <source>The download of “%1” takes up all that is free in “%2”, but for a reserve. Make room there and try again.</source>
        <translation>Pobieranie „%1” zajmuje całe wolne miejsce w&#xa0;„%2” z&#xa0;wyjątkiem rezerwy. Zwolnij tam miejsce i&#xa0;spróbuj ponownie.</translation>
    </message>
    <message>
        <source>Could not save “%1”</source>
        <translation>Nie można zapisać „%1”</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected to “%2”, which is not one of GitHub&apos;s own secure servers, so it was stopped.</source>
        <translation>Pobieranie „%1” zostało przekierowane pod adres „%2”, który nie należy do bezpiecznych serwerów GitHuba, więc je zatrzymano.</translation>
    </message>
    <message>
        <source>The network library cannot be used.</source>
        <translation>Nie można użyć biblioteki sieciowej.</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected too often, last to “%2”. Try again later.</source>
        <translation>Pobieranie „%1” zostało przekierowane zbyt wiele razy, ostatni raz do „%2”. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The certificate of “%1” is not yet valid. Check the date and time of this computer.</source>
        <translation>Certyfikat „%1” nie jest jeszcze ważny. Sprawdź datę i&#xa0;godzinę na tym komputerze.</translation>
    </message>
    <message>
        <source>The certificate of “%1” has expired. Check the date and time of this computer.</source>
        <translation>Certyfikat „%1” wygasł. Sprawdź datę i&#xa0;godzinę na tym komputerze.</translation>
    </message>
    <message>
        <source>The certificate of “%1” belongs to another server. Another network may help.</source>
        <translation>Certyfikat „%1” należy do innego serwera. Może pomóc inna sieć.</translation>
    </message>
    <message>
        <source>The certificate of “%1” cannot be trusted. Another network may help.</source>
        <translation>Certyfikat „%1” nie jest zaufany. Może pomóc inna sieć.</translation>
    </message>
    <message>
        <source>The proxy “%1” was not found. Check the proxy settings.</source>
        <translation>Nie odnaleziono serwera pośredniczącego „%1”. Sprawdź jego ustawienia.</translation>
    </message>
    <message>
        <source>The proxy “%1” refused the connection (HTTP %2). Check the proxy settings.</source>
        <translation>Serwer pośredniczący „%1” odrzucił połączenie (HTTP&#xa0;%2). Sprawdź jego ustawienia.</translation>
    </message>
    <message>
        <source>The proxy “%1” cannot be used. Check the proxy settings.</source>
        <translation>Nie można użyć serwera pośredniczącego „%1”. Sprawdź jego ustawienia.</translation>
    </message>
    <message>
        <source>The server “%1” was not found. Check the internet connection.</source>
        <translation>Nie odnaleziono serwera „%1”. Sprawdź połączenie z&#xa0;Internetem.</translation>
    </message>
    <message>
        <source>The server “%1” cannot be reached. Check the internet connection.</source>
        <translation>Serwer „%1” jest nieosiągalny. Sprawdź połączenie z&#xa0;Internetem.</translation>
    </message>
    <message>
        <source>The certificates that this system trusts cannot be read. Install its package of certificates.</source>
        <translation>Nie można odczytać certyfikatów, którym ufa ten system. Zainstaluj pakiet, który je zawiera.</translation>
    </message>
    <message>
        <source>No secure connection to “%1” could be made. Another network may help.</source>
        <translation>Nie można nawiązać bezpiecznego połączenia z&#xa0;„%1”. Może pomóc inna sieć.</translation>
    </message>
    <message>
        <source>The connection to “%1” was lost. Check the internet connection and try again.</source>
        <translation>Utracono połączenie z&#xa0;„%1”. Sprawdź połączenie z&#xa0;Internetem i&#xa0;spróbuj ponownie.</translation>
    </message>
    <message>
        <source>There is not enough memory. Close other programs and try again.</source>
        <translation>Brak wystarczającej ilości pamięci. Zamknij inne programy i&#xa0;spróbuj ponownie.</translation>
    </message>
    <message>
        <source>“%1” sent an answer that is not understood. Try again later.</source>
        <translation>Serwer „%1” wysłał niezrozumiałą odpowiedź. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>The transfer from “%1” failed. Try again later.</source>
        <translation>Przesyłanie z&#xa0;„%1” się nie powiodło. Spróbuj ponownie później.</translation>
    </message>
    <message>
        <source>Could not download “%1”</source>
        <translation>Nie można pobrać „%1”</translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: the proxy “%2” did not answer within %n seconds. Check the proxy settings and try again.</source>
        <translation>
            <numerusform>Pobieranie „%1” zatrzymało się: serwer pośredniczący „%2” nie odpowiedział w&#xa0;ciągu %n&#xa0;sekundy. Sprawdź jego ustawienia i&#xa0;spróbuj ponownie.</numerusform>
            <numerusform>Pobieranie „%1” zatrzymało się: serwer pośredniczący „%2” nie odpowiedział w&#xa0;ciągu %n&#xa0;sekund. Sprawdź jego ustawienia i&#xa0;spróbuj ponownie.</numerusform>
            <numerusform>Pobieranie „%1” zatrzymało się: serwer pośredniczący „%2” nie odpowiedział w&#xa0;ciągu %n&#xa0;sekund. Sprawdź jego ustawienia i&#xa0;spróbuj ponownie.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 sent nothing for %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>Pobieranie „%1” zatrzymało się: serwer %2 nic nie wysłał przez %n&#xa0;sekundę. Sprawdź połączenie z&#xa0;Internetem i&#xa0;spróbuj ponownie.</numerusform>
            <numerusform>Pobieranie „%1” zatrzymało się: serwer %2 nic nie wysłał przez %n&#xa0;sekundy. Sprawdź połączenie z&#xa0;Internetem i&#xa0;spróbuj ponownie.</numerusform>
            <numerusform>Pobieranie „%1” zatrzymało się: serwer %2 nic nie wysłał przez %n&#xa0;sekund. Sprawdź połączenie z&#xa0;Internetem i&#xa0;spróbuj ponownie.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 did not answer within %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>Pobieranie „%1” zatrzymało się: serwer %2 nie odpowiedział w&#xa0;ciągu %n&#xa0;sekundy. Sprawdź połączenie z&#xa0;Internetem i&#xa0;spróbuj ponownie.</numerusform>
            <numerusform>Pobieranie „%1” zatrzymało się: serwer %2 nie odpowiedział w&#xa0;ciągu %n&#xa0;sekund. Sprawdź połączenie z&#xa0;Internetem i&#xa0;spróbuj ponownie.</numerusform>
            <numerusform>Pobieranie „%1” zatrzymało się: serwer %2 nie odpowiedział w&#xa0;ciągu %n&#xa0;sekund. Sprawdź połączenie z&#xa0;Internetem i&#xa0;spróbuj ponownie.</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not create the folder “%1”</source>
        <translation>Nie można utworzyć katalogu „%1”</translation>
    </message>
    <message>
        <source>Could not compute a SHA-512 checksum.</source>
        <translation>Nie można obliczyć sumy kontrolnej SHA-512.</translation>
    </message>
    <message>
        <source>Could not create the temporary folder “%1”</source>
        <translation>Nie można utworzyć katalogu tymczasowego „%1”</translation>
    </message>
    <message>
        <source>Could not read the archive entry “%1”</source>
        <translation>Nie można odczytać elementu archiwum „%1”</translation>
    </message>
    <message>
        <source>Could not read “%1”</source>
        <translation>Nie można odczytać „%1”</translation>
    </message>
    <message>
        <source>Could not open the folder “%1”</source>
        <translation>Nie można otworzyć katalogu „%1”</translation>
    </message>
    <message>
        <source>Could not create the link “%1”</source>
        <translation>Nie można utworzyć odnośnika „%1”</translation>
    </message>
    <message>
        <source>Could not change “%1”</source>
        <translation>Nie można zmienić „%1”</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>To nie jest plik.</translation>
    </message>
    <message>
        <source>Could not replace “%1”</source>
        <translation>Nie można zastąpić „%1”</translation>
    </message>
    <message>
        <source>Could not find your home folder: HOME is not set.</source>
        <translation>Nie można odnaleźć katalogu domowego: zmienna HOME nie jest ustawiona.</translation>
    </message>
    <message>
        <source>Could not use the folder “%1”, because its name is not UTF-8.</source>
        <translation>Nie można użyć katalogu „%1”, ponieważ jego nazwa nie jest zapisana w&#xa0;UTF-8.</translation>
    </message>
    <message>
        <source>Could not start “%1”</source>
        <translation>Nie można uruchomić „%1”</translation>
    </message>
    <message>
        <source>Could not create a pipe</source>
        <translation>Nie można utworzyć potoku</translation>
    </message>
    <message>
        <source>Could not start a thread</source>
        <translation>Nie można uruchomić wątku</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it and try again.</source>
        <translation>Dysk jest pełny. Zwolnij na nim miejsce i&#xa0;spróbuj ponownie.</translation>
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
        <translation>Nie można zamienić miejscami „%1” i&#xa0;„%2”</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”</source>
        <translation>Nie można przenieść „%1” do „%2”</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”. What was there before is now at “%3”.</source>
        <translation>Nie można przenieść „%1” do „%2”. To, co było tam wcześniej, jest teraz pod ścieżką „%3”.</translation>
    </message>
    <message>
        <source>Could not remove “%1”</source>
        <translation>Nie można usunąć „%1”</translation>
    </message>
    <message>
        <source>Could not open “%1”</source>
        <translation>Nie można otworzyć „%1”</translation>
    </message>
    <message>
        <source>The launcher is running a second time. Close the other one first.</source>
        <translation>Ten program działa już w&#xa0;innym egzemplarzu. Najpierw zamknij tamten.</translation>
    </message>
    <message>
        <source>Could not lock “%1”, without which nothing is installed or removed</source>
        <translation>Nie można zablokować „%1”, a&#xa0;bez tego nic nie jest instalowane ani usuwane</translation>
    </message>
    <message>
        <source>Could not create “%1”</source>
        <translation>Nie można utworzyć „%1”</translation>
    </message>
    <message>
        <source>Could not write “%1”</source>
        <translation>Nie można zapisać „%1”</translation>
    </message>
    <message>
        <source>Could not write “%1” to the disk</source>
        <translation>Nie można zapisać „%1” na dysku</translation>
    </message>
    <message>
        <source>another file system is mounted there</source>
        <translation>jest tam zamontowany inny system plików</translation>
    </message>
    <message>
        <source>it was moved meanwhile</source>
        <translation>w&#xa0;międzyczasie element został przeniesiony</translation>
    </message>
</context>
<context>
    <name>PlayOutcome</name>
    <message numerus="yes">
        <source>The game closed after %n seconds (exit code %1), so it did not start properly.</source>
        <translation>
            <numerusform>Gra zamknęła się po %n&#xa0;sekundzie (kod wyjścia&#xa0;%1), więc nie uruchomiła się poprawnie.</numerusform>
            <numerusform>Gra zamknęła się po %n&#xa0;sekundach (kod wyjścia&#xa0;%1), więc nie uruchomiła się poprawnie.</numerusform>
            <numerusform>Gra zamknęła się po %n&#xa0;sekundach (kod wyjścia&#xa0;%1), więc nie uruchomiła się poprawnie.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game stopped unexpectedly (exit code %1).</source>
        <translation>Gra nieoczekiwanie zakończyła działanie (kod wyjścia&#xa0;%1).</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Progress</source>
        <extracomment>What a screen reader calls the progress bar.</extracomment>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>The button that installs the game, if need be, and starts it.</extracomment>
        <translation>Graj</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>The button that ends the running game.</extracomment>
        <translation>Zatrzymaj</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>The button that cancels the download or the setup.</extracomment>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>Wyświetl dziennik</translation>
    </message>
    <message>
        <source>Status: %1 – %2</source>
        <extracomment>What a screen reader says of the coloured dot: a status, and a sentence about it.</extracomment>
        <translation>Stan: %1 – %2</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Game default</source>
        <extracomment>Among resolutions: the one that the game comes with.</extracomment>
        <translation>Domyślna dla gry</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <source>Update the game</source>
        <translation>Zaktualizuj grę</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>Zainstaluj ponownie</translation>
    </message>
    <message>
        <source>Show saves</source>
        <extracomment>Opens the folder in which the game keeps its saves.</extracomment>
        <translation>Wyświetl zapisy gry</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <extracomment>Opens the file browser at the installed files. The Finder is that of one system only; a translation speaks of the file manager.</extracomment>
        <translation>Wyświetl w&#xa0;menedżerze plików</translation>
    </message>
    <message>
        <source>Applies the next time you press Play.</source>
        <translation>Zostanie zastosowane po następnym kliknięciu „Graj”.</translation>
    </message>
    <message>
        <source>Updating downloads the game again. Save files are kept; they live in Godot&apos;s own folder.</source>
        <translation>Aktualizacja ponownie pobiera grę. Zapisy gry są zachowywane; znajdują się we własnym katalogu Godota.</translation>
    </message>
    <message>
        <source>No saves yet (Godot&apos;s user folder does not exist).</source>
        <translation>Nie ma jeszcze zapisów gry (katalog użytkownika Godota nie istnieje).</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>Whether the game runs in a window or on the whole screen.</extracomment>
        <translation>Okno</translation>
    </message>
    <message>
        <source>Windowed</source>
        <translation>W&#xa0;oknie</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Pełny ekran</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Rozdzielczość</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <extracomment>%1 is an amount, such as &quot;70.1 MB&quot;.</extracomment>
        <translation>Usuń wszystko</translation>
    </message>
    <message>
        <source>Remove everything (frees %1)</source>
        <translation>Usuń wszystko (zwolni %1)</translation>
    </message>
</context>
<context>
    <name>SetupMonitor</name>
    <message>
        <source>The game is being installed.</source>
        <translation>Trwa instalowanie gry.</translation>
    </message>
    <message>
        <source>The game is ready and starting.</source>
        <translation>Gra jest gotowa i&#xa0;się uruchamia.</translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Done</source>
        <extracomment>The button that closes a sheet.</extracomment>
        <translation>Gotowe</translation>
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
        <translation>1&#xa0;bajt</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n&#xa0;bajt</numerusform>
            <numerusform>%n&#xa0;bajty</numerusform>
            <numerusform>%n&#xa0;bajtów</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WidgetDesktop</name>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>Nie można otworzyć katalogu.</translation>
    </message>
    <message>
        <source>This desktop has no file browser. The folder is “%1”.</source>
        <extracomment>%1 is the path of a folder.</extracomment>
        <translation>To środowisko nie ma menedżera plików. Katalog to „%1”.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
