// SPDX-License-Identifier: MIT
#include "Model/SetupTest.h"

#include "Support/Await.h"

#include "System/DiskSpace.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/// Somebody puts a folder in the place of the lock's file while the launcher runs.
class WithoutTheLock : public SetupTest
{
protected:
    void loseLock() const
    {
        EXPECT_TRUE(QFile::remove(lockFile));
        EXPECT_TRUE(QDir().mkpath(lockFile));
    }
    void install(const QByteArray& engine)
    {
        enter(Phase::Kind::ready);
        installEngine(engine);
    }
    void expectRefusal(void (AppModel::*action)())
    {
        model().refreshState();
        (model().*action)();
        waitForFlow();
        EXPECT_EQ(model().phase(), Phase::needs(sentence));
        EXPECT_EQ(logged().last(), u"Error: "_s + sentence);
    }

    const QString lockFile = home.path(u"lock.lock"_s);
    const QString sentence =
        u"Could not lock “%1”, without which nothing is installed or removed: Is a directory."_s
            .arg(lockFile);
};

/// The data folder lies on another disk than the test's home, until that disk goes away.
class OnAnotherDisk : public SetupTest
{
protected:
    OnAnotherDisk()
    {
        EXPECT_TRUE(QFile::link(disk.path(), dataFolder));
        model().refreshState();
    }
    [[nodiscard]] bool isOnAnotherDisk() const
    {
        return disk.isValid() && deviceOf(disk.path()) != deviceOf(home.path());
    }
    void takeDiskAway() const
    {
        EXPECT_TRUE(QFile::remove(dataFolder));
        EXPECT_TRUE(QDir().mkpath(dataFolder));
    }

    const QTemporaryDir disk{u"/dev/shm/cavernyx-test-XXXXXX"_s};
    const QString dataFolder = home.path(u"mounted"_s);
    const QString sentence =
        u"The folder “%1/Cavernyx Platformer” is on another disk than before. Connect that disk "
        u"again, or try once more to use this one."_s.arg(dataFolder);
    const EnvironmentScope data{"XDG_DATA_HOME", dataFolder.toUtf8()};
};

TEST_F(WithoutTheLock, nothingIsInstalledUntilItIsBack)
{
    loseLock();
    expectRefusal(&AppModel::play);
    EXPECT_EQ(requestsOf(gamePath()), 0);
    EXPECT_EQ(home.names(u"data"_s), QStringList());

    ASSERT_TRUE(QDir().rmdir(lockFile));
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::ready());
    EXPECT_TRUE(lock.isHeld());
}

TEST_F(WithoutTheLock, neitherTheEngineNorTheAssetsAreInstalled)
{
    loseLock();
    installGame();
    expectRefusal(&AppModel::play);
    EXPECT_FALSE(exists(u"Engine"_s));
    installEngine("exit 0");
    expectRefusal(&AppModel::play);
    writeMarker();
    ASSERT_TRUE(QFile::remove(root(u"Game/tetherwalk-master/a.png.import"_s)));
    expectRefusal(&AppModel::play);
    EXPECT_TRUE(QFile::exists(EngineManager().markerFile()));
}

TEST_F(WithoutTheLock, nothingIsRemovedOrReplaced)
{
    install("sleep 60");
    loseLock();
    expectRefusal(&AppModel::updateGame);
    expectRefusal(&AppModel::reinstall);
    expectRefusal(&AppModel::removeEverything);
    EXPECT_TRUE(desktop.questions.isEmpty());
    model().refreshState();
    EXPECT_EQ(model().phase(), Phase::ready());
}

TEST_F(WithoutTheLock, nothingIsRemovedThoughThePlayerWasAskedBefore)
{
    install("sleep 60");
    desktop.whileAsking = [this] { loseLock(); };
    expectRefusal(&AppModel::removeEverything);
    EXPECT_EQ(desktop.questions.size(), 1);
    model().refreshState();
    EXPECT_EQ(model().phase(), Phase::ready());
}

TEST_F(WithoutTheLock, aCompleteInstallationIsPlayed)
{
    install("sleep 60");
    loseLock();
    model().play();
    waitForPhase(Phase::Kind::playing);
    model().stopGame();
    waitForFlow();
    EXPECT_EQ(model().phase(), Phase::ready());
}

TEST_F(WithoutTheLock, aGameThatClosesAtOnceKeepsItsMarker)
{
    durations.startupThreshold = std::chrono::hours{1};
    startModel();
    install("exit 1");
    loseLock();
    playToTheEnd();
    EXPECT_TRUE(model().phase().message().startsWith(u"The game closed after "));
    EXPECT_TRUE(QFile::exists(EngineManager().markerFile()));
}

TEST_F(WithoutTheLock, aGameIsKnownByTheFileThatIsThereWhenItStarts)
{
    install("sleep 60");
    ASSERT_TRUE(QFile::remove(lockFile));
    model().play();
    waitForPhase(Phase::Kind::playing);
    EXPECT_TRUE(lock.isHeld());
    EXPECT_TRUE(waitUntil([this] { return lock.isGameRunning(); }));
    model().stopGame();
    waitForFlow();
}

TEST_F(OnAnotherDisk, nothingIsInstalledBelowItsMountPointUntilThePlayerTriesOnceMore)
{
    if (!isOnAnotherDisk())
        GTEST_SKIP() << "/dev/shm is no disk of its own here.";
    playToTheEnd();
    ASSERT_EQ(model().phase(), Phase::ready());
    takeDiskAway();

    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::needs(sentence));
    EXPECT_EQ(home.names(u"mounted"_s), QStringList());
    EXPECT_EQ(requestsOf(gamePath()), 1);
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::ready());
    EXPECT_EQ(home.names(u"mounted/Cavernyx Platformer"_s), (QStringList{u"Engine"_s, u"Game"_s}));
}

TEST_F(OnAnotherDisk, nothingIsRemovedFromTheOneInItsPlace)
{
    if (!isOnAnotherDisk())
        GTEST_SKIP() << "/dev/shm is no disk of its own here.";
    takeDiskAway();
    home.write(u"mounted/Cavernyx Platformer/Game/some file"_s);
    model().removeEverything();
    EXPECT_EQ(model().phase(), Phase::needs(sentence));
    EXPECT_TRUE(desktop.questions.isEmpty());
    EXPECT_TRUE(home.exists(u"mounted/Cavernyx Platformer/Game/some file"_s));
}

TEST_F(SetupTest, installsAnewWhatWasMerelyDeleted)
{
    playToTheEnd();
    ASSERT_EQ(model().phase(), Phase::ready());
    ASSERT_TRUE(QDir(root()).removeRecursively());
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::ready());
    EXPECT_EQ(requestsOf(gamePath()), 2);
}

} // namespace
