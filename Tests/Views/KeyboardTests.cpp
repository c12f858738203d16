// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include "Controls/LinkLabel.h"

#include <QAccessible>
#include <QTest>

#include <tuple>

namespace {

/// Where the keyboard has to do: the size of the font, as a factor, and the colours.
using Surroundings = std::tuple<double, QPalette (*)()>;

class KeyboardTest : public ViewTest, public testing::WithParamInterface<Surroundings>
{
protected:
    KeyboardTest()
    {
        enlargeFont(std::get<double>(GetParam()));
        QApplication::setPalette(std::get<QPalette (*)()>(GetParam())());
        settle();
    }

    /// What `key` moves the focus to, from what has it until that has it again.
    static QList<QWidget*> stops(QWidget& visited, Qt::Key key = Qt::Key_Tab)
    {
        QList<QWidget*> result;
        auto* const first = visited.focusWidget();
        do {
            result.append(visited.focusWidget());
            QTest::keyClick(visited.focusWidget(), key);
            settle();
        } while (visited.focusWidget() != first && result.size() < 20);
        return result;
    }

    /// The accessible names of these stops.
    static QStringList stopNames(QWidget& visited)
    {
        QStringList result;
        for (auto* const stop : stops(visited))
            result.append(QAccessible::queryAccessibleInterface(stop)->text(QAccessible::Name));
        return result;
    }

    /// Checks that each stop looks different while it has the focus.
    static void expectARingAtEachStop(QWidget& visited)
    {
        const auto around = [&visited](const QWidget& widget) {
            return visited.grab(rectOf(widget).adjusted(-6, -6, 6, 6)).toImage();
        };
        const auto visits = stops(visited);
        for (auto i = 0; i < visits.size(); ++i) {
            const auto& next = *visits.at((i + 1) % visits.size());
            const auto before = around(next);
            QTest::keyClick(visited.focusWidget(), Qt::Key_Tab);
            settle();
            ASSERT_EQ(visited.focusWidget(), &next);
            EXPECT_NE(around(next), before) << "stop " << i;
        }
    }
};

TEST_P(KeyboardTest, goesThroughTheWindowFromTopToBottom)
{
    showAllBlocks();
    EXPECT_EQ(stopNames(window()),
              (QStringList{u"Play"_s, u"Failure report"_s, u"Copy"_s, u"Show log"_s, u"Log"_s,
                           u"Copy log"_s, u"Settings\u2026"_s, u"About"_s}));
}

TEST_P(KeyboardTest, keepsTheOrderWhenTheLogIsOpenedBeforeAFailure)
{
    model().setShowLog(true);
    showAllBlocks();
    model().setShowLog(false);
    model().setShowLog(true);
    settle();
    const auto order = stopNames(window());
    EXPECT_EQ(order.indexOf(u"Failure report"_s), 1);
    EXPECT_EQ(order.indexOf(u"Log"_s), 4);
    EXPECT_EQ(order.last(), u"About"_s);
}

TEST_P(KeyboardTest, goesFromStopToTheLog)
{
    enter(Phase::Kind::playing);
    stop().setFocus();
    EXPECT_EQ(stopNames(window()),
              (QStringList{u"Stop"_s, u"Show log"_s, u"Settings\u2026"_s, u"About"_s}));
}

TEST_P(KeyboardTest, goesBackToTheDisclosureWhenTheLogCloses)
{
    model().setShowLog(true);
    settle();
    logBox().edit().setFocus();
    model().setShowLog(false);
    EXPECT_TRUE(disclosure().hasFocus());
}

TEST_P(KeyboardTest, goesThroughTheSettingsFromTopToBottom)
{
    enter(Phase::Kind::ready);
    // The name of the resolutions is the choice.
    EXPECT_EQ(stopNames(settings()),
              (QStringList{u"Done"_s, u"Windowed"_s, u"Game default"_s, u"Update the game"_s,
                           u"Reinstall"_s, u"Reveal in Finder"_s,
                           only<DestructiveButton>(settings()).text()}));
}

TEST_P(KeyboardTest, stopsOnceAtTheLink)
{
    EXPECT_EQ(stops(about()).size(), 2);
    EXPECT_EQ(stops(about(), Qt::Key_Backtab).at(1), &only<LinkLabel>(about()));
}

TEST_P(KeyboardTest, drawsARingAroundWhateverHasTheFocus)
{
    showAllBlocks();
    expectARingAtEachStop(window());
    expectARingAtEachStop(settings());
    settings().reject();
    settle();
    expectARingAtEachStop(about());
}

INSTANTIATE_TEST_SUITE_P(Surroundings, KeyboardTest,
                         testing::Combine(testing::Values(1, 2),
                                          testing::Values(Palettes::light,
                                                          Palettes::highContrastLight,
                                                          Palettes::highContrastDark)));

} // namespace
