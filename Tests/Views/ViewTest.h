// SPDX-License-Identifier: MIT
#pragma once

#include "Support/ModelTest.h"

#include "Views/ContentView.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>

#include <memory>

/// The main window over a model of its own, shown and laid out.
class ViewTest : public ModelTest
{
protected:
    ViewTest();

    ContentView& window() { return *m_window; }

    /// The button with this text below `parent`, or nothing.
    static QAbstractButton* button(const QWidget& parent, const QString& text);
    QAbstractButton* button(const QString& text) { return button(window(), text); }
    /// The label with this text below `parent`, or nothing.
    static QLabel* label(const QWidget& parent, const QString& text);
    QLabel* label(const QString& text) { return label(window(), text); }

    /// The first widget of a type below `parent`; a test failure when there is none.
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

    /// Presses a button of the window and gives the sheet that opens.
    template<typename Sheet>
    Sheet& open(const QString& title)
    {
        button(title)->click();
        settle();
        return only<Sheet>(window());
    }

    /// Lets layouts and pending events take effect.
    static void settle();
    /// The place of a widget in its window, in device-independent pixels.
    static QRect place(const QWidget& widget);

private:
    std::unique_ptr<ContentView> m_window;
};
