// SPDX-License-Identifier: MIT
// A double click, and a key that is pressed twice or held, press one control.

#include "Views/ViewTest.h"

#include <QKeyEvent>
#include <QTest>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr auto quickly = 100;
constexpr auto slowly = 1000;

class RepeatedPressTest : public ViewTest
{
protected:
    /// Clicks at `position` in the window, `milliseconds` after the click before.
    void click(QPoint position, int milliseconds)
    {
        QTest::lastMouseTimestamp += milliseconds - QTest::mouseDoubleClickInterval;
        QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, position);
        settle();
    }
    /// Presses a key `milliseconds` after the one before, where the focus is.
    void key(QWidget& inWindow, Qt::Key key, int milliseconds, bool isAutoRepeat = false)
    {
        m_time += static_cast<quint64>(milliseconds);
        for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, Qt::NoModifier, QString(), isAutoRepeat);
            event.setTimestamp(m_time);
            QCoreApplication::sendEvent(inWindow.focusWidget(), &event);
        }
        settle();
    }
    static QPoint rightEnd(const QWidget& button)
    {
        const auto rect = rectOf(button);
        return {rect.right() - 8, rect.center().y()};
    }
    void playByModel()
    {
        model().play();
        waitForPhase(Phase::Kind::playing);
        settle();
    }
    /// Has the next press of Play import the assets, with an engine that does not.
    void requireImport() const
    {
        ASSERT_TRUE(QFile::remove(EngineManager().markerFile()));
        ASSERT_TRUE(QFile::remove(root(u"Game/tetherwalk-master/.import/a.stex"_s)));
    }
    /// Clicks a button that ends the flow, and again where Play is then.
    void expectNoPlayByASecondClickOn(const QWidget& button)
    {
        const auto position = rightEnd(button);
        click(position, slowly);
        waitForFlow();
        settle();
        ASSERT_EQ(window().childAt(position), &play());
        click(position, quickly);
        EXPECT_EQ(starts(), 1);
        EXPECT_FALSE(model().isBusy());
    }
    qsizetype starts() { return logged().filter(u"Step 1 of 4"_s).size(); }

private:
    quint64 m_time = 5000;
};

TEST_F(RepeatedPressTest, onPlayStartsTheGameAndDoesNotStopIt)
{
    install("exec sleep 60");
    const auto position = rightEnd(play());
    click(position, slowly);
    waitForPhase(Phase::Kind::playing);
    settle();
    ASSERT_EQ(window().childAt(position), &stop());
    click(position, quickly);
    click(position, quickly);
    QTest::qWait(100);
    EXPECT_EQ(model().phase(), Phase::playing());
    click(position, slowly);
    waitForFlow();
    EXPECT_EQ(logged().last(), u"Game stopped by you."_s) << "later it is a press of Stop";
}

TEST_F(RepeatedPressTest, onStopDoesNotStartTheGameAgain)
{
    install("exec sleep 60");
    playByModel();
    expectNoPlayByASecondClickOn(stop());
}

TEST_F(RepeatedPressTest, onCancelDoesNotBeginAnew)
{
    install("exec sleep 60");
    requireImport();
    model().play();
    waitForPhase(Phase::Kind::settingUp);
    settle();
    expectNoPlayByASecondClickOn(cancel());
}

TEST_F(RepeatedPressTest, onPlayStartsAGameThatClosesAtOnceOnlyOnce)
{
    install("exit 1");
    const auto position = rectOf(play()).center();
    click(position, slowly);
    waitForFlow();
    settle();
    ASSERT_TRUE(play().isEnabled());
    click(position, quickly);
    EXPECT_FALSE(model().isBusy());
    EXPECT_EQ(starts(), 1);
    click(position, slowly);
    EXPECT_TRUE(waitUntil([this] { return starts() == 2; }));
    waitForFlow();
    EXPECT_EQ(starts(), 2);
}

TEST_F(RepeatedPressTest, ofTheSpaceBarOnStopDoesNotStartTheGameAgain)
{
    install("exec sleep 60");
    playByModel();
    stop().setFocus();
    key(window(), Qt::Key_Space, slowly);
    waitForFlow();
    settle();
    ASSERT_TRUE(play().hasFocus());
    key(window(), Qt::Key_Space, quickly);
    key(window(), Qt::Key_Space, slowly, true);
    EXPECT_FALSE(model().isBusy());
    key(window(), Qt::Key_Space, slowly);
    EXPECT_TRUE(model().isBusy()) << "later it is a press of Play";
}

TEST_F(RepeatedPressTest, ofAnotherKeyIsAPressOfItsOwn)
{
    disclosure().setFocus();
    key(window(), Qt::Key_Space, slowly);
    key(window(), Qt::Key_Tab, quickly);
    button(u"About")->setFocus();
    key(window(), Qt::Key_Space, quickly);
    EXPECT_TRUE(window().findChild<AboutView*>());
}

TEST_F(RepeatedPressTest, ofAKeyInTheNextWindowIsAPressOfItsOwn)
{
    button(u"Settings\u2026")->setFocus();
    key(settings(), Qt::Key_Space, slowly);
    ASSERT_FALSE(window().findChild<SettingsView*>());
    button(u"Settings\u2026")->setFocus();
    key(window(), Qt::Key_Space, quickly);
    EXPECT_TRUE(window().findChild<SettingsView*>());
}

TEST_F(RepeatedPressTest, isLeftToAControlThatStays)
{
    enter(Phase::Kind::needs);
    window().resize(window().width(), window().widget()->height());
    settle();
    const auto position = rectOf(*button(u"Copy")).center();
    click(position, slowly);
    click(position, quickly);
    EXPECT_EQ(desktop.copied.size(), 2);
}

} // namespace
