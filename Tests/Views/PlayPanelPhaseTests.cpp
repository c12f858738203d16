// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include "Controls/SystemColors.h"

#include <QKeyEvent>
#include <QTest>

#include <ostream>

namespace {

/// What the panel shows in one phase.
struct Row
{
    const char* name;
    Phase::Kind phase;
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
    {"notDownloaded", Phase::Kind::notDownloaded, false, SystemColors::gray, false, true, false,
     false},
    {"downloading", Phase::Kind::downloading, false, SystemColors::blue, true, false, false, true},
    {"settingUp", Phase::Kind::settingUp, false, SystemColors::blue, true, false, false, true},
    {"ready", Phase::Kind::ready, false, SystemColors::green, false, true, false, false},
    {"starting", Phase::Kind::playing, true, SystemColors::orange, false, false, true, false},
    {"playing", Phase::Kind::playing, false, SystemColors::green, false, false, true, false},
    {"needs", Phase::Kind::needs, false, SystemColors::red, false, true, false, false},
};

class EveryPhase : public ViewTest, public testing::WithParamInterface<Row>
{
protected:
    EveryPhase()
        : ViewTest(GetParam().stillStarting ? std::chrono::hours{1} : std::chrono::hours{0})
    {
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
    EXPECT_EQ(window().findChild<TextBox*>() != nullptr, row.phase == Phase::Kind::needs)
        << "only a failure has a report";
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
            << control->accessibleName() << control->metaObject()->className();
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
