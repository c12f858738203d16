// SPDX-License-Identifier: MIT
#pragma once

#include "Support/Await.h"
#include "Support/ModelTest.h"

#include "Controls/Boxes.h"
#include "Controls/Buttons.h"
#include "Controls/LongTextEdit.h"
#include "Controls/Palettes.h"
#include "Controls/ProgressBar.h"
#include "Controls/StatusDot.h"
#include "Views/AboutView.h"
#include "Views/ContentView.h"
#include "Views/LogView.h"
#include "Views/PlayPanel.h"
#include "Views/SettingsView.h"

#include <QApplication>
#include <QLabel>

#include <chrono>
#include <initializer_list>
#include <memory>

/// How a text is set: its size where body has 13, its weight and its tone.
struct ExpectedText
{
    QStringView text;
    double size;
    QFont::Weight weight = QFont::Normal;
    bool isSecondary = false;
};

/// The main window over a model of its own, shown and laid out, in light colours.
class ViewTest : public ModelTest
{
protected:
    explicit ViewTest(std::chrono::milliseconds startupThreshold = std::chrono::milliseconds{20});
    ~ViewTest() override;

    ContentView& window() { return *m_window; }

    /// Brings the model into a phase, and waits until the window shows it.
    void enter(Phase::Kind kind);
    /// Installs a game and an engine that runs the script `engine`.
    void install(const QByteArray& engine);
    /// Shows everything that the window has: a failure report and the log.
    void showAllBlocks();
    static void enlargeFont(double factor = 4 / 3.0);

    /// The button with this text below `parent`, or null.
    static QAbstractButton* button(const QWidget& parent, QStringView text);
    QAbstractButton* button(QStringView text) { return button(window(), text); }
    /// The label with this text below `parent`, or null.
    static QLabel* label(const QWidget& parent, QStringView text);
    QLabel* label(QStringView text) { return label(window(), text); }

    /// The first widget of a type below `parent`. Ends the program if there is none.
    template<typename Widget>
    static Widget& only(const QWidget& parent)
    {
        auto* const found = parent.findChild<Widget*>();
        if (!found)
            qFatal("The widget under test is missing.");
        return *found;
    }
    template<typename Widget>
    Widget& only()
    {
        return only<Widget>(window());
    }

    PlayPanel& panel() { return only<PlayPanel>(); }
    PlayButton& play() { return only<PlayButton>(); }
    QAbstractButton& stop() { return *button(u"Stop"); }
    QAbstractButton& cancel() { return *button(u"Cancel"); }
    QAbstractButton& disclosure() { return only<DisclosureButton>(); }
    ProgressBar& progress() { return only<ProgressBar>(); }
    TextBox& logBox() { return only<TextBox>(only<LogView>()); }
    /// The failure report, which comes before the log.
    TextBox& failure() { return only<TextBox>(); }

    /// Each opens the sheet, unless it is open.
    SettingsView& settings() { return sheet<SettingsView>(ContentView::tr("Settings\u2026")); }
    AboutView& about() { return sheet<AboutView>(ContentView::tr("About")); }

    /// Runs the event loop until layouts and pending events have taken effect.
    static void settle();
    /// The rectangle of a widget in its window, in device-independent pixels.
    static QRect rectOf(const QWidget& widget);
    /// The space between two widgets.
    static int gapBelow(const QWidget& upper, const QWidget& lower);
    static int gapBeside(const QWidget& left, const QWidget& right);

    /// Checks texts that stand below each other in this order.
    static void expectTexts(const QWidget& parent, std::initializer_list<ExpectedText> texts);

private:
    AppModel& startModelWith(std::chrono::milliseconds startupThreshold);

    template<typename Sheet>
    Sheet& sheet(QStringView title)
    {
        if (auto* const open = window().findChild<Sheet*>())
            return *open;
        button(title)->click();
        settle();
        return only<Sheet>();
    }

    const QFont m_font = QApplication::font();
    std::unique_ptr<ContentView> m_window;
};
