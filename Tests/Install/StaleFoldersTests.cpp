// SPDX-License-Identifier: MIT
#include "Install/StaleFolders.h"

#include "Install/Paths.h"
#include "Install/TemporaryFolder.h"
#include "Support/Await.h"
#include "Support/EnvironmentScope.h"
#include "Support/ForkedProcess.h"
#include "Support/TestFolder.h"
#include "System/InstallationLock.h"

#include <gtest/gtest.h>

#include <QFile>

#include <stop_token>

using namespace Qt::StringLiterals;

namespace {

const auto uuid = u"01234567-89AB-CDEF-0123-456789ABCDEF"_s;

class StaleFoldersTest : public testing::Test
{
protected:
    StaleFoldersTest() { lock.tryAcquire(); }

    void clear() const { StaleFolders::remove(StaleFolders::putBackAndList(lock)); }

    /// The path of something in the storage root, relative to the home.
    static QString inRoot(const QString& name) { return u"data/Cavernyx Platformer/"_s + name; }

    const TestFolder home;
    const EnvironmentScope data{"XDG_DATA_HOME", home.makeFolder(u"data"_s).toUtf8()};
    const EnvironmentScope temporary{"TMPDIR", home.makeFolder(u"tmp"_s).toUtf8()};
    InstallationLock lock{Paths::lockFile()};
};

TEST_F(StaleFoldersTest, areClearedWhereTheirOwnerIsGone)
{
    home.write(inRoot(u"Game.new-"_s + uuid + u"/half/file"_s));
    home.write(inRoot(u"Engine.new-"_s + uuid + u"/old"_s));
    home.write(inRoot(u"Engine/3.5.3-stable.new-"_s + uuid + u"/half"_s));
    home.write(u"tmp/CavernyxPlatformer-"_s + uuid + u"/half.zip"_s);
    home.write(inRoot(u"Game/project.godot"_s));
    home.write(inRoot(u"Engine/3.5.3-stable/godot"_s));
    clear();
    EXPECT_EQ(StaleFolders::putBackAndList(lock), QStringList());
    EXPECT_EQ(home.names(inRoot({})), (QStringList{u"Engine"_s, u"Game"_s}));
    EXPECT_EQ(home.names(inRoot(u"Engine"_s)), QStringList{u"3.5.3-stable"_s});
    EXPECT_TRUE(home.exists(inRoot(u"Game/project.godot"_s)));
    EXPECT_TRUE(home.exists(inRoot(u"Engine/3.5.3-stable/godot"_s)));
    EXPECT_TRUE(home.names(u"tmp"_s).isEmpty());
}

TEST_F(StaleFoldersTest, areNothingThatIsOnlyNamedAlike)
{
    const QStringList kept{inRoot(u"Game.new-of mine/file"_s),
                           inRoot(u".new-"_s + uuid + u"/file"_s),
                           inRoot(u"Game.new-"_s + uuid + u".bak/file"_s),
                           inRoot(u"Game.new-"_s + uuid.toLower() + u"/f"_s),
                           inRoot(u"Other/Game.new-"_s + uuid + u"/file"_s),
                           u"tmp/CavernyxPlatformer-mine/file"_s,
                           u"tmp/Game.new-"_s + uuid + u"/file"_s,
                           u"tmp/My CavernyxPlatformer-"_s + uuid + u"/f"_s};
    for (const auto& file : kept)
        home.write(file);
    clear();
    for (const auto& file : kept)
        EXPECT_TRUE(home.exists(file)) << file.toStdString();
}

TEST_F(StaleFoldersTest, loseTheirLinksAndNotWhatTheseLeadTo)
{
    home.write(u"elsewhere/kept"_s);
    home.makeFolder(inRoot({}));
    const auto target = home.path(u"elsewhere"_s);
    const auto staging = home.path(inRoot(u"Game.new-"_s + uuid));
    const auto temporaryLink = home.path(u"tmp/CavernyxPlatformer-"_s + uuid);
    ASSERT_TRUE(QFile::link(target, staging));
    ASSERT_TRUE(QFile::link(target, temporaryLink));
    clear();
    EXPECT_TRUE(home.exists(u"elsewhere/kept"_s));
    EXPECT_FALSE(QFile::exists(staging));
    EXPECT_TRUE(QFile::exists(temporaryLink)) << "the launcher makes no such link";
}

TEST_F(StaleFoldersTest, areNotTheFoldersInUse)
{
    const auto folder = Paths::newTempDir();
    clear();
    EXPECT_TRUE(QFile::exists(folder.path()));
}

TEST_F(StaleFoldersTest, stayWithoutTheClaimOrWhileAGameRuns)
{
    const auto staging = inRoot(u"Game.new-"_s + uuid + u"/file"_s);
    home.write(staging);
    const InstallationLock unclaimed(home.path(u"another lock"_s));
    EXPECT_EQ(StaleFolders::putBackAndList(unclaimed), QStringList());
    EXPECT_TRUE(home.exists(staging));

    ForkedProcess game([this] { InstallationLock::holdAsGame(lock.descriptor()); });
    ASSERT_TRUE(waitUntil([this] { return lock.isGameRunning(); }));
    clear();
    EXPECT_TRUE(home.exists(staging));
    game.kill();
    clear();
    EXPECT_FALSE(home.exists(staging));
}

TEST_F(StaleFoldersTest, stayForTheNextStartOnceItIsToStop)
{
    const auto staging = inRoot(u"Game.new-"_s + uuid + u"/file"_s);
    const auto temporaryFile = u"tmp/CavernyxPlatformer-%1/file"_s.arg(uuid);
    home.write(staging);
    home.write(temporaryFile);
    std::stop_source stop;
    stop.request_stop();
    StaleFolders::remove(StaleFolders::putBackAndList(lock), stop.get_token());
    EXPECT_TRUE(home.exists(staging));
    EXPECT_TRUE(home.exists(temporaryFile));
}

TEST_F(StaleFoldersTest, arePutBackWhereTheyWereMovedAsideAndNothingCameInstead)
{
    const auto aside = inRoot(u"Game.old-"_s + uuid);
    home.write(aside + u"/project.godot"_s);
    home.write(inRoot(u"Game.new-"_s + uuid + u"/half"_s));
    clear();
    EXPECT_TRUE(home.exists(inRoot(u"Game/project.godot"_s)));
    EXPECT_EQ(home.names(inRoot({})), QStringList{u"Game"_s});

    home.write(aside + u"/project.godot"_s);
    home.write(inRoot(u"Game/newer"_s));
    clear();
    EXPECT_TRUE(home.exists(inRoot(u"Game/newer"_s)));
    EXPECT_EQ(home.names(inRoot({})), QStringList{u"Game"_s});
}

TEST_F(StaleFoldersTest, areNotTheFoldersThatAreJustBeingMade)
{
    const ForkedProcess cleaner([] {
        while (true) {
            const auto folders = Paths::tempDirs();
            for (const auto& folder : folders)
                TemporaryFolder::removeIfAbandoned(folder);
        }
    });
    for (int i = 0; i < 2000; ++i) {
        const auto folder = Paths::newTempDir();
        ASSERT_TRUE(QFile::exists(folder.path()));
    }
}

} // namespace
