// SPDX-License-Identifier: MIT
#include "Model/SetupTest.h"

#include <QDir>
#include <chrono>

using namespace std::chrono_literals;

namespace {

using SetupFailureTest = SetupTest;

TEST_F(SetupFailureTest, refusesAGameForGodot4BeforeAnyEngineDownload)
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

TEST_F(SetupFailureTest, refusesAGameWithoutAReadableProject)
{
    serveGame("config_version=abc\n");
    playToTheEnd();
    EXPECT_EQ(model().phase(),
              Phase::needs(QStringLiteral("The downloaded folder has no readable project.godot.")));
}

TEST_F(SetupFailureTest, discardsAnEngineThatDoesNotMatchItsChecksum)
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

TEST_F(SetupFailureTest, goesOnWhereAFailedRunStopped)
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

TEST_F(SetupFailureTest, reportsAnAnswerThatIsNoSuccess)
{
    server.on(gamePath, HttpServer::reply(404, "not here"));
    playToTheEnd();
    EXPECT_EQ(model().phase(),
              Phase::needs(QStringLiteral("The server answered with HTTP 404 for %1.")
                               .arg(server.url(gamePath).toString())));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(SetupFailureTest, reportsAssetsThatTheEngineDidNotImport)
{
    serveEngine("exit 3");
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::needs(QStringLiteral(
                                   "The first-time setup did not finish: 1 game assets were not "
                                   "imported (engine exit code 3).")));
    EXPECT_FALSE(exists(QStringLiteral("Game/.setup-v2-3.5.3-stable")));
}

TEST_F(SetupFailureTest, stopsAnImportThatTakesTooLong)
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

} // namespace
