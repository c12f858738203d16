// SPDX-License-Identifier: MIT
#include "Model/SetupTest.h"

#include "Support/BusyPool.h"

#include <QCoreApplication>

namespace {

using GameUpdateTest = SetupTest;

TEST_F(GameUpdateTest, downloadsAnewAfterAnUpdateWasCancelledInItsSilentChecks)
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

TEST_F(GameUpdateTest, updatesTheGameAndImportsItAnew)
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

TEST_F(GameUpdateTest, completesASwapThatIsUnderWayWhenItIsCancelled)
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

TEST_F(GameUpdateTest, keepsTheInstalledGameWhenItsUpdateFails)
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

TEST_F(GameUpdateTest, reinstallsGameAndEngine)
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
