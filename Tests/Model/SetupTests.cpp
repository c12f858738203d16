// SPDX-License-Identifier: MIT
#include "Support/AppModelAccess.h"
#include "Support/Await.h"
#include "Support/BusyPool.h"
#include "Support/HttpServer.h"
#include "Support/ModelTest.h"
#include "Support/WebHostScope.h"
#include "Support/ZipWriter.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSignalSpy>

#include <algorithm>

using namespace std::chrono_literals;

namespace {

const auto gamePath = QStringLiteral("/brindlework-demos/tetherwalk/archive/refs/heads/master.zip");
const auto releasePath = QStringLiteral("/godotengine/godot/releases/download/3.5.3-stable/");
const auto engineName = QStringLiteral("Godot_v3.5.3-stable_x11.64");

/// Imports the one asset and goes on running, as the real editor does; plays for half a second.
const QByteArray goodEngine = R"(
case "$*" in
*--editor*)
    mkdir -p "$2/.import"
    printf '[remap]\npath="res://.import/a.stex"\n' > "$2/a.png.import"
    touch "$2/.import/a.stex"
    echo imported
    exec sleep 60 ;;
*)
    echo playing
    sleep 0.5 ;;
esac
)";

/// Nothing is installed; the servers of the game and the engine are a loopback one.
class Setup : public ModelTest
{
protected:
    Setup()
        : m_host(server.host())
    {
        serveGame("config_version=4\nconfig/name=\"Tether\"\nrun/main_scene=\"res://main.tscn\"\n");
        serveEngine(goodEngine);
        startModel();
        QObject::connect(&model(), &AppModel::changed, &model(), [this] {
            const auto step = model().statusTitle() + QStringLiteral(": ") + model().stepText();
            if (steps.isEmpty() || steps.last() != step)
                steps.append(step);
        });
    }

    void serveGame(const QByteArray& project, const QByteArray& extraName = {})
    {
        ZipWriter zip;
        zip.addFile("tetherwalk-master/project.godot", project);
        zip.addFile("tetherwalk-master/a.png", "png");
        zip.addFile("tetherwalk-master/README.org", "#+DESCRIPTION: A tiny game.\n");
        if (!extraName.isEmpty())
            zip.addFile(extraName, "extra");
        server.on(gamePath, HttpServer::replyWithoutLength(zip.archive()));
    }

    void serveEngine(const QByteArray& script, const QString& name = engineName)
    {
        ZipWriter zip;
        zip.addFile(name.toUtf8(), "#!/bin/sh\n" + script);
        const auto archive = zip.archive();
        server.on(releasePath + name + QStringLiteral(".zip"), HttpServer::reply(200, archive));
        serveList(QCryptographicHash::hash(archive, QCryptographicHash::Sha512).toHex() + "  " +
                  name.toUtf8() + ".zip\n");
    }

    void serveList(const QByteArray& list)
    {
        server.on(releasePath + QStringLiteral("SHA512-SUMS.txt"), HttpServer::reply(200, list));
    }

    void playToTheEnd()
    {
        model().play();
        waitForFlow();
    }

    void expectNothingInstalled()
    {
        EXPECT_EQ(model().phase(), Phase::notDownloaded());
        EXPECT_FALSE(model().failureText());
        EXPECT_EQ(logged().last(), u"Cancelled.");
        EXPECT_EQ(leftovers(), QStringList());
    }

    [[nodiscard]] qsizetype requestsOf(const QString& path) const
    {
        const auto requests = server.requests();
        return std::ranges::count_if(requests, [&path](const QByteArray& request) {
            return request.contains(path.toUtf8());
        });
    }

    [[nodiscard]] bool exists(const QString& relative) const
    {
        return QFile::exists(root(relative));
    }

    HttpServer server;
    QStringList steps;

private:
    WebHostScope m_host;
};

TEST_F(Setup, takesAPlayerFromNothingToTheRunningGame)
{
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::ready()) << model().statusDetail().toStdString();
    const auto project = root(QStringLiteral("Game/tetherwalk-master"));
    const QStringList expected{
        QStringLiteral("Downloading the game source from GitHub (branch master)…"),
        QStringLiteral("Unpacking the game with ditto…"),
        QStringLiteral("Game ready at ") + project,
        QStringLiteral(
            "project.godot: config_version=4 → Godot 3.x, C#: no, main scene: res://main.tscn"),
        QStringLiteral("Reading the official checksum list (SHA512-SUMS.txt)…"),
        QStringLiteral(
            "Downloading Godot_v3.5.3-stable_x11.64.zip from godotengine/godot releases…"),
        QStringLiteral("Checking the download against the official SHA-512 checksum…"),
        QStringLiteral("Checksum OK."),
        QStringLiteral("Importing the game's assets (Godot 3 has no --headless flag; using "
                       "--editor --no-window --quit)."),
        QStringLiteral("imported"),
        QStringLiteral("Import progress: 0 assets still to import"),
        QStringLiteral("All assets imported, closing the setup run."),
        QStringLiteral("Step 4 of 4 · Starting: Godot --path %1 --windowed").arg(project),
        QStringLiteral("playing"),
        QStringLiteral("Game closed normally."),
    };
    auto lines = logged();
    // Whether the first count comes before the engine is done depends on the machine.
    lines.removeAll(QStringLiteral("Import progress: 1 assets still to import"));
    EXPECT_EQ(lines.join(u'\n').toStdString(), expected.join(u'\n').toStdString());
    EXPECT_EQ(steps,
              (QStringList{
                  QStringLiteral("Not downloaded: "),
                  QStringLiteral("Downloading: Step 1 of 4 · Downloading the game"),
                  QStringLiteral(
                      "Downloading: Step 2 of 4 · Downloading the Godot engine (3.5.3-stable)"),
                  QStringLiteral(
                      "Setting up: Step 3 of 4 · First-time setup, this can take a minute or more"),
                  QStringLiteral("Starting…: Step 4 of 4 · Play"),
                  QStringLiteral("Playing: Step 4 of 4 · Play"), QStringLiteral("Ready: ")}));
    EXPECT_TRUE(exists(QStringLiteral("Game/.setup-v2-3.5.3-stable")));
    EXPECT_TRUE(exists(QStringLiteral("Engine/3.5.3-stable/Godot_v3.5.3-stable_x11.64")));
    EXPECT_EQ(model().facts().summary, u"A tiny game.");
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(Setup, contactsNoServerOnceEverythingIsInstalled)
{
    playToTheEnd();
    const auto before = server.requests().size();
    steps.clear();
    playToTheEnd();
    EXPECT_EQ(server.requests().size(), before);
    EXPECT_EQ(model().phase(), Phase::ready());
    for (const auto& step : steps) {
        EXPECT_FALSE(step.startsWith(u"Downloading")) << step.toStdString();
        EXPECT_FALSE(step.startsWith(u"Setting up")) << step.toStdString();
    }
}

TEST_F(Setup, importsAgainWhenAnAssetIsMissingThoughTheMarkerIsThere)
{
    playToTheEnd();
    ASSERT_TRUE(QFile::remove(root(QStringLiteral("Game/tetherwalk-master/.import/a.stex"))));
    steps.clear();
    playToTheEnd();
    EXPECT_EQ(steps.filter(QStringLiteral("Setting up")).size(), 1);
    EXPECT_EQ(model().phase(), Phase::ready());
    EXPECT_TRUE(exists(QStringLiteral("Game/.setup-v2-3.5.3-stable")));
}

TEST_F(Setup, refusesAGameForGodot4BeforeAnyEngineDownload)
{
    const auto sentence = QStringLiteral(
        "This game is made for Godot 4, but this app only knows how to install Godot 3.");
    for (const auto version : {5, 6}) {
        serveGame("config_version=" + QByteArray::number(version) + "\nconfig/name=\"Next\"\n");
        playToTheEnd();
        EXPECT_EQ(model().phase(), Phase::needs(sentence));
        EXPECT_EQ(logged().last(), QStringLiteral("Error: ") + sentence);
        EXPECT_TRUE(logged().contains(
            QStringLiteral("project.godot: config_version=%1 → Godot 4.x, C#: no, main scene: ")
                .arg(version)));
        ASSERT_TRUE(model().info());
        EXPECT_EQ(model().info()->name, u"Next");
        EXPECT_EQ(model().facts().summary, u"A tiny game.");
        ASSERT_TRUE(QDir(root(QStringLiteral("Game"))).removeRecursively());
    }
    EXPECT_EQ(requestsOf(releasePath), 0);
}

TEST_F(Setup, refusesAGameWithoutAReadableProject)
{
    serveGame("config_version=abc\n");
    playToTheEnd();
    EXPECT_EQ(model().phase(),
              Phase::needs(QStringLiteral("The downloaded folder has no readable project.godot.")));
}

TEST_F(Setup, downloadsTheOtherEditionForACSharpGame)
{
    serveGame("config_version=4\n", "tetherwalk-master/Game.csproj");
    const auto name = QStringLiteral("Godot_v3.5.3-stable_mono_x11_64");
    serveEngine(goodEngine, name);
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::ready()) << model().statusDetail().toStdString();
    EXPECT_TRUE(steps.contains(QStringLiteral(
        "Downloading: Step 2 of 4 · Downloading the Godot engine (3.5.3-stable-mono)")));
    EXPECT_TRUE(exists(QStringLiteral("Engine/3.5.3-stable-mono/") + name));
    EXPECT_TRUE(exists(QStringLiteral("Game/.setup-v2-3.5.3-stable-mono")));
}

TEST_F(Setup, discardsAnEngineThatDoesNotMatchItsChecksum)
{
    serveList(QByteArray(128, 'a') + "  Godot_v3.5.3-stable_x11.64.zip\n");
    playToTheEnd();
    EXPECT_EQ(
        model().phase(),
        Phase::needs(QStringLiteral(
            "The engine download did not match its official checksum, so it was discarded.")));
    EXPECT_FALSE(exists(QStringLiteral("Engine")));
    EXPECT_TRUE(exists(QStringLiteral("Game")));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(Setup, goesOnWhereAFailedRunStopped)
{
    serveList({});
    playToTheEnd();
    ASSERT_EQ(model().phase(),
              Phase::needs(QStringLiteral(
                  "The checksum list has no entry for Godot_v3.5.3-stable_x11.64.zip.")));
    serveEngine(goodEngine);
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::ready());
    EXPECT_FALSE(model().failureText());
    EXPECT_TRUE(
        logged().contains(QStringLiteral("Step 1 of 4 · Game already downloaded, skipping.")));
    EXPECT_EQ(logged().filter(QStringLiteral("Downloading the game source")).size(), 1);
}

TEST_F(Setup, reportsAnAnswerThatIsNoSuccess)
{
    server.on(gamePath, HttpServer::reply(404, "not here"));
    playToTheEnd();
    EXPECT_EQ(model().phase(),
              Phase::needs(QStringLiteral("The server answered with HTTP 404 for %1.")
                               .arg(server.url(gamePath).toString())));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(Setup, reportsAssetsThatTheEngineDidNotImport)
{
    serveEngine("exit 3");
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::needs(QStringLiteral(
                                   "The first-time setup did not finish: 1 game assets were not "
                                   "imported (engine exit code 3).")));
    EXPECT_FALSE(exists(QStringLiteral("Game/.setup-v2-3.5.3-stable")));
}

TEST_F(Setup, takesACompleteImportForSuccessWhateverTheEnginesStatus)
{
    serveEngine(R"(
case "$*" in *--editor*) mkdir "$2/.import"; echo > "$2/a.png.import"; exit 9 ;; esac
sleep 0.4
)");
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::ready()) << model().statusDetail().toStdString();
    EXPECT_TRUE(exists(QStringLiteral("Game/.setup-v2-3.5.3-stable")));
}

TEST_F(Setup, stopsAnImportThatTakesTooLong)
{
    durations.importLimit = 50ms;
    startModel();
    serveEngine("exec sleep 60");
    playToTheEnd();
    EXPECT_TRUE(logged().contains(QStringLiteral("Setup took too long, stopping it.")));
    EXPECT_EQ(model().phase(), Phase::needs(QStringLiteral(
                                   "The first-time setup did not finish: 1 game assets were not "
                                   "imported (engine exit code 15).")));
}

TEST_F(Setup, cancelsDuringTheGamesDownload)
{
    server.on(gamePath, [](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(200, "Content-Length: 1000\n") + QByteArray(10, 'x'));
        connection.waitForHangUp();
    });
    model().play();
    waitForPhase(Phase::Kind::downloading);
    ASSERT_TRUE(waitUntil([this] { return !model().progressText().isEmpty(); }));
    EXPECT_EQ(model().progress(), 0.01);
    model().cancelSetup();
    waitForFlow();
    expectNothingInstalled();
    EXPECT_FALSE(exists(QStringLiteral("Game")));
}

TEST_F(Setup, showsNoProgressOnceTheDownloadHasEnded)
{
    server.on(gamePath, HttpServer::silence());
    model().play();
    waitForPhase(Phase::Kind::downloading);
    const DownloadProgress report{.received = 10, .total = 1000, .bytesPerSecond = 1};
    AppModelAccess::progressRelay(model()).report(report);
    model().cancelSetup();
    waitForFlow();
    // What was on its way then would come before what is sent now.
    ProgressRelay later;
    const QSignalSpy delivered(&later, &ProgressRelay::progressed);
    later.report(report);
    ASSERT_TRUE(waitUntil([&] { return delivered.size() == 1; }));
    EXPECT_TRUE(model().progressText().isEmpty()) << model().progressText().toStdString();
    EXPECT_FALSE(model().progress());
}

TEST_F(Setup, removesTheMarkerBeforeAnImport)
{
    playToTheEnd();
    ASSERT_TRUE(exists(QStringLiteral("Game/.setup-v2-3.5.3-stable")));
    ASSERT_TRUE(QFile::remove(root(QStringLiteral("Game/tetherwalk-master/.import/a.stex"))));
    installEngine("echo up; exec sleep 60");
    ASSERT_TRUE(QFile::remove(root(QStringLiteral("Engine/3.5.3-stable/") + engineName)));
    model().play();
    ASSERT_TRUE(waitUntil([this] { return logged().contains(QStringLiteral("up")); }));
    model().cancelSetup();
    waitForFlow();
    EXPECT_FALSE(exists(QStringLiteral("Game/.setup-v2-3.5.3-stable")));
}

TEST_F(Setup, downloadsAnewAfterAnUpdateWasCancelledInItsSilentChecks)
{
    playToTheEnd();
    {
        const BusyPool busy;
        model().updateGame();
        model().cancelSetup();
    }
    waitForFlow();
    serveGame("config_version=4\nconfig/name=\"Newer\"\n");
    playToTheEnd();
    EXPECT_EQ(model().info()->name, u"Newer");
}

TEST_F(Setup, cancelsDuringTheChecksumList)
{
    server.on(releasePath + QStringLiteral("SHA512-SUMS.txt"), HttpServer::silence());
    model().play();
    ASSERT_TRUE(waitUntil([this] { return requestsOf(QStringLiteral("SHA512-SUMS.txt")) > 0; }));
    model().cancelSetup();
    waitForFlow();
    expectNothingInstalled();
    EXPECT_TRUE(exists(QStringLiteral("Game")));
}

TEST_F(Setup, cancelsDuringTheEnginesDownload)
{
    server.on(releasePath + engineName + QStringLiteral(".zip"), HttpServer::silence());
    model().play();
    ASSERT_TRUE(waitUntil([this] { return requestsOf(engineName) > 0; }));
    model().cancelSetup();
    waitForFlow();
    expectNothingInstalled();
    EXPECT_FALSE(exists(QStringLiteral("Engine/3.5.3-stable")));
}

TEST_F(Setup, cancelsDuringTheImportAndEndsTheEngine)
{
    serveEngine("echo up $$; exec sleep 60");
    model().play();
    ASSERT_TRUE(waitUntil([this] { return !logged().filter(QStringLiteral("up ")).isEmpty(); }));
    const auto engine = logged().filter(QStringLiteral("up ")).first().mid(3);
    model().cancelSetup();
    waitForFlow();
    expectNothingInstalled();
    EXPECT_FALSE(exists(QStringLiteral("Game/.setup-v2-3.5.3-stable")));
    EXPECT_FALSE(QFile::exists(QStringLiteral("/proc/") + engine));
}

TEST_F(Setup, cancelsAlreadyInItsSilentChecks)
{
    {
        const BusyPool busy;
        model().play();
        EXPECT_TRUE(model().isBusy());
        EXPECT_EQ(model().phase(), Phase::notDownloaded());
        model().cancelSetup();
    }
    waitForFlow();
    expectNothingInstalled();
    EXPECT_TRUE(server.requests().isEmpty());
}

TEST_F(Setup, quitsDuringADownloadWithoutAQuestion)
{
    server.on(gamePath, HttpServer::silence());
    model().play();
    waitForPhase(Phase::Kind::downloading);
    EXPECT_TRUE(model().confirmQuit());
    waitForFlow();
    EXPECT_TRUE(desktop.questions.isEmpty());
    expectNothingInstalled();
}

TEST_F(Setup, ignoresFurtherPressesWhileBusy)
{
    server.on(gamePath, HttpServer::silence());
    model().play();
    model().play();
    waitForPhase(Phase::Kind::downloading);
    model().play();
    ASSERT_TRUE(waitUntil([this] { return !server.requests().isEmpty(); }));
    EXPECT_EQ(logged().filter(QStringLiteral("Downloading the game source")).size(), 1);
    EXPECT_EQ(server.requests().size(), 1);
    model().cancelSetup();
    waitForFlow();
}

TEST_F(Setup, updatesTheGameAndImportsItAnew)
{
    playToTheEnd();
    serveGame("config_version=4\nconfig/name=\"Newer\"\n");
    model().updateGame();
    ASSERT_EQ(desktop.questions.size(), 1);
    EXPECT_EQ(desktop.questions[0].title, u"Update the game?");
    EXPECT_EQ(desktop.questions[0].message,
              u"The game is downloaded again from GitHub. Your save files are kept.");
    EXPECT_EQ(desktop.questions[0].button, u"Update");
    waitForFlow();
    EXPECT_EQ(model().phase(), Phase::ready());
    EXPECT_EQ(model().info()->name, u"Newer");
    EXPECT_EQ(steps.filter(QStringLiteral("Setting up")).size(), 2);
    EXPECT_TRUE(
        logged().contains(QStringLiteral("Step 2 of 4 · Engine already installed, skipping.")));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(Setup, completesASwapThatIsUnderWayWhenItIsCancelled)
{
    playToTheEnd();
    // The deletion of the former game is the last part of the swap, and the only long one. It may
    // still be over before it is seen.
    const auto former = QStringLiteral("data/Cavernyx Platformer/Game/former/");
    auto isUnderWay = false;
    for (int attempt = 0; attempt < 10 && !isUnderWay; ++attempt) {
        for (int file = 0; file < 10'000; ++file)
            home.write(former + QString::number(file));
        const auto news = QStringLiteral("tetherwalk-master/news-%1").arg(attempt);
        serveGame("config_version=4\n", news.toUtf8());
        model().updateGame();
        while (model().isFlowRunning() && !exists(QStringLiteral("Game/") + news))
            QCoreApplication::processEvents();
        isUnderWay = !leftovers().filter(QStringLiteral("Game.new-")).isEmpty();
        model().cancelSetup();
        waitForFlow();
    }
    ASSERT_TRUE(isUnderWay);
    EXPECT_TRUE(exists(QStringLiteral("Game/tetherwalk-master/project.godot")));
    EXPECT_FALSE(exists(QStringLiteral("Game/former")));
    expectNothingInstalled();
}

TEST_F(Setup, keepsTheInstalledGameWhenItsUpdateFails)
{
    playToTheEnd();
    server.on(gamePath, HttpServer::reply(200, "no archive"));
    model().updateGame();
    waitForFlow();
    EXPECT_EQ(model().phase(),
              Phase::needs(QStringLiteral("Unzipping failed (ditto exit code 1).")));
    EXPECT_TRUE(exists(QStringLiteral("Game/tetherwalk-master/project.godot")));
    EXPECT_FALSE(exists(QStringLiteral("Game/.setup-v2-3.5.3-stable")));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(Setup, reinstallsGameAndEngine)
{
    playToTheEnd();
    home.write(QStringLiteral("data/Cavernyx Platformer/Game/stray"));
    model().reinstall();
    ASSERT_EQ(desktop.questions.size(), 1);
    EXPECT_EQ(desktop.questions[0].title, u"Reinstall everything?");
    EXPECT_EQ(
        desktop.questions[0].message,
        u"The game and the engine are deleted and downloaded again. Your save files are kept.");
    EXPECT_EQ(desktop.questions[0].button, u"Reinstall");
    waitForFlow();
    EXPECT_EQ(model().phase(), Phase::ready());
    EXPECT_FALSE(exists(QStringLiteral("Game/stray")));
    // The network library repeats a request when the connection closes at the wrong moment.
    EXPECT_GE(requestsOf(gamePath), 2);
    EXPECT_GE(requestsOf(releasePath + engineName), 2);
}

} // namespace
