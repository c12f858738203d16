// SPDX-License-Identifier: MIT
#include "Controls/Dimmer.h"

#include "Controls/SystemColors.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QTimer>

Dimmer::Dimmer(QWidget& window)
    : QWidget(&window)
{
    hide();
    setAttribute(Qt::WA_TransparentForMouseEvents);
    window.installEventFilter(this);
}

bool Dimmer::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::WindowBlocked:
        resize(parentWidget()->size());
        raise();
        show();
        break;
    case QEvent::WindowUnblocked:
        hide();
        break;
    case QEvent::Resize:
        resize(parentWidget()->size());
        break;
    case QEvent::WindowActivate:
        // Not at once: window managers ignore a request that is older than the activation.
        if (isVisible()) {
            QTimer::singleShot(0, this, [] {
                if (auto* const front = QApplication::activeModalWidget())
                    front->activateWindow();
            });
        }
        break;
    default:
        break;
    }
    return false;
}

void Dimmer::paintEvent(QPaintEvent*)
{
    const auto opacity = SystemColors::isDark(palette()) ? 0.45 : 0.22;
    QPainter(this).fillRect(rect(), SystemColors::withOpacity(Qt::black, opacity));
}
