// SPDX-License-Identifier: MIT
#include "Views/PlayPanelTest.h"

#include "Views/StatusDot.h"
#include "Views/SystemColors.h"

#include <QKeyEvent>
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

TEST_P(EveryPhase, takesNeitherAHeldReturnNorOneWithOtherKeys)
{
    enter(GetParam().phase);
    auto presses = 0;
    QObject::disconnect(&play(), &QPushButton::clicked, &model(), nullptr);
    QObject::connect(&play(), &QPushButton::clicked, &play(), [&presses] { ++presses; });
    for (auto* const control :
         {static_cast<QWidget*>(&play()), static_cast<QWidget*>(button(QStringLiteral("About")))}) {
        control->setFocus();
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(control, &repeated);
        QTest::keyClick(control, Qt::Key_Return, Qt::AltModifier);
        QTest::keyClick(control, Qt::Key_Return, Qt::ControlModifier);
    }
    EXPECT_EQ(presses, 0);
    QTest::keyClick(&window(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(presses, GetParam().play ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(PlayPanel, EveryPhase, testing::ValuesIn(rows));

} // namespace
