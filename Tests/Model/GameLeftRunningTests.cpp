// SPDX-License-Identifier: MIT
#include "Support/Await.h"
#include "Support/ForkedProcess.h"
#include "Support/ModelTest.h"

namespace {

using GameOfThisLauncher = ModelTest;

/// A game that a launcher started which was killed since.
class GameLeftRunning : public ModelTest
{
protected:
    GameLeftRunning()
    {
        EXPECT_TRUE(waitUntil([this] { return session.isGameRunning(); }));
        installGame();
        installEngine("exit 0");
        writeMarker();
        startModel();
    }
    void expectRefusal(void (AppModel::*action)())
    {
        model().refreshState();
        (model().*action)();
        EXPECT_FALSE(model().isFlowRunning());
        EXPECT_EQ(model().phase(),
                  Phase::needs(QStringLiteral(
                      "The game is still running from an earlier start. Close it first.")));
        EXPECT_EQ(logged().constLast(),
                  QStringLiteral(
                      "Error: The game is still running from an earlier start. Close it first."));
    }

    ForkedProcess game{[this] { SessionLock::holdAsGame(session.descriptor()); }};
};

TEST_F(GameLeftRunning, keepsItsFilesUntilItIsClosed)
{
    expectRefusal(&AppModel::play);
    expectRefusal(&AppModel::updateGame);
    expectRefusal(&AppModel::reinstall);
    expectRefusal(&AppModel::removeEverything);
    EXPECT_TRUE(desktop.questions.isEmpty());
    EXPECT_TRUE(
        home.exists(QStringLiteral("data/Cavernyx Platformer/Game/.setup-v2-3.5.3-stable")));

    game.kill();
    model().removeEverything();
    waitForFlow();
    EXPECT_FALSE(home.exists(QStringLiteral("data/Cavernyx Platformer")));
}

TEST_F(GameOfThisLauncher, isKnownWhileItRunsAndNotAfterwards)
{
    installGame();
    installEngine("sleep 60");
    writeMarker();
    startModel().play();
    waitForPhase(Phase::Kind::playing);
    EXPECT_TRUE(waitUntil([this] { return session.isGameRunning(); }))
        << "for another launcher to see, should this one be killed";
    model().stopGame();
    waitForFlow();
    EXPECT_FALSE(session.isGameRunning());
}

} // namespace
