// SPDX-License-Identifier: MIT
#include "Views/RoundedBox.h"

#include <QPainter>

RoundedBox::RoundedBox(double radius, Tint tint)
    : m_radius(radius)
    , m_tint(tint)
{
}

void RoundedBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_tint(palette()));
    painter.drawRoundedRect(rect(), m_radius, m_radius);
}
