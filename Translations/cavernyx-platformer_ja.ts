<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>AboutView</name>
    <message>
        <source>About</source>
        <translation>このアプリについて</translation>
    </message>
    <message>
        <source>The Godot engine is free software under the MIT License (godotengine.org). It is downloaded from the official godotengine/godot releases and checked against the published SHA-512 checksum.</source>
        <translation>Godot エンジンは、MIT ライセンスのフリーソフトウェアです (godotengine.org)。godotengine/godot の公式リリースからダウンロードし、公開されている SHA-512 チェックサムで検証します。</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere except the two downloads (the game from GitHub and the engine from GitHub releases).</source>
        <translation>2 つのダウンロード (GitHub からのゲームと、GitHub リリースからのエンジン) のほかには、どこにも何も送信しません。</translation>
    </message>
</context>
<context>
    <name>AppError</name>
    <message>
        <source>The engine checksum list is larger than %1 MiB, so it was not read.</source>
        <translation>エンジンのチェックサム一覧が %1&#xa0;MiB を超えているため、読み込みませんでした。</translation>
    </message>
    <message>
        <source>Could not read the engine checksum list (HTTP %1).</source>
        <translation>エンジンのチェックサム一覧を読み込めませんでした (HTTP&#xa0;%1)。</translation>
    </message>
    <message>
        <source>The checksum list has no entry for %1.</source>
        <translation>チェックサム一覧に %1 の項目がありません。</translation>
    </message>
    <message>
        <source>The engine download did not match its official checksum, so it was discarded.</source>
        <translation>ダウンロードしたエンジンが公式のチェックサムと一致しなかったため、破棄しました。</translation>
    </message>
    <message>
        <source>The engine was unpacked but its program was not found.</source>
        <translation>エンジンを展開しましたが、プログラムが見つかりませんでした。</translation>
    </message>
    <message>
        <source>Invalid engine URL.</source>
        <translation>エンジンの URL が無効です。</translation>
    </message>
    <message>
        <source>The server answered with HTTP %1 for %2.</source>
        <translation>サーバーは %2 に対して HTTP&#xa0;%1 を返しました。</translation>
    </message>
    <message>
        <source>A part of the launcher, “%1”, cannot be loaded. Close the launcher and start it again, or install it again.</source>
        <translation>ランチャーの一部である「%1」を読み込めません。ランチャーを終了してもう一度起動するか、インストールし直してください。</translation>
    </message>
    <message>
        <source>The downloaded game does not contain a project.godot file.</source>
        <translation>ダウンロードしたゲームに project.godot ファイルが含まれていません。</translation>
    </message>
    <message>
        <source>The game folder was unpacked but project.godot was not found.</source>
        <translation>ゲームのフォルダーを展開しましたが、project.godot が見つかりませんでした。</translation>
    </message>
    <message>
        <source>Invalid game URL.</source>
        <translation>ゲームの URL が無効です。</translation>
    </message>
    <message>
        <source>Unzipping failed (ditto exit code %1).</source>
        <extracomment>Where there is no program named ditto, a translation speaks of unpacking only.</extracomment>
        <translation>展開に失敗しました (終了コード %1)。</translation>
    </message>
    <message>
        <source>The Godot 3 engine is not available for this computer&apos;s processor (%1).</source>
        <extracomment>%1 is a kind of processor, such as &quot;arm64&quot;.</extracomment>
        <translation>Godot 3 エンジンは、このコンピューターのプロセッサ (%1) には対応していません。</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>Needs something</source>
        <extracomment>The status after a failure: the player has to do something. The next line says what.</extracomment>
        <translation>対応が必要です</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <extracomment>The status: the game is not downloaded yet.</extracomment>
        <translation>未ダウンロード</translation>
    </message>
    <message>
        <source>Downloading</source>
        <extracomment>The status: the launcher is downloading the game or its engine.</extracomment>
        <translation>ダウンロード中</translation>
    </message>
    <message>
        <source>Setting up</source>
        <extracomment>The status: the launcher is preparing the game for its first start.</extracomment>
        <translation>準備中</translation>
    </message>
    <message>
        <source>Ready</source>
        <extracomment>The status: the game can be played.</extracomment>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Starting…</source>
        <extracomment>The status: the game is starting, or it is running.</extracomment>
        <translation>起動中…</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>プレイ中</translation>
    </message>
    <message>
        <source>Downloads the game and the Godot engine once, about %1 MB for the engine plus the game&apos;s files. Nothing to type.</source>
        <translation>ゲームと Godot エンジンを一度だけダウンロードします。エンジンが約 %1&#xa0;MB で、ほかにゲームのファイルがあります。何も入力する必要はありません。</translation>
    </message>
    <message>
        <source>Everything is installed. Press Play.</source>
        <translation>すべてインストールされています。「プレイ」を押してください。</translation>
    </message>
    <message numerus="yes">
        <source>The game was launched. Waiting %n seconds to make sure it stays open.</source>
        <translation>
            <numerusform>ゲームを起動しました。すぐに終了しないことを %n 秒間確認しています。</numerusform>
        </translation>
    </message>
    <message>
        <source>The game is running in its own window.</source>
        <translation>ゲームは専用のウィンドウで動作しています。</translation>
    </message>
    <message>
        <source>The game is still running from an earlier start. Close it first.</source>
        <translation>以前に起動したゲームがまだ動作しています。先に終了してください。</translation>
    </message>
    <message>
        <source>The folder “%1” is on another disk than before. Connect that disk again, or try once more to use this one.</source>
        <translation>フォルダー「%1」が以前とは別のディスクにあります。以前のディスクを接続し直してください。現在のディスクを使う場合は、もう一度実行してください。</translation>
    </message>
    <message>
        <source>What happened: %1

Last log lines:
%2</source>
        <extracomment>%1 is a whole sentence, and %2 are lines of the log, most of them in English.</extracomment>
        <translation>発生した問題: %1

ログの最後の行:
%2</translation>
    </message>
    <message>
        <source>Step 4 of 4 · Play</source>
        <translation>ステップ 4/4 · プレイ</translation>
    </message>
    <message>
        <source>Update the game?</source>
        <translation>ゲームを更新しますか?</translation>
    </message>
    <message>
        <source>The game is downloaded again from GitHub. Your save files are kept.</source>
        <translation>ゲームを GitHub からもう一度ダウンロードします。セーブデータは残ります。</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>更新</translation>
    </message>
    <message>
        <source>Reinstall everything?</source>
        <translation>すべて再インストールしますか?</translation>
    </message>
    <message>
        <source>The game and the engine are deleted and downloaded again. Your save files are kept.</source>
        <translation>ゲームとエンジンを削除して、もう一度ダウンロードします。セーブデータは残ります。</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>再インストール</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees all downloaded files. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>ダウンロードしたゲームとエンジンを削除し、ダウンロードしたすべてのファイルの領域を解放します。Godot のフォルダーにあるセーブデータは変更しません。</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees %1. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>ダウンロードしたゲームとエンジンを削除し、%1 の領域を解放します。Godot のフォルダーにあるセーブデータは変更しません。</translation>
    </message>
    <message>
        <source>Remove everything?</source>
        <extracomment>&quot;Remove&quot; is the button that answers the question.</extracomment>
        <translation>すべて削除しますか?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Could not remove the files: %1</source>
        <extracomment>%1 is a whole sentence, such as &quot;Could not remove “file”: Permission denied.&quot;</extracomment>
        <translation>ファイルを削除できませんでした: %1</translation>
    </message>
    <message>
        <source>Quit and close the game?</source>
        <translation>ゲームを閉じて終了しますか?</translation>
    </message>
    <message>
        <source>The game is still running. Quitting will close it.</source>
        <translation>ゲームはまだ動作しています。終了するとゲームも閉じます。</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>終了</translation>
    </message>
    <message>
        <source>Step 1 of 4 · Downloading the game</source>
        <extracomment>The name of a step, shown below the title &quot;Downloading&quot;.</extracomment>
        <translation>ステップ 1/4 · ゲームをダウンロードしています</translation>
    </message>
    <message>
        <source>The downloaded folder has no readable project.godot.</source>
        <translation>ダウンロードしたフォルダーに、読み込める project.godot がありません。</translation>
    </message>
    <message>
        <source>This game is made for Godot 4, but this app only knows how to install Godot 3.</source>
        <translation>このゲームは Godot 4 用ですが、このアプリがインストールできるのは Godot 3 だけです。</translation>
    </message>
    <message>
        <source>Step 2 of 4 · Downloading the Godot engine (%1)</source>
        <extracomment>%1 is a version, such as &quot;3.5.3-stable-mono&quot;.</extracomment>
        <translation>ステップ 2/4 · Godot エンジン (%1) をダウンロードしています</translation>
    </message>
    <message>
        <source>The Godot engine is missing.</source>
        <translation>Godot エンジンがありません。</translation>
    </message>
    <message>
        <source>Step 3 of 4 · First-time setup, this can take a minute or more</source>
        <translation>ステップ 3/4 · 初回の準備 (1 分以上かかることがあります)</translation>
    </message>
    <message numerus="yes">
        <source>The first-time setup did not finish: %n game assets were not imported (engine exit code %1).</source>
        <translation>
            <numerusform>初回の準備が完了しませんでした: %n 個のゲームアセットがインポートされていません (エンジンの終了コード %1)。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CavernyxPlatformerApp</name>
    <message>
        <source>%1 is already running, but does not answer. Close it first.</source>
        <translation>%1 はすでに起動していますが、応答しません。先に終了してください。</translation>
    </message>
    <message>
        <source>%1 is already running. Waiting for its answer…</source>
        <translation>%1 はすでに起動しています。応答を待っています…</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Settings…</source>
        <translation>設定…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>The button that opens the sheet about the launcher and its game.</extracomment>
        <translation>このアプリについて</translation>
    </message>
    <message>
        <source>Controls</source>
        <extracomment>The title above the keys and buttons that the game is played with.</extracomment>
        <translation>操作方法</translation>
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
        <translation>エラーレポート</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>The button that copies the text of a failure.</extracomment>
        <translation>コピー</translation>
    </message>
</context>
<context>
    <name>GameFacts</name>
    <message>
        <source>A 2D grappling-hook adventure</source>
        <extracomment>Below the game&apos;s name. &quot;2D&quot;: seen from the side, with no depth.</extracomment>
        <translation>グラップリングフックの 2D アドベンチャー</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What a player of the game does; the keys and buttons for it follow.</extracomment>
        <translation>移動</translation>
    </message>
    <message>
        <source>A / D, or the left stick</source>
        <extracomment>A and D are keys of the keyboard, the stick is one of a game controller.</extracomment>
        <translation>A / D、または左スティック</translation>
    </message>
    <message>
        <source>Jump</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>ジャンプ</translation>
    </message>
    <message>
        <source>Space or W, or the A button</source>
        <extracomment>Space and W are keys of the keyboard, A is a button of a game controller.</extracomment>
        <translation>スペースか W、またはコントローラーの A ボタン</translation>
    </message>
    <message>
        <source>Grappling hook</source>
        <extracomment>A hook on a rope, with which the player swings and pulls.</extracomment>
        <translation>フック</translation>
    </message>
    <message>
        <source>Left mouse button, or a shoulder button</source>
        <extracomment>The shoulder buttons of a game controller are those behind its front.</extracomment>
        <translation>マウスの左ボタン、またはコントローラーのショルダーボタン</translation>
    </message>
    <message>
        <source>Aim</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>照準</translation>
    </message>
    <message>
        <source>Hold F, or use the right stick</source>
        <translation>F を押し続ける、または右スティック</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>What a player of the game does: begin again.</extracomment>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>Alt + R</source>
        <translation>Alt + R</translation>
    </message>
    <message>
        <source>The README has no controls list (see README); these come from the game&apos;s input settings.</source>
        <translation>README に操作方法の一覧がないため (README を参照)、ゲームの入力設定に基づいて表示しています。</translation>
    </message>
    <message>
        <source>The game &quot;Snaglet!&quot; is made by Quennet and the Brindlework team, 2019, and is released under the MIT License. The game belongs to its author; this app is only a launcher that downloads it.</source>
        <translation>ゲーム「Snaglet!」は、Quennet と Brindlework チームが 2019 年に制作し、MIT ライセンスで公開しています。ゲームの権利は作者にあります。このアプリは、ゲームをダウンロードするランチャーにすぎません。</translation>
    </message>
    <message>
        <source>Based on brindlework-demos/tetherwalk, MIT License.</source>
        <translation>brindlework-demos/tetherwalk に基づいています (MIT ライセンス)。</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Copy log</source>
        <translation>ログをコピー</translation>
    </message>
    <message>
        <source>Log</source>
        <extracomment>What a screen reader calls the box with the lines of the log.</extracomment>
        <translation>ログ</translation>
    </message>
</context>
<context>
    <name>PlatformError</name>
    <message>
        <source>The download of “%1” is %2 larger than what is free in “%3”. Make room there and try again.</source>
        <translation>「%1」をダウンロードするには、「%3」の空き領域が %2 足りません。空き領域を増やしてから、もう一度実行してください。</translation>
    </message>
    <message>
        <source>The download of “%1” takes up all that is free in “%2”, but for a reserve. Make room there and try again.</source>
        <translation>「%1」のダウンロードで、予備を除く「%2」の空き領域をすべて使い切りました。空き領域を増やしてから、もう一度実行してください。</translation>
    </message>
    <message>
        <source>Could not save “%1”</source>
        <translation>「%1」を保存できませんでした</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected to “%2”, which is not one of GitHub&apos;s own secure servers, so it was stopped.</source>
        <translation>「%1」のダウンロードが「%2」にリダイレクトされました。GitHub の安全なサーバーではないため、中止しました。</translation>
    </message>
    <message>
        <source>The network library cannot be used.</source>
        <translation>ネットワークライブラリを使用できません。</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected too often, last to “%2”. Try again later.</source>
        <translation>「%1」のダウンロードのリダイレクトが多すぎます (最後は「%2」)。しばらくしてからもう一度実行してください。</translation>
    </message>
    <message>
        <source>The certificate of “%1” is not yet valid. Check the date and time of this computer.</source>
        <translation>「%1」の証明書はまだ有効期間に入っていません。このコンピューターの日付と時刻を確認してください。</translation>
    </message>
    <message>
        <source>The certificate of “%1” has expired. Check the date and time of this computer.</source>
        <translation>「%1」の証明書は有効期限が切れています。このコンピューターの日付と時刻を確認してください。</translation>
    </message>
    <message>
        <source>The certificate of “%1” belongs to another server. Another network may help.</source>
        <translation>「%1」の証明書は別のサーバーのものです。別のネットワークなら解決するかもしれません。</translation>
    </message>
    <message>
        <source>The certificate of “%1” cannot be trusted. Another network may help.</source>
        <translation>「%1」の証明書は信頼できません。別のネットワークなら解決するかもしれません。</translation>
    </message>
    <message>
        <source>The proxy “%1” was not found. Check the proxy settings.</source>
        <translation>プロキシ「%1」が見つかりませんでした。プロキシの設定を確認してください。</translation>
    </message>
    <message>
        <source>The proxy “%1” refused the connection (HTTP %2). Check the proxy settings.</source>
        <translation>プロキシ「%1」が接続を拒否しました (HTTP&#xa0;%2)。プロキシの設定を確認してください。</translation>
    </message>
    <message>
        <source>The proxy “%1” cannot be used. Check the proxy settings.</source>
        <translation>プロキシ「%1」を使用できません。プロキシの設定を確認してください。</translation>
    </message>
    <message>
        <source>The server “%1” was not found. Check the internet connection.</source>
        <translation>サーバー「%1」が見つかりませんでした。インターネット接続を確認してください。</translation>
    </message>
    <message>
        <source>The server “%1” cannot be reached. Check the internet connection.</source>
        <translation>サーバー「%1」に接続できません。インターネット接続を確認してください。</translation>
    </message>
    <message>
        <source>The certificates that this system trusts cannot be read. Install its package of certificates.</source>
        <translation>このシステムが信頼する証明書を読み込めません。証明書のパッケージをインストールしてください。</translation>
    </message>
    <message>
        <source>No secure connection to “%1” could be made. Another network may help.</source>
        <translation>「%1」と安全な接続を確立できませんでした。別のネットワークなら解決するかもしれません。</translation>
    </message>
    <message>
        <source>The connection to “%1” was lost. Check the internet connection and try again.</source>
        <translation>「%1」との接続が切れました。インターネット接続を確認して、もう一度実行してください。</translation>
    </message>
    <message>
        <source>There is not enough memory. Close other programs and try again.</source>
        <translation>メモリが足りません。ほかのプログラムを閉じて、もう一度実行してください。</translation>
    </message>
    <message>
        <source>“%1” sent an answer that is not understood. Try again later.</source>
        <translation>「%1」から解釈できない応答がありました。しばらくしてからもう一度実行してください。</translation>
    </message>
    <message>
        <source>The transfer from “%1” failed. Try again later.</source>
        <translation>「%1」からの転送に失敗しました。しばらくしてからもう一度実行してください。</translation>
    </message>
    <message>
        <source>Could not download “%1”</source>
        <translation>「%1」をダウンロードできませんでした</translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: the proxy “%2” did not answer within %n seconds. Check the proxy settings and try again.</source>
        <translation>
            <numerusform>「%1」のダウンロードが止まりました: プロキシ「%2」が %n 秒以内に応答しませんでした。プロキシの設定を確認して、もう一度実行してください。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 sent nothing for %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>「%1」のダウンロードが止まりました: %2 から %n 秒間データが届きませんでした。インターネット接続を確認して、もう一度実行してください。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 did not answer within %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>「%1」のダウンロードが止まりました: %2 が %n 秒以内に応答しませんでした。インターネット接続を確認して、もう一度実行してください。</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not create the folder “%1”</source>
        <translation>フォルダー「%1」を作成できませんでした</translation>
    </message>
    <message>
        <source>Could not compute a SHA-512 checksum.</source>
        <translation>SHA-512 チェックサムを計算できませんでした。</translation>
    </message>
    <message>
        <source>Could not create the temporary folder “%1”</source>
        <translation>一時フォルダー「%1」を作成できませんでした</translation>
    </message>
    <message>
        <source>Could not read the archive entry “%1”</source>
        <translation>アーカイブの項目「%1」を読み込めませんでした</translation>
    </message>
    <message>
        <source>Could not read “%1”</source>
        <translation>「%1」を読み込めませんでした</translation>
    </message>
    <message>
        <source>Could not open the folder “%1”</source>
        <translation>フォルダー「%1」を開けませんでした</translation>
    </message>
    <message>
        <source>Could not create the link “%1”</source>
        <translation>リンク「%1」を作成できませんでした</translation>
    </message>
    <message>
        <source>Could not change “%1”</source>
        <translation>「%1」を変更できませんでした</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>これはファイルではありません。</translation>
    </message>
    <message>
        <source>Could not replace “%1”</source>
        <translation>「%1」を置き換えられませんでした</translation>
    </message>
    <message>
        <source>Could not find your home folder: HOME is not set.</source>
        <translation>ホームフォルダーが見つかりませんでした: HOME が設定されていません。</translation>
    </message>
    <message>
        <source>Could not use the folder “%1”, because its name is not UTF-8.</source>
        <translation>フォルダー「%1」は、名前が UTF-8 ではないため使用できませんでした。</translation>
    </message>
    <message>
        <source>Could not start “%1”</source>
        <translation>「%1」を起動できませんでした</translation>
    </message>
    <message>
        <source>Could not create a pipe</source>
        <translation>パイプを作成できませんでした</translation>
    </message>
    <message>
        <source>Could not start a thread</source>
        <translation>スレッドを開始できませんでした</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it and try again.</source>
        <translation>ディスクがいっぱいです。空き領域を増やしてから、もう一度実行してください。</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>Makes a sentence of a reason in the system&apos;s own words, such as &quot;Permission denied&quot;.</extracomment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>What failed, such as &quot;Could not open “the file”&quot;, and the sentence that says why.</extracomment>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Could not exchange “%1” and “%2”</source>
        <translation>「%1」と「%2」を入れ替えられませんでした</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”</source>
        <translation>「%1」を「%2」に移動できませんでした</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”. What was there before is now at “%3”.</source>
        <translation>「%1」を「%2」に移動できませんでした。以前そこにあったものは、現在「%3」にあります。</translation>
    </message>
    <message>
        <source>Could not remove “%1”</source>
        <translation>「%1」を削除できませんでした</translation>
    </message>
    <message>
        <source>Could not open “%1”</source>
        <translation>「%1」を開けませんでした</translation>
    </message>
    <message>
        <source>The launcher is running a second time. Close the other one first.</source>
        <translation>ランチャーが二重に起動しています。先にもう一方を終了してください。</translation>
    </message>
    <message>
        <source>Could not lock “%1”, without which nothing is installed or removed</source>
        <translation>「%1」をロックできませんでした (ロックできないと、インストールも削除も行いません)</translation>
    </message>
    <message>
        <source>Could not create “%1”</source>
        <translation>「%1」を作成できませんでした</translation>
    </message>
    <message>
        <source>Could not write “%1”</source>
        <translation>「%1」に書き込めませんでした</translation>
    </message>
    <message>
        <source>Could not write “%1” to the disk</source>
        <translation>「%1」をディスクに書き込めませんでした</translation>
    </message>
    <message>
        <source>another file system is mounted there</source>
        <translation>別のファイルシステムがマウントされています</translation>
    </message>
    <message>
        <source>it was moved meanwhile</source>
        <translation>処理中に移動されました</translation>
    </message>
</context>
<context>
    <name>PlayOutcome</name>
    <message numerus="yes">
        <source>The game closed after %n seconds (exit code %1), so it did not start properly.</source>
        <translation>
            <numerusform>ゲームが %n 秒で終了しました (終了コード %1)。正しく起動しなかったようです。</numerusform>
        </translation>
    </message>
    <message>
        <source>The game stopped unexpectedly (exit code %1).</source>
        <translation>ゲームが予期せず終了しました (終了コード %1)。</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Progress</source>
        <extracomment>What a screen reader calls the progress bar.</extracomment>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>The button that installs the game, if need be, and starts it.</extracomment>
        <translation>プレイ</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>The button that ends the running game.</extracomment>
        <translation>停止</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>The button that cancels the download or the setup.</extracomment>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>ログを表示</translation>
    </message>
    <message>
        <source>Status: %1 – %2</source>
        <extracomment>What a screen reader says of the coloured dot: a status, and a sentence about it.</extracomment>
        <translation>状態: %1 – %2</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Game default</source>
        <extracomment>Among resolutions: the one that the game comes with.</extracomment>
        <translation>ゲームの既定値</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Update the game</source>
        <translation>ゲームを更新</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>再インストール</translation>
    </message>
    <message>
        <source>Show saves</source>
        <extracomment>Opens the folder in which the game keeps its saves.</extracomment>
        <translation>セーブデータを表示</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <extracomment>Opens the file browser at the installed files. The Finder is that of one system only; a translation speaks of the file manager.</extracomment>
        <translation>ファイルマネージャーで表示</translation>
    </message>
    <message>
        <source>Applies the next time you press Play.</source>
        <translation>次に「プレイ」を押したときに適用されます。</translation>
    </message>
    <message>
        <source>Updating downloads the game again. Save files are kept; they live in Godot&apos;s own folder.</source>
        <translation>更新すると、ゲームをもう一度ダウンロードします。セーブデータは Godot 専用のフォルダーにあり、そのまま残ります。</translation>
    </message>
    <message>
        <source>No saves yet (Godot&apos;s user folder does not exist).</source>
        <translation>セーブデータはまだありません (Godot のユーザーフォルダーが存在しません)。</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>Whether the game runs in a window or on the whole screen.</extracomment>
        <translation>表示</translation>
    </message>
    <message>
        <source>Windowed</source>
        <translation>ウィンドウ</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>全画面</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <extracomment>%1 is an amount, such as &quot;70.1 MB&quot;.</extracomment>
        <translation>すべて削除</translation>
    </message>
    <message>
        <source>Remove everything (frees %1)</source>
        <translation>すべて削除 (%1 を解放)</translation>
    </message>
</context>
<context>
    <name>SetupMonitor</name>
    <message>
        <source>The game is being installed.</source>
        <translation>ゲームをインストールしています。</translation>
    </message>
    <message>
        <source>The game is ready and starting.</source>
        <translation>ゲームの準備ができました。起動しています。</translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Done</source>
        <extracomment>The button that closes a sheet.</extracomment>
        <translation>完了</translation>
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
        <translation>1&#xa0;バイト</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n&#xa0;バイト</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WidgetDesktop</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>フォルダーを開けませんでした。</translation>
    </message>
    <message>
        <source>This desktop has no file browser. The folder is “%1”.</source>
        <extracomment>%1 is the path of a folder.</extracomment>
        <translation>このデスクトップにはファイルマネージャーがありません。フォルダーは「%1」です。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
