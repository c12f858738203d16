// SPDX-License-Identifier: MIT
#include "Views/StatusDot.h"

#include <QPainter>

StatusDot::StatusDot(Color initial)
    : m_color(initial)
{
    setFixedSize(10, 10);
}

void StatusDot::setStatus(Color status, const QString& meaning)
{
    if (accessibleName() != meaning)
        setAccessibleName(meaning);
    if (m_color == status)
        return;
    m_color = status;
    update();
}

void StatusDot::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color());
    painter.drawEllipse(rect());
}
