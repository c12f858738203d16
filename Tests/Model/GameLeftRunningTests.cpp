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
        EXPECT_TRUE(waitUntil([this] { return lock.isGameRunning(); }));
        startReady();
    }
    void expectRefusal(void (AppModel::*action)())
    {
        model().refreshState();
        (model().*action)();
        EXPECT_FALSE(model().isFlowRunning());
        EXPECT_EQ(
            model().phase(),
            Phase::needs(u"The game is still running from an earlier start. Close it first."_s));
        EXPECT_EQ(logged().constLast(),
                  u"Error: The game is still running from an earlier start. Close it first."_s);
    }

    ForkedProcess game{[this] { InstallationLock::acquireAsGame(lock.descriptor()); }};
};

TEST_F(GameLeftRunning, keepsItsFilesUntilItIsClosed)
{
    expectRefusal(&AppModel::play);
    expectRefusal(&AppModel::updateGame);
    expectRefusal(&AppModel::reinstall);
    expectRefusal(&AppModel::removeEverything);
    EXPECT_TRUE(desktop.questions.isEmpty());
    EXPECT_TRUE(hasMarker());

    game.kill();
    model().removeEverything();
    waitForDeletion();
    EXPECT_FALSE(exists({}));
}

TEST_F(GameOfThisLauncher, isKnownWhileItRunsAndNotAfterwards)
{
    startReady("sleep 60").play();
    waitForPhase(Phase::Kind::playing);
    EXPECT_TRUE(waitUntil([this] { return lock.isGameRunning(); }))
        << "for another launcher to see, should this one be killed";
    model().stopGame();
    waitForFlow();
    EXPECT_FALSE(lock.isGameRunning());
}

} // namespace
