// SPDX-License-Identifier: MIT
#include "AppDelegate.h"
#include "Support/AppModelAccess.h"
#include "Support/EnvironmentScope.h"
#include "Support/ModelTest.h"

#include <QApplication>
#include <QSessionManager>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <gmock/gmock.h>

#include <functional>

namespace {

class AppDelegateTest : public ModelTest
{
protected:
    AppDelegateTest()
        : delegate(startModel(), window)
    {
        delegate.applicationDidFinishLaunching();
    }

    /// Whether the program ends after `action`; by default the player closes the window.
    bool ends(const std::function<void()>& action)
    {
        return runAfter(action, std::chrono::seconds{20}) == 0;
    }
    bool ends()
    {
        return ends([this] { window.close(); });
    }
    bool goesOn(const std::function<void()>& action)
    {
        return runAfter(action, std::chrono::milliseconds{300}) == timeIsUp;
    }
    bool goesOn()
    {
        return goesOn([this] { window.close(); });
    }

    QWidget window;
    AppDelegate delegate;

private:
    static constexpr int timeIsUp = 1;

    int runAfter(const std::function<void()>& action, std::chrono::milliseconds limit)
    {
        QTimer watchdog;
        QObject::connect(&watchdog, &QTimer::timeout, &window,
                         [] { QCoreApplication::exit(timeIsUp); });
        watchdog.start(limit);
        QTimer::singleShot(0, &window, action);
        return QCoreApplication::exec();
    }
};

TEST_F(AppDelegateTest, showsTheWindow)
{
    EXPECT_TRUE(window.isVisible());
}

TEST_F(AppDelegateTest, quitsWithTheWindowAndWithoutAQuestion)
{
    EXPECT_TRUE(ends());
    EXPECT_TRUE(desktop.questions.isEmpty());
}

TEST_F(AppDelegateTest, asksWhileTheGameRunsAndStaysVisibleWhenDeclined)
{
    AppModelAccess::setPhase(model(), Phase::playing());
    desktop.answer = false;
    EXPECT_TRUE(goesOn());
    ASSERT_EQ(desktop.questions.size(), 1);
    EXPECT_EQ(desktop.questions.constFirst().title, QStringLiteral("Quit and close the game?"));
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(model().phase() == Phase::Kind::playing);
}

TEST_F(AppDelegateTest, quitsWhileTheGameRunsWhenAccepted)
{
    AppModelAccess::setPhase(model(), Phase::playing());
    EXPECT_TRUE(ends());
    EXPECT_EQ(desktop.questions.size(), 1);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(AppDelegateTest, asksOnceHoweverOftenTheProgramIsToldToEndMeanwhile)
{
    AppModelAccess::setPhase(model(), Phase::playing());
    desktop.answer = false;
    desktop.whileAsking = [this] {
        if (desktop.questions.size() < 5) {
            EXPECT_FALSE(delegate.applicationShouldTerminate());
        }
    };
    EXPECT_TRUE(goesOn());
    EXPECT_EQ(desktop.questions.size(), 1);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(AppDelegateTest, quitsWithoutAQuestionWhenTheSystemSaysSo)
{
    AppModelAccess::setPhase(model(), Phase::playing());
    desktop.answer = false;
    const QSignalSpy terminating(&delegate, &AppDelegate::terminating);
    EXPECT_TRUE(ends([this] {
        delegate.terminate();
        delegate.terminate(); // It is under way.
    }));
    EXPECT_TRUE(desktop.questions.isEmpty());
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(terminating.count(), 1);
}

TEST_F(AppDelegateTest, quitsWhenTheSystemSaysSoWhileTheQuestionStands)
{
    AppModelAccess::setPhase(model(), Phase::playing());
    desktop.answer = false; // As a question does that is hidden.
    desktop.whileAsking = [this] { delegate.terminate(); };
    EXPECT_TRUE(ends([this] { window.close(); }));
    EXPECT_EQ(desktop.questions.size(), 1);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(AppDelegateTest, hidesEveryWindowWhenItQuits)
{
    QWidget sheet(&window, Qt::Dialog);
    sheet.show();
    EXPECT_TRUE(ends([this] { delegate.terminate(); }));
    EXPECT_FALSE(sheet.isVisible());
}

TEST_F(AppDelegateTest, asksWhenTheApplicationIsToldToQuit)
{
    AppModelAccess::setPhase(model(), Phase::playing());
    desktop.answer = false;
    EXPECT_TRUE(goesOn([] { QCoreApplication::quit(); }));
    EXPECT_EQ(desktop.questions.size(), 1);
    EXPECT_TRUE(window.isVisible());
    desktop.answer = true;
    EXPECT_TRUE(ends([] { QCoreApplication::quit(); }));
}

TEST_F(AppDelegateTest, asksNothingWhenTheApplicationIsToldToQuitAtTheSessionsEnd)
{
    AppModelAccess::setPhase(model(), Phase::playing());
    desktop.answer = false;
    auto* const manager = qApp->findChild<QSessionManager*>();
    ASSERT_TRUE(manager) << "the application makes it";
    Q_EMIT qApp->commitDataRequest(*manager);
    EXPECT_TRUE(goesOn()) << "another program may have kept the session from ending";
    EXPECT_EQ(desktop.questions.size(), 1);
    EXPECT_TRUE(ends([] { QCoreApplication::quit(); }));
    EXPECT_EQ(desktop.questions.size(), 1);
}

TEST_F(AppDelegateTest, bringsTheWindowBackWhenTheProgramIsStartedAgain)
{
    window.showMinimized();
    delegate.activate("a token");
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.isMinimized());
}

TEST_F(AppDelegateTest, leavesTheEnvironmentAloneWhereNoTokenIsLookedForInIt)
{
    const EnvironmentScope variable("XDG_ACTIVATION_TOKEN", "somebody else's");
    delegate.activate("a token");
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "somebody else's");
}

TEST_F(AppDelegateTest, staysHiddenWhenItIsStartedAgainWhileItQuits)
{
    EXPECT_TRUE(ends([this] { delegate.terminate(); }));
    delegate.activate({});
    EXPECT_FALSE(window.isVisible());
}

TEST_F(AppDelegateTest, waitsHiddenForWhatTheGameLeavesToDo)
{
    durations.startUpWatch = std::chrono::milliseconds{20};
    startModel();
    installGame();
    installEngine("sleep 60");
    writeMarker();
    model().refreshState();
    QWidget front;
    AppDelegate own(model(), front);
    own.applicationDidFinishLaunching();
    model().play();
    waitForPhase(Phase::Kind::playing);

    QTimer::singleShot(0, &front, [this, &front] {
        front.close();
        EXPECT_FALSE(front.isVisible());
        EXPECT_TRUE(model().isFlowRunning()) << "the game is told to end, and has not yet";
    });
    const QSignalSpy ended(&model(), &AppModel::flowEnded);
    QTimer::singleShot(20'000, &front, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_EQ(ended.count(), 1);
    EXPECT_FALSE(model().isFlowRunning());
    EXPECT_THAT(logged(), testing::Contains(QStringLiteral("Game stopped by you.")));
}

} // namespace
