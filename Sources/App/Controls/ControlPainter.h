// SPDX-License-Identifier: MIT
#pragma once

#include <QBrush>
#include <QPen>
#include <QRect>
#include <QStyle>

class QPainter;
class QPalette;
class QRectF;
class QStyleOptionMenuItem;
class QStyleOptionSlider;

/// Draws the controls: softly rounded bezels with a thin edge, a focus ring, pop-up menus and slim
/// scroll bars. Rectangles are in device-independent pixels.
namespace ControlPainter {

/// Sizes of a control of ordinary size: its corners, the room around its title, and the least of it
/// where space is short, its height.
inline constexpr auto cornerRadius = 6.0;
inline constexpr auto horizontalPadding = 14;
inline constexpr auto minHorizontalPadding = 6;
inline constexpr auto verticalPadding = 5;
inline constexpr auto minHeight = 26;

inline constexpr auto scrollBarWidth = 12;
inline constexpr auto minScrollBarSlider = 28;

/// The smallest width of a control whose title wraps between its words, and its height at a width.
[[nodiscard]] int minTitleWidth(const QString& title, const QFont& font);
[[nodiscard]] int titleHeight(const QString& title, const QFont& font, int width);

/// The title of a control of ordinary size in the centre of `rect`.
void paintTitle(QPainter& painter, const QRect& rect, Qt::LayoutDirection direction,
                const QString& title, const QColor& color);

/// A rounded rectangle, antialiased.
void paintRoundedRect(QPainter& painter, const QRectF& rect, double radius, const QPen& pen,
                      const QBrush& brush);

/// A box that its tint sets off from what is behind it, and in high contrast an edge as well.
void paintTintedBox(QPainter& painter, const QRectF& rect, double radius, const QColor& tint,
                    const QPalette& palette, bool isEnabled = true);

/// A bezel in the palette's button colour, with a focus ring if the keyboard is on it.
void paintBezel(QPainter& painter, const QRectF& rect, QStyle::State state,
                const QPalette& palette);

/// A bezel filled with `accent`, for the button that Return presses.
void paintProminentBezel(QPainter& painter, const QRectF& rect, QStyle::State state,
                         const QPalette& palette, const QColor& accent, double radius);

/// The colour of a title on a prominent bezel.
[[nodiscard]] QColor prominentText(QStyle::State state, const QPalette& palette);

/// Whether the control got the focus from the keyboard rather than from the pointer.
[[nodiscard]] bool showsFocus(QStyle::State state);

/// A focus ring just inside `rect`.
void paintFocusRing(QPainter& painter, const QRectF& rect, double radius, const QColor& color);

/// The two arrows of a pop-up button, in the centre of `rect`.
void paintPopUpArrows(QPainter& painter, const QRectF& rect, const QColor& color);

/// A row of a pop-up menu, with a check mark before the current choice.
void paintMenuItem(QPainter& painter, const QStyleOptionMenuItem& item);

/// The edge of a pop-up menu.
void paintMenuFrame(QPainter& painter, const QStyleOption& option);

/// The rectangle of a part of a scroll bar, which has a slider and no arrows. Empty for a part that
/// it lacks.
[[nodiscard]] QRect scrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part);

/// A scroll bar. Draws nothing if there is nothing to scroll.
void paintScrollBar(QPainter& painter, const QStyleOptionSlider& option);

} // namespace ControlPainter
