// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>

/// Swaps left and right in all that `painter` draws from here on, over a width of `width`: for what
/// leads from right to left where the text does.
inline void mirror(QPainter& painter, int width)
{
    painter.translate(width, 0);
    painter.scale(-1, 1);
}
