// SPDX-License-Identifier: MIT
#include "Install/StaleFolders.h"

#include "Install/Paths.h"
#include "Install/TemporaryFolder.h"
#include "Support/Await.h"
#include "Support/ForkedProcess.h"
#include "Support/InstallTest.h"
#include "Support/UnchangeableScope.h"
#include "System/Errors.h"

#include <QFile>

namespace {

const auto uuid = u"01234567-89AB-CDEF-0123-456789ABCDEF"_s;

using StaleFoldersTest = InstallTest;

TEST_F(StaleFoldersTest, areClearedWhereTheirOwnerIsGone)
{
    home.write(root(u"Game.new-"_s + uuid + u"/half/file"_s));
    home.write(root(u"Engine.new-"_s + uuid + u"/old"_s));
    home.write(EngineManager().folder() + u".new-"_s + uuid + u"/half"_s);
    home.write(u"temporary/CavernyxPlatformer-"_s + uuid + u"/half.zip"_s);
    home.write(root(u"Game/project.godot"_s));
    home.write(EngineManager().folder() + u"/godot"_s);
    clearLeftovers();
    EXPECT_EQ(StaleFolders::restoreAndList(lock), QStringList());
    EXPECT_EQ(home.names(root()), (QStringList{u"Engine"_s, u"Game"_s}));
    EXPECT_EQ(home.names(root(u"Engine"_s)), QStringList{EngineManager::version()});
    EXPECT_TRUE(exists(u"Game/project.godot"_s));
    EXPECT_TRUE(home.exists(EngineManager().folder() + u"/godot"_s));
    EXPECT_TRUE(home.names(u"temporary"_s).isEmpty());
}

TEST_F(StaleFoldersTest, areNothingThatIsOnlyNamedAlike)
{
    const QStringList kept{root(u"Game.new-of mine/file"_s),
                           root(u".new-"_s + uuid + u"/file"_s),
                           root(u"Game.new-"_s + uuid + u".bak/file"_s),
                           root(u"Game.new-"_s + uuid.toLower() + u"/f"_s),
                           root(u"Other/Game.new-"_s + uuid + u"/file"_s),
                           u"temporary/CavernyxPlatformer-mine/file"_s,
                           u"temporary/Game.new-"_s + uuid + u"/file"_s,
                           u"temporary/My CavernyxPlatformer-"_s + uuid + u"/f"_s};
    for (const auto& file : kept)
        home.write(file);
    clearLeftovers();
    for (const auto& file : kept)
        EXPECT_TRUE(home.exists(file)) << file;
}

TEST_F(StaleFoldersTest, loseTheirLinksAndNotWhatTheseLeadTo)
{
    home.write(u"elsewhere/kept"_s);
    home.makeFolder(root());
    const auto target = home.path(u"elsewhere"_s);
    const auto staging = root(u"Game.new-"_s + uuid);
    const auto temporaryLink = home.path(u"temporary/CavernyxPlatformer-"_s + uuid);
    ASSERT_TRUE(QFile::link(target, staging));
    ASSERT_TRUE(QFile::link(target, temporaryLink));
    clearLeftovers();
    EXPECT_TRUE(home.exists(u"elsewhere/kept"_s));
    EXPECT_FALSE(QFile::exists(staging));
    EXPECT_TRUE(QFile::exists(temporaryLink)) << "the launcher makes no such link";
}

TEST_F(StaleFoldersTest, areNotTheFoldersInUse)
{
    const auto folder = Paths::newTempDir();
    clearLeftovers();
    EXPECT_TRUE(QFile::exists(folder.path()));
}

TEST_F(StaleFoldersTest, stayWithoutTheClaimOrWhileAGameRuns)
{
    const auto staging = root(u"Game.new-"_s + uuid + u"/file"_s);
    home.write(staging);
    const InstallationLock unclaimed(home.path(u"another lock"_s));
    EXPECT_EQ(StaleFolders::restoreAndList(unclaimed), QStringList());
    EXPECT_TRUE(home.exists(staging));

    ForkedProcess game([this] { InstallationLock::acquireAsGame(lock.descriptor()); });
    ASSERT_TRUE(waitUntil([this] { return lock.isGameRunning(); }));
    clearLeftovers();
    EXPECT_TRUE(home.exists(staging));
    game.kill();
    clearLeftovers();
    EXPECT_FALSE(home.exists(staging));
}

TEST_F(StaleFoldersTest, stayForTheNextStartOnceItIsToStop)
{
    const auto staging = root(u"Game.new-"_s + uuid + u"/file"_s);
    const auto temporaryFile = u"temporary/CavernyxPlatformer-%1/file"_s.arg(uuid);
    home.write(staging);
    home.write(temporaryFile);
    stop.request_stop();
    StaleFolders::clear(StaleFolders::restoreAndList(lock), stop.get_token());
    EXPECT_TRUE(home.exists(staging));
    EXPECT_TRUE(home.exists(temporaryFile));
}

TEST_F(StaleFoldersTest, areMovedBackIfTheirTargetIsMissing)
{
    const auto backup = root(u"Game.old-"_s + uuid);
    home.write(backup + u"/project.godot"_s);
    home.write(root(u"Game.new-"_s + uuid + u"/half"_s));
    clearLeftovers();
    EXPECT_TRUE(exists(u"Game/project.godot"_s));
    EXPECT_EQ(home.names(root()), QStringList{u"Game"_s});

    home.write(backup + u"/project.godot"_s);
    home.write(root(u"Game/newer"_s));
    clearLeftovers();
    EXPECT_TRUE(exists(u"Game/newer"_s));
    EXPECT_EQ(home.names(root()), QStringList{u"Game"_s});
}

TEST_F(StaleFoldersTest, supersedeTheirTargetsIfTheyAreComplete)
{
    home.write(root(u"Game.new-"_s + uuid + u".complete/new"_s));
    home.write(root(u"Game/half"_s));
    home.write(EngineManager().folder() + u".new-"_s + uuid + u".complete/godot"_s);
    EXPECT_EQ(StaleFolders::restoreAndList(lock).size(), 2);
    EXPECT_TRUE(exists(u"Game/half"_s)) << "A long deletion must not hold up the start.";
    clearLeftovers();
    EXPECT_EQ(home.names(root()), (QStringList{u"Engine"_s, u"Game"_s}));
    EXPECT_EQ(home.names(root(u"Game"_s)), QStringList{u"new"_s});
    EXPECT_EQ(home.names(root(u"Engine"_s)), QStringList{EngineManager::version()});
    EXPECT_TRUE(home.exists(EngineManager().folder() + u"/godot"_s));
}

TEST_F(StaleFoldersTest, areClearedThoughOneCannotSupersedeItsTarget)
{
    home.write(root(u"Game.new-"_s + uuid + u".complete/new"_s));
    home.write(root(u"Game/half"_s));
    home.write(EngineManager().folder() + u".new-"_s + uuid + u"/half"_s);
    const UnchangeableScope unchangeable(root(u"Game"_s));
    if (!unchangeable.isInForce())
        GTEST_SKIP() << "This user or this file system has no unchangeable folders.";
    clearLeftovers();
    EXPECT_TRUE(exists(u"Game/half"_s));
    EXPECT_TRUE(exists(u"Game.new-"_s + uuid + u".complete/new"_s));
    EXPECT_EQ(home.names(root(u"Engine"_s)), QStringList());
}

TEST_F(StaleFoldersTest, areNoneWhereTheHomeFolderIsUnknown)
{
    const EnvironmentScope notUtf8("XDG_DATA_HOME", "/gr\xf6\xdf"
                                                    "e");
    ASSERT_THROW(Paths::root(), PlatformError);
    EXPECT_EQ(StaleFolders::restoreAndList(lock), QStringList());
    EXPECT_NO_THROW(clearLeftovers());
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
