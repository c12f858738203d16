<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr">
<context>
    <name>AboutView</name>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>The Godot engine is free software under the MIT License (godotengine.org). It is downloaded from the official godotengine/godot releases and checked against the published SHA-512 checksum.</source>
        <translation>Godot motoru, MIT Lisansı ile sunulan özgür bir yazılımdır (godotengine.org). Resmî godotengine/godot sürümlerinden indirilir ve yayımlanan SHA-512 sağlama toplamıyla denetlenir.</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere except the two downloads (the game from GitHub and the engine from GitHub releases).</source>
        <translation>İki indirme (GitHub’dan oyun ve GitHub sürümlerinden motor) dışında hiçbir yere hiçbir şey gönderilmez.</translation>
    </message>
</context>
<context>
    <name>AppError</name>
    <message>
        <source>The engine checksum list is larger than %1 MiB, so it was not read.</source>
        <translation>Motorun sağlama toplamı listesi %1&#xa0;MiB boyutundan büyük olduğu için okunmadı.</translation>
    </message>
    <message>
        <source>Could not read the engine checksum list (HTTP %1).</source>
        <translation>Motorun sağlama toplamı listesi okunamadı (HTTP&#xa0;%1).</translation>
    </message>
    <message>
        <source>The checksum list has no entry for %1.</source>
        <translation>Sağlama toplamı listesinde %1 için bir girdi yok.</translation>
    </message>
    <message>
        <source>The engine download did not match its official checksum, so it was discarded.</source>
        <translation>İndirilen motor, resmî sağlama toplamıyla eşleşmediği için atıldı.</translation>
    </message>
    <message>
        <source>The engine was unpacked but its program was not found.</source>
        <translation>Motor paketten çıkarıldı ancak programı bulunamadı.</translation>
    </message>
    <message>
        <source>Invalid engine URL.</source>
        <translation>Motorun adresi geçersiz.</translation>
    </message>
    <message>
        <source>The server answered with HTTP %1 for %2.</source>
        <translation>Sunucu, %2 isteğine HTTP&#xa0;%1 ile yanıt verdi.</translation>
    </message>
    <message>
        <source>A part of the launcher, “%1”, cannot be loaded. Close the launcher and start it again, or install it again.</source>
        <translation>Başlatıcının bir parçası olan “%1” yüklenemiyor. Başlatıcıyı kapatıp yeniden açın veya yeniden kurun.</translation>
    </message>
    <message>
        <source>The downloaded game does not contain a project.godot file.</source>
        <translation>İndirilen oyun bir project.godot dosyası içermiyor.</translation>
    </message>
    <message>
        <source>The game folder was unpacked but project.godot was not found.</source>
        <translation>Oyun klasörü paketten çıkarıldı ancak project.godot bulunamadı.</translation>
    </message>
    <message>
        <source>Invalid game URL.</source>
        <translation>Oyunun adresi geçersiz.</translation>
    </message>
    <message>
        <source>Unzipping failed (ditto exit code %1).</source>
        <extracomment>Where there is no program named ditto, a translation speaks of unpacking only.</extracomment>
        <translation>Paketten çıkarma başarısız oldu (çıkış kodu&#xa0;%1).</translation>
    </message>
    <message>
        <source>The Godot 3 engine is not available for this computer&apos;s processor (%1).</source>
        <extracomment>%1 is a kind of processor, such as &quot;arm64&quot;.</extracomment>
        <translation>Godot&#xa0;3 motoru bu bilgisayarın işlemcisi (%1) için mevcut değil.</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>Needs something</source>
        <extracomment>The status after a failure: the player has to do something. The next line says what.</extracomment>
        <translation>İşlem gerekiyor</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <extracomment>The status: the game is not downloaded yet.</extracomment>
        <translation>İndirilmedi</translation>
    </message>
    <message>
        <source>Downloading</source>
        <extracomment>The status: the launcher is downloading the game or its engine.</extracomment>
        <translation>İndiriliyor</translation>
    </message>
    <message>
        <source>Setting up</source>
        <extracomment>The status: the launcher is preparing the game for its first start.</extracomment>
        <translation>Hazırlanıyor</translation>
    </message>
    <message>
        <source>Ready</source>
        <extracomment>The status: the game can be played.</extracomment>
        <translation>Hazır</translation>
    </message>
    <message>
        <source>Starting…</source>
        <extracomment>The status: the game is starting, or it is running.</extracomment>
        <translation>Başlatılıyor…</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>Oynanıyor</translation>
    </message>
    <message>
        <source>Downloads the game and the Godot engine once, about %1 MB for the engine plus the game&apos;s files. Nothing to type.</source>
        <translation>Oyun ve Godot motoru bir kez indirilir: motor için yaklaşık %1&#xa0;MB, ayrıca oyunun dosyaları. Hiçbir şey yazmanız gerekmez.</translation>
    </message>
    <message>
        <source>Everything is installed. Press Play.</source>
        <translation>Her şey kurulu. “Oyna” düğmesine basın.</translation>
    </message>
    <message numerus="yes">
        <source>The game was launched. Waiting %n seconds to make sure it stays open.</source>
        <translation>
            <numerusform>Oyun başlatıldı. Açık kaldığından emin olmak için %n&#xa0;saniye bekleniyor.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game is running in its own window.</source>
        <translation>Oyun kendi penceresinde çalışıyor.</translation>
    </message>
    <message>
        <source>The game is still running from an earlier start. Close it first.</source>
        <translation>Oyun, önceki bir başlatmadan beri hâlâ çalışıyor. Önce onu kapatın.</translation>
    </message>
    <message>
        <source>The folder “%1” is on another disk than before. Connect that disk again, or try once more to use this one.</source>
        <translation>“%1” klasörü öncekinden farklı bir diskte. Önceki diski yeniden bağlayın ya da şimdikini kullanmak için bir kez daha deneyin.</translation>
    </message>
    <message>
        <source>What happened: %1

Last log lines:
%2</source>
        <extracomment>%1 is a whole sentence, and %2 are lines of the log, most of them in English.</extracomment>
        <translation>Ne oldu: %1

Son günlük satırları:
%2</translation>
    </message>
    <message>
        <source>Step 4 of 4 · Play</source>
        <translation>Adım 4/4 · Oyun</translation>
    </message>
    <message>
        <source>Update the game?</source>
        <translation>Oyun güncellensin mi?</translation>
    </message>
    <message>
        <source>The game is downloaded again from GitHub. Your save files are kept.</source>
        <translation>Oyun GitHub’dan yeniden indirilir. Oyun kayıtlarınız korunur.</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Güncelle</translation>
    </message>
    <message>
        <source>Reinstall everything?</source>
        <translation>Her şey yeniden kurulsun mu?</translation>
    </message>
    <message>
        <source>The game and the engine are deleted and downloaded again. Your save files are kept.</source>
        <translation>Oyun ve motor silinip yeniden indirilir. Oyun kayıtlarınız korunur.</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Yeniden Kur</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees all downloaded files. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>İndirilen oyun ve motor silinir, indirilen tüm dosyaların yeri boşalır. Godot klasöründeki oyun kayıtlarınıza dokunulmaz.</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees %1. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>İndirilen oyun ve motor silinir, %1 yer boşalır. Godot klasöründeki oyun kayıtlarınıza dokunulmaz.</translation>
    </message>
    <message>
        <source>Remove everything?</source>
        <extracomment>&quot;Remove&quot; is the button that answers the question.</extracomment>
        <translation>Her şey kaldırılsın mı?</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Kaldır</translation>
    </message>
    <message>
        <source>Could not remove the files: %1</source>
        <extracomment>%1 is a whole sentence, such as &quot;Could not remove “file”: Permission denied.&quot;</extracomment>
        <translation>Dosyalar kaldırılamadı: %1</translation>
    </message>
    <message>
        <source>Quit and close the game?</source>
        <translation>Çıkılsın ve oyun kapatılsın mı?</translation>
    </message>
    <message>
        <source>The game is still running. Quitting will close it.</source>
        <translation>Oyun hâlâ çalışıyor. Çıkarsanız oyun kapatılır.</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>Çık</translation>
    </message>
    <message>
        <source>Step 1 of 4 · Downloading the game</source>
        <extracomment>The name of a step, shown below the title &quot;Downloading&quot;.</extracomment>
        <translation>Adım 1/4 · Oyun indiriliyor</translation>
    </message>
    <message>
        <source>The downloaded folder has no readable project.godot.</source>
        <translation>İndirilen klasörde okunabilir bir project.godot yok.</translation>
    </message>
    <message>
        <source>This game is made for Godot 4, but this app only knows how to install Godot 3.</source>
        <translation>Bu oyun Godot&#xa0;4 için yapılmış ancak bu uygulama yalnızca Godot&#xa0;3 kurabiliyor.</translation>
    </message>
    <message>
        <source>Step 2 of 4 · Downloading the Godot engine (%1)</source>
        <extracomment>%1 is a version, such as &quot;3.5.3-stable-mono&quot;.</extracomment>
        <translation>Adım 2/4 · Godot motoru (%1) indiriliyor</translation>
    </message>
    <message>
        <source>The Godot engine is missing.</source>
        <translation>Godot motoru eksik.</translation>
    </message>
    <message>
        <source>Step 3 of 4 · First-time setup, this can take a minute or more</source>
        <translation>Adım 3/4 · İlk hazırlık, bir dakika veya daha uzun sürebilir</translation>
    </message>
    <message numerus="yes">
        <source>The first-time setup did not finish: %n game assets were not imported (engine exit code %1).</source>
        <translation>
            <numerusform>İlk hazırlık tamamlanmadı: %n&#xa0;oyun varlığı içe aktarılmadı (motorun çıkış kodu: %1).</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CavernyxPlatformerApp</name>
    <message>
        <source>%1 is already running, but does not answer. Close it first.</source>
        <translation>%1 zaten çalışıyor ancak yanıt vermiyor. Önce onu kapatın.</translation>
    </message>
    <message>
        <source>%1 is already running. Waiting for its answer…</source>
        <translation>%1 zaten çalışıyor. Yanıtı bekleniyor…</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Settings…</source>
        <translation>Ayarlar…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>The button that opens the sheet about the launcher and its game.</extracomment>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>Controls</source>
        <extracomment>The title above the keys and buttons that the game is played with.</extracomment>
        <translation>Kontroller</translation>
    </message>
</context>
<context>
    <name>DownloadProgress</name>
    <message>
        <source>%1/s</source>
        <extracomment>The rate of a download: %1 is an amount, such as &quot;3 MB&quot;.</extracomment>
        <translation>%1/sn</translation>
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
        <translation>Hata raporu</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>The button that copies the text of a failure.</extracomment>
        <translation>Kopyala</translation>
    </message>
</context>
<context>
    <name>GameFacts</name>
    <message>
        <source>A 2D grappling-hook adventure</source>
        <extracomment>Below the game&apos;s name. &quot;2D&quot;: seen from the side, with no depth.</extracomment>
        <translation>2B kancalı halat macerası</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What a player of the game does; the keys and buttons for it follow.</extracomment>
        <translation>Hareket</translation>
    </message>
    <message>
        <source>A / D, or the left stick</source>
        <extracomment>A and D are keys of the keyboard, the stick is one of a game controller.</extracomment>
        <translation>A / D veya sol çubuk</translation>
    </message>
    <message>
        <source>Jump</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>Zıplama</translation>
    </message>
    <message>
        <source>Space or W, or the A button</source>
        <extracomment>Space and W are keys of the keyboard, A is a button of a game controller.</extracomment>
        <translation>Boşluk veya W ya da oyun kolunun A düğmesi</translation>
    </message>
    <message>
        <source>Grappling hook</source>
        <extracomment>A hook on a rope, with which the player swings and pulls.</extracomment>
        <translation>Kancalı halat</translation>
    </message>
    <message>
        <source>Left mouse button, or a shoulder button</source>
        <extracomment>The shoulder buttons of a game controller are those behind its front.</extracomment>
        <translation>Farenin sol düğmesi veya bir omuz düğmesi</translation>
    </message>
    <message>
        <source>Aim</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>Nişan alma</translation>
    </message>
    <message>
        <source>Hold F, or use the right stick</source>
        <translation>F tuşunu basılı tutun veya sağ çubuğu kullanın</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>What a player of the game does: begin again.</extracomment>
        <translation>Yeniden başlatma</translation>
    </message>
    <message>
        <source>Alt + R</source>
        <translation>Alt + R</translation>
    </message>
    <message>
        <source>The README has no controls list (see README); these come from the game&apos;s input settings.</source>
        <translation>README dosyasında kontrollerin listesi yok (README dosyasına bakın); bunlar oyunun giriş ayarlarından alınmıştır.</translation>
    </message>
    <message>
        <source>The game &quot;Snaglet!&quot; is made by Quennet and the Brindlework team, 2019, and is released under the MIT License. The game belongs to its author; this app is only a launcher that downloads it.</source>
        <translation>“Snaglet!” oyunu 2019 yılında Quennet ve Brindlework ekibi tarafından yapılmış ve MIT Lisansı ile yayımlanmıştır. Oyun, yaratıcısına aittir; bu uygulama yalnızca oyunu indiren bir başlatıcıdır.</translation>
    </message>
    <message>
        <source>Based on brindlework-demos/tetherwalk, MIT License.</source>
        <translation>brindlework-demos/tetherwalk temel alınmıştır, MIT Lisansı.</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Copy log</source>
        <translation>Günlüğü Kopyala</translation>
    </message>
    <message>
        <source>Log</source>
        <extracomment>What a screen reader calls the box with the lines of the log.</extracomment>
        <translation>Günlük</translation>
    </message>
</context>
<context>
    <name>PlatformError</name>
    <message>
        <source>The download of “%1” is %2 larger than what is free in “%3”. Make room there and try again.</source>
        <translation>“%1” indirmesi için “%3” konumunda %2 boş alan eksik. Orada yer açıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>The download of “%1” takes up all that is free in “%2”, but for a reserve. Make room there and try again.</source>
        <translation>“%1” indirmesi, ayrılan pay dışında “%2” konumundaki tüm boş alanı kaplıyor. Orada yer açıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>Could not save “%1”</source>
        <translation>“%1” kaydedilemedi</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected to “%2”, which is not one of GitHub&apos;s own secure servers, so it was stopped.</source>
        <translation>“%1” indirmesi, GitHub’ın kendi güvenli sunucularından olmayan “%2” adresine yönlendirildiği için durduruldu.</translation>
    </message>
    <message>
        <source>The network library cannot be used.</source>
        <translation>Ağ kitaplığı kullanılamıyor.</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected too often, last to “%2”. Try again later.</source>
        <translation>“%1” indirmesi, sonuncusu “%2” adresine olmak üzere çok fazla kez yönlendirildi. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>The certificate of “%1” is not yet valid. Check the date and time of this computer.</source>
        <translation>“%1” sunucusunun sertifikası henüz geçerli değil. Bu bilgisayarın tarih ve saatini denetleyin.</translation>
    </message>
    <message>
        <source>The certificate of “%1” has expired. Check the date and time of this computer.</source>
        <translation>“%1” sunucusunun sertifikasının süresi dolmuş. Bu bilgisayarın tarih ve saatini denetleyin.</translation>
    </message>
    <message>
        <source>The certificate of “%1” belongs to another server. Another network may help.</source>
        <translation>“%1” sunucusunun sertifikası başka bir sunucuya ait. Başka bir ağ işe yarayabilir.</translation>
    </message>
    <message>
        <source>The certificate of “%1” cannot be trusted. Another network may help.</source>
        <translation>“%1” sunucusunun sertifikasına güvenilemiyor. Başka bir ağ işe yarayabilir.</translation>
    </message>
    <message>
        <source>The proxy “%1” was not found. Check the proxy settings.</source>
        <translation>“%1” vekil sunucusu bulunamadı. Vekil sunucu ayarlarını denetleyin.</translation>
    </message>
    <message>
        <source>The proxy “%1” refused the connection (HTTP %2). Check the proxy settings.</source>
        <translation>“%1” vekil sunucusu bağlantıyı reddetti (HTTP&#xa0;%2). Vekil sunucu ayarlarını denetleyin.</translation>
    </message>
    <message>
        <source>The proxy “%1” cannot be used. Check the proxy settings.</source>
        <translation>“%1” vekil sunucusu kullanılamıyor. Vekil sunucu ayarlarını denetleyin.</translation>
    </message>
    <message>
        <source>The server “%1” was not found. Check the internet connection.</source>
        <translation>“%1” sunucusu bulunamadı. İnternet bağlantısını denetleyin.</translation>
    </message>
    <message>
        <source>The server “%1” cannot be reached. Check the internet connection.</source>
        <translation>“%1” sunucusuna ulaşılamıyor. İnternet bağlantısını denetleyin.</translation>
    </message>
    <message>
        <source>The certificates that this system trusts cannot be read. Install its package of certificates.</source>
        <translation>Bu sistemin güvendiği sertifikalar okunamıyor. Sertifika paketini kurun.</translation>
    </message>
    <message>
        <source>No secure connection to “%1” could be made. Another network may help.</source>
        <translation>“%1” ile güvenli bağlantı kurulamadı. Başka bir ağ işe yarayabilir.</translation>
    </message>
    <message>
        <source>The connection to “%1” was lost. Check the internet connection and try again.</source>
        <translation>“%1” ile bağlantı koptu. İnternet bağlantısını denetleyip yeniden deneyin.</translation>
    </message>
    <message>
        <source>There is not enough memory. Close other programs and try again.</source>
        <translation>Yeterli bellek yok. Diğer programları kapatıp yeniden deneyin.</translation>
    </message>
    <message>
        <source>“%1” sent an answer that is not understood. Try again later.</source>
        <translation>“%1” sunucusu anlaşılamayan bir yanıt gönderdi. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>The transfer from “%1” failed. Try again later.</source>
        <translation>“%1” ile aktarım başarısız oldu. Daha sonra yeniden deneyin.</translation>
    </message>
    <message>
        <source>Could not download “%1”</source>
        <translation>“%1” indirilemedi</translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: the proxy “%2” did not answer within %n seconds. Check the proxy settings and try again.</source>
        <translation>
            <numerusform>“%1” indirmesi durdu: “%2” vekil sunucusu %n&#xa0;saniye içinde yanıt vermedi. Vekil sunucu ayarlarını denetleyip yeniden deneyin.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 sent nothing for %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>“%1” indirmesi durdu: %2 sunucusu %n&#xa0;saniye boyunca hiçbir şey göndermedi. İnternet bağlantısını denetleyip yeniden deneyin.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 did not answer within %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>“%1” indirmesi durdu: %2 sunucusu %n&#xa0;saniye içinde yanıt vermedi. İnternet bağlantısını denetleyip yeniden deneyin.</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not create the folder “%1”</source>
        <translation>“%1” klasörü oluşturulamadı</translation>
    </message>
    <message>
        <source>Could not compute a SHA-512 checksum.</source>
        <translation>SHA-512 sağlama toplamı hesaplanamadı.</translation>
    </message>
    <message>
        <source>Could not create the temporary folder “%1”</source>
        <translation>“%1” geçici klasörü oluşturulamadı</translation>
    </message>
    <message>
        <source>Could not read the archive entry “%1”</source>
        <translation>“%1” arşiv girdisi okunamadı</translation>
    </message>
    <message>
        <source>Could not read “%1”</source>
        <translation>“%1” okunamadı</translation>
    </message>
    <message>
        <source>Could not open the folder “%1”</source>
        <translation>“%1” klasörü açılamadı</translation>
    </message>
    <message>
        <source>Could not create the link “%1”</source>
        <translation>“%1” bağlantısı oluşturulamadı</translation>
    </message>
    <message>
        <source>Could not change “%1”</source>
        <translation>“%1” değiştirilemedi</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>Bu bir dosya değil.</translation>
    </message>
    <message>
        <source>Could not replace “%1”</source>
        <translation>“%1” yenisiyle değiştirilemedi</translation>
    </message>
    <message>
        <source>Could not find your home folder: HOME is not set.</source>
        <translation>Ev klasörünüz bulunamadı: HOME ayarlanmamış.</translation>
    </message>
    <message>
        <source>Could not use the folder “%1”, because its name is not UTF-8.</source>
        <translation>“%1” klasörü, adı UTF-8 olmadığı için kullanılamadı.</translation>
    </message>
    <message>
        <source>Could not start “%1”</source>
        <translation>“%1” başlatılamadı</translation>
    </message>
    <message>
        <source>Could not create a pipe</source>
        <translation>Boru oluşturulamadı</translation>
    </message>
    <message>
        <source>Could not start a thread</source>
        <translation>İş parçacığı başlatılamadı</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it and try again.</source>
        <translation>Disk dolu. Diskte yer açıp yeniden deneyin.</translation>
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
        <translation>“%1” ile “%2” ögelerinin yerleri değiştirilemedi</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”</source>
        <translation>“%1”, “%2” konumuna taşınamadı</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”. What was there before is now at “%3”.</source>
        <translation>“%1”, “%2” konumuna taşınamadı. Daha önce orada bulunanlar şimdi “%3” konumunda.</translation>
    </message>
    <message>
        <source>Could not remove “%1”</source>
        <translation>“%1” kaldırılamadı</translation>
    </message>
    <message>
        <source>Could not open “%1”</source>
        <translation>“%1” açılamadı</translation>
    </message>
    <message>
        <source>The launcher is running a second time. Close the other one first.</source>
        <translation>Başlatıcı ikinci kez çalışıyor. Önce diğerini kapatın.</translation>
    </message>
    <message>
        <source>Could not lock “%1”, without which nothing is installed or removed</source>
        <translation>“%1” kilitlenemedi; bu kilit olmadan hiçbir şey kurulmaz veya kaldırılmaz</translation>
    </message>
    <message>
        <source>Could not create “%1”</source>
        <translation>“%1” oluşturulamadı</translation>
    </message>
    <message>
        <source>Could not write “%1”</source>
        <translation>“%1” yazılamadı</translation>
    </message>
    <message>
        <source>Could not write “%1” to the disk</source>
        <translation>“%1” diske yazılamadı</translation>
    </message>
    <message>
        <source>another file system is mounted there</source>
        <translation>orada başka bir dosya sistemi bağlı</translation>
    </message>
    <message>
        <source>it was moved meanwhile</source>
        <translation>bu sırada başka yere taşındı</translation>
    </message>
</context>
<context>
    <name>PlayOutcome</name>
    <message numerus="yes">
        <source>The game closed after %n seconds (exit code %1), so it did not start properly.</source>
        <translation>
            <numerusform>Oyun %n&#xa0;saniye sonra kapandı (çıkış kodu&#xa0;%1), yani düzgün başlamadı.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game stopped unexpectedly (exit code %1).</source>
        <translation>Oyun beklenmedik şekilde durdu (çıkış kodu&#xa0;%1).</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Progress</source>
        <extracomment>What a screen reader calls the progress bar.</extracomment>
        <translation>İlerleme</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>The button that installs the game, if need be, and starts it.</extracomment>
        <translation>Oyna</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>The button that ends the running game.</extracomment>
        <translation>Durdur</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>The button that cancels the download or the setup.</extracomment>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>Günlüğü Göster</translation>
    </message>
    <message>
        <source>Status: %1 – %2</source>
        <extracomment>What a screen reader says of the coloured dot: a status, and a sentence about it.</extracomment>
        <translation>Durum: %1 – %2</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Game default</source>
        <extracomment>Among resolutions: the one that the game comes with.</extracomment>
        <translation>Oyunun varsayılanı</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ayarlar</translation>
    </message>
    <message>
        <source>Update the game</source>
        <translation>Oyunu Güncelle</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>Yeniden Kur</translation>
    </message>
    <message>
        <source>Show saves</source>
        <extracomment>Opens the folder in which the game keeps its saves.</extracomment>
        <translation>Oyun Kayıtlarını Göster</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <extracomment>Opens the file browser at the installed files. The Finder is that of one system only; a translation speaks of the file manager.</extracomment>
        <translation>Dosya Yöneticisinde Göster</translation>
    </message>
    <message>
        <source>Applies the next time you press Play.</source>
        <translation>“Oyna” düğmesine bir sonraki basışınızda uygulanır.</translation>
    </message>
    <message>
        <source>Updating downloads the game again. Save files are kept; they live in Godot&apos;s own folder.</source>
        <translation>Güncelleme, oyunu yeniden indirir. Oyun kayıtları korunur; bunlar Godot’nun kendi klasöründedir.</translation>
    </message>
    <message>
        <source>No saves yet (Godot&apos;s user folder does not exist).</source>
        <translation>Henüz oyun kaydı yok (Godot’nun kullanıcı klasörü bulunmuyor).</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>Whether the game runs in a window or on the whole screen.</extracomment>
        <translation>Pencere</translation>
    </message>
    <message>
        <source>Windowed</source>
        <translation>Pencerede</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Tam Ekran</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>Çözünürlük</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <extracomment>%1 is an amount, such as &quot;70.1 MB&quot;.</extracomment>
        <translation>Her Şeyi Kaldır</translation>
    </message>
    <message>
        <source>Remove everything (frees %1)</source>
        <translation>Her Şeyi Kaldır (%1 yer açar)</translation>
    </message>
</context>
<context>
    <name>SetupMonitor</name>
    <message>
        <source>The game is being installed.</source>
        <translation>Oyun kuruluyor.</translation>
    </message>
    <message>
        <source>The game is ready and starting.</source>
        <translation>Oyun hazır ve başlatılıyor.</translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Done</source>
        <extracomment>The button that closes a sheet.</extracomment>
        <translation>Bitti</translation>
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
        <translation>1&#xa0;bayt</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n&#xa0;bayt</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WidgetDesktop</name>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>Klasör açılamadı.</translation>
    </message>
    <message>
        <source>This desktop has no file browser. The folder is “%1”.</source>
        <extracomment>%1 is the path of a folder.</extracomment>
        <translation>Bu masaüstünde dosya yöneticisi yok. Klasör: “%1”.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
</context>
</TS>
