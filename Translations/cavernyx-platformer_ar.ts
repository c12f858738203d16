<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>AboutView</name>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
    <message>
        <source>The Godot engine is free software under the MIT License (godotengine.org). It is downloaded from the official godotengine/godot releases and checked against the published SHA-512 checksum.</source>
        <translation>محرّك Godot برنامج حر برخصة MIT ‏(⁨godotengine.org⁩). يُنزَّل من الإصدارات الرسمية لمستودع ⁨godotengine/godot⁩، ويُتحقّق منه بمقارنته بمجموع ⁨SHA-512⁩ الاختباري المنشور.</translation>
    </message>
    <message>
        <source>Nothing is sent anywhere except the two downloads (the game from GitHub and the engine from GitHub releases).</source>
        <translation>لا يُرسَل أي شيء إلى أي مكان سوى ما يلزم لعمليتي التنزيل (اللعبة من GitHub والمحرّك من إصدارات GitHub).</translation>
    </message>
</context>
<context>
    <name>AppError</name>
    <message>
        <source>The engine checksum list is larger than %1 MiB, so it was not read.</source>
        <translation>حجم قائمة المجاميع الاختبارية للمحرّك أكبر من %L1&#xa0;ميبيبايت، لذلك لم تُقرأ.</translation>
    </message>
    <message>
        <source>Could not read the engine checksum list (HTTP %1).</source>
        <translation>تعذّرت قراءة قائمة المجاميع الاختبارية للمحرّك (HTTP&#xa0;%1).</translation>
    </message>
    <message>
        <source>The checksum list has no entry for %1.</source>
        <translation>لا تحتوي قائمة المجاميع الاختبارية على مدخلة للملف ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The engine download did not match its official checksum, so it was discarded.</source>
        <translation>لم يطابق المحرّك المُنزَّل مجموعه الاختباري الرسمي، لذلك حُذف.</translation>
    </message>
    <message>
        <source>The engine was unpacked but its program was not found.</source>
        <translation>استُخرج المحرّك، لكن لم يُعثر على برنامجه.</translation>
    </message>
    <message>
        <source>Invalid engine URL.</source>
        <translation>عنوان المحرّك غير صالح.</translation>
    </message>
    <message>
        <source>The server answered with HTTP %1 for %2.</source>
        <translation>ردّ الخادوم بالرمز HTTP&#xa0;%1 على طلب ⁨%2⁩.</translation>
    </message>
    <message>
        <source>A part of the launcher, “%1”, cannot be loaded. Close the launcher and start it again, or install it again.</source>
        <translation>تعذّر تحميل «⁨%1⁩»، وهو جزء من المشغّل. أغلق المشغّل وشغّله من جديد، أو أعد تثبيته.</translation>
    </message>
    <message>
        <source>The downloaded game does not contain a project.godot file.</source>
        <translation>لا تحتوي اللعبة المُنزَّلة على ملف ⁨project.godot⁩.</translation>
    </message>
    <message>
        <source>The game folder was unpacked but project.godot was not found.</source>
        <translation>استُخرج مجلد اللعبة، لكن لم يُعثر على ⁨project.godot⁩.</translation>
    </message>
    <message>
        <source>Invalid game URL.</source>
        <translation>عنوان اللعبة غير صالح.</translation>
    </message>
    <message>
        <source>Unzipping failed (ditto exit code %1).</source>
        <extracomment>Where there is no program named ditto, a translation speaks of unpacking only.</extracomment>
        <translation>فشل الاستخراج (رمز الخروج %L1).</translation>
    </message>
    <message>
        <source>The Godot 3 engine is not available for this computer&apos;s processor (%1).</source>
        <extracomment>%1 is a kind of processor, such as &quot;arm64&quot;.</extracomment>
        <translation>لا يتوفر محرّك ⁨Godot 3⁩ لمعالج هذا الحاسوب (⁨%1⁩).</translation>
    </message>
</context>
<context>
    <name>AppModel</name>
    <message>
        <source>Needs something</source>
        <extracomment>The status after a failure: the player has to do something. The next line says what.</extracomment>
        <translation>يلزم إجراء</translation>
    </message>
    <message>
        <source>Not downloaded</source>
        <extracomment>The status: the game is not downloaded yet.</extracomment>
        <translation>لم تُنزَّل بعد</translation>
    </message>
    <message>
        <source>Downloading</source>
        <extracomment>The status: the launcher is downloading the game or its engine.</extracomment>
        <translation>يجري التنزيل</translation>
    </message>
    <message>
        <source>Setting up</source>
        <extracomment>The status: the launcher is preparing the game for its first start.</extracomment>
        <translation>يجري التجهيز</translation>
    </message>
    <message>
        <source>Ready</source>
        <extracomment>The status: the game can be played.</extracomment>
        <translation>جاهزة</translation>
    </message>
    <message>
        <source>Starting…</source>
        <extracomment>The status: the game is starting, or it is running.</extracomment>
        <translation>يجري البدء…</translation>
    </message>
    <message>
        <source>Playing</source>
        <translation>قيد اللعب</translation>
    </message>
    <message>
        <source>Downloads the game and the Godot engine once, about %1 MB for the engine plus the game&apos;s files. Nothing to type.</source>
        <translation>تُنزَّل اللعبة ومحرّك Godot مرة واحدة فقط: نحو %L1&#xa0;ميغابايت للمحرّك إضافة إلى ملفات اللعبة. لا حاجة إلى كتابة أي شيء.</translation>
    </message>
    <message>
        <source>Everything is installed. Press Play.</source>
        <translation>كل شيء مثبّت. اضغط «العب».</translation>
    </message>
    <message numerus="yes">
        <source>The game was launched. Waiting %n seconds to make sure it stays open.</source>
        <translation>
            <numerusform>شُغّلت اللعبة. يجري التأكد من بقائها مفتوحة.</numerusform>
            <numerusform>شُغّلت اللعبة. يجري الانتظار ثانية واحدة للتأكد من بقائها مفتوحة.</numerusform>
            <numerusform>شُغّلت اللعبة. يجري الانتظار ثانيتين للتأكد من بقائها مفتوحة.</numerusform>
            <numerusform>شُغّلت اللعبة. يجري الانتظار %Ln&#xa0;ثوانٍ للتأكد من بقائها مفتوحة.</numerusform>
            <numerusform>شُغّلت اللعبة. يجري الانتظار %Ln&#xa0;ثانية للتأكد من بقائها مفتوحة.</numerusform>
            <numerusform>شُغّلت اللعبة. يجري الانتظار %Ln&#xa0;ثانية للتأكد من بقائها مفتوحة.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game is running in its own window.</source>
        <translation>اللعبة تعمل في نافذتها الخاصة.</translation>
    </message>
    <message>
        <source>The game is still running from an earlier start. Close it first.</source>
        <translation>ما زالت اللعبة تعمل منذ تشغيل سابق. أغلقها أولًا.</translation>
    </message>
    <message>
        <source>The folder “%1” is on another disk than before. Connect that disk again, or try once more to use this one.</source>
        <translation>المجلد «⁨%1⁩» موجود على قرص آخر غير السابق. أعد توصيل القرص السابق، أو حاول مرة أخرى لاستخدام القرص الحالي.</translation>
    </message>
    <message>
        <source>What happened: %1

Last log lines:
%2</source>
        <extracomment>%1 is a whole sentence, and %2 are lines of the log, most of them in English.</extracomment>
        <translation>ما حدث: %1

آخر أسطر السجل:
%2</translation>
    </message>
    <message>
        <source>Step 4 of 4 · Play</source>
        <translation>الخطوة الرابعة من أربع · اللعب</translation>
    </message>
    <message>
        <source>Update the game?</source>
        <translation>أتريد تحديث اللعبة؟</translation>
    </message>
    <message>
        <source>The game is downloaded again from GitHub. Your save files are kept.</source>
        <translation>ستُنزَّل اللعبة من جديد من GitHub. ستبقى ملفات الحفظ كما هي.</translation>
    </message>
    <message>
        <source>Update</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>حدّث</translation>
    </message>
    <message>
        <source>Reinstall everything?</source>
        <translation>أتريد إعادة تثبيت كل شيء؟</translation>
    </message>
    <message>
        <source>The game and the engine are deleted and downloaded again. Your save files are kept.</source>
        <translation>سيُحذف كل من اللعبة والمحرّك ويُنزَّلان من جديد. ستبقى ملفات الحفظ كما هي.</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>أعد التثبيت</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees all downloaded files. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>سيؤدي هذا إلى حذف اللعبة والمحرّك المُنزَّلين وتحرير مساحة كل الملفات المُنزَّلة. لن تُمسّ ملفات الحفظ في مجلد Godot.</translation>
    </message>
    <message>
        <source>This deletes the downloaded game and engine and frees %1. Your save files in Godot&apos;s folder are not touched.</source>
        <translation>سيؤدي هذا إلى حذف اللعبة والمحرّك المُنزَّلين وتحرير %1. لن تُمسّ ملفات الحفظ في مجلد Godot.</translation>
    </message>
    <message>
        <source>Remove everything?</source>
        <extracomment>&quot;Remove&quot; is the button that answers the question.</extracomment>
        <translation>أتريد إزالة كل شيء؟</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>أزل</translation>
    </message>
    <message>
        <source>Could not remove the files: %1</source>
        <extracomment>%1 is a whole sentence, such as &quot;Could not remove “file”: Permission denied.&quot;</extracomment>
        <translation>تعذّرت إزالة الملفات: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Quit and close the game?</source>
        <translation>أتريد الإنهاء وإغلاق اللعبة؟</translation>
    </message>
    <message>
        <source>The game is still running. Quitting will close it.</source>
        <translation>ما زالت اللعبة تعمل. سيؤدي الإنهاء إلى إغلاقها.</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>The button that answers the question.</extracomment>
        <translation>أنهِ</translation>
    </message>
    <message>
        <source>Step 1 of 4 · Downloading the game</source>
        <extracomment>The name of a step, shown below the title &quot;Downloading&quot;.</extracomment>
        <translation>الخطوة الأولى من أربع · تنزيل اللعبة</translation>
    </message>
    <message>
        <source>The downloaded folder has no readable project.godot.</source>
        <translation>لا يحتوي المجلد المُنزَّل على ملف ⁨project.godot⁩ قابل للقراءة.</translation>
    </message>
    <message>
        <source>This game is made for Godot 4, but this app only knows how to install Godot 3.</source>
        <translation>صُنعت هذه اللعبة لمحرّك ⁨Godot 4⁩، لكن هذا التطبيق لا يستطيع تثبيت سوى ⁨Godot 3⁩.</translation>
    </message>
    <message>
        <source>Step 2 of 4 · Downloading the Godot engine (%1)</source>
        <extracomment>%1 is a version, such as &quot;3.5.3-stable-mono&quot;.</extracomment>
        <translation>الخطوة الثانية من أربع · تنزيل محرّك Godot ‏(⁨%1⁩)</translation>
    </message>
    <message>
        <source>The Godot engine is missing.</source>
        <translation>محرّك Godot غير موجود.</translation>
    </message>
    <message>
        <source>Step 3 of 4 · First-time setup, this can take a minute or more</source>
        <translation>الخطوة الثالثة من أربع · التجهيز الأول، وقد يستغرق دقيقة أو أكثر</translation>
    </message>
    <message numerus="yes">
        <source>The first-time setup did not finish: %n game assets were not imported (engine exit code %1).</source>
        <translation>
            <numerusform>لم يكتمل التجهيز الأول (رمز خروج المحرّك %L1).</numerusform>
            <numerusform>لم يكتمل التجهيز الأول: تعذّر استيراد مورد واحد من موارد اللعبة (رمز خروج المحرّك %L1).</numerusform>
            <numerusform>لم يكتمل التجهيز الأول: تعذّر استيراد موردين من موارد اللعبة (رمز خروج المحرّك %L1).</numerusform>
            <numerusform>لم يكتمل التجهيز الأول: تعذّر استيراد %Ln&#xa0;موارد من موارد اللعبة (رمز خروج المحرّك %L1).</numerusform>
            <numerusform>لم يكتمل التجهيز الأول: تعذّر استيراد %Ln&#xa0;موردًا من موارد اللعبة (رمز خروج المحرّك %L1).</numerusform>
            <numerusform>لم يكتمل التجهيز الأول: تعذّر استيراد %Ln&#xa0;مورد من موارد اللعبة (رمز خروج المحرّك %L1).</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CavernyxPlatformerApp</name>
    <message>
        <source>%1 is already running, but does not answer. Close it first.</source>
        <translation>البرنامج ⁨%1⁩ يعمل بالفعل، لكنه لا يستجيب. أغلقه أولًا.</translation>
    </message>
    <message>
        <source>%1 is already running. Waiting for its answer…</source>
        <translation>البرنامج ⁨%1⁩ يعمل بالفعل. في انتظار رده…</translation>
    </message>
</context>
<context>
    <name>ContentView</name>
    <message>
        <source>Settings…</source>
        <translation>الإعدادات…</translation>
    </message>
    <message>
        <source>About</source>
        <extracomment>The button that opens the sheet about the launcher and its game.</extracomment>
        <translation>حول</translation>
    </message>
    <message>
        <source>Controls</source>
        <extracomment>The title above the keys and buttons that the game is played with.</extracomment>
        <translation>التحكم</translation>
    </message>
</context>
<context>
    <name>DownloadProgress</name>
    <message>
        <source>%1/s</source>
        <extracomment>The rate of a download: %1 is an amount, such as &quot;3 MB&quot;.</extracomment>
        <translation>%1/ث</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <extracomment>What has been downloaded, and the rate: &quot;20.1 MB · 3 MB/s&quot;.</extracomment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>%1 of %2 · %3</source>
        <extracomment>What of how much has been downloaded, and the rate: &quot;20.1 MB of 70.1 MB · 3 MB/s&quot;.</extracomment>
        <translation>%1 من %2 · %3</translation>
    </message>
</context>
<context>
    <name>FailureReport</name>
    <message>
        <source>Failure report</source>
        <extracomment>What a screen reader calls the box with the text of a failure.</extracomment>
        <translation>تقرير الإخفاق</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>The button that copies the text of a failure.</extracomment>
        <translation>انسخ</translation>
    </message>
</context>
<context>
    <name>GameFacts</name>
    <message>
        <source>A 2D grappling-hook adventure</source>
        <extracomment>Below the game&apos;s name. &quot;2D&quot;: seen from the side, with no depth.</extracomment>
        <translation>مغامرة ثنائية الأبعاد بالخطّاف</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>What a player of the game does; the keys and buttons for it follow.</extracomment>
        <translation>التحرك</translation>
    </message>
    <message>
        <source>A / D, or the left stick</source>
        <extracomment>A and D are keys of the keyboard, the stick is one of a game controller.</extracomment>
        <translation>المفتاحان A / D، أو العصا اليسرى</translation>
    </message>
    <message>
        <source>Jump</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>القفز</translation>
    </message>
    <message>
        <source>Space or W, or the A button</source>
        <extracomment>Space and W are keys of the keyboard, A is a button of a game controller.</extracomment>
        <translation>مفتاح المسافة أو W، أو الزر A في ذراع التحكم</translation>
    </message>
    <message>
        <source>Grappling hook</source>
        <extracomment>A hook on a rope, with which the player swings and pulls.</extracomment>
        <translation>الخطّاف</translation>
    </message>
    <message>
        <source>Left mouse button, or a shoulder button</source>
        <extracomment>The shoulder buttons of a game controller are those behind its front.</extracomment>
        <translation>زر الفأرة الأيسر، أو أحد أزرار الكتف في ذراع التحكم</translation>
    </message>
    <message>
        <source>Aim</source>
        <extracomment>What a player of the game does.</extracomment>
        <translation>التصويب</translation>
    </message>
    <message>
        <source>Hold F, or use the right stick</source>
        <translation>اضغط مطولًا على F، أو استخدم العصا اليمنى</translation>
    </message>
    <message>
        <source>Restart</source>
        <extracomment>What a player of the game does: begin again.</extracomment>
        <translation>البدء من جديد</translation>
    </message>
    <message>
        <source>Alt + R</source>
        <translation>Alt + R</translation>
    </message>
    <message>
        <source>The README has no controls list (see README); these come from the game&apos;s input settings.</source>
        <translation>لا يحتوي ملف README على قائمة بمفاتيح التحكم (راجع README)؛ هذه المفاتيح مأخوذة من إعدادات الإدخال في اللعبة.</translation>
    </message>
    <message>
        <source>The game &quot;Snaglet!&quot; is made by Quennet and the Brindlework team, 2019, and is released under the MIT License. The game belongs to its author; this app is only a launcher that downloads it.</source>
        <translation>لعبة «⁨Snaglet!⁩» من صنع Quennet وفريق Brindlework عام 2019، وهي صادرة برخصة MIT. اللعبة ملك لمؤلفها؛ وهذا التطبيق مجرد مشغّل يُنزّلها.</translation>
    </message>
    <message>
        <source>Based on brindlework-demos/tetherwalk, MIT License.</source>
        <translation>مبنية على ⁨brindlework-demos/tetherwalk⁩، رخصة MIT.</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Copy log</source>
        <translation>انسخ السجل</translation>
    </message>
    <message>
        <source>Log</source>
        <extracomment>What a screen reader calls the box with the lines of the log.</extracomment>
        <translation>السجل</translation>
    </message>
</context>
<context>
    <name>PlatformError</name>
    <message>
        <source>The download of “%1” is %2 larger than what is free in “%3”. Make room there and try again.</source>
        <translation>ينقص %2 من المساحة الحرة في «⁨%3⁩» لتنزيل «⁨%1⁩». أفرغ مساحة هناك وحاول مرة أخرى.</translation>
    </message>
    <message>
        <source>The download of “%1” takes up all that is free in “%2”, but for a reserve. Make room there and try again.</source>
        <translation>يستهلك تنزيل «⁨%1⁩» كل المساحة الحرة في «⁨%2⁩» ما عدا الاحتياطي. أفرغ مساحة هناك وحاول مرة أخرى.</translation>
    </message>
    <message>
        <source>Could not save “%1”</source>
        <translation>تعذّر حفظ «⁨%1⁩»</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected to “%2”, which is not one of GitHub&apos;s own secure servers, so it was stopped.</source>
        <translation>أُعيد توجيه تنزيل «⁨%1⁩» إلى «⁨%2⁩»، وهو ليس من خواديم GitHub الآمنة، لذلك أُوقف.</translation>
    </message>
    <message>
        <source>The network library cannot be used.</source>
        <translation>لا يمكن استخدام مكتبة الشبكة.</translation>
    </message>
    <message>
        <source>The download of “%1” was redirected too often, last to “%2”. Try again later.</source>
        <translation>أُعيد توجيه تنزيل «⁨%1⁩» مرات أكثر من اللازم، وكان آخرها إلى «⁨%2⁩». حاول مرة أخرى لاحقًا.</translation>
    </message>
    <message>
        <source>The certificate of “%1” is not yet valid. Check the date and time of this computer.</source>
        <translation>شهادة «⁨%1⁩» لم يبدأ سريانها بعد. تحقّق من التاريخ والوقت في هذا الحاسوب.</translation>
    </message>
    <message>
        <source>The certificate of “%1” has expired. Check the date and time of this computer.</source>
        <translation>انتهت صلاحية شهادة «⁨%1⁩». تحقّق من التاريخ والوقت في هذا الحاسوب.</translation>
    </message>
    <message>
        <source>The certificate of “%1” belongs to another server. Another network may help.</source>
        <translation>شهادة «⁨%1⁩» تخص خادومًا آخر. قد يفيد استخدام شبكة أخرى.</translation>
    </message>
    <message>
        <source>The certificate of “%1” cannot be trusted. Another network may help.</source>
        <translation>لا يمكن الوثوق بشهادة «⁨%1⁩». قد يفيد استخدام شبكة أخرى.</translation>
    </message>
    <message>
        <source>The proxy “%1” was not found. Check the proxy settings.</source>
        <translation>لم يُعثر على الخادوم الوكيل «⁨%1⁩». تحقّق من إعدادات الوكيل.</translation>
    </message>
    <message>
        <source>The proxy “%1” refused the connection (HTTP %2). Check the proxy settings.</source>
        <translation>رفض الخادوم الوكيل «⁨%1⁩» الاتصال (HTTP&#xa0;%2). تحقّق من إعدادات الوكيل.</translation>
    </message>
    <message>
        <source>The proxy “%1” cannot be used. Check the proxy settings.</source>
        <translation>لا يمكن استخدام الخادوم الوكيل «⁨%1⁩». تحقّق من إعدادات الوكيل.</translation>
    </message>
    <message>
        <source>The server “%1” was not found. Check the internet connection.</source>
        <translation>لم يُعثر على الخادوم «⁨%1⁩». تحقّق من الاتصال بالإنترنت.</translation>
    </message>
    <message>
        <source>The server “%1” cannot be reached. Check the internet connection.</source>
        <translation>لا يمكن الوصول إلى الخادوم «⁨%1⁩». تحقّق من الاتصال بالإنترنت.</translation>
    </message>
    <message>
        <source>The certificates that this system trusts cannot be read. Install its package of certificates.</source>
        <translation>لا يمكن قراءة الشهادات التي يثق بها هذا النظام. ثبّت حزمة الشهادات.</translation>
    </message>
    <message>
        <source>No secure connection to “%1” could be made. Another network may help.</source>
        <translation>تعذّر إنشاء اتصال آمن مع «⁨%1⁩». قد يفيد استخدام شبكة أخرى.</translation>
    </message>
    <message>
        <source>The connection to “%1” was lost. Check the internet connection and try again.</source>
        <translation>انقطع الاتصال بـ«⁨%1⁩». تحقّق من الاتصال بالإنترنت وحاول مرة أخرى.</translation>
    </message>
    <message>
        <source>There is not enough memory. Close other programs and try again.</source>
        <translation>الذاكرة غير كافية. أغلق برامج أخرى وحاول مرة أخرى.</translation>
    </message>
    <message>
        <source>“%1” sent an answer that is not understood. Try again later.</source>
        <translation>أرسل «⁨%1⁩» ردًا غير مفهوم. حاول مرة أخرى لاحقًا.</translation>
    </message>
    <message>
        <source>The transfer from “%1” failed. Try again later.</source>
        <translation>فشل النقل من «⁨%1⁩». حاول مرة أخرى لاحقًا.</translation>
    </message>
    <message>
        <source>Could not download “%1”</source>
        <translation>تعذّر تنزيل «⁨%1⁩»</translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: the proxy “%2” did not answer within %n seconds. Check the proxy settings and try again.</source>
        <translation>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يستجب الخادوم الوكيل «⁨%2⁩». تحقّق من إعدادات الوكيل وحاول مرة أخرى.</numerusform>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يستجب الخادوم الوكيل «⁨%2⁩» خلال ثانية واحدة. تحقّق من إعدادات الوكيل وحاول مرة أخرى.</numerusform>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يستجب الخادوم الوكيل «⁨%2⁩» خلال ثانيتين. تحقّق من إعدادات الوكيل وحاول مرة أخرى.</numerusform>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يستجب الخادوم الوكيل «⁨%2⁩» خلال %Ln&#xa0;ثوانٍ. تحقّق من إعدادات الوكيل وحاول مرة أخرى.</numerusform>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يستجب الخادوم الوكيل «⁨%2⁩» خلال %Ln&#xa0;ثانية. تحقّق من إعدادات الوكيل وحاول مرة أخرى.</numerusform>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يستجب الخادوم الوكيل «⁨%2⁩» خلال %Ln&#xa0;ثانية. تحقّق من إعدادات الوكيل وحاول مرة أخرى.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 sent nothing for %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يرسل ⁨%2⁩ شيئًا. تحقّق من الاتصال بالإنترنت وحاول مرة أخرى.</numerusform>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يرسل ⁨%2⁩ شيئًا لمدة ثانية واحدة. تحقّق من الاتصال بالإنترنت وحاول مرة أخرى.</numerusform>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يرسل ⁨%2⁩ شيئًا لمدة ثانيتين. تحقّق من الاتصال بالإنترنت وحاول مرة أخرى.</numerusform>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يرسل ⁨%2⁩ شيئًا لمدة %Ln&#xa0;ثوانٍ. تحقّق من الاتصال بالإنترنت وحاول مرة أخرى.</numerusform>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يرسل ⁨%2⁩ شيئًا لمدة %Ln&#xa0;ثانية. تحقّق من الاتصال بالإنترنت وحاول مرة أخرى.</numerusform>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يرسل ⁨%2⁩ شيئًا لمدة %Ln&#xa0;ثانية. تحقّق من الاتصال بالإنترنت وحاول مرة أخرى.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The download of “%1” stalled: %2 did not answer within %n seconds. Check the internet connection and try again.</source>
        <translation>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يستجب ⁨%2⁩. تحقّق من الاتصال بالإنترنت وحاول مرة أخرى.</numerusform>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يستجب ⁨%2⁩ خلال ثانية واحدة. تحقّق من الاتصال بالإنترنت وحاول مرة أخرى.</numerusform>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يستجب ⁨%2⁩ خلال ثانيتين. تحقّق من الاتصال بالإنترنت وحاول مرة أخرى.</numerusform>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يستجب ⁨%2⁩ خلال %Ln&#xa0;ثوانٍ. تحقّق من الاتصال بالإنترنت وحاول مرة أخرى.</numerusform>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يستجب ⁨%2⁩ خلال %Ln&#xa0;ثانية. تحقّق من الاتصال بالإنترنت وحاول مرة أخرى.</numerusform>
            <numerusform>توقّف تنزيل «⁨%1⁩»: لم يستجب ⁨%2⁩ خلال %Ln&#xa0;ثانية. تحقّق من الاتصال بالإنترنت وحاول مرة أخرى.</numerusform>
        </translation>
    </message>
    <message>
        <source>Could not create the folder “%1”</source>
        <translation>تعذّر إنشاء المجلد «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Could not compute a SHA-512 checksum.</source>
        <translation>تعذّر حساب مجموع ⁨SHA-512⁩ الاختباري.</translation>
    </message>
    <message>
        <source>Could not create the temporary folder “%1”</source>
        <translation>تعذّر إنشاء المجلد المؤقت «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Could not read the archive entry “%1”</source>
        <translation>تعذّرت قراءة المدخلة «⁨%1⁩» من الأرشيف</translation>
    </message>
    <message>
        <source>Could not read “%1”</source>
        <translation>تعذّرت قراءة «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Could not open the folder “%1”</source>
        <translation>تعذّر فتح المجلد «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Could not create the link “%1”</source>
        <translation>تعذّر إنشاء الوصلة «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Could not change “%1”</source>
        <translation>تعذّر تغيير «⁨%1⁩»</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>هذا ليس ملفًا.</translation>
    </message>
    <message>
        <source>Could not replace “%1”</source>
        <translation>تعذّر استبدال «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Could not find your home folder: HOME is not set.</source>
        <translation>تعذّر العثور على مجلد المنزل: المتغيّر HOME غير مضبوط.</translation>
    </message>
    <message>
        <source>Could not use the folder “%1”, because its name is not UTF-8.</source>
        <translation>تعذّر استخدام المجلد «⁨%1⁩» لأن اسمه ليس بترميز ⁨UTF-8⁩.</translation>
    </message>
    <message>
        <source>Could not start “%1”</source>
        <translation>تعذّر تشغيل «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Could not create a pipe</source>
        <translation>تعذّر إنشاء أنبوب</translation>
    </message>
    <message>
        <source>Could not start a thread</source>
        <translation>تعذّر بدء خيط تنفيذ</translation>
    </message>
    <message>
        <source>The disk is full. Make room on it and try again.</source>
        <translation>القرص ممتلئ. أفرغ مساحة عليه وحاول مرة أخرى.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>Makes a sentence of a reason in the system&apos;s own words, such as &quot;Permission denied&quot;.</extracomment>
        <translation>⁨%1⁩.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <extracomment>What failed, such as &quot;Could not open “the file”&quot;, and the sentence that says why.</extracomment>
        <translation>%1: ⁨%2⁩</translation>
    </message>
    <message>
        <source>Could not exchange “%1” and “%2”</source>
        <translation>تعذّر التبديل بين «⁨%1⁩» و«⁨%2⁩»</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”</source>
        <translation>تعذّر نقل «⁨%1⁩» إلى «⁨%2⁩»</translation>
    </message>
    <message>
        <source>Could not move “%1” to “%2”. What was there before is now at “%3”.</source>
        <translation>تعذّر نقل «⁨%1⁩» إلى «⁨%2⁩». ما كان هناك من قبل موجود الآن في «⁨%3⁩».</translation>
    </message>
    <message>
        <source>Could not remove “%1”</source>
        <translation>تعذّرت إزالة «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Could not open “%1”</source>
        <translation>تعذّر فتح «⁨%1⁩»</translation>
    </message>
    <message>
        <source>The launcher is running a second time. Close the other one first.</source>
        <translation>المشغّل يعمل مرتين في الوقت نفسه. أغلق الآخر أولًا.</translation>
    </message>
    <message>
        <source>Could not lock “%1”, without which nothing is installed or removed</source>
        <translation>تعذّر قفل «⁨%1⁩»، ومن دون ذلك لا يُثبَّت شيء ولا يُزال</translation>
    </message>
    <message>
        <source>Could not create “%1”</source>
        <translation>تعذّر إنشاء «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Could not write “%1”</source>
        <translation>تعذّرت كتابة «⁨%1⁩»</translation>
    </message>
    <message>
        <source>Could not write “%1” to the disk</source>
        <translation>تعذّرت كتابة «⁨%1⁩» على القرص</translation>
    </message>
    <message>
        <source>another file system is mounted there</source>
        <translation>نظام ملفات آخر موصول هناك</translation>
    </message>
    <message>
        <source>it was moved meanwhile</source>
        <translation>نُقل في تلك الأثناء</translation>
    </message>
</context>
<context>
    <name>PlayOutcome</name>
    <message numerus="yes">
        <source>The game closed after %n seconds (exit code %1), so it did not start properly.</source>
        <translation>
            <numerusform>أُغلقت اللعبة فورًا (رمز الخروج %L1)، أي إنها لم تبدأ كما ينبغي.</numerusform>
            <numerusform>أُغلقت اللعبة بعد ثانية واحدة (رمز الخروج %L1)، أي إنها لم تبدأ كما ينبغي.</numerusform>
            <numerusform>أُغلقت اللعبة بعد ثانيتين (رمز الخروج %L1)، أي إنها لم تبدأ كما ينبغي.</numerusform>
            <numerusform>أُغلقت اللعبة بعد %Ln&#xa0;ثوانٍ (رمز الخروج %L1)، أي إنها لم تبدأ كما ينبغي.</numerusform>
            <numerusform>أُغلقت اللعبة بعد %Ln&#xa0;ثانية (رمز الخروج %L1)، أي إنها لم تبدأ كما ينبغي.</numerusform>
            <numerusform>أُغلقت اللعبة بعد %Ln&#xa0;ثانية (رمز الخروج %L1)، أي إنها لم تبدأ كما ينبغي.</numerusform>
        </translation>
    </message>
    <message>
        <source>The game stopped unexpectedly (exit code %1).</source>
        <translation>توقّفت اللعبة على نحو غير متوقع (رمز الخروج %L1).</translation>
    </message>
</context>
<context>
    <name>PlayPanel</name>
    <message>
        <source>Progress</source>
        <extracomment>What a screen reader calls the progress bar.</extracomment>
        <translation>التقدم</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>The button that installs the game, if need be, and starts it.</extracomment>
        <translation>العب</translation>
    </message>
    <message>
        <source>Stop</source>
        <extracomment>The button that ends the running game.</extracomment>
        <translation>أوقف</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>The button that cancels the download or the setup.</extracomment>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>Show log</source>
        <translation>أظهر السجل</translation>
    </message>
    <message>
        <source>Status: %1 – %2</source>
        <extracomment>What a screen reader says of the coloured dot: a status, and a sentence about it.</extracomment>
        <translation>الحالة: %1 – %2</translation>
    </message>
</context>
<context>
    <name>SettingsView</name>
    <message>
        <source>Game default</source>
        <extracomment>Among resolutions: the one that the game comes with.</extracomment>
        <translation>افتراضي اللعبة</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>الإعدادات</translation>
    </message>
    <message>
        <source>Update the game</source>
        <translation>حدّث اللعبة</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>أعد التثبيت</translation>
    </message>
    <message>
        <source>Show saves</source>
        <extracomment>Opens the folder in which the game keeps its saves.</extracomment>
        <translation>أظهر ملفات الحفظ</translation>
    </message>
    <message>
        <source>Reveal in Finder</source>
        <extracomment>Opens the file browser at the installed files. The Finder is that of one system only; a translation speaks of the file manager.</extracomment>
        <translation>أظهر في مدير الملفات</translation>
    </message>
    <message>
        <source>Applies the next time you press Play.</source>
        <translation>يسري في المرة القادمة التي تضغط فيها «العب».</translation>
    </message>
    <message>
        <source>Updating downloads the game again. Save files are kept; they live in Godot&apos;s own folder.</source>
        <translation>يُنزّل التحديث اللعبة من جديد. تبقى ملفات الحفظ كما هي؛ وهي في مجلد Godot الخاص.</translation>
    </message>
    <message>
        <source>No saves yet (Godot&apos;s user folder does not exist).</source>
        <translation>لا توجد ملفات حفظ بعد (مجلد مستخدم Godot غير موجود).</translation>
    </message>
    <message>
        <source>Window</source>
        <extracomment>Whether the game runs in a window or on the whole screen.</extracomment>
        <translation>النافذة</translation>
    </message>
    <message>
        <source>Windowed</source>
        <translation>في نافذة</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>ملء الشاشة</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>الدقة</translation>
    </message>
    <message>
        <source>Remove everything</source>
        <extracomment>%1 is an amount, such as &quot;70.1 MB&quot;.</extracomment>
        <translation>أزل كل شيء</translation>
    </message>
    <message>
        <source>Remove everything (frees %1)</source>
        <translation>أزل كل شيء (يحرّر %1)</translation>
    </message>
</context>
<context>
    <name>SetupMonitor</name>
    <message>
        <source>The game is being installed.</source>
        <translation>يجري تثبيت اللعبة.</translation>
    </message>
    <message>
        <source>The game is ready and starting.</source>
        <translation>اللعبة جاهزة ويجري تشغيلها.</translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Done</source>
        <extracomment>The button that closes a sheet.</extracomment>
        <translation>تمّ</translation>
    </message>
</context>
<context>
    <name>Unit</name>
    <message>
        <source>%1 KB</source>
        <extracomment>Kilobytes: 1000 bytes, as the desktop&apos;s file manager writes it.</extracomment>
        <translation>%1&#xa0;كيلوبايت</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;ميغابايت</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;غيغابايت</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1&#xa0;تيرابايت</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1&#xa0;بيتابايت</translation>
    </message>
    <message>
        <source>Zero KB</source>
        <translation>صفر كيلوبايت</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>بايت واحد</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>صفر بايت</numerusform>
            <numerusform>بايت واحد</numerusform>
            <numerusform>بايتان</numerusform>
            <numerusform>%Ln&#xa0;بايتات</numerusform>
            <numerusform>%Ln&#xa0;بايت</numerusform>
            <numerusform>%Ln&#xa0;بايت</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WidgetDesktop</name>
    <message>
        <source>Cancel</source>
        <translation>ألغِ</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>تعذّر فتح المجلد.</translation>
    </message>
    <message>
        <source>This desktop has no file browser. The folder is “%1”.</source>
        <extracomment>%1 is the path of a folder.</extracomment>
        <translation>ليس في سطح المكتب هذا مدير ملفات. المجلد هو «⁨%1⁩».</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
</context>
</TS>
