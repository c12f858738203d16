// SPDX-License-Identifier: MIT
#include "Support/AppModelAccess.h"
#include "Support/Await.h"
#include "Support/ForkedProcess.h"
#include "Support/ModelTest.h"

#include <QProcess>
#include <QSignalSpy>

#include <functional>
#include <optional>
#include <ostream>

#include <sys/stat.h>
#include <unistd.h>
#if defined(Q_OS_LINUX)
#include <sys/mount.h>
#endif

namespace {

class Maintenance : public ModelTest
{
};

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

TEST_F(Maintenance, copiesTheFailureReportWhenThereIsOne)
{
    startModel().copyFailure();
    EXPECT_TRUE(desktop.copied.isEmpty());
    AppModelAccess::fail(model(), QStringLiteral("No."));
    model().copyFailure();
    EXPECT_EQ(desktop.copied, QStringList{*model().failureText()});
}

TEST_F(Maintenance, copiesTheNewestTwoThousandLogLinesAlsoBeforeTheyAreShown)
{
    startModel();
    for (int line = 1; line <= 2500; ++line)
        model().log().append(QString::number(line));
    model().copyLog();
    ASSERT_EQ(desktop.copied.size(), 1);
    EXPECT_TRUE(desktop.copied[0].startsWith(u"501\n502\n"));
    EXPECT_TRUE(desktop.copied[0].endsWith(u"\n2499\n2500"));
    EXPECT_EQ(desktop.copied[0].count(u'\n'), 1999);
}

TEST_F(Maintenance, copiesAnEmptyLogAsEmptyText)
{
    startModel().copyLog();
    EXPECT_EQ(desktop.copied, QStringList{QString()});
}

TEST_F(Maintenance, refusesEveryDestructiveActionWhileBusy)
{
    startModel();
    for (const auto& phase : {Phase::downloading(), Phase::settingUp(), Phase::playing()}) {
        AppModelAccess::setPhase(model(), phase);
        model().updateGame();
        model().reinstall();
        model().removeEverything();
        EXPECT_TRUE(desktop.questions.isEmpty());
        EXPECT_EQ(model().phase(), phase);
    }
    AppModelAccess::setPhase(model(), Phase::notDownloaded());
}

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

TEST_F(Maintenance, knowsItsOwnGameWhileItRunsAndNotAfterwards)
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

TEST_F(Maintenance, doesNothingWhenDeclined)
{
    installGame();
    startModel();
    desktop.answer = false;
    model().updateGame();
    model().reinstall();
    model().removeEverything();
    EXPECT_EQ(desktop.questions.size(), 3);
    EXPECT_FALSE(model().isBusy());
    EXPECT_TRUE(home.exists(QStringLiteral("data/Cavernyx Platformer/Game")));
}

struct Action
{
    const char* name;
    void (AppModel::*perform)();
};

std::ostream& operator<<(std::ostream& out, const Action& action)
{
    return out << action.name;
}

/// A question of an action that changes the installed game, with something happening meanwhile.
class QuestionOfMaintenance : public ModelTest, public testing::WithParamInterface<Action>
{
protected:
    QuestionOfMaintenance()
    {
        installGame();
        installEngine("sleep 0.4");
        writeMarker();
        startModel();
    }

    void acceptWhile(const std::function<void()>& meanwhile)
    {
        desktop.whileAsking = meanwhile;
        (model().*GetParam().perform)();
        EXPECT_EQ(desktop.questions.size(), 1);
    }

    [[nodiscard]] bool isUnchanged() const
    {
        return home.exists(QStringLiteral("data/Cavernyx Platformer/Game/.setup-v2-3.5.3-stable"));
    }
};

TEST_P(QuestionOfMaintenance, isAnsweredTooLateOnceTheProgramQuits)
{
    acceptWhile([this] { model().endForQuit(); });
    EXPECT_FALSE(model().isFlowRunning());
    EXPECT_TRUE(isUnchanged());
    model().play();
    EXPECT_FALSE(model().isFlowRunning());
}

TEST_P(QuestionOfMaintenance, isAnsweredTooLateOnceTheGameIsStarted)
{
    const QSignalSpy ended(&model(), &AppModel::flowEnded);
    acceptWhile([this] { model().play(); });
    waitForFlow();
    EXPECT_EQ(ended.size(), 1);
    EXPECT_EQ(model().phase(), Phase::ready());
    EXPECT_EQ(logged().first(), u"Step 1 of 4 · Game already downloaded, skipping.");
    EXPECT_EQ(logged().last(), u"Game closed normally.");
    EXPECT_TRUE(isUnchanged());
}

INSTANTIATE_TEST_SUITE_P(Every, QuestionOfMaintenance,
                         testing::Values(Action{"Update", &AppModel::updateGame},
                                         Action{"Reinstall", &AppModel::reinstall},
                                         Action{"Remove", &AppModel::removeEverything}));

TEST_F(Maintenance, removesEverythingAndEmptiesTheLog)
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

TEST_F(Maintenance, saysWhatCouldNotBeRemovedAndKeepsTheLog)
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

TEST_F(Maintenance, removesOnlyTheLinkOfARootThatIsALink)
{
    const auto elsewhere = home.write(QStringLiteral("elsewhere/Game/project.godot"), "x");
    ASSERT_TRUE(QFile::link(home.path(QStringLiteral("elsewhere")), root()));
    startModel().removeEverything();
    waitForFlow();
    EXPECT_FALSE(home.exists(QStringLiteral("data/Cavernyx Platformer")));
    EXPECT_TRUE(QFile::exists(elsewhere));
}

TEST_F(Maintenance, removesOnlyTheLinkOfAGameThatIsALink)
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

TEST_F(Maintenance, leavesAFolderThatIsMountedIntoTheGameAloneAndSaysSo)
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

TEST_F(Maintenance, refusesEverythingWhileADeletionIsUnderWay)
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

TEST_F(Maintenance, namesAllFilesWhenTheirSizeIsNotKnown)
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

TEST_F(Maintenance, showsTheSavesOnlyOnceThereAreSome)
{
    installGame();
    startModel();
    EXPECT_FALSE(model().savesFolder());
    model().showSaves();
    EXPECT_TRUE(desktop.opened.isEmpty());
    const auto saves = home.makeFolder(QStringLiteral("data/godot/app_userdata/Tether"));
    EXPECT_EQ(model().savesFolder(), saves);
    model().showSaves();
    EXPECT_EQ(desktop.opened, QStringList{saves});
}

TEST_F(Maintenance, revealsTheRootOrElseItsParent)
{
    startModel().revealInFinder();
    EXPECT_EQ(desktop.revealed, QStringList{home.path(QStringLiteral("data"))});
    installGame();
    model().revealInFinder();
    EXPECT_EQ(desktop.revealed.last(), root());
}

} // namespace
