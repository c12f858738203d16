// SPDX-License-Identifier: MIT
#include "Support/AppModelAccess.h"
#include "Views/ViewTest.h"

#include "Views/DisclosureButton.h"
#include "Views/LogView.h"
#include "Views/LongTextEdit.h"
#include "Views/PlayButton.h"
#include "Views/PlayPanel.h"
#include "Views/ProgressBar.h"
#include "Views/StatusDot.h"
#include "Views/SystemColors.h"
#include "Views/TextBox.h"

#include <QLayout>
#include <QTest>

#include <ostream>

namespace {

using Color = QColor (*)(const QPalette&);

/// What the panel shows in one phase.
struct Row
{
    const char* name;
    Phase phase;
    bool stillStarting;
    Color dot;
    bool progress;
    bool play;
    bool stop;
    bool cancel;
};

void PrintTo(const Row& row, std::ostream* stream)
{
    *stream << row.name;
}

const Row rows[]{
    {"notDownloaded", Phase::notDownloaded(), false, SystemColors::gray, false, true, false, false},
    {"downloading", Phase::downloading(), false, SystemColors::blue, true, false, false, true},
    {"settingUp", Phase::settingUp(), false, SystemColors::blue, true, false, false, true},
    {"ready", Phase::ready(), false, SystemColors::green, false, true, false, false},
    {"starting", Phase::playing(), true, SystemColors::orange, false, false, true, false},
    {"playing", Phase::playing(), false, SystemColors::green, false, false, true, false},
    {"needs", Phase::needs(QStringLiteral("It broke.")), false, SystemColors::red, false, true,
     false, false},
};

class PlayPanelTest : public ViewTest
{
protected:
    PlayPanel& panel() { return only<PlayPanel>(); }
    PlayButton& play() { return only<PlayButton>(); }
    QAbstractButton& stop() { return *button(QStringLiteral("Stop")); }
    QAbstractButton& cancel() { return *button(QStringLiteral("Cancel")); }
    QAbstractButton& disclosure() { return only<DisclosureButton>(); }
    ProgressBar& progress() { return only<ProgressBar>(); }

    void enter(const Phase& phase)
    {
        AppModelAccess::setPhase(model(), phase);
        settle();
    }

    bool showsFailure()
    {
        const auto* const box = window().findChild<TextBox*>();
        return box && box->isVisible();
    }
    /// The report's box, which comes before that of the log.
    TextBox& failure() { return only<TextBox>(); }
};

class EveryPhase : public PlayPanelTest, public testing::WithParamInterface<Row>
{
};

TEST_P(EveryPhase, showsWhatBelongsToIt)
{
    AppModelAccess::setStillStarting(model(), GetParam().stillStarting);
    enter(GetParam().phase);

    EXPECT_EQ(only<StatusDot>().color(), GetParam().dot(window().palette()));
    EXPECT_TRUE(label(model().statusTitle()));
    EXPECT_TRUE(label(model().statusDetail()));
    EXPECT_EQ(progress().isVisible(), GetParam().progress);
    EXPECT_TRUE(play().isVisible());
    EXPECT_EQ(play().isEnabled(), GetParam().play);
    EXPECT_EQ(stop().isVisible(), GetParam().stop);
    EXPECT_EQ(cancel().isVisible(), GetParam().cancel);
    EXPECT_FALSE(showsFailure()) << "there is no report";
    EXPECT_TRUE(disclosure().isVisible());
}

TEST_P(EveryPhase, saysTheStatusInWords)
{
    AppModelAccess::setStillStarting(model(), GetParam().stillStarting);
    enter(GetParam().phase);
    EXPECT_TRUE(only<StatusDot>().accessibleName().contains(model().statusTitle()));
}

TEST_P(EveryPhase, takesReturnForPlayOnlyWherePlayIsEnabled)
{
    enter(GetParam().phase);
    auto presses = 0;
    QObject::disconnect(&play(), &QPushButton::clicked, &model(), nullptr);
    QObject::connect(&play(), &QPushButton::clicked, &play(), [&presses] { ++presses; });
    auto expected = 0;
    const auto controls = window().findChildren<QWidget*>();
    for (auto* const control : controls) {
        if (!control->isVisible() || !(control->focusPolicy() & Qt::TabFocus))
            continue;
        control->setFocus();
        expected += GetParam().play ? 1 : 0;
        QTest::keyClick(control, Qt::Key_Return);
        EXPECT_EQ(presses, expected)
            << qPrintable(control->accessibleName()) << control->metaObject()->className();
    }
    EXPECT_EQ(expected > 3, GetParam().play) << "Return is tried from several controls";
}

INSTANTIATE_TEST_SUITE_P(PlayPanel, EveryPhase, testing::ValuesIn(rows));

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

TEST_F(PlayPanelTest, scrollsALongReportInABoxOfOneHeight)
{
    enter(Phase::needs(QStringLiteral("It broke.")));
    AppModelAccess::setFailureText(model(), QStringLiteral("What happened: it broke."));
    settle();
    ASSERT_TRUE(failure().isVisible());
    EXPECT_EQ(failure().edit().height(), 170);
    EXPECT_EQ(failure().height(), 170 + 2 * 6);
    const auto height = panel().height();

    AppModelAccess::setFailureText(model(), QStringLiteral("line\n").repeated(300));
    settle();
    EXPECT_EQ(panel().height(), height);
    EXPECT_EQ(failure().edit().text(), QStringLiteral("line\n").repeated(300));
}

TEST_F(PlayPanelTest, showsAReportOnlyInNeeds)
{
    AppModelAccess::setFailureText(model(), QStringLiteral("What happened: it broke."));
    enter(Phase::ready());
    EXPECT_FALSE(showsFailure());
    enter(Phase::needs(QStringLiteral("It broke.")));
    EXPECT_TRUE(showsFailure());
    enter(Phase::ready());
    EXPECT_FALSE(showsFailure());
}

TEST_F(PlayPanelTest, letsTheReportBeSelectedButNotChanged)
{
    AppModelAccess::setFailureText(model(), QStringLiteral("What happened: it broke."));
    enter(Phase::needs(QStringLiteral("It broke.")));
    EXPECT_TRUE(failure().edit().isReadOnly());
    EXPECT_TRUE(failure().edit().textInteractionFlags() & Qt::TextSelectableByMouse);
    EXPECT_TRUE(failure().edit().textInteractionFlags() & Qt::TextSelectableByKeyboard);
}

TEST_F(PlayPanelTest, copiesTheReport)
{
    AppModelAccess::setFailureText(model(), QStringLiteral("What happened: it broke."));
    enter(Phase::needs(QStringLiteral("It broke.")));
    button(QStringLiteral("Copy"))->click();
    EXPECT_EQ(desktop.copied, QStringList{QStringLiteral("What happened: it broke.")});
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
