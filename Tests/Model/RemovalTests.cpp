// SPDX-License-Identifier: MIT
// What "Remove everything" removes, and what it leaves alone.

#include "Support/Await.h"
#include "Support/EnvironmentScope.h"
#include "Support/ModelTest.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <optional>

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

#if defined(Q_OS_LINUX)

constexpr auto ownMounts = "CAVERNYX_TEST_HAS_OWN_MOUNTS";

/// Runs the current test once more, in a process with mounts of its own, which nobody else sees,
/// and gives its exit status; nothing where the system lets nobody here have them.
std::optional<int> runAgainWithOwnMounts()
{
    const auto& test = *testing::UnitTest::GetInstance()->current_test_info();
    const auto filter =
        QStringLiteral("--gtest_filter=%1.%2")
            .arg(QString::fromUtf8(test.test_suite_name()), QString::fromUtf8(test.name()));
    QStringList arguments{QStringLiteral("--mount"), QStringLiteral("--propagation"),
                          QStringLiteral("private")};
    if (::geteuid() != 0)
        arguments.append(QStringLiteral("--map-root-user"));
    const auto unshare = QStringLiteral("unshare");
    if (QProcess::execute(unshare, arguments + QStringList{QStringLiteral("true")}) != 0)
        return std::nullopt;
    const EnvironmentScope inside(ownMounts, "yes");
    return QProcess::execute(
        unshare, arguments + QStringList{QCoreApplication::applicationFilePath(), filter});
}

#endif

TEST_F(RemovalTest, removesEverythingAndEmptiesTheLog)
{
    installGame();
    startModel();
    model().log().append(QStringLiteral("a line"));
    ASSERT_TRUE(waitUntil([this] { return !model().installedSize().isEmpty(); }));
    const auto size = model().installedSize();
    model().removeEverything();
    ASSERT_EQ(desktop.questions.size(), 1);
    EXPECT_EQ(
        desktop.questions[0].message,
        QStringLiteral("This deletes the downloaded game and engine and frees %1. Your save files "
                       "in Godot's folder are not touched.")
            .arg(size));
    waitForFlow();
    EXPECT_FALSE(home.exists(QStringLiteral("data/Cavernyx Platformer")));
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
    EXPECT_TRUE(logged().isEmpty());
    EXPECT_TRUE(waitUntil([this] { return model().installedSize().isEmpty(); }));
}

TEST_F(RemovalTest, saysWhatCouldNotBeRemovedAndKeepsTheLog)
{
    installGame();
    startModel();
    model().log().append(QStringLiteral("a line"));
    const auto locked = root(QStringLiteral("Game/tetherwalk-master")).toUtf8();
    ASSERT_EQ(::chmod(home.path().toUtf8().constData(), 0755), 0);
    ASSERT_EQ(::chmod(locked.constData(), 0555), 0);
    {
        const OrdinaryUserScope ordinary;
        model().removeEverything();
        waitForFlow();
    }

    EXPECT_TRUE(model().phase().message().startsWith(u"Could not remove the files: "))
        << model().statusDetail().toStdString();
    EXPECT_TRUE(model().failureText());
    EXPECT_EQ(logged(), QStringList{QStringLiteral("a line")});
    for (const auto& name :
         {QStringLiteral("Game"), home.names(QStringLiteral("data/Cavernyx Platformer")).value(0)})
        ::chmod((root(name) + QStringLiteral("/tetherwalk-master")).toUtf8().constData(), 0755);
    model().removeEverything();
    waitForFlow();
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
    EXPECT_FALSE(home.exists(QStringLiteral("data/Cavernyx Platformer")));
}

TEST_F(RemovalTest, removesOnlyTheLinkOfARootThatIsALink)
{
    const auto elsewhere = home.write(QStringLiteral("elsewhere/Game/project.godot"), "x");
    ASSERT_TRUE(QFile::link(home.path(QStringLiteral("elsewhere")), root()));
    startModel().removeEverything();
    waitForFlow();
    EXPECT_FALSE(home.exists(QStringLiteral("data/Cavernyx Platformer")));
    EXPECT_TRUE(QFile::exists(elsewhere));
}

TEST_F(RemovalTest, removesOnlyTheLinkOfAGameThatIsALink)
{
    const auto elsewhere = home.write(QStringLiteral("elsewhere/project.godot"), "x");
    home.makeFolder(QStringLiteral("data/Cavernyx Platformer"));
    ASSERT_TRUE(QFile::link(home.path(QStringLiteral("elsewhere")), root(QStringLiteral("Game"))));
    startModel().removeEverything();
    waitForFlow();
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
    EXPECT_FALSE(home.exists(QStringLiteral("data/Cavernyx Platformer")));
    EXPECT_TRUE(QFile::exists(elsewhere));
}

#if defined(Q_OS_LINUX)

TEST_F(RemovalTest, leavesAFolderThatIsMountedIntoTheGameAloneAndSaysSo)
{
    if (!qEnvironmentVariableIsSet(ownMounts)) {
        const auto status = runAgainWithOwnMounts();
        if (!status)
            GTEST_SKIP() << "This system lets nobody here mount anything.";
        EXPECT_EQ(*status, 0);
        return;
    }
    installGame();
    const auto kept = home.write(QStringLiteral("elsewhere/kept"));
    const auto place =
        home.makeFolder(QStringLiteral("data/Cavernyx Platformer/Game/tetherwalk-master/mounted"));
    ASSERT_EQ(::mount(QFile::encodeName(home.path(QStringLiteral("elsewhere"))).constData(),
                      QFile::encodeName(place).constData(), nullptr, MS_BIND, nullptr),
              0);
    startModel().removeEverything();
    waitForFlow();
    EXPECT_TRUE(model().phase().message().startsWith(u"Could not remove the files: "))
        << model().statusDetail().toStdString();
    EXPECT_TRUE(model().phase().message().contains(u"another file system is mounted there"));
    EXPECT_TRUE(QFile::exists(kept));

    const auto left = home.names(QStringLiteral("data/Cavernyx Platformer"));
    ASSERT_EQ(left.size(), 1);
    const auto placeNow = root(left.constFirst() + QStringLiteral("/tetherwalk-master/mounted"));
    ASSERT_EQ(::umount(QFile::encodeName(placeNow).constData()), 0);
    model().removeEverything();
    waitForFlow();
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
    EXPECT_FALSE(home.exists(QStringLiteral("data/Cavernyx Platformer")));
    EXPECT_TRUE(QFile::exists(kept));
}

#endif

TEST_F(RemovalTest, refusesEverythingWhileADeletionIsUnderWay)
{
    installGame();
    startModel();
    model().removeEverything();
    ASSERT_TRUE(model().isBusy());
    model().play();
    model().reinstall();
    model().removeEverything();
    EXPECT_EQ(desktop.questions.size(), 1);
    EXPECT_TRUE(model().confirmQuit());
    waitForFlow();
    EXPECT_FALSE(home.exists(QStringLiteral("data/Cavernyx Platformer")));
}

TEST_F(RemovalTest, namesAllFilesWhenTheirSizeIsNotKnown)
{
    startModel();
    model().log().append(QStringLiteral("a line"));
    model().removeEverything();
    EXPECT_EQ(desktop.questions[0].title, u"Remove everything?");
    EXPECT_EQ(
        desktop.questions[0].message,
        u"This deletes the downloaded game and engine and frees all downloaded files. Your save "
        u"files in Godot's folder are not touched.");
    waitForFlow();
    EXPECT_TRUE(logged().isEmpty());
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
}

} // namespace
