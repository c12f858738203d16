// SPDX-License-Identifier: MIT
#include "Views/StatusDot.h"

#include <QAccessible>
#include <QPainter>

StatusDot::StatusDot(Color initial)
    : m_color(initial)
{
    setFixedSize(10, 10);
}

void StatusDot::setStatus(Color status, const QString& meaning)
{
    if (m_color != status) {
        m_color = status;
        update();
    }
    if (accessibleName() != meaning) {
        setAccessibleName(meaning);
        if (isVisible())
            announce();
    }
}

void StatusDot::announce()
{
    // Qt keeps an alert from the accessibility bus of Linux; there it is the showing that counts.
    for (const auto type : {QAccessible::Alert, QAccessible::ObjectShow}) {
        QAccessibleEvent event(this, type);
        QAccessible::updateAccessibility(&event);
    }
}

void StatusDot::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color());
    painter.drawEllipse(rect());
}
