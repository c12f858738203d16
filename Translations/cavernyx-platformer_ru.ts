<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>AboutView</name>
    <message>
        <source>About</source>
        <translation>О&#xa0;программе</translation>
    </message>
    <message>
        <source>The Godot engine is free software under the MIT License (godotengine.org). It is downloaded from the official godotengine/godot releases and checked against the published SHA-512 checksum.</source>
        <translation>Движок Godot — свободное программное обеспечение под лицензией MIT (godotengine.org). Он загружается из официальных выпусков godotengine/godot и проверяется по опубликованной контрольной сумме SHA-512.</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere except the two downloads (the game from GitHub and the engine from GitHub releases).</source>
        <translation>За исключением двух загрузок (игры с GitHub и движка из выпусков на GitHub), никакие данные никуда не отправляются.</translation>
    </message>
</context>
<context>
    <name>AppError</name>
    <message>
        <source>The engine checksum list is larger than %1 MiB, so it was not read.</source>
        <translation>Список контрольных сумм движка больше %1&#xa0;МиБ, поэтому он не был прочитан.</translation>
    </message>
    <message>
        <source>Could not read the engine checksum list (HTTP %1).</source>
        <translation>Не удалось прочитать список контрольных сумм движка (HTTP&#xa0;%1).</translation>
    </message>
    <message>
        <source>The checksum list has no entry for %1.</source>
        <translation>В списке контрольных сумм нет записи для %1.</translation>
    </message>
    <message>
        <source>The engine download did not match its official checksum, so it was discarded.</source>
        <translation>Загруженный движок не соответствует официальной контрольной сумме, поэтому он был удалён.</translation>
    </message>
    <message>
        <source>The engine was unpacked but its program was not found.</source>
        <translation>Движок распакован, но его программа не найдена.</translation>
    </message>
    <message>
        <source>Invalid engine URL.</source>
        <translation>Неверный адрес движка.</translation>
    </message>
    <message>
        <source>The server answered with HTTP %1 for %2.</source>
        <translation>Сервер ответил кодом HTTP&#xa0;%1 на запрос %2.</translation>
    </message>
    <message>
        <source>A part of the launcher, “%1”, cannot be loaded. Close the launcher and start it again, or install it again.</source>
        <translation>Не удалось загрузить «%1» — одну из частей программы. Закройте программу и запустите её снова либо установите её заново.</translation>
    </message>
    <message>
        <source>The downloaded game does not contain a project.godot file.</source>
        <translation>Загруженная игра не содержит файла project.godot.</translation>
    </message>
    <message>
        <source>The game folder was unpacked but project.godot was not found.</source>
        <translation>Папка игры распакована, но файл project.godot не найден.</translation>
    </message>
    <message>
        <source>Invalid game URL.</source>
        <translation>Неверный адрес игры.</translation>
    </message>
    <message>
        <source>Unzipping failed (ditto exit code %1).</source>
        <extracomment>Where there is no program named ditto, a translation speaks of unpacking only.</extracomment>
        <translation>Не удалось выполнить распаковку (код завершения&#xa0;%1).</translation>
    </message>
    <message>
        <source>The Godot 3 engine is not available for this computer&apos;s processor (%1).</source>
        <extracomment>%1 is a kind of processor, such as &quot;arm64&quot;.</extracomment>
        <translation>Движок Godot&#xa0;3 недоступен для процессора этого компьютера (%1).</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>Needs something</source>
        <extracomment>The status after a failure: the player has to do something. The next line says what.</extracomment>
        <translation>Требуется действие</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <extracomment>The status: the game is not downloaded yet.</extracomment>
        <translation>Не загружено</translation>
    </message>
    <message>
        <source>Downloading</source>
        <extracomment>The status: the launcher is downloading the game or its engine.</extracomment>
        <translation>Загрузка</translation>
    </message>
    <message>
        <source>Setting up</source>
        <extracomment>The status: the launcher is preparing the game for its first start.</extracomment>
        <translation>Подготовка</translation>
    </message>
    <message>
        <source>Ready</source>
        <extracomment>The status: the game can be played.</extracomment>
        <translation>Готово</translation>
    </message>
    <message>
        <source>Starting…</source>
        <extracomment>The status: the game is starting, or it is running.</extracomment>
        <translation>Запуск…</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Игра запущена</translation>
    </message>
    <message>
        <source>Downloads the game and the Godot engine once, about %1 MB for the engine plus the game&apos;s files. Nothing to type.</source>
        <translation>Игра и движок Godot загружаются один раз: около %1&#xa0;МБ для движка и файлы игры. Ничего вводить не нужно.</translation>
    </message>
    <message>
        <source>Everything is installed. Press Play.</source>
        <translation>Всё установлено. Нажмите «Играть».</translation>
    </message>
    <message numerus="yes">
        <source>The game was launched. Waiting %n seconds to make sure it stays open.</source>
        <translation>
            <numerusform>Игра запущена. В течение %n&#xa0;секунды проверяется, не закроется ли она.</numerusform>
            <numerusform>Игра запущена. В течение %n&#xa0;секунд проверяется, не закроется ли она.</numerusform>
            <numerusform>Игра запущена. В течение %n&#xa0;секунд проверяется, не закроется ли она.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game is running in its own window.</source>
        <translation>Игра работает в собственном окне.</translation>
    </message>
    <message>
        <source>The game is still running from an earlier start. Close it first.</source>
        <translation>Игра всё ещё работает с прошлого запуска. Сначала закройте её.</translation>
    </message>
    <message>
        <source>The folder “%1” is on another disk than before. Connect that disk again, or try once more to use this one.</source>
        <translation>Папка «%1» теперь находится на другом диске. Подключите прежний диск или повторите попытку, чтобы использовать нынешний.</translation>
    </message>
    <message>
        <source>What happened: %1

Last log lines:
%2</source>
        <extracomment>%1 is a whole sentence, and %2 are lines of the log, most of them in English.</extracomment>
        <translation>Что произошло: %1

Последние строки журнала:
%2</translation>
    </message>
    <message>
        <source>Step 4 of 4 · Play</source>
        <translation>Шаг&#xa0;4 из&#xa0;4 · Игра</translation>
    </message>
    <message>
        <source>Update the game?</source>
        <translation>Обновить игру?</translation>
    </message>
    <message>
        <source>The game is downloaded again from GitHub. Your save files are kept.</source>
        <translation>Игра будет заново загружена с GitHub. Ваши сохранения останутся.</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Reinstall everything?</source>
        <translation>Переустановить всё?</translation>
    </message>
    <message>
        <source>The game and the engine are deleted and downloaded again. Your save files are kept.</source>
        <translation>Игра и движок будут удалены и загружены заново. Ваши сохранения останутся.</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Переустановить</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees all downloaded files. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>Загруженные игра и движок будут удалены, и место, занятое всеми загруженными файлами, освободится. Ваши сохранения в папке Godot затронуты не будут.</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees %1. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>Загруженные игра и движок будут удалены, и освободится %1. Ваши сохранения в папке Godot затронуты не будут.</translation>
    </message>
    <message>
        <source>Remove everything?</source>
        <extracomment>&quot;Remove&quot; is the button that answers the question.</extracomment>
        <translation>Удалить всё?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Could not remove the files: %1</source>
        <extracomment>%1 is a whole sentence, such as &quot;Could not remove “file”: Permission denied.&quot;</extracomment>
        <translation>Не удалось удалить файлы: %1</translation>
    </message>
    <message>
        <source>Quit and close the game?</source>
        <translation>Выйти и закрыть игру?</translation>
    </message>
    <message>
        <source>The game is still running. Quitting will close it.</source>
        <translation>Игра ещё работает. При выходе она будет закрыта.</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Выйти</translation>
    </message>
    <message>
        <source>Step 1 of 4 · Downloading the game</source>
        <extracomment>The name of a step, shown below the title &quot;Downloading&quot;.</extracomment>
        <translation>Шаг&#xa0;1 из&#xa0;4 · Загрузка игры</translation>
    </message>
    <message>
        <source>The downloaded folder has no readable project.godot.</source>
        <translation>В загруженной папке нет читаемого файла project.godot.</translation>
    </message>
    <message>
        <source>This game is made for Godot 4, but this app only knows how to install Godot 3.</source>
        <translation>Эта игра создана для Godot&#xa0;4, а эта программа умеет устанавливать только Godot&#xa0;3.</translation>
    </message>
    <message>
        <source>Step 2 of 4 · Downloading the Godot engine (%1)</source>
        <extracomment>%1 is a version, such as &quot;3.5.3-stable-mono&quot;.</extracomment>
        <translation>Шаг&#xa0;2 из&#xa0;4 · Загрузка движка Godot (%1)</translation>
    </message>
    <message>
        <source>The Godot engine is missing.</source>
        <translation>Движок Godot отсутствует.</translation>
    </message>
    <message>
        <source>Step 3 of 4 · First-time setup, this can take a minute or more</source>
        <translation>Шаг&#xa0;3 из&#xa0;4 · Первоначальная подготовка, может занять минуту или больше</translation>
    </message>
    <message numerus="yes">
        <source>The first-time setup did not finish: %n game assets were not imported (engine exit code %1).</source>
        <translation>
            <numerusform>Первоначальная подготовка не завершена: не импортирован %n&#xa0;ресурс игры (код завершения движка: %1).</numerusform>
            <numerusform>Первоначальная подготовка не завершена: не импортировано %n&#xa0;ресурса игры (код завершения движка: %1).</numerusform>
            <numerusform>Первоначальная подготовка не завершена: не импортировано %n&#xa0;ресурсов игры (код завершения движка: %1).</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CavernyxPlatformerApp</name>
    <message>
        <source>%1 is already running, but does not answer. Close it first.</source>
        <translation>Программа %1 уже запущена, но не отвечает. Сначала закройте её.</translation>
    </message>
    <message>
        <source>%1 is already running. Waiting for its answer…</source>
        <translation>Программа %1 уже запущена. Ожидание ответа…</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Settings…</source>
        <translation>Параметры…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>The button that opens the sheet about the launcher and its game.</extracomment>
        <translation>О&#xa0;программе</translation>
    </message>
    <message>
        <source>Controls</source>
        <extracomment>The title above the keys and buttons that the game is played with.</extracomment>
        <translation>Управление</translation>
    </message>
</context>
<context>
    <name>DownloadProgress</name>
    <message>
        <source>%1/s</source>
        <extracomment>The rate of a download: %1 is an amount, such as &quot;3 MB&quot;.</extracomment>
        <translation>%1/с</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>What has been downloaded, and the rate: &quot;20.1 MB · 3 MB/s&quot;.</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 of %2 · %3</source>
        <extracomment>What of how much has been downloaded, and the rate: &quot;20.1 MB of 70.1 MB · 3 MB/s&quot;.</extracomment>
        <translation>%1 из %2 · %3</translation>
    </message>
</context>
<context>
    <name>FailureReport</name>
    <message>
        <source>Failure report</source>
        <extracomment>What a screen reader calls the box with the text of a failure.</extracomment>
        <translation>Отчёт о сбое</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>The button that copies the text of a failure.</extracomment>
        <translation>Копировать</translation>
    </message>
</context>
<context>
    <name>GameFacts</name>
    <message>
        <source>A 2D grappling-hook adventure</source>
        <extracomment>Below the game&apos;s name. &quot;2D&quot;: seen from the side, with no depth.</extracomment>
        <translation>Двухмерное приключение с крюком-кошкой</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What a player of the game does; the keys and buttons for it follow.</extracomment>
        <translation>Движение</translation>
    </message>
    <message>
        <source>A / D, or the left stick</source>
        <extracomment>A and D are keys of the keyboard, the stick is one of a game controller.</extracomment>
        <translation>A / D или левый стик</translation>
    </message>
    <message>
        <source>Jump</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>Прыжок</translation>
    </message>
    <message>
        <source>Space or W, or the A button</source>
        <extracomment>Space and W are keys of the keyboard, A is a button of a game controller.</extracomment>
        <translation>Пробел или W либо кнопка A геймпада</translation>
    </message>
    <message>
        <source>Grappling hook</source>
        <extracomment>A hook on a rope, with which the player swings and pulls.</extracomment>
        <translation>Крюк-кошка</translation>
    </message>
    <message>
        <source>Left mouse button, or a shoulder button</source>
        <extracomment>The shoulder buttons of a game controller are those behind its front.</extracomment>
        <translation>Левая кнопка мыши или верхняя боковая кнопка геймпада</translation>
    </message>
    <message>
        <source>Aim</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>Прицеливание</translation>
    </message>
    <message>
        <source>Hold F, or use the right stick</source>
        <translation>Удерживать F или использовать правый стик</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>What a player of the game does: begin again.</extracomment>
        <translation>Начать заново</translation>
    </message>
    <message>
        <source>Alt + R</source>
        <translation>Alt + R</translation>
    </message>
    <message>
        <source>The README has no controls list (see README); these come from the game&apos;s input settings.</source>
        <translation>В файле README нет описания управления (см. README); эти сведения взяты из настроек ввода игры.</translation>
    </message>
    <message>
        <source>The game &quot;Snaglet!&quot; is made by Quennet and the Brindlework team, 2019, and is released under the MIT License. The game belongs to its author; this app is only a launcher that downloads it.</source>
        <translation>Игру «Snaglet!» создали Quennet и команда Brindlework в 2019&#xa0;году; она выпущена под лицензией MIT. Игра принадлежит её автору; эта программа лишь загружает и запускает её.</translation>
    </message>
    <message>
        <source>Based on brindlework-demos/tetherwalk, MIT License.</source>
        <translation>Основано на brindlework-demos/tetherwalk, лицензия MIT.</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Copy log</source>
        <translation>Копировать журнал</translation>
    </message>
    <message>
        <source>Log</source>
        <extracomment>What a screen reader calls the box with the lines of the log.</extracomment>
        <translation>Журнал</translation>
    </message>
</context>
<context>
    <name>PlatformError</name>
    <message>
        <source>The download of “%1” is %2 larger than what is free in “%3”. Make room there and try again.</source>
        <translation>Для загрузки «%1» не хватает %2 свободного места в «%3». Освободите там место и повторите попытку.</translation>
    </message>
    <message>
        <source>The download of “%1” takes up all that is free in “%2”, but for a reserve. Make room there and try again.</source>
        <translation>Загрузка «%1» занимает всё свободное место в «%2», кроме резерва. Освободите там место и повторите попытку.</translation>
    </message>
    <message>
        <source>Could not save “%1”</source>
        <translation>Не удалось сохранить «%1»</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected to “%2”, which is not one of GitHub&apos;s own secure servers, so it was stopped.</source>
        <translation>Загрузка «%1» была перенаправлена на «%2», который не относится к собственным защищённым серверам GitHub, поэтому она была остановлена.</translation>
    </message>
    <message>
        <source>The network library cannot be used.</source>
        <translation>Не удаётся использовать сетевую библиотеку.</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected too often, last to “%2”. Try again later.</source>
        <translation>Загрузка «%1» была перенаправлена слишком много раз, последний раз на «%2». Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The certificate of “%1” is not yet valid. Check the date and time of this computer.</source>
        <translation>Сертификат «%1» ещё не действует. Проверьте дату и время на этом компьютере.</translation>
    </message>
    <message>
        <source>The certificate of “%1” has expired. Check the date and time of this computer.</source>
        <translation>Срок действия сертификата «%1» истёк. Проверьте дату и время на этом компьютере.</translation>
    </message>
    <message>
        <source>The certificate of “%1” belongs to another server. Another network may help.</source>
        <translation>Сертификат «%1» принадлежит другому серверу. Возможно, поможет другая сеть.</translation>
    </message>
    <message>
        <source>The certificate of “%1” cannot be trusted. Another network may help.</source>
        <translation>Сертификату «%1» нельзя доверять. Возможно, поможет другая сеть.</translation>
    </message>
    <message>
        <source>The proxy “%1” was not found. Check the proxy settings.</source>
        <translation>Прокси-сервер «%1» не найден. Проверьте параметры прокси-сервера.</translation>
    </message>
    <message>
        <source>The proxy “%1” refused the connection (HTTP %2). Check the proxy settings.</source>
        <translation>Прокси-сервер «%1» отклонил соединение (HTTP&#xa0;%2). Проверьте параметры прокси-сервера.</translation>
    </message>
    <message>
        <source>The proxy “%1” cannot be used. Check the proxy settings.</source>
        <translation>Не удаётся использовать прокси-сервер «%1». Проверьте параметры прокси-сервера.</translation>
    </message>
    <message>
        <source>The server “%1” was not found. Check the internet connection.</source>
        <translation>Сервер «%1» не найден. Проверьте подключение к Интернету.</translation>
    </message>
    <message>
        <source>The server “%1” cannot be reached. Check the internet connection.</source>
        <translation>Сервер «%1» недоступен. Проверьте подключение к Интернету.</translation>
    </message>
    <message>
        <source>The certificates that this system trusts cannot be read. Install its package of certificates.</source>
        <translation>Не удалось прочитать сертификаты, которым доверяет эта система. Установите пакет с сертификатами.</translation>
    </message>
    <message>
        <source>No secure connection to “%1” could be made. Another network may help.</source>
        <translation>Не удалось установить защищённое соединение с «%1». Возможно, поможет другая сеть.</translation>
    </message>
    <message>
        <source>The connection to “%1” was lost. Check the internet connection and try again.</source>
        <translation>Соединение с «%1» потеряно. Проверьте подключение к Интернету и повторите попытку.</translation>
    </message>
    <message>
        <source>There is not enough memory. Close other programs and try again.</source>
        <translation>Недостаточно памяти. Закройте другие программы и повторите попытку.</translation>
    </message>
    <message>
        <source>“%1” sent an answer that is not understood. Try again later.</source>
        <translation>Сервер «%1» отправил непонятный ответ. Повторите попытку позже.</translation>
    </message>
    <message>
        <source>The transfer from “%1” failed. Try again later.</source>
        <translation>Не удалось выполнить передачу данных с сервера «%1». Повторите попытку позже.</translation>
    </message>
    <message>
        <source>Could not download “%1”</source>
        <translation>Не удалось загрузить «%1»</translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: the proxy “%2” did not answer within %n seconds. Check the proxy settings and try again.</source>
        <translation>
            <numerusform>Загрузка «%1» остановилась: прокси-сервер «%2» не ответил в течение %n&#xa0;секунды. Проверьте параметры прокси-сервера и повторите попытку.</numerusform>
            <numerusform>Загрузка «%1» остановилась: прокси-сервер «%2» не ответил в течение %n&#xa0;секунд. Проверьте параметры прокси-сервера и повторите попытку.</numerusform>
            <numerusform>Загрузка «%1» остановилась: прокси-сервер «%2» не ответил в течение %n&#xa0;секунд. Проверьте параметры прокси-сервера и повторите попытку.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 sent nothing for %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>Загрузка «%1» остановилась: сервер %2 ничего не отправлял в течение %n&#xa0;секунды. Проверьте подключение к Интернету и повторите попытку.</numerusform>
            <numerusform>Загрузка «%1» остановилась: сервер %2 ничего не отправлял в течение %n&#xa0;секунд. Проверьте подключение к Интернету и повторите попытку.</numerusform>
            <numerusform>Загрузка «%1» остановилась: сервер %2 ничего не отправлял в течение %n&#xa0;секунд. Проверьте подключение к Интернету и повторите попытку.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 did not answer within %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>Загрузка «%1» остановилась: сервер %2 не ответил в течение %n&#xa0;секунды. Проверьте подключение к Интернету и повторите попытку.</numerusform>
            <numerusform>Загрузка «%1» остановилась: сервер %2 не ответил в течение %n&#xa0;секунд. Проверьте подключение к Интернету и повторите попытку.</numerusform>
            <numerusform>Загрузка «%1» остановилась: сервер %2 не ответил в течение %n&#xa0;секунд. Проверьте подключение к Интернету и повторите попытку.</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not create the folder “%1”</source>
        <translation>Не удалось создать папку «%1»</translation>
    </message>
    <message>
        <source>Could not compute a SHA-512 checksum.</source>
        <translation>Не удалось вычислить контрольную сумму SHA-512.</translation>
    </message>
    <message>
        <source>Could not create the temporary folder “%1”</source>
        <translation>Не удалось создать временную папку «%1»</translation>
    </message>
    <message>
        <source>Could not read the archive entry “%1”</source>
        <translation>Не удалось прочитать элемент архива «%1»</translation>
    </message>
    <message>
        <source>Could not read “%1”</source>
        <translation>Не удалось прочитать «%1»</translation>
    </message>
    <message>
        <source>Could not open the folder “%1”</source>
        <translation>Не удалось открыть папку «%1»</translation>
    </message>
    <message>
        <source>Could not create the link “%1”</source>
        <translation>Не удалось создать ссылку «%1»</translation>
    </message>
    <message>
        <source>Could not change “%1”</source>
        <translation>Не удалось изменить «%1»</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Это не файл.</translation>
    </message>
    <message>
        <source>Could not replace “%1”</source>
        <translation>Не удалось заменить «%1»</translation>
    </message>
    <message>
        <source>Could not find your home folder: HOME is not set.</source>
        <translation>Не удалось найти домашнюю папку: переменная HOME не задана.</translation>
    </message>
    <message>
        <source>Could not use the folder “%1”, because its name is not UTF-8.</source>
        <translation>Не удалось использовать папку «%1», потому что её имя записано не в UTF-8.</translation>
    </message>
    <message>
        <source>Could not start “%1”</source>
        <translation>Не удалось запустить «%1»</translation>
    </message>
    <message>
        <source>Could not create a pipe</source>
        <translation>Не удалось создать канал</translation>
    </message>
    <message>
        <source>Could not start a thread</source>
        <translation>Не удалось запустить поток</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it and try again.</source>
        <translation>Диск заполнен. Освободите на нём место и повторите попытку.</translation>
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
        <translation>Не удалось поменять местами «%1» и «%2»</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”</source>
        <translation>Не удалось переместить «%1» в «%2»</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”. What was there before is now at “%3”.</source>
        <translation>Не удалось переместить «%1» в «%2». То, что было там раньше, теперь находится в «%3».</translation>
    </message>
    <message>
        <source>Could not remove “%1”</source>
        <translation>Не удалось удалить «%1»</translation>
    </message>
    <message>
        <source>Could not open “%1”</source>
        <translation>Не удалось открыть «%1»</translation>
    </message>
    <message>
        <source>The launcher is running a second time. Close the other one first.</source>
        <translation>Программа запущена второй раз. Сначала закройте другой её экземпляр.</translation>
    </message>
    <message>
        <source>Could not lock “%1”, without which nothing is installed or removed</source>
        <translation>Не удалось заблокировать «%1», а без этого ничего не устанавливается и не удаляется</translation>
    </message>
    <message>
        <source>Could not create “%1”</source>
        <translation>Не удалось создать «%1»</translation>
    </message>
    <message>
        <source>Could not write “%1”</source>
        <translation>Не удалось записать «%1»</translation>
    </message>
    <message>
        <source>Could not write “%1” to the disk</source>
        <translation>Не удалось записать «%1» на диск</translation>
    </message>
    <message>
        <source>another file system is mounted there</source>
        <translation>там смонтирована другая файловая система</translation>
    </message>
    <message>
        <source>it was moved meanwhile</source>
        <translation>за это время объект был перемещён</translation>
    </message>
</context>
<context>
    <name>PlayOutcome</name>
    <message numerus="yes">
        <source>The game closed after %n seconds (exit code %1), so it did not start properly.</source>
        <translation>
            <numerusform>Игра закрылась через %n&#xa0;секунду (код завершения&#xa0;%1), то есть не запустилась как следует.</numerusform>
            <numerusform>Игра закрылась через %n&#xa0;секунды (код завершения&#xa0;%1), то есть не запустилась как следует.</numerusform>
            <numerusform>Игра закрылась через %n&#xa0;секунд (код завершения&#xa0;%1), то есть не запустилась как следует.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game stopped unexpectedly (exit code %1).</source>
        <translation>Игра неожиданно завершила работу (код завершения&#xa0;%1).</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Progress</source>
        <extracomment>What a screen reader calls the progress bar.</extracomment>
        <translation>Ход выполнения</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>The button that installs the game, if need be, and starts it.</extracomment>
        <translation>Играть</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>The button that ends the running game.</extracomment>
        <translation>Остановить</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>The button that cancels the download or the setup.</extracomment>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>Показать журнал</translation>
    </message>
    <message>
        <source>Status: %1 – %2</source>
        <extracomment>What a screen reader says of the coloured dot: a status, and a sentence about it.</extracomment>
        <translation>Состояние: %1 — %2</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Game default</source>
        <extracomment>Among resolutions: the one that the game comes with.</extracomment>
        <translation>Как в игре</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Параметры</translation>
    </message>
    <message>
        <source>Update the game</source>
        <translation>Обновить игру</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>Переустановить</translation>
    </message>
    <message>
        <source>Show saves</source>
        <extracomment>Opens the folder in which the game keeps its saves.</extracomment>
        <translation>Показать сохранения</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <extracomment>Opens the file browser at the installed files. The Finder is that of one system only; a translation speaks of the file manager.</extracomment>
        <translation>Показать в диспетчере файлов</translation>
    </message>
    <message>
        <source>Applies the next time you press Play.</source>
        <translation>Применяется при следующем нажатии «Играть».</translation>
    </message>
    <message>
        <source>Updating downloads the game again. Save files are kept; they live in Godot&apos;s own folder.</source>
        <translation>При обновлении игра загружается заново. Сохранения остаются; они хранятся в собственной папке Godot.</translation>
    </message>
    <message>
        <source>No saves yet (Godot&apos;s user folder does not exist).</source>
        <translation>Сохранений пока нет (папка пользователя Godot не существует).</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>Whether the game runs in a window or on the whole screen.</extracomment>
        <translation>Окно</translation>
    </message>
    <message>
        <source>Windowed</source>
        <translation>В окне</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Полный экран</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Разрешение</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <extracomment>%1 is an amount, such as &quot;70.1 MB&quot;.</extracomment>
        <translation>Удалить всё</translation>
    </message>
    <message>
        <source>Remove everything (frees %1)</source>
        <translation>Удалить всё (освободит %1)</translation>
    </message>
</context>
<context>
    <name>SetupMonitor</name>
    <message>
        <source>The game is being installed.</source>
        <translation>Игра устанавливается.</translation>
    </message>
    <message>
        <source>The game is ready and starting.</source>
        <translation>Игра готова и запускается.</translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Done</source>
        <extracomment>The button that closes a sheet.</extracomment>
        <translation>Готово</translation>
    </message>
</context>
<context>
    <name>Unit</name>
    <message>
        <source>%1 KB</source>
        <extracomment>Kilobytes: 1000 bytes, as the desktop&apos;s file manager writes it.</extracomment>
        <translation>%1&#xa0;кБ</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;МБ</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;ГБ</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1&#xa0;ТБ</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1&#xa0;ПБ</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>0&#xa0;кБ</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1&#xa0;байт</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n&#xa0;байт</numerusform>
            <numerusform>%n&#xa0;байта</numerusform>
            <numerusform>%n&#xa0;байт</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WidgetDesktop</name>
    <message>
        <source>Cancel</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>Не удалось открыть папку.</translation>
    </message>
    <message>
        <source>This desktop has no file browser. The folder is “%1”.</source>
        <extracomment>%1 is the path of a folder.</extracomment>
        <translation>В этой среде нет диспетчера файлов. Папка: «%1».</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
