// SPDX-License-Identifier: MIT
#include "Views/PlayPanelTest.h"

#include "Views/LogView.h"
#include "Views/StatusDot.h"
#include "Views/SystemColors.h"

#include <QLayout>
#include <QTest>

namespace {

TEST_F(PlayPanelTest, isPaddedBy14AndSpacedBy12)
{
    EXPECT_EQ(panel().layout()->contentsMargins(), QMargins(14, 14, 14, 14));
    EXPECT_EQ(panel().layout()->spacing(), 12);
    const auto inside = place(panel()).adjusted(14, 14, -14, -14);
    EXPECT_EQ(place(play()).left(), inside.left());
    EXPECT_EQ(place(play()).right(), inside.right()) << "Play spans the panel";
    const auto detail = place(*label(model().statusDetail()));
    EXPECT_EQ(place(play()).top() - detail.bottom() - 1, 12);
}

TEST_F(PlayPanelTest, hasADotOf10Beside8OfSpace)
{
    const auto dot = place(only<StatusDot>());
    const auto title = place(*label(QStringLiteral("Not downloaded")));
    EXPECT_EQ(dot.size(), QSize(10, 10));
    EXPECT_EQ(title.left() - dot.right() - 1, 8);
    EXPECT_NEAR(title.center().y(), dot.center().y(), 1);
}

TEST_F(PlayPanelTest, hasALargeBoldPlayButton)
{
    EXPECT_EQ(play().text(), QStringLiteral("Play"));
    EXPECT_EQ(play().font().pixelSize(), 24);
    EXPECT_EQ(play().font().weight(), QFont::Bold);
    EXPECT_GE(play().height(), 44);
    EXPECT_TRUE(play().isDefault());
    EXPECT_FALSE(static_cast<QPushButton&>(cancel()).isDefault());
}

TEST_F(PlayPanelTest, keepsStopAndCancel12FromPlay)
{
    enter(Phase::playing());
    EXPECT_EQ(place(stop()).left() - place(play()).right() - 1, 12);
    enter(Phase::settingUp());
    EXPECT_EQ(place(cancel()).left() - place(play()).right() - 1, 12);
    EXPECT_NEAR(place(cancel()).center().y(), place(play()).center().y(), 1);
}

TEST_F(PlayPanelTest, turnsTheBarDeterminateWithoutMovingTheBlock)
{
    enter(Phase::downloading());
    EXPECT_EQ(progress().maximum(), 0) << "indeterminate";
    const auto before = place(progress());
    AppModelAccess::applyProgress(model(), {250, 1000, 10});
    settle();
    EXPECT_DOUBLE_EQ(double(progress().value()) / progress().maximum(), 0.25);
    EXPECT_EQ(place(progress()), before);
}

TEST_F(PlayPanelTest, paintsTheBarFromTheFirstBytesOn)
{
    class Paints final : public QObject
    {
    public:
        int count = 0;

    protected:
        bool eventFilter(QObject* object, QEvent* event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return QObject::eventFilter(object, event);
        }
    };
    enter(Phase::downloading());
    AppModelAccess::applyProgress(model(), {100, 10'000, 10});
    settle();
    Paints paints;
    progress().installEventFilter(&paints);
    AppModelAccess::applyProgress(model(), {110, 10'000, 10});
    settle();
    EXPECT_GT(paints.count, 0);
    paints.count = 0;
    AppModelAccess::applyProgress(model(), {110, 10'000, 12});
    settle();
    EXPECT_EQ(paints.count, 0) << "only another speed";
}

TEST_F(PlayPanelTest, fillsTheBarFromTheRightWhereTextRunsLikeThat)
{
    enter(Phase::downloading());
    AppModelAccess::applyProgress(model(), {250, 1000, 10});
    settle();
    const auto filled = [this](double along) {
        const auto picture = progress().grab().toImage();
        return picture.pixelColor(int(picture.width() * along), picture.height() / 2) ==
               SystemColors::blue(progress().palette());
    };
    EXPECT_TRUE(filled(0.1) && !filled(0.9));
    progress().setLayoutDirection(Qt::RightToLeft);
    EXPECT_TRUE(filled(0.9) && !filled(0.1));
}

TEST_F(PlayPanelTest, leavesNoBlankLineUnderTheBarWithoutAText)
{
    enter(Phase::settingUp());
    EXPECT_EQ(place(play()).top() - place(progress()).bottom() - 1, 12);
}

TEST_F(PlayPanelTest, showsTheProgressTextUnderTheBar)
{
    enter(Phase::downloading());
    AppModelAccess::applyProgress(model(), {250, 1000, 10});
    settle();
    auto* const text = label(model().progressText());
    ASSERT_TRUE(text);
    EXPECT_TRUE(text->isVisible());
    EXPECT_GT(place(*text).top(), place(progress()).bottom());
}

TEST_F(PlayPanelTest, takesNoSpaceForTheProgressOutsideSetup)
{
    enter(Phase::ready());
    const auto detail = place(*label(model().statusDetail()));
    EXPECT_EQ(place(play()).top() - detail.bottom() - 1, 12);
}

TEST_F(PlayPanelTest, remembersInTheModelWhetherTheLogIsShown)
{
    EXPECT_FALSE(window().findChild<LogView*>());
    disclosure().click();
    settle();
    EXPECT_TRUE(model().showLog());
    EXPECT_TRUE(only<LogView>().isVisible());
    model().setShowLog(false);
    settle();
    EXPECT_FALSE(disclosure().isChecked());
    EXPECT_FALSE(window().findChild<LogView*>());
}

TEST_F(PlayPanelTest, doesNotHandTheFocusOfPlayToCancel)
{
    play().setFocus();
    enter(Phase::downloading());
    EXPECT_FALSE(cancel().hasFocus()) << "the space bar would cancel";
    EXPECT_EQ(window().focusWidget()->accessibleName(), QStringLiteral("Downloading"))
        << "whoever hears the window hears what Play has come to";
    enter(Phase::ready());
    EXPECT_TRUE(play().hasFocus());
}

TEST_F(PlayPanelTest, keepsTheFocusInPlaceWhileAnotherWindowIsActive)
{
    play().setFocus();
    QWidget other;
    other.show();
    other.activateWindow();
    settle();
    ASSERT_FALSE(play().hasFocus());
    enter(Phase::playing());
    EXPECT_NE(window().focusWidget(), &play());
    EXPECT_NE(window().focusWidget()->metaObject()->className(), QByteArray("QPushButton"));
    enter(Phase::ready());
    EXPECT_EQ(window().focusWidget(), &play());
}

TEST_F(PlayPanelTest, leavesTheSpaceBarToTheControlThatHasTheFocus)
{
    disclosure().setFocus();
    QTest::keyClick(&disclosure(), Qt::Key_Space);
    EXPECT_TRUE(model().showLog());
    EXPECT_FALSE(model().isFlowRunning());
}

TEST_F(PlayPanelTest, animatesTheBarOnlyWhileItIsIndeterminateAndVisible)
{
    EXPECT_FALSE(progress().isAnimating());
    enter(Phase::settingUp());
    EXPECT_TRUE(progress().isAnimating());
    AppModelAccess::applyProgress(model(), {250, 1000, 10});
    EXPECT_FALSE(progress().isAnimating());
    AppModelAccess::clearProgress(model());
    EXPECT_TRUE(progress().isAnimating());
    enter(Phase::ready());
    EXPECT_FALSE(progress().isAnimating());
}

TEST_F(PlayPanelTest, followsAChangeOfThePalette)
{
    const auto light = only<StatusDot>().color();
    auto dark = window().palette();
    dark.setColor(QPalette::Window, QColor(30, 30, 32));
    window().setPalette(dark);
    settle();
    EXPECT_NE(only<StatusDot>().color(), light);
}

} // namespace
