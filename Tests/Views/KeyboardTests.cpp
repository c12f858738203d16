// SPDX-License-Identifier: MIT
#include "Support/AppModelAccess.h"
#include "Views/ViewTest.h"

#include "Views/AboutView.h"
#include "Views/LinkLabel.h"
#include "Views/LongTextEdit.h"
#include "Views/SettingsView.h"

#include <QAccessible>
#include <QImage>
#include <QTest>

namespace {

class KeyboardTest : public ViewTest
{
protected:
    /// What takes the focus in a window, from what has it now until that has it again.
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

    /// The names by which an assistive technology would tell of `widgets`.
    static QStringList names(const QList<QWidget*>& widgets)
    {
        QStringList result;
        for (auto* const widget : widgets)
            result.append(QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name));
        return result;
    }

    /// Each stop of the focus changes what is seen around it.
    static void expectARingAtEachStop(QWidget& visited)
    {
        const auto around = [&visited](const QWidget& widget) {
            return visited.grab(place(widget).adjusted(-6, -6, 6, 6)).toImage();
        };
        const auto visits = stops(visited);
        for (auto i = 0; i < visits.size(); ++i) {
            const auto& next = *visits.at((i + 1) % visits.size());
            const auto before = around(next);
            QTest::keyClick(visited.focusWidget(), Qt::Key_Tab);
            settle();
            ASSERT_EQ(visited.focusWidget(), &next);
            EXPECT_NE(around(next), before) << qPrintable(names({visits.at(i)}).constFirst());
        }
    }

    /// The window with everything in it that can take the focus.
    void fill()
    {
        AppModelAccess::fail(model(), QStringLiteral("The disk is full."));
        model().setShowLog(true);
        settle();
    }
};

TEST_F(KeyboardTest, goesThroughTheWindowFromTopToBottom)
{
    fill();
    const QStringList fromTop{QStringLiteral("Play"),
                              QStringLiteral("Failure report"),
                              QStringLiteral("Copy"),
                              QStringLiteral("Show log"),
                              QStringLiteral("Log"),
                              QStringLiteral("Copy log"),
                              QStringLiteral("Settings\u2026"),
                              QStringLiteral("About")};
    EXPECT_EQ(names(stops(window())), fromTop);
}

TEST_F(KeyboardTest, keepsTheOrderWhenTheLogIsOpenedBeforeAFailure)
{
    model().setShowLog(true);
    fill();
    model().setShowLog(false);
    model().setShowLog(true);
    settle();
    const auto order = names(stops(window()));
    EXPECT_EQ(order.indexOf(QStringLiteral("Failure report")), 1);
    EXPECT_EQ(order.indexOf(QStringLiteral("Log")), 4);
    EXPECT_EQ(order.last(), QStringLiteral("About"));
}

TEST_F(KeyboardTest, goesFromStopToTheLog)
{
    AppModelAccess::setPhase(model(), Phase::playing());
    button(QStringLiteral("Stop"))->setFocus();
    EXPECT_EQ(names(stops(window())),
              (QStringList{QStringLiteral("Stop"), QStringLiteral("Show log"),
                           QStringLiteral("Settings\u2026"), QStringLiteral("About")}));
}

TEST_F(KeyboardTest, goesThroughTheSettingsFromTopToBottom)
{
    AppModelAccess::setPhase(model(), Phase::ready());
    auto& sheet = open<SettingsView>(QStringLiteral("Settings\u2026"));
    // A list goes by what is chosen in it.
    EXPECT_EQ(names(stops(sheet)),
              (QStringList{QStringLiteral("Done"), QStringLiteral("Windowed"),
                           QStringLiteral("Game default"), QStringLiteral("Update the game"),
                           QStringLiteral("Reinstall"), QStringLiteral("Reveal in Finder"),
                           QStringLiteral("Remove everything")}));
}

TEST_F(KeyboardTest, stopsOnceAtTheLink)
{
    auto& sheet = open<AboutView>(QStringLiteral("About"));
    EXPECT_EQ(stops(sheet).size(), 2);
    EXPECT_EQ(stops(sheet, Qt::Key_Backtab).at(1), &only<LinkLabel>(sheet));
}

TEST_F(KeyboardTest, drawsARingAroundWhateverHasTheFocus)
{
    fill();
    expectARingAtEachStop(window());
    auto& settings = open<SettingsView>(QStringLiteral("Settings\u2026"));
    expectARingAtEachStop(settings);
    settings.reject();
    settle();
    expectARingAtEachStop(open<AboutView>(QStringLiteral("About")));
}

} // namespace
