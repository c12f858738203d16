// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QStyle>

class QPainter;
class QPalette;
class QRectF;

/// The one visual language of everything that can be pressed: a softly rounded face with a thin
/// edge, which answers to the pointer and the keyboard.
namespace ControlFace {

/// The corner radius of every control of ordinary size.
inline constexpr auto radius = 6.0;

/// The room around the words of a control of ordinary size, and how high it is at least.
inline constexpr auto horizontalPadding = 14;
inline constexpr auto verticalPadding = 5;
inline constexpr auto leastHeight = 26;

/// A bordered face in the palette's button colour, with the ring when the keyboard is on it.
void paint(QPainter& painter, const QRectF& rect, QStyle::State state, const QPalette& palette);

/// A face filled with `accent`, for the button that Return presses.
void paintProminent(QPainter& painter, const QRectF& rect, QStyle::State state,
                    const QPalette& palette, const QColor& accent, double cornerRadius);

/// The colour of what stands on a prominent face.
[[nodiscard]] QColor prominentText(QStyle::State state, const QPalette& palette);

/// Whether the keyboard, and not the pointer, brought the focus here.
[[nodiscard]] bool showsFocus(QStyle::State state);

/// The ring around what has the keyboard's focus, just inside `rect`.
void paintFocusRing(QPainter& painter, const QRectF& rect, double cornerRadius,
                    const QColor& color);

} // namespace ControlFace
