// SPDX-License-Identifier: MIT
#include "Controls/StatusDot.h"

#include "Controls/Accessibility.h"
#include "Controls/ControlPainter.h"

#include <QPainter>

StatusDot::StatusDot(Color initial)
    : m_color(initial)
{
    // Screen readers read out a notification that appears, wherever the focus is.
    setAccessibleRole(*this, QAccessible::Notification);
    setFixedSize(10, 10);
}

void StatusDot::setStatus(Color status, const QString& meaning)
{
    if (m_color != status) {
        m_color = status;
        update();
    }
    if (accessibleName() == meaning)
        return;
    setAccessibleName(meaning);
    if (!isVisible())
        return;
    // On Linux, Qt does not send alerts over the accessibility bus, but the second event.
    for (const auto type : {QAccessible::Alert, QAccessible::ObjectShow}) {
        QAccessibleEvent event(this, type);
        QAccessible::updateAccessibility(&event);
    }
}

void StatusDot::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    ControlPainter::paintTintedBox(painter, rect(), width() / 2.0, color(), palette());
}
