// SPDX-License-Identifier: MIT
#include "Model/SetupTest.h"

#include "Support/BusyPool.h"
#include "Support/UnchangeableScope.h"
#include "System/FileTree.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

class GameUpdateTest : public SetupTest
{
protected:
    /// Removes so many files that the deletion is still under way afterwards.
    void removeManyFiles()
    {
        installManyFiles();
        model().removeEverything();
        waitForFlow();
    }
};

/// The project of a new game whose target is still to be deleted.
const auto completeGame = u"Game.new-01234567-89AB-CDEF-0123-456789ABCDEF.complete/project.godot"_s;

TEST_F(GameUpdateTest, downloadsAgainAfterAnUpdateWasCancelledInItsSilentChecks)
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

TEST_F(GameUpdateTest, updatesTheGameAndImportsItAgain)
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
    EXPECT_EQ(steps.filter(u"Setting up"_s).size(), 2);
    EXPECT_TRUE(logged().contains(u"Step 2 of 4 · Engine already installed, skipping."_s));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(GameUpdateTest, downloadsTheGameOnceForEachUpdate)
{
    playToTheEnd();
    model().updateGame();
    waitForFlow();
    playToTheEnd();
    EXPECT_EQ(requestsOf(gamePath()), 2);
}

TEST_F(GameUpdateTest, completesASwapThatIsUnderWayWhenItIsCancelled)
{
    playToTheEnd();
    // The deletion of the former game is the last part of the swap, and the only long one. It may
    // still be over before it is seen.
    const auto former = root(u"Game/former"_s) + u'/';
    auto isUnderWay = false;
    for (int attempt = 0; attempt < 10 && !isUnderWay; ++attempt) {
        for (int file = 0; file < 10'000; ++file)
            home.write(former + QString::number(file));
        const auto news = u"tetherwalk-master/news-%1"_s.arg(attempt);
        serveGame("config_version=4\n", news.toUtf8());
        model().updateGame();
        while (model().isFlowRunning() && !exists(u"Game/"_s + news))
            QCoreApplication::processEvents();
        isUnderWay = !stagingFolders().filter(u"Game.new-"_s).isEmpty();
        model().cancelSetup();
        waitForFlow();
    }
    ASSERT_TRUE(isUnderWay);
    EXPECT_TRUE(exists(u"Game/tetherwalk-master/project.godot"_s));
    EXPECT_FALSE(exists(u"Game/former"_s));
    expectNothingInstalled();
}

TEST_F(GameUpdateTest, keepsTheInstalledGameWhenItsUpdateFails)
{
    playToTheEnd();
    server.on(gamePath(), HttpServer::reply(200, "no archive"));
    model().updateGame();
    waitForFlow();
    EXPECT_EQ(model().phase(), Phase::needs(u"Unzipping failed (ditto exit code 1)."_s));
    EXPECT_TRUE(exists(u"Game/tetherwalk-master/project.godot"_s));
    EXPECT_FALSE(hasMarker());
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(GameUpdateTest, keepsAGameThatCanBePlayedWhenItsUpdateCannot)
{
    playToTheEnd();
    for (const QByteArray project :
         {"config_version=4\r\n", "config_version=\xff\n", "nothing\n"}) {
        serveGame(project);
        model().updateGame();
        waitForFlow();
        const auto sentence = u"The downloaded folder has no readable project.godot."_s;
        EXPECT_EQ(model().phase(), Phase::needs(sentence));
        EXPECT_EQ(logged().constLast(), u"Error: "_s + sentence);
        EXPECT_EQ(logged().filter(u"Game ready at"_s).size(), 1);
        EXPECT_EQ(leftovers(), QStringList());
        playToTheEnd();
        EXPECT_EQ(model().phase(), Phase::ready()) << project.constData();
    }
}

TEST_F(GameUpdateTest, keepsAGodot3GameWhenItsUpdateIsForGodot4)
{
    playToTheEnd();
    serveGame("config_version=5\nconfig/name=\"Newer\"\n");
    model().updateGame();
    waitForFlow();
    EXPECT_EQ(model().phase(),
              Phase::needs(u"This game is made for Godot 4, but this app only knows "
                           "how to install Godot 3."_s));
    EXPECT_FALSE(logged().filter(u"config_version=5 → Godot 4.x"_s).isEmpty());
    EXPECT_EQ(logged().filter(u"Game ready at"_s).size(), 1);
    EXPECT_EQ(model().info()->name, u"Newer");
    model().refreshState();
    EXPECT_NE(model().info()->name, u"Newer");
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::ready());
}

TEST_F(GameUpdateTest, replacesAGameThatCannotBePlayedByAnotherOne)
{
    serveGame("config_version=5\nconfig/name=\"Old\"\n");
    playToTheEnd();
    EXPECT_EQ(model().info()->name, u"Old");
    serveGame("config_version=5\nconfig/name=\"Newer\"\n");
    model().updateGame();
    waitForFlow();
    EXPECT_EQ(logged().filter(u"Game ready at"_s).size(), 2);
    model().refreshState();
    EXPECT_EQ(model().info()->name, u"Newer");
}

TEST_F(GameUpdateTest, downloadsAfterADeletionThatIsUnderWay)
{
    playToTheEnd();
    removeManyFiles();
    ASSERT_FALSE(stagingFolders().isEmpty()) << "The deletion was too fast for a press of Play.";
    server.on(gamePath(), [this](const HttpServer::Connection&) {
        EXPECT_EQ(stagingFolders().filter(u".new-"_s), QStringList());
    });
    model().play();
    model().log().append(u"a line of the new flow"_s);
    waitForPhase(Phase::Kind::downloading);
    waitForFlow();
    EXPECT_GE(requestsOf(gamePath()), 2);
    EXPECT_TRUE(logged().contains(u"a line of the new flow"_s));
}

TEST_F(GameUpdateTest, canBeCancelledWhileItWaitsForADeletion)
{
    playToTheEnd();
    removeManyFiles();
    model().play();
    waitForPhase(Phase::Kind::downloading);
    ASSERT_FALSE(stagingFolders().isEmpty()) << "The deletion was too fast for a cancel.";
    model().cancelSetup();
    waitForFlow();
    EXPECT_FALSE(stagingFolders().isEmpty()) << "The cancel has waited for the deletion.";
    expectNothingInstalled();
}

TEST_F(GameUpdateTest, endsInTheSentenceOfADeletionThatFailed)
{
    playToTheEnd();
    const auto stuck = home.write(root(u"Game/many/stuck"_s));
    const UnchangeableScope unchangeable(stuck);
    if (!unchangeable.isInForce())
        GTEST_SKIP() << "This user or file system can make no file unchangeable.";
    removeManyFiles();
    model().play();
    waitForFlow();
    EXPECT_TRUE(model().phase().message().startsWith(u"Could not remove the files: "));
    EXPECT_EQ(requestsOf(gamePath()), 1);
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::ready());
}

TEST_F(GameUpdateTest, finishesAReplacementThatFailedBeforeItPlays)
{
    playToTheEnd();
    home.write(root(completeGame), "config_version=4\nconfig/name=\"Newer\"\n");
    const auto stuck = home.write(root(u"Game/many/stuck"_s));
    {
        const UnchangeableScope unchangeable(stuck);
        if (!unchangeable.isInForce())
            GTEST_SKIP() << "This user or file system can make no file unchangeable.";
        model().play();
        waitForFlow();
        EXPECT_EQ(model().phase().message(),
                  u"Could not remove “%1”: Operation not permitted."_s.arg(stuck));
    }
    playToTheEnd();
    EXPECT_EQ(model().info()->name, u"Newer");
    EXPECT_EQ(requestsOf(gamePath()), 1);
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(GameUpdateTest, offersNoGameWhoseReplacementIsNotFinished)
{
    installGame();
    installEngine("exit 0");
    writeMarker();
    const auto complete = QFileInfo(root(completeGame)).path();
    ASSERT_EQ(FileTree::rename(root(u"Game"_s), complete), 0);
    installGame("config/name=\"Older\"\n");
    writeMarker();
    EXPECT_EQ(startModel().phase(), Phase::notDownloaded());
    waitForPhase(Phase::Kind::ready);
    EXPECT_EQ(model().info()->name, u"Tether");
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(GameUpdateTest, finishesNoReplacementThatIsBeingDeleted)
{
    playToTheEnd();
    const auto stuck = QFileInfo(home.write(root(completeGame))).path();
    const UnchangeableScope unchangeable(stuck);
    if (!unchangeable.isInForce())
        GTEST_SKIP() << "This user or file system can make no file unchangeable.";
    removeManyFiles();
    ASSERT_GT(stagingFolders().size(), 1) << "The deletion was too fast for a press of Play.";
    model().play();
    waitForFlow();
    EXPECT_TRUE(model().phase().message().startsWith(u"Could not remove the files: "))
        << model().statusDetail();
}

TEST_F(GameUpdateTest, discardsAnOlderReplacementWhenItReinstalls)
{
    playToTheEnd();
    home.write(root(completeGame), "config_version=4\nconfig/name=\"Older\"\n");
    model().reinstall();
    waitForFlow();
    EXPECT_EQ(model().info()->name, u"Tether");
    EXPECT_EQ(requestsOf(gamePath()), 2);
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(GameUpdateTest, reinstallsGameAndEngine)
{
    playToTheEnd();
    home.write(root(u"Game/stray"_s));
    model().reinstall();
    ASSERT_EQ(desktop.questions.size(), 1);
    EXPECT_EQ(desktop.questions[0].title, u"Reinstall everything?");
    EXPECT_EQ(
        desktop.questions[0].message,
        u"The game and the engine are deleted and downloaded again. Your save files are kept.");
    EXPECT_EQ(desktop.questions[0].button, u"Reinstall");
    waitForFlow();
    EXPECT_EQ(model().phase(), Phase::ready());
    EXPECT_FALSE(exists(u"Game/stray"_s));
    // The network library repeats a request when the connection closes at the wrong moment.
    EXPECT_GE(requestsOf(gamePath()), 2);
    EXPECT_GE(requestsOf(enginePath()), 2);
}

TEST_F(GameUpdateTest, forgetsAFailureWhenItReinstalls)
{
    serveList({});
    playToTheEnd();
    ASSERT_TRUE(model().failureText());
    serveScript(goodEngine);
    model().reinstall();
    waitForFlow();
    EXPECT_EQ(model().phase(), Phase::ready());
    EXPECT_FALSE(model().failureText());
}

} // namespace
