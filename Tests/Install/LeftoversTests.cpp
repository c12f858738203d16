// SPDX-License-Identifier: MIT
#include "Install/Leftovers.h"

#include "Install/Paths.h"
#include "Install/TemporaryFolder.h"
#include "Platform/SessionLock.h"
#include "Support/Await.h"
#include "Support/EnvironmentScope.h"
#include "Support/ForkedProcess.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QFile>

#include <stop_token>

namespace {

const auto uuid = QStringLiteral("01234567-89AB-CDEF-0123-456789ABCDEF");

class LeftoversTest : public testing::Test
{
protected:
    LeftoversTest() { session.claim(); }

    /// Whether the root is changed.
    bool clear() const { return Leftovers::clear(session).result(); }

    /// The path of something in the storage root, relative to the home.
    static QString inRoot(const QString& name)
    {
        return QStringLiteral("data/Cavernyx Platformer/") + name;
    }

    const TestFolder home;
    const EnvironmentScope data{"XDG_DATA_HOME", home.makeFolder(QStringLiteral("data")).toUtf8()};
    const EnvironmentScope temporary{"TMPDIR", home.makeFolder(QStringLiteral("tmp")).toUtf8()};
    SessionLock session{Paths::sessionLock()};
};

TEST_F(LeftoversTest, areClearedWhereTheirOwnerIsGone)
{
    home.write(inRoot(QStringLiteral("Game.new-") + uuid + QStringLiteral("/half/file")));
    home.write(inRoot(QStringLiteral("Engine.new-") + uuid + QStringLiteral("/old")));
    home.write(inRoot(QStringLiteral("Engine/3.5.3-stable.new-") + uuid + QStringLiteral("/half")));
    home.write(QStringLiteral("tmp/CavernyxPlatformer-") + uuid + QStringLiteral("/half.zip"));
    home.write(inRoot(QStringLiteral("Game/project.godot")));
    home.write(inRoot(QStringLiteral("Engine/3.5.3-stable/godot")));
    EXPECT_TRUE(clear());
    EXPECT_FALSE(clear()) << "nothing is left";
    EXPECT_EQ(home.names(inRoot({})),
              (QStringList{QStringLiteral("Engine"), QStringLiteral("Game")}));
    EXPECT_EQ(home.names(inRoot(QStringLiteral("Engine"))),
              QStringList{QStringLiteral("3.5.3-stable")});
    EXPECT_TRUE(home.exists(inRoot(QStringLiteral("Game/project.godot"))));
    EXPECT_TRUE(home.exists(inRoot(QStringLiteral("Engine/3.5.3-stable/godot"))));
    EXPECT_TRUE(home.names(QStringLiteral("tmp")).isEmpty());
}

TEST_F(LeftoversTest, areNothingThatIsOnlyNamedAlike)
{
    const QStringList kept{
        inRoot(QStringLiteral("Game.new-of mine/file")),
        inRoot(QStringLiteral(".new-") + uuid + QStringLiteral("/file")),
        inRoot(QStringLiteral("Game.new-") + uuid + QStringLiteral(".bak/file")),
        inRoot(QStringLiteral("Game.new-") + uuid.toLower() + QStringLiteral("/f")),
        inRoot(QStringLiteral("Other/Game.new-") + uuid + QStringLiteral("/file")),
        QStringLiteral("tmp/CavernyxPlatformer-mine/file"),
        QStringLiteral("tmp/Game.new-") + uuid + QStringLiteral("/file"),
        QStringLiteral("tmp/My CavernyxPlatformer-") + uuid + QStringLiteral("/f")};
    for (const auto& file : kept)
        home.write(file);
    clear();
    for (const auto& file : kept)
        EXPECT_TRUE(home.exists(file)) << file.toStdString();
}

TEST_F(LeftoversTest, loseTheirLinksAndNotWhatTheseLeadTo)
{
    home.write(QStringLiteral("elsewhere/kept"));
    home.makeFolder(inRoot({}));
    const auto target = home.path(QStringLiteral("elsewhere"));
    const auto staging = home.path(inRoot(QStringLiteral("Game.new-") + uuid));
    const auto temporaryLink = home.path(QStringLiteral("tmp/CavernyxPlatformer-") + uuid);
    ASSERT_TRUE(QFile::link(target, staging));
    ASSERT_TRUE(QFile::link(target, temporaryLink));
    clear();
    EXPECT_TRUE(home.exists(QStringLiteral("elsewhere/kept")));
    EXPECT_FALSE(QFile::exists(staging));
    EXPECT_TRUE(QFile::exists(temporaryLink)) << "the launcher makes no such link";
}

TEST_F(LeftoversTest, areNotTheFoldersInUse)
{
    const auto folder = Paths::newTempDir();
    clear();
    EXPECT_TRUE(QFile::exists(folder.path()));
}

TEST_F(LeftoversTest, stayWithoutTheClaimOrWhileAGameRuns)
{
    const auto staging = inRoot(QStringLiteral("Game.new-") + uuid + QStringLiteral("/file"));
    home.write(staging);
    const SessionLock unclaimed(home.path(QStringLiteral("another lock")));
    EXPECT_FALSE(Leftovers::clear(unclaimed).result());
    EXPECT_TRUE(home.exists(staging));

    ForkedProcess game([this] { SessionLock::holdAsGame(session.descriptor()); });
    ASSERT_TRUE(waitUntil([this] { return session.isGameRunning(); }));
    clear();
    EXPECT_TRUE(home.exists(staging));
    game.kill();
    clear();
    EXPECT_FALSE(home.exists(staging));
}

TEST_F(LeftoversTest, stayForTheNextStartOnceItIsToStop)
{
    const auto staging = inRoot(QStringLiteral("Game.new-") + uuid + QStringLiteral("/file"));
    const auto temporaryFile = QStringLiteral("tmp/CavernyxPlatformer-%1/file").arg(uuid);
    home.write(staging);
    home.write(temporaryFile);
    std::stop_source stop;
    stop.request_stop();
    EXPECT_FALSE(Leftovers::clear(session, stop.get_token()).result());
    EXPECT_TRUE(home.exists(staging));
    EXPECT_TRUE(home.exists(temporaryFile));
}

TEST_F(LeftoversTest, areNotTheFoldersThatAreJustBeingMade)
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
