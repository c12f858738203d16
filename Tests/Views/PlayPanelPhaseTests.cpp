// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include "Controls/SystemColors.h"

#include <QKeyEvent>
#include <QTest>

#include <ostream>

using namespace Qt::StringLiterals;

namespace {

/// What the panel shows in one phase.
struct Row
{
    const char* name;
    Phase phase;
    bool stillStarting;
    StatusDot::Color dot;
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
    {"needs", Phase::needs(u"It broke."_s), false, SystemColors::red, false, true, false, false},
};

class EveryPhase : public ViewTest, public testing::WithParamInterface<Row>
{
protected:
    EveryPhase()
    {
        AppModelAccess::setStillStarting(model(), row.stillStarting);
        enter(row.phase);
        // Counts the presses of Play, which then starts nothing.
        QObject::disconnect(&play(), &QPushButton::clicked, nullptr, nullptr);
        QObject::connect(&play(), &QPushButton::clicked, &play(), [this] { ++presses; });
    }

    const Row row = GetParam();
    int presses = 0;
};

TEST_P(EveryPhase, showsWhatBelongsToIt)
{
    EXPECT_EQ(only<StatusDot>().color(), row.dot(window().palette()));
    EXPECT_TRUE(only<StatusDot>().accessibleName().contains(model().statusTitle()));
    expectTexts(panel(), {{model().statusTitle(), 13, QFont::Bold},
                          {model().statusDetail(), 12, QFont::Normal, true}});
    EXPECT_EQ(progress().isVisible(), row.progress);
    EXPECT_TRUE(play().isVisible());
    EXPECT_EQ(play().isEnabled(), row.play);
    EXPECT_EQ(stop().isVisible(), row.stop);
    EXPECT_EQ(cancel().isVisible(), row.cancel);
    EXPECT_FALSE(window().findChild<TextBox*>()) << "there is no report";
    EXPECT_TRUE(disclosure().isVisible());
}

TEST_P(EveryPhase, takesReturnForPlayOnlyWherePlayIsEnabled)
{
    auto expected = 0;
    const auto controls = window().findChildren<QWidget*>();
    for (auto* const control : controls) {
        if (!control->isVisible() || !(control->focusPolicy() & Qt::TabFocus))
            continue;
        control->setFocus();
        expected += row.play ? 1 : 0;
        QTest::keyClick(control, Qt::Key_Return);
        EXPECT_EQ(presses, expected)
            << qPrintable(control->accessibleName()) << control->metaObject()->className();
    }
    EXPECT_EQ(expected > 3, row.play) << "Return is tried from several controls";
}

TEST_P(EveryPhase, ignoresAHeldReturnAndOneWithModifiers)
{
    for (auto* const control :
         {static_cast<QWidget*>(&play()), static_cast<QWidget*>(button(u"About"))}) {
        control->setFocus();
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(control, &repeated);
        QTest::keyClick(control, Qt::Key_Return, Qt::AltModifier);
        QTest::keyClick(control, Qt::Key_Return, Qt::ControlModifier);
    }
    EXPECT_EQ(presses, 0);
    QTest::keyClick(&window(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(presses, row.play ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(PlayPanel, EveryPhase, testing::ValuesIn(rows));

} // namespace
