// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include <QLayout>
#include <QTest>

namespace {

using PlayPanelTest = ViewTest;

TEST_F(PlayPanelTest, isPaddedBy14AndSpacedBy12)
{
    EXPECT_EQ(panel().layout()->contentsMargins(), QMargins(14, 14, 14, 14));
    EXPECT_EQ(panel().layout()->spacing(), 12);
    const auto inside = rectOf(panel()).adjusted(14, 14, -14, -14);
    EXPECT_EQ(rectOf(play()).left(), inside.left());
    EXPECT_EQ(rectOf(play()).right(), inside.right()) << "Play spans the panel";
    EXPECT_EQ(gapBelow(*label(model().statusDetail()), play()), 12);
}

TEST_F(PlayPanelTest, hasADotOf10Beside8OfSpace)
{
    const auto& dot = only<StatusDot>();
    const auto& title = *label(u"Not downloaded");
    EXPECT_EQ(dot.size(), QSize(10, 10));
    EXPECT_EQ(gapBeside(dot, title), 8);
    EXPECT_NEAR(rectOf(title).center().y(), rectOf(dot).center().y(), 1);
}

TEST_F(PlayPanelTest, hasALargeBoldPlayButton)
{
    EXPECT_EQ(play().text(), u"Play"_s);
    EXPECT_EQ(play().font().pixelSize(), 24);
    EXPECT_EQ(play().font().weight(), QFont::Bold);
    EXPECT_GE(play().height(), 44);
    EXPECT_TRUE(play().isDefault());
    EXPECT_FALSE(static_cast<QPushButton&>(cancel()).isDefault());
}

TEST_F(PlayPanelTest, keepsStopAndCancel12FromPlay)
{
    enter(Phase::Kind::playing);
    EXPECT_EQ(gapBeside(play(), stop()), 12);
    enter(Phase::Kind::settingUp);
    EXPECT_EQ(gapBeside(play(), cancel()), 12);
    EXPECT_NEAR(rectOf(cancel()).center().y(), rectOf(play()).center().y(), 1);
}

TEST_F(PlayPanelTest, turnsTheBarDeterminateWithoutMovingIt)
{
    enter(Phase::Kind::downloading);
    EXPECT_EQ(progress().maximum(), 0) << "indeterminate";
    const auto before = rectOf(progress());
    enterDownload(300, 1000);
    settle();
    EXPECT_DOUBLE_EQ(double(progress().value()) / progress().maximum(), 0.3);
    EXPECT_EQ(rectOf(progress()), before);
}

TEST_F(PlayPanelTest, showsTheProgressTextUnderTheBar)
{
    enter(Phase::Kind::downloading);
    EXPECT_EQ(gapBelow(progress(), play()), 12) << "no blank line without a text";
    enterDownload(250, 1000);
    settle();
    expectTexts(window(), {{model().stepText(), 12, QFont::Normal, true},
                           {model().progressText(), 10, QFont::Normal, true}});
    EXPECT_GT(rectOf(*label(model().progressText())).top(), rectOf(progress()).bottom());
    enter(Phase::Kind::ready);
    EXPECT_EQ(gapBelow(*label(model().statusDetail()), play()), 12) << "no room for the bar";
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

TEST_F(PlayPanelTest, doesNotMoveTheFocusFromPlayToCancel)
{
    play().setFocus();
    enter(Phase::Kind::downloading);
    EXPECT_FALSE(cancel().hasFocus()) << "the space bar would cancel";
    EXPECT_EQ(window().focusWidget()->accessibleName(), u"Downloading"_s)
        << "a screen reader says what Play has started";
    enter(Phase::Kind::ready);
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
    enter(Phase::Kind::playing);
    EXPECT_NE(window().focusWidget(), &play());
    EXPECT_NE(window().focusWidget()->metaObject()->className(), QByteArray("QPushButton"));
    enter(Phase::Kind::ready);
    EXPECT_EQ(window().focusWidget(), &play());
}

TEST_F(PlayPanelTest, leavesTheSpaceBarToTheControlUnderTheFocus)
{
    disclosure().setFocus();
    QTest::keyClick(&disclosure(), Qt::Key_Space);
    EXPECT_TRUE(model().showLog());
    EXPECT_FALSE(model().isFlowRunning());
}

TEST_F(PlayPanelTest, scrollsALongReportInABoxOfOneHeight)
{
    enter(Phase::Kind::needs);
    EXPECT_EQ(failure().edit().height(), 170);
    EXPECT_EQ(failure().height(), 170 + 2 * 6);
    EXPECT_TRUE(failure().edit().isReadOnly());
    EXPECT_TRUE(failure().edit().textInteractionFlags() & Qt::TextSelectableByMouse);
    EXPECT_TRUE(failure().edit().textInteractionFlags() & Qt::TextSelectableByKeyboard);
    const auto height = panel().height();

    model().log().append(u"line\n"_s.repeated(30));
    enter(Phase::Kind::needs);
    EXPECT_GT(failure().edit().lineCount(), 30);
    EXPECT_EQ(panel().height(), height);
    EXPECT_EQ(failure().edit().text(), *model().failureText());
}

TEST_F(PlayPanelTest, showsAReportOnlyInNeeds)
{
    enter(Phase::Kind::ready);
    EXPECT_FALSE(window().findChild<TextBox*>());
    enter(Phase::Kind::needs);
    EXPECT_TRUE(failure().isVisible());
    enter(Phase::Kind::ready);
    EXPECT_TRUE(model().failureText());
    EXPECT_FALSE(failure().isVisible());
}

} // namespace
