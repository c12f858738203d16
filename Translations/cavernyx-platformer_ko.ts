<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name>AboutView</name>
    <message>
        <source>About</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>The Godot engine is free software under the MIT License (godotengine.org). It is downloaded from the official godotengine/godot releases and checked against the published SHA-512 checksum.</source>
        <translation>Godot 엔진은 MIT 라이선스로 배포되는 자유 소프트웨어입니다(godotengine.org). godotengine/godot 공식 릴리스에서 내려받아, 공개된 SHA-512 체크섬으로 검사합니다.</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere except the two downloads (the game from GitHub and the engine from GitHub releases).</source>
        <translation>두 번의 다운로드(GitHub의 게임과 GitHub 릴리스의 엔진)를 제외하면 어디로도 아무것도 보내지 않습니다.</translation>
    </message>
</context>
<context>
    <name>AppError</name>
    <message>
        <source>The engine checksum list is larger than %1 MiB, so it was not read.</source>
        <translation>엔진 체크섬 목록이 %1&#xa0;MiB보다 커서 읽지 않았습니다.</translation>
    </message>
    <message>
        <source>Could not read the engine checksum list (HTTP %1).</source>
        <translation>엔진 체크섬 목록을 읽을 수 없습니다(HTTP&#xa0;%1).</translation>
    </message>
    <message>
        <source>The checksum list has no entry for %1.</source>
        <translation>체크섬 목록에 %1 항목이 없습니다.</translation>
    </message>
    <message>
        <source>The engine download did not match its official checksum, so it was discarded.</source>
        <translation>내려받은 엔진이 공식 체크섬과 일치하지 않아 폐기했습니다.</translation>
    </message>
    <message>
        <source>The engine was unpacked but its program was not found.</source>
        <translation>엔진의 압축을 풀었지만 실행 프로그램을 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Invalid engine URL.</source>
        <translation>엔진 주소가 잘못되었습니다.</translation>
    </message>
    <message>
        <source>The server answered with HTTP %1 for %2.</source>
        <translation>서버가 %2 요청에 HTTP&#xa0;%1 응답을 보냈습니다.</translation>
    </message>
    <message>
        <source>A part of the launcher, “%1”, cannot be loaded. Close the launcher and start it again, or install it again.</source>
        <translation>런처의 일부인 “%1” 파일을 불러올 수 없습니다. 런처를 닫았다가 다시 시작하거나 다시 설치하십시오.</translation>
    </message>
    <message>
        <source>The downloaded game does not contain a project.godot file.</source>
        <translation>내려받은 게임에 project.godot 파일이 없습니다.</translation>
    </message>
    <message>
        <source>The game folder was unpacked but project.godot was not found.</source>
        <translation>게임 폴더의 압축을 풀었지만 project.godot 파일을 찾을 수 없습니다.</translation>
    </message>
    <message>
        <source>Invalid game URL.</source>
        <translation>게임 주소가 잘못되었습니다.</translation>
    </message>
    <message>
        <source>Unzipping failed (ditto exit code %1).</source>
        <extracomment>Where there is no program named ditto, a translation speaks of unpacking only.</extracomment>
        <translation>압축을 풀지 못했습니다(종료 코드 %1).</translation>
    </message>
    <message>
        <source>The Godot 3 engine is not available for this computer&apos;s processor (%1).</source>
        <extracomment>%1 is a kind of processor, such as &quot;arm64&quot;.</extracomment>
        <translation>Godot 3 엔진은 이 컴퓨터의 프로세서(%1)를 지원하지 않습니다.</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>Needs something</source>
        <extracomment>The status after a failure: the player has to do something. The next line says what.</extracomment>
        <translation>조치 필요</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <extracomment>The status: the game is not downloaded yet.</extracomment>
        <translation>내려받지 않음</translation>
    </message>
    <message>
        <source>Downloading</source>
        <extracomment>The status: the launcher is downloading the game or its engine.</extracomment>
        <translation>내려받는 중</translation>
    </message>
    <message>
        <source>Setting up</source>
        <extracomment>The status: the launcher is preparing the game for its first start.</extracomment>
        <translation>준비하는 중</translation>
    </message>
    <message>
        <source>Ready</source>
        <extracomment>The status: the game can be played.</extracomment>
        <translation>준비됨</translation>
    </message>
    <message>
        <source>Starting…</source>
        <extracomment>The status: the game is starting, or it is running.</extracomment>
        <translation>시작하는 중…</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>플레이 중</translation>
    </message>
    <message>
        <source>Downloads the game and the Godot engine once, about %1 MB for the engine plus the game&apos;s files. Nothing to type.</source>
        <translation>게임과 Godot 엔진을 한 번만 내려받습니다. 엔진은 약 %1&#xa0;MB이고, 게임 파일이 추가됩니다. 아무것도 입력할 필요가 없습니다.</translation>
    </message>
    <message>
        <source>Everything is installed. Press Play.</source>
        <translation>모두 설치되었습니다. “플레이”를 누르십시오.</translation>
    </message>
    <message numerus="yes">
        <source>The game was launched. Waiting %n seconds to make sure it stays open.</source>
        <translation>
            <numerusform>게임을 실행했습니다. 계속 열려 있는지 %n초 동안 확인하고 있습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game is running in its own window.</source>
        <translation>게임이 별도의 창에서 실행 중입니다.</translation>
    </message>
    <message>
        <source>The game is still running from an earlier start. Close it first.</source>
        <translation>이전에 시작한 게임이 아직 실행 중입니다. 먼저 게임을 닫으십시오.</translation>
    </message>
    <message>
        <source>The folder “%1” is on another disk than before. Connect that disk again, or try once more to use this one.</source>
        <translation>“%1” 폴더가 이전과 다른 디스크에 있습니다. 이전 디스크를 다시 연결하거나, 지금 디스크를 사용하려면 한 번 더 시도하십시오.</translation>
    </message>
    <message>
        <source>What happened: %1

Last log lines:
%2</source>
        <extracomment>%1 is a whole sentence, and %2 are lines of the log, most of them in English.</extracomment>
        <translation>문제 내용: %1

마지막 로그:
%2</translation>
    </message>
    <message>
        <source>Step 4 of 4 · Play</source>
        <translation>4단계 중 4단계 · 플레이</translation>
    </message>
    <message>
        <source>Update the game?</source>
        <translation>게임을 업데이트하시겠습니까?</translation>
    </message>
    <message>
        <source>The game is downloaded again from GitHub. Your save files are kept.</source>
        <translation>GitHub에서 게임을 다시 내려받습니다. 저장 파일은 유지됩니다.</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>Reinstall everything?</source>
        <translation>모두 다시 설치하시겠습니까?</translation>
    </message>
    <message>
        <source>The game and the engine are deleted and downloaded again. Your save files are kept.</source>
        <translation>게임과 엔진을 삭제하고 다시 내려받습니다. 저장 파일은 유지됩니다.</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>다시 설치</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees all downloaded files. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>내려받은 게임과 엔진을 삭제하고, 내려받은 모든 파일의 공간을 확보합니다. Godot 폴더에 있는 저장 파일은 그대로 둡니다.</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees %1. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>내려받은 게임과 엔진을 삭제하고 %1의 공간을 확보합니다. Godot 폴더에 있는 저장 파일은 그대로 둡니다.</translation>
    </message>
    <message>
        <source>Remove everything?</source>
        <extracomment>&quot;Remove&quot; is the button that answers the question.</extracomment>
        <translation>모두 제거하시겠습니까?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message>
        <source>Could not remove the files: %1</source>
        <extracomment>%1 is a whole sentence, such as &quot;Could not remove “file”: Permission denied.&quot;</extracomment>
        <translation>파일을 제거할 수 없습니다: %1</translation>
    </message>
    <message>
        <source>Quit and close the game?</source>
        <translation>게임을 닫고 끝내시겠습니까?</translation>
    </message>
    <message>
        <source>The game is still running. Quitting will close it.</source>
        <translation>게임이 아직 실행 중입니다. 끝내면 게임이 닫힙니다.</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>끝내기</translation>
    </message>
    <message>
        <source>Step 1 of 4 · Downloading the game</source>
        <extracomment>The name of a step, shown below the title &quot;Downloading&quot;.</extracomment>
        <translation>4단계 중 1단계 · 게임을 내려받는 중</translation>
    </message>
    <message>
        <source>The downloaded folder has no readable project.godot.</source>
        <translation>내려받은 폴더에 읽을 수 있는 project.godot 파일이 없습니다.</translation>
    </message>
    <message>
        <source>This game is made for Godot 4, but this app only knows how to install Godot 3.</source>
        <translation>이 게임은 Godot 4용이지만, 이 앱은 Godot 3만 설치할 수 있습니다.</translation>
    </message>
    <message>
        <source>Step 2 of 4 · Downloading the Godot engine (%1)</source>
        <extracomment>%1 is a version, such as &quot;3.5.3-stable-mono&quot;.</extracomment>
        <translation>4단계 중 2단계 · Godot 엔진(%1)을 내려받는 중</translation>
    </message>
    <message>
        <source>The Godot engine is missing.</source>
        <translation>Godot 엔진이 없습니다.</translation>
    </message>
    <message>
        <source>Step 3 of 4 · First-time setup, this can take a minute or more</source>
        <translation>4단계 중 3단계 · 최초 준비, 1분 이상 걸릴 수 있음</translation>
    </message>
    <message numerus="yes">
        <source>The first-time setup did not finish: %n game assets were not imported (engine exit code %1).</source>
        <translation>
            <numerusform>최초 준비를 마치지 못했습니다. 게임 애셋 %n개를 가져오지 못했습니다(엔진 종료 코드 %1).</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CavernyxPlatformerApp</name>
    <message>
        <source>%1 is already running, but does not answer. Close it first.</source>
        <translation>%1 앱이 이미 실행 중이지만 응답하지 않습니다. 먼저 닫으십시오.</translation>
    </message>
    <message>
        <source>%1 is already running. Waiting for its answer…</source>
        <translation>%1 앱이 이미 실행 중입니다. 응답을 기다리는 중…</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Settings…</source>
        <translation>설정…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>The button that opens the sheet about the launcher and its game.</extracomment>
        <translation>정보</translation>
    </message>
    <message>
        <source>Controls</source>
        <extracomment>The title above the keys and buttons that the game is played with.</extracomment>
        <translation>조작법</translation>
    </message>
</context>
<context>
    <name>DownloadProgress</name>
    <message>
        <source>%1/s</source>
        <extracomment>The rate of a download: %1 is an amount, such as &quot;3 MB&quot;.</extracomment>
        <translation>%1/초</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>What has been downloaded, and the rate: &quot;20.1 MB · 3 MB/s&quot;.</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 of %2 · %3</source>
        <extracomment>What of how much has been downloaded, and the rate: &quot;20.1 MB of 70.1 MB · 3 MB/s&quot;.</extracomment>
        <translation>%1 / %2 · %3</translation>
    </message>
</context>
<context>
    <name>FailureReport</name>
    <message>
        <source>Failure report</source>
        <extracomment>What a screen reader calls the box with the text of a failure.</extracomment>
        <translation>오류 보고서</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>The button that copies the text of a failure.</extracomment>
        <translation>복사</translation>
    </message>
</context>
<context>
    <name>GameFacts</name>
    <message>
        <source>A 2D grappling-hook adventure</source>
        <extracomment>Below the game&apos;s name. &quot;2D&quot;: seen from the side, with no depth.</extracomment>
        <translation>2D 갈고리 액션 어드벤처</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What a player of the game does; the keys and buttons for it follow.</extracomment>
        <translation>이동</translation>
    </message>
    <message>
        <source>A / D, or the left stick</source>
        <extracomment>A and D are keys of the keyboard, the stick is one of a game controller.</extracomment>
        <translation>A / D 또는 왼쪽 스틱</translation>
    </message>
    <message>
        <source>Jump</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>점프</translation>
    </message>
    <message>
        <source>Space or W, or the A button</source>
        <extracomment>Space and W are keys of the keyboard, A is a button of a game controller.</extracomment>
        <translation>스페이스 키나 W, 또는 게임패드의 A 버튼</translation>
    </message>
    <message>
        <source>Grappling hook</source>
        <extracomment>A hook on a rope, with which the player swings and pulls.</extracomment>
        <translation>갈고리</translation>
    </message>
    <message>
        <source>Left mouse button, or a shoulder button</source>
        <extracomment>The shoulder buttons of a game controller are those behind its front.</extracomment>
        <translation>마우스 왼쪽 버튼 또는 게임패드의 숄더 버튼</translation>
    </message>
    <message>
        <source>Aim</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>조준</translation>
    </message>
    <message>
        <source>Hold F, or use the right stick</source>
        <translation>F를 누르고 있거나 오른쪽 스틱 사용</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>What a player of the game does: begin again.</extracomment>
        <translation>다시 시작</translation>
    </message>
    <message>
        <source>Alt + R</source>
        <translation>Alt + R</translation>
    </message>
    <message>
        <source>The README has no controls list (see README); these come from the game&apos;s input settings.</source>
        <translation>README에 조작법 목록이 없어(README 참고) 게임의 입력 설정에서 가져왔습니다.</translation>
    </message>
    <message>
        <source>The game &quot;Snaglet!&quot; is made by Quennet and the Brindlework team, 2019, and is released under the MIT License. The game belongs to its author; this app is only a launcher that downloads it.</source>
        <translation>게임 “Snaglet!”은 2019년에 Quennet과 Brindlework 팀이 만들었으며 MIT 라이선스로 배포됩니다. 게임은 제작자의 것이며, 이 앱은 게임을 내려받는 런처일 뿐입니다.</translation>
    </message>
    <message>
        <source>Based on brindlework-demos/tetherwalk, MIT License.</source>
        <translation>brindlework-demos/tetherwalk 기반, MIT 라이선스.</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Copy log</source>
        <translation>로그 복사</translation>
    </message>
    <message>
        <source>Log</source>
        <extracomment>What a screen reader calls the box with the lines of the log.</extracomment>
        <translation>로그</translation>
    </message>
</context>
<context>
    <name>PlatformError</name>
    <message>
        <source>The download of “%1” is %2 larger than what is free in “%3”. Make room there and try again.</source>
        <translation>“%1” 다운로드에 필요한 공간이 “%3” 위치에 %2 부족합니다. 그곳의 공간을 확보하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The download of “%1” takes up all that is free in “%2”, but for a reserve. Make room there and try again.</source>
        <translation>“%1” 다운로드가 예비 공간을 제외한 “%2”의 남은 공간을 모두 차지합니다. 그곳의 공간을 확보하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Could not save “%1”</source>
        <translation>“%1” 파일을 저장할 수 없습니다</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected to “%2”, which is not one of GitHub&apos;s own secure servers, so it was stopped.</source>
        <translation>“%1” 다운로드가 “%2” 주소로 리디렉션되었습니다. GitHub 자체 보안 서버가 아니므로 중단했습니다.</translation>
    </message>
    <message>
        <source>The network library cannot be used.</source>
        <translation>네트워크 라이브러리를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected too often, last to “%2”. Try again later.</source>
        <translation>“%1” 다운로드가 너무 여러 번 리디렉션되었습니다. 마지막 주소는 “%2”입니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The certificate of “%1” is not yet valid. Check the date and time of this computer.</source>
        <translation>“%1”의 인증서가 아직 유효하지 않습니다. 이 컴퓨터의 날짜와 시각을 확인하십시오.</translation>
    </message>
    <message>
        <source>The certificate of “%1” has expired. Check the date and time of this computer.</source>
        <translation>“%1”의 인증서가 만료되었습니다. 이 컴퓨터의 날짜와 시각을 확인하십시오.</translation>
    </message>
    <message>
        <source>The certificate of “%1” belongs to another server. Another network may help.</source>
        <translation>“%1”의 인증서가 다른 서버의 것입니다. 다른 네트워크를 사용해 보십시오.</translation>
    </message>
    <message>
        <source>The certificate of “%1” cannot be trusted. Another network may help.</source>
        <translation>“%1”의 인증서를 신뢰할 수 없습니다. 다른 네트워크를 사용해 보십시오.</translation>
    </message>
    <message>
        <source>The proxy “%1” was not found. Check the proxy settings.</source>
        <translation>“%1” 프록시 서버를 찾을 수 없습니다. 프록시 설정을 확인하십시오.</translation>
    </message>
    <message>
        <source>The proxy “%1” refused the connection (HTTP %2). Check the proxy settings.</source>
        <translation>“%1” 프록시 서버가 연결을 거부했습니다(HTTP&#xa0;%2). 프록시 설정을 확인하십시오.</translation>
    </message>
    <message>
        <source>The proxy “%1” cannot be used. Check the proxy settings.</source>
        <translation>“%1” 프록시 서버를 사용할 수 없습니다. 프록시 설정을 확인하십시오.</translation>
    </message>
    <message>
        <source>The server “%1” was not found. Check the internet connection.</source>
        <translation>“%1” 서버를 찾을 수 없습니다. 인터넷 연결을 확인하십시오.</translation>
    </message>
    <message>
        <source>The server “%1” cannot be reached. Check the internet connection.</source>
        <translation>“%1” 서버에 연결할 수 없습니다. 인터넷 연결을 확인하십시오.</translation>
    </message>
    <message>
        <source>The certificates that this system trusts cannot be read. Install its package of certificates.</source>
        <translation>이 시스템이 신뢰하는 인증서를 읽을 수 없습니다. 인증서 패키지를 설치하십시오.</translation>
    </message>
    <message>
        <source>No secure connection to “%1” could be made. Another network may help.</source>
        <translation>“%1” 서버와 보안 연결을 설정할 수 없습니다. 다른 네트워크를 사용해 보십시오.</translation>
    </message>
    <message>
        <source>The connection to “%1” was lost. Check the internet connection and try again.</source>
        <translation>“%1” 서버와의 연결이 끊어졌습니다. 인터넷 연결을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>There is not enough memory. Close other programs and try again.</source>
        <translation>메모리가 부족합니다. 다른 프로그램을 닫고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>“%1” sent an answer that is not understood. Try again later.</source>
        <translation>“%1” 서버가 이해할 수 없는 응답을 보냈습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The transfer from “%1” failed. Try again later.</source>
        <translation>“%1” 서버에서 데이터를 전송받지 못했습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Could not download “%1”</source>
        <translation>“%1” 주소에서 내려받을 수 없습니다</translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: the proxy “%2” did not answer within %n seconds. Check the proxy settings and try again.</source>
        <translation>
            <numerusform>“%1” 다운로드가 멈췄습니다. “%2” 프록시 서버가 %n초 안에 응답하지 않았습니다. 프록시 설정을 확인하고 다시 시도하십시오.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 sent nothing for %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>“%1” 다운로드가 멈췄습니다. %2 서버가 %n초 동안 아무것도 보내지 않았습니다. 인터넷 연결을 확인하고 다시 시도하십시오.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 did not answer within %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>“%1” 다운로드가 멈췄습니다. %2 서버가 %n초 안에 응답하지 않았습니다. 인터넷 연결을 확인하고 다시 시도하십시오.</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not create the folder “%1”</source>
        <translation>“%1” 폴더를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>Could not compute a SHA-512 checksum.</source>
        <translation>SHA-512 체크섬을 계산할 수 없습니다.</translation>
    </message>
    <message>
        <source>Could not create the temporary folder “%1”</source>
        <translation>“%1” 임시 폴더를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>Could not read the archive entry “%1”</source>
        <translation>압축 파일의 “%1” 항목을 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>Could not read “%1”</source>
        <translation>“%1” 파일을 읽을 수 없습니다</translation>
    </message>
    <message>
        <source>Could not open the folder “%1”</source>
        <translation>“%1” 폴더를 열 수 없습니다</translation>
    </message>
    <message>
        <source>Could not create the link “%1”</source>
        <translation>“%1” 링크를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>Could not change “%1”</source>
        <translation>“%1” 파일을 변경할 수 없습니다</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>파일이 아닙니다.</translation>
    </message>
    <message>
        <source>Could not replace “%1”</source>
        <translation>“%1” 파일을 새 파일로 바꿀 수 없습니다</translation>
    </message>
    <message>
        <source>Could not find your home folder: HOME is not set.</source>
        <translation>홈 폴더를 찾을 수 없습니다. HOME이 설정되지 않았습니다.</translation>
    </message>
    <message>
        <source>Could not use the folder “%1”, because its name is not UTF-8.</source>
        <translation>이름이 UTF-8이 아니므로 “%1” 폴더를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Could not start “%1”</source>
        <translation>“%1” 프로그램을 시작할 수 없습니다</translation>
    </message>
    <message>
        <source>Could not create a pipe</source>
        <translation>파이프를 만들 수 없습니다</translation>
    </message>
    <message>
        <source>Could not start a thread</source>
        <translation>스레드를 시작할 수 없습니다</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it and try again.</source>
        <translation>디스크가 가득 찼습니다. 공간을 확보하고 다시 시도하십시오.</translation>
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
        <translation>“%1” 및 “%2” 항목을 서로 바꿀 수 없습니다</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”</source>
        <translation>“%1” 항목을 “%2” 위치로 옮길 수 없습니다</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”. What was there before is now at “%3”.</source>
        <translation>“%1” 항목을 “%2” 위치로 옮길 수 없습니다. 이전에 있던 항목은 지금 “%3” 위치에 있습니다.</translation>
    </message>
    <message>
        <source>Could not remove “%1”</source>
        <translation>“%1” 항목을 제거할 수 없습니다</translation>
    </message>
    <message>
        <source>Could not open “%1”</source>
        <translation>“%1” 파일을 열 수 없습니다</translation>
    </message>
    <message>
        <source>The launcher is running a second time. Close the other one first.</source>
        <translation>런처가 두 번 실행되었습니다. 먼저 다른 하나를 닫으십시오.</translation>
    </message>
    <message>
        <source>Could not lock “%1”, without which nothing is installed or removed</source>
        <translation>“%1” 파일을 잠글 수 없습니다(잠그지 않으면 아무것도 설치하거나 제거하지 않습니다)</translation>
    </message>
    <message>
        <source>Could not create “%1”</source>
        <translation>“%1” 파일을 만들 수 없습니다</translation>
    </message>
    <message>
        <source>Could not write “%1”</source>
        <translation>“%1” 파일을 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>Could not write “%1” to the disk</source>
        <translation>“%1” 항목을 디스크에 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>another file system is mounted there</source>
        <translation>다른 파일 시스템이 마운트되어 있습니다</translation>
    </message>
    <message>
        <source>it was moved meanwhile</source>
        <translation>그사이에 옮겨졌습니다</translation>
    </message>
</context>
<context>
    <name>PlayOutcome</name>
    <message numerus="yes">
        <source>The game closed after %n seconds (exit code %1), so it did not start properly.</source>
        <translation>
            <numerusform>게임이 %n초 만에 닫혀(종료 코드 %1) 제대로 시작되지 않았습니다.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game stopped unexpectedly (exit code %1).</source>
        <translation>게임이 예기치 않게 종료되었습니다(종료 코드 %1).</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Progress</source>
        <extracomment>What a screen reader calls the progress bar.</extracomment>
        <translation>진행률</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>The button that installs the game, if need be, and starts it.</extracomment>
        <translation>플레이</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>The button that ends the running game.</extracomment>
        <translation>중지</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>The button that cancels the download or the setup.</extracomment>
        <translation>취소</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>로그 보기</translation>
    </message>
    <message>
        <source>Status: %1 – %2</source>
        <extracomment>What a screen reader says of the coloured dot: a status, and a sentence about it.</extracomment>
        <translation>상태: %1 – %2</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Game default</source>
        <extracomment>Among resolutions: the one that the game comes with.</extracomment>
        <translation>게임 기본값</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Update the game</source>
        <translation>게임 업데이트</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>다시 설치</translation>
    </message>
    <message>
        <source>Show saves</source>
        <extracomment>Opens the folder in which the game keeps its saves.</extracomment>
        <translation>저장 파일 보기</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <extracomment>Opens the file browser at the installed files. The Finder is that of one system only; a translation speaks of the file manager.</extracomment>
        <translation>파일 관리자에서 보기</translation>
    </message>
    <message>
        <source>Applies the next time you press Play.</source>
        <translation>다음에 “플레이”를 누를 때 적용됩니다.</translation>
    </message>
    <message>
        <source>Updating downloads the game again. Save files are kept; they live in Godot&apos;s own folder.</source>
        <translation>업데이트하면 게임을 다시 내려받습니다. 저장 파일은 Godot의 자체 폴더에 있으며 그대로 유지됩니다.</translation>
    </message>
    <message>
        <source>No saves yet (Godot&apos;s user folder does not exist).</source>
        <translation>아직 저장 파일이 없습니다(Godot의 사용자 폴더가 없음).</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>Whether the game runs in a window or on the whole screen.</extracomment>
        <translation>창</translation>
    </message>
    <message>
        <source>Windowed</source>
        <translation>창 모드</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>전체 화면</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>해상도</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <extracomment>%1 is an amount, such as &quot;70.1 MB&quot;.</extracomment>
        <translation>모두 제거</translation>
    </message>
    <message>
        <source>Remove everything (frees %1)</source>
        <translation>모두 제거(%1 확보)</translation>
    </message>
</context>
<context>
    <name>SetupMonitor</name>
    <message>
        <source>The game is being installed.</source>
        <translation>게임을 설치하고 있습니다.</translation>
    </message>
    <message>
        <source>The game is ready and starting.</source>
        <translation>게임이 준비되어 시작하고 있습니다.</translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Done</source>
        <extracomment>The button that closes a sheet.</extracomment>
        <translation>완료</translation>
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
        <translation>1바이트</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n바이트</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WidgetDesktop</name>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>폴더를 열 수 없습니다.</translation>
    </message>
    <message>
        <source>This desktop has no file browser. The folder is “%1”.</source>
        <extracomment>%1 is the path of a folder.</extracomment>
        <translation>이 데스크톱에는 파일 관리자가 없습니다. 폴더는 “%1”입니다.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
</context>
</TS>
