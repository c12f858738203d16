<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AboutView</name>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>The Godot engine is free software under the MIT License (godotengine.org). It is downloaded from the official godotengine/godot releases and checked against the published SHA-512 checksum.</source>
        <translation>Godot 引擎是采用 MIT 许可证的自由软件（godotengine.org）。它从 godotengine/godot 的官方发布页下载，并用公布的 SHA-512 校验和进行验证。</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere except the two downloads (the game from GitHub and the engine from GitHub releases).</source>
        <translation>除了两项下载（从 GitHub 下载游戏，从 GitHub 发布页下载引擎）之外，不会向任何地方发送任何信息。</translation>
    </message>
</context>
<context>
    <name>AppError</name>
    <message>
        <source>The engine checksum list is larger than %1 MiB, so it was not read.</source>
        <translation>引擎的校验和列表大于 %1&#xa0;MiB，因此未予读取。</translation>
    </message>
    <message>
        <source>Could not read the engine checksum list (HTTP %1).</source>
        <translation>无法读取引擎的校验和列表（HTTP&#xa0;%1）。</translation>
    </message>
    <message>
        <source>The checksum list has no entry for %1.</source>
        <translation>校验和列表中没有 %1 的条目。</translation>
    </message>
    <message>
        <source>The engine download did not match its official checksum, so it was discarded.</source>
        <translation>下载的引擎与其官方校验和不符，因此已被丢弃。</translation>
    </message>
    <message>
        <source>The engine was unpacked but its program was not found.</source>
        <translation>引擎已解压，但未找到其程序。</translation>
    </message>
    <message>
        <source>Invalid engine URL.</source>
        <translation>引擎的网址无效。</translation>
    </message>
    <message>
        <source>The server answered with HTTP %1 for %2.</source>
        <translation>服务器对 %2 的响应为 HTTP&#xa0;%1。</translation>
    </message>
    <message>
        <source>A part of the launcher, “%1”, cannot be loaded. Close the launcher and start it again, or install it again.</source>
        <translation>无法加载启动器的组成部分“%1”。请关闭并重新打开启动器，或重新安装。</translation>
    </message>
    <message>
        <source>The downloaded game does not contain a project.godot file.</source>
        <translation>下载的游戏中没有 project.godot 文件。</translation>
    </message>
    <message>
        <source>The game folder was unpacked but project.godot was not found.</source>
        <translation>游戏文件夹已解压，但未找到 project.godot。</translation>
    </message>
    <message>
        <source>Invalid game URL.</source>
        <translation>游戏的网址无效。</translation>
    </message>
    <message>
        <source>Unzipping failed (ditto exit code %1).</source>
        <extracomment>Where there is no program named ditto, a translation speaks of unpacking only.</extracomment>
        <translation>解压失败（退出码 %1）。</translation>
    </message>
    <message>
        <source>The Godot 3 engine is not available for this computer&apos;s processor (%1).</source>
        <extracomment>%1 is a kind of processor, such as &quot;arm64&quot;.</extracomment>
        <translation>Godot 3 引擎不支持这台计算机的处理器（%1）。</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>Needs something</source>
        <extracomment>The status after a failure: the player has to do something. The next line says what.</extracomment>
        <translation>需要处理</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <extracomment>The status: the game is not downloaded yet.</extracomment>
        <translation>未下载</translation>
    </message>
    <message>
        <source>Downloading</source>
        <extracomment>The status: the launcher is downloading the game or its engine.</extracomment>
        <translation>正在下载</translation>
    </message>
    <message>
        <source>Setting up</source>
        <extracomment>The status: the launcher is preparing the game for its first start.</extracomment>
        <translation>正在准备</translation>
    </message>
    <message>
        <source>Ready</source>
        <extracomment>The status: the game can be played.</extracomment>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Starting…</source>
        <extracomment>The status: the game is starting, or it is running.</extracomment>
        <translation>正在启动…</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>正在运行</translation>
    </message>
    <message>
        <source>Downloads the game and the Godot engine once, about %1 MB for the engine plus the game&apos;s files. Nothing to type.</source>
        <translation>只需下载一次游戏和 Godot 引擎：引擎约 %1&#xa0;MB，另加游戏文件。无需输入任何内容。</translation>
    </message>
    <message>
        <source>Everything is installed. Press Play.</source>
        <translation>一切均已安装。请点击“开始游戏”。</translation>
    </message>
    <message numerus="yes">
        <source>The game was launched. Waiting %n seconds to make sure it stays open.</source>
        <translation>
            <numerusform>游戏已启动。正在等待 %n 秒，以确认它保持运行。</numerusform>
        </translation>
    </message>
    <message>
        <source>The game is running in its own window.</source>
        <translation>游戏正在自己的窗口中运行。</translation>
    </message>
    <message>
        <source>The game is still running from an earlier start. Close it first.</source>
        <translation>上次启动的游戏仍在运行。请先关闭它。</translation>
    </message>
    <message>
        <source>The folder “%1” is on another disk than before. Connect that disk again, or try once more to use this one.</source>
        <translation>文件夹“%1”所在的磁盘与之前不同。请重新连接原来的磁盘，或再试一次以使用现在的磁盘。</translation>
    </message>
    <message>
        <source>What happened: %1

Last log lines:
%2</source>
        <extracomment>%1 is a whole sentence, and %2 are lines of the log, most of them in English.</extracomment>
        <translation>发生的情况：%1

最后几行日志：
%2</translation>
    </message>
    <message>
        <source>Step 4 of 4 · Play</source>
        <translation>第 4 步，共 4 步 · 开始游戏</translation>
    </message>
    <message>
        <source>Update the game?</source>
        <translation>要更新游戏吗？</translation>
    </message>
    <message>
        <source>The game is downloaded again from GitHub. Your save files are kept.</source>
        <translation>将从 GitHub 重新下载游戏。您的存档会保留。</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>更新</translation>
    </message>
    <message>
        <source>Reinstall everything?</source>
        <translation>要重新安装所有内容吗？</translation>
    </message>
    <message>
        <source>The game and the engine are deleted and downloaded again. Your save files are kept.</source>
        <translation>游戏和引擎将被删除并重新下载。您的存档会保留。</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>重新安装</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees all downloaded files. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>这将删除已下载的游戏和引擎，并释放所有下载文件占用的空间。您在 Godot 文件夹中的存档不会受影响。</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees %1. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>这将删除已下载的游戏和引擎，并释放 %1 空间。您在 Godot 文件夹中的存档不会受影响。</translation>
    </message>
    <message>
        <source>Remove everything?</source>
        <extracomment>&quot;Remove&quot; is the button that answers the question.</extracomment>
        <translation>要移除所有内容吗？</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Could not remove the files: %1</source>
        <extracomment>%1 is a whole sentence, such as &quot;Could not remove “file”: Permission denied.&quot;</extracomment>
        <translation>无法移除文件：%1</translation>
    </message>
    <message>
        <source>Quit and close the game?</source>
        <translation>要退出并关闭游戏吗？</translation>
    </message>
    <message>
        <source>The game is still running. Quitting will close it.</source>
        <translation>游戏仍在运行。退出将关闭游戏。</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>退出</translation>
    </message>
    <message>
        <source>Step 1 of 4 · Downloading the game</source>
        <extracomment>The name of a step, shown below the title &quot;Downloading&quot;.</extracomment>
        <translation>第 1 步，共 4 步 · 正在下载游戏</translation>
    </message>
    <message>
        <source>The downloaded folder has no readable project.godot.</source>
        <translation>下载的文件夹中没有可读取的 project.godot。</translation>
    </message>
    <message>
        <source>This game is made for Godot 4, but this app only knows how to install Godot 3.</source>
        <translation>此游戏是为 Godot 4 制作的，而此应用只能安装 Godot 3。</translation>
    </message>
    <message>
        <source>Step 2 of 4 · Downloading the Godot engine (%1)</source>
        <extracomment>%1 is a version, such as &quot;3.5.3-stable-mono&quot;.</extracomment>
        <translation>第 2 步，共 4 步 · 正在下载 Godot 引擎（%1）</translation>
    </message>
    <message>
        <source>The Godot engine is missing.</source>
        <translation>缺少 Godot 引擎。</translation>
    </message>
    <message>
        <source>Step 3 of 4 · First-time setup, this can take a minute or more</source>
        <translation>第 3 步，共 4 步 · 首次准备，可能需要一分钟或更久</translation>
    </message>
    <message numerus="yes">
        <source>The first-time setup did not finish: %n game assets were not imported (engine exit code %1).</source>
        <translation>
            <numerusform>首次准备未完成：有 %n 个游戏资源未导入（引擎退出码 %1）。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CavernyxPlatformerApp</name>
    <message>
        <source>%1 is already running, but does not answer. Close it first.</source>
        <translation>%1 已在运行，但没有响应。请先关闭它。</translation>
    </message>
    <message>
        <source>%1 is already running. Waiting for its answer…</source>
        <translation>%1 已在运行。正在等待其响应…</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Settings…</source>
        <translation>设置…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>The button that opens the sheet about the launcher and its game.</extracomment>
        <translation>关于</translation>
    </message>
    <message>
        <source>Controls</source>
        <extracomment>The title above the keys and buttons that the game is played with.</extracomment>
        <translation>操作方式</translation>
    </message>
</context>
<context>
    <name>DownloadProgress</name>
    <message>
        <source>%1/s</source>
        <extracomment>The rate of a download: %1 is an amount, such as &quot;3 MB&quot;.</extracomment>
        <translation>%1/秒</translation>
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
        <translation>故障报告</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>The button that copies the text of a failure.</extracomment>
        <translation>复制</translation>
    </message>
</context>
<context>
    <name>GameFacts</name>
    <message>
        <source>A 2D grappling-hook adventure</source>
        <extracomment>Below the game&apos;s name. &quot;2D&quot;: seen from the side, with no depth.</extracomment>
        <translation>2D 钩索冒险游戏</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What a player of the game does; the keys and buttons for it follow.</extracomment>
        <translation>移动</translation>
    </message>
    <message>
        <source>A / D, or the left stick</source>
        <extracomment>A and D are keys of the keyboard, the stick is one of a game controller.</extracomment>
        <translation>A / D，或左摇杆</translation>
    </message>
    <message>
        <source>Jump</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>跳跃</translation>
    </message>
    <message>
        <source>Space or W, or the A button</source>
        <extracomment>Space and W are keys of the keyboard, A is a button of a game controller.</extracomment>
        <translation>空格键或 W，或手柄 A 键</translation>
    </message>
    <message>
        <source>Grappling hook</source>
        <extracomment>A hook on a rope, with which the player swings and pulls.</extracomment>
        <translation>钩索</translation>
    </message>
    <message>
        <source>Left mouse button, or a shoulder button</source>
        <extracomment>The shoulder buttons of a game controller are those behind its front.</extracomment>
        <translation>鼠标左键，或手柄肩键</translation>
    </message>
    <message>
        <source>Aim</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>瞄准</translation>
    </message>
    <message>
        <source>Hold F, or use the right stick</source>
        <translation>按住 F，或使用右摇杆</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>What a player of the game does: begin again.</extracomment>
        <translation>重新开始</translation>
    </message>
    <message>
        <source>Alt + R</source>
        <translation>Alt + R</translation>
    </message>
    <message>
        <source>The README has no controls list (see README); these come from the game&apos;s input settings.</source>
        <translation>README 中没有操作列表（请参阅 README）；以上内容来自游戏的输入设置。</translation>
    </message>
    <message>
        <source>The game &quot;Snaglet!&quot; is made by Quennet and the Brindlework team, 2019, and is released under the MIT License. The game belongs to its author; this app is only a launcher that downloads it.</source>
        <translation>游戏“Snaglet!”由 Quennet 和 Brindlework 团队于 2019 年制作，以 MIT 许可证发布。游戏归其作者所有；本应用只是一个下载它的启动器。</translation>
    </message>
    <message>
        <source>Based on brindlework-demos/tetherwalk, MIT License.</source>
        <translation>基于 brindlework-demos/tetherwalk，MIT 许可证。</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Copy log</source>
        <translation>复制日志</translation>
    </message>
    <message>
        <source>Log</source>
        <extracomment>What a screen reader calls the box with the lines of the log.</extracomment>
        <translation>日志</translation>
    </message>
</context>
<context>
    <name>PlatformError</name>
    <message>
        <source>The download of “%1” is %2 larger than what is free in “%3”. Make room there and try again.</source>
        <translation>下载“%1”所需的空间比“%3”的可用空间多 %2。请在那里腾出空间，然后重试。</translation>
    </message>
    <message>
        <source>The download of “%1” takes up all that is free in “%2”, but for a reserve. Make room there and try again.</source>
        <translation>“%1”的下载已用完“%2”的可用空间，仅剩预留部分。请在那里腾出空间，然后重试。</translation>
    </message>
    <message>
        <source>Could not save “%1”</source>
        <translation>无法保存“%1”</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected to “%2”, which is not one of GitHub&apos;s own secure servers, so it was stopped.</source>
        <translation>“%1”的下载被重定向到“%2”，它不是 GitHub 自己的安全服务器，因此下载已停止。</translation>
    </message>
    <message>
        <source>The network library cannot be used.</source>
        <translation>无法使用网络库。</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected too often, last to “%2”. Try again later.</source>
        <translation>“%1”的下载重定向次数过多，最后一次到“%2”。请稍后重试。</translation>
    </message>
    <message>
        <source>The certificate of “%1” is not yet valid. Check the date and time of this computer.</source>
        <translation>“%1”的证书尚未生效。请检查此计算机的日期和时间。</translation>
    </message>
    <message>
        <source>The certificate of “%1” has expired. Check the date and time of this computer.</source>
        <translation>“%1”的证书已过期。请检查此计算机的日期和时间。</translation>
    </message>
    <message>
        <source>The certificate of “%1” belongs to another server. Another network may help.</source>
        <translation>“%1”的证书属于另一台服务器。换一个网络也许能解决。</translation>
    </message>
    <message>
        <source>The certificate of “%1” cannot be trusted. Another network may help.</source>
        <translation>“%1”的证书不受信任。换一个网络也许能解决。</translation>
    </message>
    <message>
        <source>The proxy “%1” was not found. Check the proxy settings.</source>
        <translation>未找到代理服务器“%1”。请检查代理设置。</translation>
    </message>
    <message>
        <source>The proxy “%1” refused the connection (HTTP %2). Check the proxy settings.</source>
        <translation>代理服务器“%1”拒绝了连接（HTTP&#xa0;%2）。请检查代理设置。</translation>
    </message>
    <message>
        <source>The proxy “%1” cannot be used. Check the proxy settings.</source>
        <translation>无法使用代理服务器“%1”。请检查代理设置。</translation>
    </message>
    <message>
        <source>The server “%1” was not found. Check the internet connection.</source>
        <translation>未找到服务器“%1”。请检查网络连接。</translation>
    </message>
    <message>
        <source>The server “%1” cannot be reached. Check the internet connection.</source>
        <translation>无法连接到服务器“%1”。请检查网络连接。</translation>
    </message>
    <message>
        <source>The certificates that this system trusts cannot be read. Install its package of certificates.</source>
        <translation>无法读取此系统所信任的证书。请安装相应的证书软件包。</translation>
    </message>
    <message>
        <source>No secure connection to “%1” could be made. Another network may help.</source>
        <translation>无法与“%1”建立安全连接。换一个网络也许能解决。</translation>
    </message>
    <message>
        <source>The connection to “%1” was lost. Check the internet connection and try again.</source>
        <translation>与“%1”的连接已断开。请检查网络连接，然后重试。</translation>
    </message>
    <message>
        <source>There is not enough memory. Close other programs and try again.</source>
        <translation>内存不足。请关闭其他程序，然后重试。</translation>
    </message>
    <message>
        <source>“%1” sent an answer that is not understood. Try again later.</source>
        <translation>“%1”发送了无法理解的响应。请稍后重试。</translation>
    </message>
    <message>
        <source>The transfer from “%1” failed. Try again later.</source>
        <translation>从“%1”传输失败。请稍后重试。</translation>
    </message>
    <message>
        <source>Could not download “%1”</source>
        <translation>无法下载“%1”</translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: the proxy “%2” did not answer within %n seconds. Check the proxy settings and try again.</source>
        <translation>
            <numerusform>“%1”的下载已停滞：代理服务器“%2”在 %n 秒内没有响应。请检查代理设置，然后重试。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 sent nothing for %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>“%1”的下载已停滞：%2 在 %n 秒内没有发送任何数据。请检查网络连接，然后重试。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 did not answer within %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>“%1”的下载已停滞：%2 在 %n 秒内没有响应。请检查网络连接，然后重试。</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not create the folder “%1”</source>
        <translation>无法创建文件夹“%1”</translation>
    </message>
    <message>
        <source>Could not compute a SHA-512 checksum.</source>
        <translation>无法计算 SHA-512 校验和。</translation>
    </message>
    <message>
        <source>Could not create the temporary folder “%1”</source>
        <translation>无法创建临时文件夹“%1”</translation>
    </message>
    <message>
        <source>Could not read the archive entry “%1”</source>
        <translation>无法读取归档条目“%1”</translation>
    </message>
    <message>
        <source>Could not read “%1”</source>
        <translation>无法读取“%1”</translation>
    </message>
    <message>
        <source>Could not open the folder “%1”</source>
        <translation>无法打开文件夹“%1”</translation>
    </message>
    <message>
        <source>Could not create the link “%1”</source>
        <translation>无法创建链接“%1”</translation>
    </message>
    <message>
        <source>Could not change “%1”</source>
        <translation>无法更改“%1”</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>它不是文件。</translation>
    </message>
    <message>
        <source>Could not replace “%1”</source>
        <translation>无法替换“%1”</translation>
    </message>
    <message>
        <source>Could not find your home folder: HOME is not set.</source>
        <translation>找不到您的主文件夹：未设置 HOME。</translation>
    </message>
    <message>
        <source>Could not use the folder “%1”, because its name is not UTF-8.</source>
        <translation>无法使用文件夹“%1”，因为其名称不是 UTF-8 编码。</translation>
    </message>
    <message>
        <source>Could not start “%1”</source>
        <translation>无法启动“%1”</translation>
    </message>
    <message>
        <source>Could not create a pipe</source>
        <translation>无法创建管道</translation>
    </message>
    <message>
        <source>Could not start a thread</source>
        <translation>无法启动线程</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it and try again.</source>
        <translation>磁盘已满。请在磁盘上腾出空间，然后重试。</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>Makes a sentence of a reason in the system&apos;s own words, such as &quot;Permission denied&quot;.</extracomment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>What failed, such as &quot;Could not open “the file”&quot;, and the sentence that says why.</extracomment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Could not exchange “%1” and “%2”</source>
        <translation>无法交换“%1”和“%2”</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”</source>
        <translation>无法将“%1”移动到“%2”</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”. What was there before is now at “%3”.</source>
        <translation>无法将“%1”移动到“%2”。原来在那里的内容现在位于“%3”。</translation>
    </message>
    <message>
        <source>Could not remove “%1”</source>
        <translation>无法移除“%1”</translation>
    </message>
    <message>
        <source>Could not open “%1”</source>
        <translation>无法打开“%1”</translation>
    </message>
    <message>
        <source>The launcher is running a second time. Close the other one first.</source>
        <translation>启动器正在重复运行。请先关闭另一个。</translation>
    </message>
    <message>
        <source>Could not lock “%1”, without which nothing is installed or removed</source>
        <translation>无法锁定“%1”；没有此锁定，不会安装或移除任何内容</translation>
    </message>
    <message>
        <source>Could not create “%1”</source>
        <translation>无法创建“%1”</translation>
    </message>
    <message>
        <source>Could not write “%1”</source>
        <translation>无法写入“%1”</translation>
    </message>
    <message>
        <source>Could not write “%1” to the disk</source>
        <translation>无法将“%1”写入磁盘</translation>
    </message>
    <message>
        <source>another file system is mounted there</source>
        <translation>那里挂载了另一个文件系统</translation>
    </message>
    <message>
        <source>it was moved meanwhile</source>
        <translation>它在此期间被移动了</translation>
    </message>
</context>
<context>
    <name>PlayOutcome</name>
    <message numerus="yes">
        <source>The game closed after %n seconds (exit code %1), so it did not start properly.</source>
        <translation>
            <numerusform>游戏在 %n 秒后关闭（退出码 %1），因此未能正常启动。</numerusform>
        </translation>
    </message>
    <message>
        <source>The game stopped unexpectedly (exit code %1).</source>
        <translation>游戏意外停止（退出码 %1）。</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Progress</source>
        <extracomment>What a screen reader calls the progress bar.</extracomment>
        <translation>进度</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>The button that installs the game, if need be, and starts it.</extracomment>
        <translation>开始游戏</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>The button that ends the running game.</extracomment>
        <translation>停止</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>The button that cancels the download or the setup.</extracomment>
        <translation>取消</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>显示日志</translation>
    </message>
    <message>
        <source>Status: %1 – %2</source>
        <extracomment>What a screen reader says of the coloured dot: a status, and a sentence about it.</extracomment>
        <translation>状态：%1 – %2</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Game default</source>
        <extracomment>Among resolutions: the one that the game comes with.</extracomment>
        <translation>游戏默认</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Update the game</source>
        <translation>更新游戏</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>重新安装</translation>
    </message>
    <message>
        <source>Show saves</source>
        <extracomment>Opens the folder in which the game keeps its saves.</extracomment>
        <translation>显示存档</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <extracomment>Opens the file browser at the installed files. The Finder is that of one system only; a translation speaks of the file manager.</extracomment>
        <translation>在文件管理器中显示</translation>
    </message>
    <message>
        <source>Applies the next time you press Play.</source>
        <translation>下次点击“开始游戏”时生效。</translation>
    </message>
    <message>
        <source>Updating downloads the game again. Save files are kept; they live in Godot&apos;s own folder.</source>
        <translation>更新会重新下载游戏。存档会保留，它们位于 Godot 自己的文件夹中。</translation>
    </message>
    <message>
        <source>No saves yet (Godot&apos;s user folder does not exist).</source>
        <translation>尚无存档（Godot 的用户文件夹不存在）。</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>Whether the game runs in a window or on the whole screen.</extracomment>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Windowed</source>
        <translation>窗口化</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <extracomment>%1 is an amount, such as &quot;70.1 MB&quot;.</extracomment>
        <translation>移除所有内容</translation>
    </message>
    <message>
        <source>Remove everything (frees %1)</source>
        <translation>移除所有内容（释放 %1）</translation>
    </message>
</context>
<context>
    <name>SetupMonitor</name>
    <message>
        <source>The game is being installed.</source>
        <translation>正在安装游戏。</translation>
    </message>
    <message>
        <source>The game is ready and starting.</source>
        <translation>游戏已就绪，正在启动。</translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Done</source>
        <extracomment>The button that closes a sheet.</extracomment>
        <translation>完成</translation>
    </message>
</context>
<context>
    <name>Unit</name>
    <message>
        <source>%1 KB</source>
        <extracomment>Kilobytes: 1000 bytes, as the desktop&apos;s file manager writes it.</extracomment>
        <translation>%1&#xa0;KB</translation>
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
        <translation>0&#xa0;KB</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1&#xa0;字节</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n&#xa0;字节</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WidgetDesktop</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>无法打开文件夹。</translation>
    </message>
    <message>
        <source>This desktop has no file browser. The folder is “%1”.</source>
        <extracomment>%1 is the path of a folder.</extracomment>
        <translation>此桌面没有文件管理器。文件夹是“%1”。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
</TS>
