// SPDX-License-Identifier: MIT
#include "Shell/AppDelegate.h"
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

    /// Whether the program ends after `action`.
    bool ends(const std::function<void()>& action) { return runAfter(action, 20'000) == 0; }
    bool goesOn(const std::function<void()>& action) { return runAfter(action, 300) == timedOut; }

    QWidget window;
    AppDelegate delegate;
    const std::function<void()> closeWindow = [this] { window.close(); };
    const std::function<void()> terminate = [this] { delegate.terminate(); };

private:
    static constexpr auto timedOut = 1;

    int runAfter(const std::function<void()>& action, int milliseconds)
    {
        QTimer watchdog;
        QObject::connect(&watchdog, &QTimer::timeout, [] { QCoreApplication::exit(timedOut); });
        watchdog.start(milliseconds);
        QTimer::singleShot(0, &window, action);
        return QCoreApplication::exec();
    }
};

/// The game runs, and the player would decline a question.
class AppDelegateWhilePlaying : public AppDelegateTest
{
protected:
    AppDelegateWhilePlaying()
    {
        enter(Phase::Kind::playing);
        desktop.answer = false;
    }
};

TEST_F(AppDelegateTest, showsTheWindow)
{
    EXPECT_TRUE(window.isVisible());
}

TEST_F(AppDelegateTest, quitsWithTheWindowAndWithoutAQuestion)
{
    EXPECT_TRUE(ends(closeWindow));
    EXPECT_TRUE(desktop.questions.isEmpty());
}

TEST_F(AppDelegateWhilePlaying, asksAndStaysVisibleWhenDeclined)
{
    EXPECT_TRUE(goesOn(closeWindow));
    ASSERT_EQ(desktop.questions.size(), 1);
    EXPECT_EQ(desktop.questions.constFirst().title, u"Quit and close the game?"_s);
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(model().phase() == Phase::Kind::playing);
}

TEST_F(AppDelegateWhilePlaying, quitsWhenAccepted)
{
    desktop.answer = true;
    EXPECT_TRUE(ends(closeWindow));
    EXPECT_EQ(desktop.questions.size(), 1);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(AppDelegateWhilePlaying, asksOnceHoweverOftenTheProgramIsToldToEndMeanwhile)
{
    desktop.whileAsking = [this] {
        if (desktop.questions.size() < 5) {
            EXPECT_FALSE(delegate.applicationShouldTerminate());
        }
    };
    EXPECT_TRUE(goesOn(closeWindow));
    EXPECT_EQ(desktop.questions.size(), 1);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(AppDelegateWhilePlaying, quitsWithoutAQuestionWhenTheSystemSaysSo)
{
    const QSignalSpy terminating(&delegate, &AppDelegate::terminating);
    EXPECT_TRUE(ends([this] {
        delegate.terminate();
        delegate.terminate(); // It is under way.
    }));
    EXPECT_TRUE(desktop.questions.isEmpty());
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(terminating.count(), 1);
}

TEST_F(AppDelegateWhilePlaying, quitsWhenTheSystemSaysSoDuringTheQuestion)
{
    desktop.whileAsking = terminate;
    EXPECT_TRUE(ends(closeWindow));
    EXPECT_EQ(desktop.questions.size(), 1);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(AppDelegateTest, hidesEveryWindowWhenItQuits)
{
    QWidget sheet(&window, Qt::Dialog);
    sheet.show();
    EXPECT_TRUE(ends(terminate));
    EXPECT_FALSE(sheet.isVisible());
}

TEST_F(AppDelegateWhilePlaying, asksWhenTheApplicationIsToldToQuit)
{
    EXPECT_TRUE(goesOn(QCoreApplication::quit));
    EXPECT_EQ(desktop.questions.size(), 1);
    EXPECT_TRUE(window.isVisible());
    desktop.answer = true;
    EXPECT_TRUE(ends(QCoreApplication::quit));
}

TEST_F(AppDelegateWhilePlaying, asksNothingWhenTheApplicationIsToldToQuitAtTheSessionsEnd)
{
    auto* const manager = qApp->findChild<QSessionManager*>();
    ASSERT_TRUE(manager) << "the application makes it";
    Q_EMIT qApp->commitDataRequest(*manager);
    EXPECT_TRUE(goesOn(closeWindow)) << "another program may have kept the session from ending";
    EXPECT_EQ(desktop.questions.size(), 1);
    EXPECT_TRUE(ends(QCoreApplication::quit));
    EXPECT_EQ(desktop.questions.size(), 1);
}

TEST_F(AppDelegateTest, bringsTheWindowBackWhenTheProgramIsStartedAgain)
{
    const EnvironmentScope variable("XDG_ACTIVATION_TOKEN", "somebody else's");
    window.showMinimized();
    delegate.activate("a token");
    EXPECT_TRUE(window.isVisible());
    EXPECT_FALSE(window.isMinimized());
    EXPECT_EQ(qgetenv("XDG_ACTIVATION_TOKEN"), "somebody else's") << "only Wayland reads it";
}

TEST_F(AppDelegateTest, staysHiddenWhenItIsStartedAgainWhileItQuits)
{
    EXPECT_TRUE(ends(terminate));
    delegate.activate({});
    EXPECT_FALSE(window.isVisible());
}

TEST_F(AppDelegateTest, waitsHiddenUntilTheGameHasEnded)
{
    enter(Phase::Kind::playing);
    const QSignalSpy ended(&model(), &AppModel::flowEnded);
    EXPECT_TRUE(ends([this] {
        window.close();
        EXPECT_FALSE(window.isVisible());
        EXPECT_TRUE(model().isFlowRunning()) << "the game is told to end, and has not yet";
    }));
    EXPECT_EQ(ended.count(), 1);
    EXPECT_FALSE(model().isFlowRunning());
    EXPECT_THAT(logged(), testing::Contains(u"Game stopped by you."_s));
}

} // namespace
