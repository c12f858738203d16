// SPDX-License-Identifier: MIT
#include "Install/EngineManager.h"

#include "Install/ClearQuarantine.h"
#include "Support/Eventually.h"
#include "Support/InstallTest.h"
#include "Support/ZipWriter.h"

#include <QCryptographicHash>
#include <QFileInfo>

using namespace std::chrono_literals;

namespace {

const auto readingList = QStringLiteral("Reading the official checksum list (SHA512-SUMS.txt)…");
const auto checking =
    QStringLiteral("Checking the download against the official SHA-512 checksum…");
const auto checksumOk = QStringLiteral("Checksum OK.");
const auto mismatch =
    QStringLiteral("The engine download did not match its official checksum, so it was discarded.");

class EngineManagerTest : public InstallTest
{
protected:
    static QString releasePath(const QString& name)
    {
        return QStringLiteral("/godotengine/godot/releases/download/3.5.3-stable/") + name;
    }
    static QByteArray engineArchive(const QByteArray& program = "an engine")
    {
        return ZipWriter()
            .addFile("sub/readme", "x")
            .addFile("Godot_v3.5.3-stable_x11.64", program)
            .archive();
    }
    void serveList(const QByteArray& list)
    {
        server.on(releasePath(QStringLiteral("SHA512-SUMS.txt")), HttpServer::reply(200, list));
    }
    void serve(const QByteArray& archive)
    {
        const auto digest = QCryptographicHash::hash(archive, QCryptographicHash::Sha512).toHex();
        serveList("aa  other.zip\n" + digest.toUpper() + " *" + engine.archiveName().toUtf8() +
                  '\n');
        server.on(releasePath(engine.archiveName()), HttpServer::reply(200, archive));
    }
    QCoro::Task<QString> startInstall()
    {
        return engine.install(downloader, log(), stop.get_token(), 400ms);
    }
    Outcome<QString> install() { return eventually(startInstall()); }
    QString installed(const QString& name = {}) const
    {
        return root(QStringLiteral("Engine/3.5.3-stable") +
                    (engine.mono ? QStringLiteral("-mono/") : QStringLiteral("/")) + name);
    }
    void installOldEngine() const { home.write(installed(QStringLiteral("old godot"))); }
    void expectOldEngine() const
    {
        EXPECT_EQ(home.names(installed()), QStringList{QStringLiteral("old godot")});
        EXPECT_EQ(leftovers(), QStringList());
    }

    EngineManager engine;
};

} // namespace

TEST_F(EngineManagerTest, namesItsFilesWithTheEditionExactlyOnce)
{
    EXPECT_EQ(EngineManager::version(), QStringLiteral("3.5.3-stable"));
    EXPECT_EQ(engine.folder(), home.path(root(QStringLiteral("Engine/3.5.3-stable"))));
    EXPECT_EQ(engine.markerFile(), home.path(root(QStringLiteral("Game/.setup-v2-3.5.3-stable"))));
    engine.mono = true;
    EXPECT_EQ(engine.folder(), home.path(root(QStringLiteral("Engine/3.5.3-stable-mono"))));
    EXPECT_EQ(engine.markerFile(),
              home.path(root(QStringLiteral("Game/.setup-v2-3.5.3-stable-mono"))));
    EXPECT_TRUE(engine.archiveName().startsWith(QStringLiteral("Godot_v3.5.3-stable_mono_")));
}

TEST_F(EngineManagerTest, findsBothEditionsInTheSameRelease)
{
    EXPECT_EQ(EngineManager::releaseURL(QStringLiteral("a.zip")),
              server.url(releasePath(QStringLiteral("a.zip"))));
}

TEST_F(EngineManagerTest, installsTheEngineStepByStep)
{
    serve(engineArchive());

    const auto outcome = install();

    EXPECT_EQ(outcome.value, home.path(installed(QStringLiteral("Godot_v3.5.3-stable_x11.64"))));
    EXPECT_EQ(lines(),
              (QStringList{readingList,
                           QStringLiteral("Downloading %1 from godotengine/godot releases…")
                               .arg(engine.archiveName()),
                           checking, checksumOk}));
    EXPECT_EQ(home.read(installed(QStringLiteral("Godot_v3.5.3-stable_x11.64"))), "an engine");
    EXPECT_EQ(engine.executable(), outcome.value);
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(EngineManagerTest, installsTheOtherEditionForACSharpGame)
{
    engine.mono = true;
    serve(engineArchive());

    EXPECT_TRUE(install().value);

    EXPECT_TRUE(home.exists(root(QStringLiteral("Engine/3.5.3-stable-mono"))));
    EXPECT_FALSE(EngineManager{.mono = false}.executable());
}

TEST_F(EngineManagerTest, makesTheProgramExecutableThoughTheArchiveDoesNot)
{
    serve(engineArchive());

    const auto outcome = install();

    ASSERT_TRUE(outcome.value);
    EXPECT_TRUE(QFileInfo(*outcome.value).isExecutable());
    EXPECT_FALSE(QFileInfo(home.path(installed(QStringLiteral("sub/readme")))).isExecutable());
}

TEST_F(EngineManagerTest, replacesAnInstalledEngine)
{
    installOldEngine();
    serve(engineArchive());

    EXPECT_TRUE(install().value);

    EXPECT_FALSE(home.exists(installed(QStringLiteral("old godot"))));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(EngineManagerTest, isNotInstalledWhereThereIsNoProgram)
{
    EXPECT_FALSE(engine.executable());
    home.write(installed(QStringLiteral("readme")));
    EXPECT_FALSE(engine.executable());
}

TEST_F(EngineManagerTest, refusesAHostThatMakesNoUrl)
{
    const WebHostScope host(QStringLiteral("http://[nowhere"));

    EXPECT_EQ(install().sentence, QStringLiteral("Invalid engine URL."));
    EXPECT_EQ(lines(), QStringList{readingList});
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(EngineManagerTest, failsWhenTheListIsNotThere)
{
    installOldEngine();

    const auto outcome = install();

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence,
              QStringLiteral("Could not read the engine checksum list (HTTP 404)."));
    expectOldEngine();
}

TEST_F(EngineManagerTest, failsWhenTheListNamesOnlyTheOtherEdition)
{
    for (const auto mono : {false, true}) {
        engine.mono = mono;
        const EngineManager other{.mono = !mono};
        serveList("bb  " + other.archiveName().toUtf8() + '\n');

        const auto outcome = install();

        EXPECT_TRUE(outcome.isAppError);
        EXPECT_EQ(
            outcome.sentence,
            QStringLiteral("The checksum list has no entry for %1.").arg(engine.archiveName()));
    }
    EXPECT_EQ(server.requests().size(), 2);
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(EngineManagerTest, failsWhenTheListHasCarriageReturns)
{
    serveList("bb  " + engine.archiveName().toUtf8() + "\r\n");

    EXPECT_TRUE(install().sentence.startsWith(QStringLiteral("The checksum list has no entry")));
}

TEST_F(EngineManagerTest, saysThatTheListStalled)
{
    server.on(releasePath(QStringLiteral("SHA512-SUMS.txt")), HttpServer::silence());

    const auto outcome = install();

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(outcome.sentence.contains(QStringLiteral("stalled")));
}

TEST_F(EngineManagerTest, failsWhenTheArchiveIsNotThere)
{
    installOldEngine();
    serveList("bb  " + engine.archiveName().toUtf8() + '\n');

    EXPECT_TRUE(
        install().sentence.startsWith(QStringLiteral("The server answered with HTTP 404 for ")));

    expectOldEngine();
}

TEST_F(EngineManagerTest, discardsADownloadWithAnotherChecksum)
{
    installOldEngine();
    serve(engineArchive());
    server.on(releasePath(engine.archiveName()), HttpServer::reply(200, engineArchive("another")));

    const auto outcome = install();

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence, mismatch);
    EXPECT_EQ(lines().last(), checking);
    expectOldEngine();
}

TEST_F(EngineManagerTest, requiresTheLastDigestOfTheList)
{
    const auto archive = engineArchive();
    const auto digest = QCryptographicHash::hash(archive, QCryptographicHash::Sha512).toHex();
    const auto name = engine.archiveName().toUtf8();
    serve(archive);
    serveList(digest + "  " + name + "\nbb  " + name + '\n');
    EXPECT_EQ(install().sentence, mismatch);

    serveList("bb  " + name + '\n' + digest + "  " + name + '\n');
    EXPECT_TRUE(install().value);
}

TEST_F(EngineManagerTest, keepsTheOldEngineWhenTheArchiveIsDamaged)
{
    installOldEngine();
    serve("no archive");

    EXPECT_EQ(install().sentence, QStringLiteral("Unzipping failed (ditto exit code 1)."));

    EXPECT_TRUE(lines().contains(checksumOk));
    expectOldEngine();
}

TEST_F(EngineManagerTest, leavesTheNewFolderWhenItHasNoProgram)
{
    installOldEngine();
    serve(ZipWriter().addFile("readme").archive());

    const auto outcome = install();

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence,
              QStringLiteral("The engine was unpacked but its program was not found."));
    EXPECT_EQ(home.names(installed()), QStringList{QStringLiteral("readme")});
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(EngineManagerTest, reportsAnEngineFolderThatCannotBeMade)
{
    home.write(root(QStringLiteral("Engine")), "a file");
    serve(engineArchive());

    EXPECT_TRUE(install().isPlatformError);
    EXPECT_EQ(home.names(QStringLiteral("temporary")), QStringList());
}

TEST_F(EngineManagerTest, endsWithCancelledWhileItReadsTheList)
{
    server.on(releasePath(QStringLiteral("SHA512-SUMS.txt")), HttpServer::silence());
    auto task = engine.install(downloader, log(), stop.get_token(), 20s);
    ASSERT_TRUE(server.waitForRequests(1));

    stop.request_stop();

    EXPECT_TRUE(eventually(std::move(task)).isCancelled);
    EXPECT_FALSE(home.exists(root({})));
}

TEST_F(EngineManagerTest, endsWithCancelledWhileItDownloads)
{
    installOldEngine();
    serve(engineArchive());
    server.on(releasePath(engine.archiveName()), HttpServer::silence());
    auto task = startInstall();
    ASSERT_TRUE(server.waitForRequests(2));

    stop.request_stop();

    EXPECT_TRUE(eventually(std::move(task)).isCancelled);
    expectOldEngine();
}

TEST_F(EngineManagerTest, endsWithCancelledBeforeTheDigestOrTheUnpacking)
{
    installOldEngine();
    serve(engineArchive());
    for (const auto& line : {checking, checksumOk}) {
        stop = std::stop_source();
        stopAtLine(line);

        EXPECT_TRUE(install().isCancelled);

        EXPECT_EQ(lines().last(), line);
        expectOldEngine();
    }
}

TEST_F(EngineManagerTest, outlivesTheRecordItWasStartedOn)
{
    serve(engineArchive());
    auto record = std::make_unique<EngineManager>();
    auto task = record->install(downloader, log(), stop.get_token(), 400ms);
    record->mono = true;
    record.reset();

    EXPECT_TRUE(eventually(std::move(task)).value);
    EXPECT_TRUE(home.exists(root(QStringLiteral("Engine/3.5.3-stable"))));
}

TEST_F(EngineManagerTest, carriesOnWhenTheQuarantineFlagCannotBeCleared)
{
    const auto tool = home.writeScript(QStringLiteral("tool"), "echo \"$1\"; exit 1");

    const auto outcome = eventually(
        clearQuarantine({tool, {QStringLiteral("some folder")}}, log(), stop.get_token()));

    EXPECT_TRUE(outcome.value);
    EXPECT_EQ(lines(),
              (QStringList{
                  QStringLiteral("Removing macOS's \"downloaded from the internet\" flag from the "
                                 "engine. It was just verified against Godot's published checksum, "
                                 "and without this step macOS would block it from opening."),
                  QStringLiteral("some folder"),
                  QStringLiteral(
                      "xattr finished with code 1 (usually harmless if the flag was not set).")}));
}

TEST_F(EngineManagerTest, saysNothingMoreWhenTheQuarantineFlagIsCleared)
{
    const auto tool = home.writeScript(QStringLiteral("tool"), "exit 0");

    EXPECT_TRUE(eventually(clearQuarantine({tool, {}}, log(), stop.get_token())).value);
    EXPECT_EQ(lines().size(), 1);
}

TEST_F(EngineManagerTest, failsWhenTheQuarantineToolCannotBeStarted)
{
    const auto missing = home.path(QStringLiteral("no tool"));

    EXPECT_TRUE(
        eventually(clearQuarantine({missing, {}}, log(), stop.get_token())).isPlatformError);
}
