// SPDX-License-Identifier: MIT
#include "Views/Divider.h"

#include "Views/SystemColors.h"

#include <QPainter>

Divider::Divider()
{
    setFixedHeight(1);
}

void Divider::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), SystemColors::line(palette()));
}
