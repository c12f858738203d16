// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QStyle>

class QPainter;
class QStyleOptionSlider;

/// A slim scroll bar without arrows: the groove is all of it, and nothing is drawn where there is
/// nothing to scroll.
namespace ScrollBarFace {

inline constexpr auto extent = 12;
inline constexpr auto shortestSlider = 28;

/// Where a part of the bar is; empty for a part that it does not have.
[[nodiscard]] QRect part(const QStyleOptionSlider& option, QStyle::SubControl which);

void paint(QPainter& painter, const QStyleOptionSlider& option);

} // namespace ScrollBarFace
