// SPDX-License-Identifier: MIT
#include "Model/SetupTest.h"
#include "Support/Await.h"

#include <QDir>
#include <chrono>

using namespace std::chrono_literals;

namespace {

using SetupFailureTest = SetupTest;

TEST_F(SetupFailureTest, refusesAGameForGodot4BeforeAnyEngineDownload)
{
    const auto sentence =
        u"This game is made for Godot 4, but this app only knows how to install Godot 3."_s;
    for (const auto version : {5, 6}) {
        serveGame("config_version=" + QByteArray::number(version) + "\nconfig/name=\"Next\"\n");
        playToTheEnd();
        EXPECT_EQ(model().phase(), Phase::needs(sentence));
        EXPECT_EQ(logged().last(), u"Error: "_s + sentence);
        EXPECT_TRUE(logged().contains(
            u"project.godot: config_version=%1 → Godot 4.x, C#: no, main scene: "_s.arg(version)));
        ASSERT_TRUE(model().info());
        EXPECT_EQ(model().info()->name, u"Next");
        EXPECT_EQ(model().facts().summary, u"A tiny game.");
        ASSERT_TRUE(QDir(root(u"Game"_s)).removeRecursively());
    }
    EXPECT_EQ(requestsOf(releasePath({})), 0);
}

TEST_F(SetupFailureTest, refusesAGameWithoutAReadableProject)
{
    serveGame("config_version=abc\n");
    playToTheEnd();
    EXPECT_EQ(model().phase(),
              Phase::needs(u"The downloaded folder has no readable project.godot."_s));
}

TEST_F(SetupFailureTest, discardsAnEngineThatDoesNotMatchItsChecksum)
{
    serveList(QByteArray(128, 'a') + "  " + EngineManager().archiveName().toUtf8() + '\n');
    playToTheEnd();
    EXPECT_EQ(
        model().phase(),
        Phase::needs(
            u"The engine download did not match its official checksum, so it was discarded."_s));
    EXPECT_TRUE(waitUntil([this] { return !model().installedSize().isEmpty(); }));
    EXPECT_FALSE(exists(u"Engine"_s));
    EXPECT_TRUE(exists(u"Game"_s));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(SetupFailureTest, showsNoProgressOfADownloadThatFailed)
{
    durations.stallTimeout = 3s;
    startModel();
    enterDownload(50, 200);
    ASSERT_EQ(model().progress(), 0.25);
    waitForFlow();
    EXPECT_EQ(model().phase(), Phase::Kind::needs);
    EXPECT_EQ(model().progress(), std::nullopt);
    EXPECT_EQ(model().progressText(), QString());
}

TEST_F(SetupFailureTest, goesOnWhereAFailedRunStopped)
{
    serveList({});
    playToTheEnd();
    ASSERT_EQ(model().phase(), Phase::needs(u"The checksum list has no entry for %1."_s.arg(
                                   EngineManager().archiveName())));
    serveScript(goodEngine);
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::ready());
    EXPECT_FALSE(model().failureText());
    EXPECT_TRUE(logged().contains(u"Step 1 of 4 · Game already downloaded, skipping."_s));
    EXPECT_EQ(logged().filter(u"Downloading the game source"_s).size(), 1);
}

TEST_F(SetupFailureTest, reportsAnAnswerThatIsNoSuccess)
{
    server.on(gamePath(), HttpServer::reply(404, "not here"));
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::needs(u"The server answered with HTTP 404 for %1."_s.arg(
                                   server.url(gamePath()).toString())));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(SetupFailureTest, reportsAssetsThatTheEngineDidNotImport)
{
    serveScript("exit 3");
    playToTheEnd();
    EXPECT_EQ(model().phase(),
              Phase::needs(u"The first-time setup did not finish: 1 game assets were not "
                           "imported (engine exit code 3)."_s));
    EXPECT_FALSE(hasMarker());
}

TEST_F(SetupFailureTest, stopsAnImportThatTakesTooLong)
{
    durations.importTimeout = 50ms;
    durations.killTimeout = 10min; // It ends by SIGTERM, however busy the machine is.
    startModel();
    serveScript("exec sleep 60");
    playToTheEnd();
    EXPECT_TRUE(logged().contains(u"Setup took too long, stopping it."_s));
    EXPECT_EQ(model().phase(),
              Phase::needs(u"The first-time setup did not finish: 1 game assets were not "
                           "imported (engine exit code 15)."_s));
}

} // namespace
