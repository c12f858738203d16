// SPDX-License-Identifier: MIT
// What "Remove everything" removes, and what it leaves alone.

#include "Install/Paths.h"
#include "Support/Await.h"
#include "Support/BusyPool.h"
#include "Support/ModelTest.h"
#include "Support/OwnMounts.h"

#include <QFile>

#include <sys/stat.h>
#include <unistd.h>
#if defined(Q_OS_LINUX)
#include <sys/mount.h>
#endif

namespace {

using RemovalTest = ModelTest;

/// Permissions bind only an ordinary user: the administrator is one for as long as this lives.
class OrdinaryUserScope final
{
public:
    OrdinaryUserScope()
    {
        if (m_wasPrivileged) {
            EXPECT_EQ(::seteuid(nobody), 0);
        }
    }
    ~OrdinaryUserScope()
    {
        if (m_wasPrivileged) {
            EXPECT_EQ(::seteuid(0), 0);
        }
    }

    OrdinaryUserScope(const OrdinaryUserScope&) = delete;
    OrdinaryUserScope& operator=(const OrdinaryUserScope&) = delete;

private:
    static constexpr uid_t nobody = 65534;
    const bool m_wasPrivileged = ::geteuid() == 0;
};

TEST_F(RemovalTest, removesEverythingAndEmptiesTheLog)
{
    installGame();
    startModel();
    model().log().append(u"a line"_s);
    ASSERT_TRUE(waitUntil([this] { return !model().installedSize().isEmpty(); }));
    const auto size = model().installedSize();
    model().removeEverything();
    ASSERT_EQ(desktop.questions.size(), 1);
    EXPECT_EQ(desktop.questions[0].message,
              u"This deletes the downloaded game and engine and frees %1. Your save files "
              "in Godot's folder are not touched."_s.arg(size));
    waitForDeletion();
    EXPECT_FALSE(exists({}));
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
    EXPECT_TRUE(logged().isEmpty());
    EXPECT_TRUE(waitUntil([this] { return model().installedSize().isEmpty(); }));
}

TEST_F(RemovalTest, saysWhatCouldNotBeRemovedAndKeepsTheLog)
{
    installGame();
    startModel();
    model().log().append(u"a line"_s);
    const auto locked = root(u"Game/tetherwalk-master"_s).toUtf8();
    ASSERT_EQ(::chmod(home.path().toUtf8().constData(), 0755), 0);
    ASSERT_EQ(::chmod(locked.constData(), 0555), 0);
    {
        const OrdinaryUserScope ordinary;
        model().removeEverything();
        waitForDeletion();
    }

    EXPECT_TRUE(model().phase().message().startsWith(u"Could not remove the files: "))
        << model().statusDetail();
    EXPECT_TRUE(model().failureText());
    EXPECT_EQ(logged(), QStringList{u"a line"_s});
    for (const auto& name : {u"Game"_s, home.names(root()).value(0)})
        ::chmod((root(name) + u"/tetherwalk-master"_s).toUtf8().constData(), 0755);
    model().removeEverything();
    waitForDeletion();
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
    EXPECT_FALSE(exists({}));
}

TEST_F(RemovalTest, removesOnlyTheLinkOfARootThatIsALink)
{
    const auto elsewhere = home.write(u"elsewhere/Game/project.godot"_s, "x");
    ASSERT_TRUE(QFile::link(home.path(u"elsewhere"_s), root()));
    startModel().removeEverything();
    waitForDeletion();
    EXPECT_FALSE(exists({}));
    EXPECT_TRUE(QFile::exists(elsewhere));
}

TEST_F(RemovalTest, removesOnlyTheLinkOfAGameThatIsALink)
{
    const auto elsewhere = home.write(u"elsewhere/project.godot"_s, "x");
    home.makeFolder(root());
    ASSERT_TRUE(QFile::link(home.path(u"elsewhere"_s), root(u"Game"_s)));
    startModel().removeEverything();
    waitForDeletion();
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
    EXPECT_FALSE(exists({}));
    EXPECT_TRUE(QFile::exists(elsewhere));
}

#if defined(Q_OS_LINUX)

TEST_F(RemovalTest, leavesAFolderThatIsMountedIntoTheGameAloneAndSaysSo)
{
    RUN_WITH_OWN_MOUNTS();
    installGame();
    const auto kept = home.write(u"elsewhere/kept"_s);
    const auto place = home.makeFolder(root(u"Game/tetherwalk-master/mounted"_s));
    ASSERT_EQ(::mount(QFile::encodeName(home.path(u"elsewhere"_s)).constData(),
                      QFile::encodeName(place).constData(), nullptr, MS_BIND, nullptr),
              0);
    startModel().removeEverything();
    waitForDeletion();
    EXPECT_TRUE(model().phase().message().startsWith(u"Could not remove the files: "))
        << model().statusDetail();
    EXPECT_TRUE(model().phase().message().contains(u"another file system is mounted there"));
    EXPECT_TRUE(QFile::exists(kept));

    const auto left = home.names(root());
    ASSERT_EQ(left.size(), 1);
    const auto placeNow = root(left.constFirst() + u"/tetherwalk-master/mounted"_s);
    ASSERT_EQ(::umount(QFile::encodeName(placeNow).constData()), 0);
    model().removeEverything();
    waitForDeletion();
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
    EXPECT_FALSE(exists({}));
    EXPECT_TRUE(QFile::exists(kept));
}

TEST_F(RemovalTest, leavesNoPartOfAGameThatCannotBeRenamed)
{
    RUN_WITH_OWN_MOUNTS();
    installGame();
    installManyFiles();
    const auto mountPoint = QFileInfo(root()).path();
    if (!mountOverlay(mountPoint, home.path(u"layers"_s)))
        GTEST_SKIP() << "No overlay can be mounted here.";
    startModel().removeEverything();
    ASSERT_TRUE(waitUntil([] { return !Paths::completeFolders().isEmpty(); }));
    EXPECT_TRUE(model().confirmQuit());
    waitForFlow();
    EXPECT_FALSE(Paths::completeFolders().isEmpty()) << "The deletion was too fast to interrupt.";
    EXPECT_EQ(startModel().phase(), Phase::notDownloaded());
    EXPECT_EQ(leftovers(), QStringList());
    EXPECT_EQ(home.names(root(u"Game"_s)), QStringList());
    EXPECT_EQ(::umount2(QFile::encodeName(mountPoint).constData(), MNT_DETACH), 0);
}

#endif

TEST_F(RemovalTest, refusesEverythingUntilTheFoldersAreMovedAside)
{
    installGame();
    startModel();
    {
        const BusyPool busy;
        model().removeEverything();
        EXPECT_TRUE(model().isBusy());
        model().play();
        model().reinstall();
        model().removeEverything();
        EXPECT_EQ(desktop.questions.size(), 1);
    }
    waitForDeletion();
    EXPECT_FALSE(exists({}));
}

TEST_F(RemovalTest, saysThatItWasCancelled)
{
    installGame();
    startModel();
    {
        const BusyPool busy;
        model().removeEverything();
        model().cancelSetup();
    }
    waitForFlow();
    EXPECT_EQ(logged(), QStringList{u"Cancelled."_s});
    waitForDeletion();
}

TEST_F(RemovalTest, saysThatNothingIsDownloadedWhileItStillDeletes)
{
    installGame();
    installManyFiles();
    startModel();
    model().removeEverything();
    waitForFlow();
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
    EXPECT_FALSE(model().isBusy());
    EXPECT_FALSE(stagingFolders().isEmpty()) << "The deletion was too fast to be seen.";
    waitForDeletion();
    EXPECT_FALSE(exists({}));
}

TEST_F(RemovalTest, leavesToTheNextStartWhatItHasNotDeletedWhenThePlayerQuits)
{
    installGame();
    installManyFiles();
    startModel();
    model().removeEverything();
    waitForFlow();
    EXPECT_TRUE(model().confirmQuit());
    EXPECT_FALSE(leftovers().isEmpty()) << "The deletion was too fast to be interrupted.";
    EXPECT_EQ(startModel().phase(), Phase::notDownloaded());
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(RemovalTest, namesAllFilesWhenTheirSizeIsNotKnown)
{
    startModel();
    model().log().append(u"a line"_s);
    model().removeEverything();
    EXPECT_EQ(desktop.questions[0].title, u"Remove everything?");
    EXPECT_EQ(
        desktop.questions[0].message,
        u"This deletes the downloaded game and engine and frees all downloaded files. Your save "
        u"files in Godot's folder are not touched.");
    waitForDeletion();
    EXPECT_TRUE(logged().isEmpty());
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
}

} // namespace
