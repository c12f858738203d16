// SPDX-License-Identifier: MIT
#include "Views/FontChange.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

void passOnFontChange(QWidget& window, const QEvent& event)
{
    if (event.type() != QEvent::ApplicationFontChange)
        return;
    const auto widgets = window.findChildren<QWidget*>();
    for (auto* const widget : widgets) {
        QEvent copy(QEvent::ApplicationFontChange);
        QCoreApplication::sendEvent(widget, &copy);
    }
}
