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

/// Draws the parts of controls: bezels, focus rings, pop-up menus and scroll bars. All sizes are in
/// device-independent pixels.
namespace ControlPainter {

/// The sizes of an ordinary control. The minimum padding is for a title that would not fit
/// otherwise.
inline constexpr auto cornerRadius = 6.0;
inline constexpr auto horizontalPadding = 14;
inline constexpr auto minHorizontalPadding = 6;
inline constexpr auto verticalPadding = 5;
inline constexpr auto minHeight = 26;

inline constexpr auto scrollBarWidth = 12;
inline constexpr auto minScrollBarSlider = 28;

/// The minimum width of a control whose title wraps, and its height for a width.
[[nodiscard]] int minTitleWidth(const QString& title, const QFont& font);
[[nodiscard]] int titleHeight(const QString& title, const QFont& font, int width);

/// The title of an ordinary control, in the centre of `rect`.
void paintTitle(QPainter& painter, const QRect& rect, Qt::LayoutDirection direction,
                const QString& title, const QColor& color);

/// A rounded rectangle, antialiased.
void paintRoundedRect(QPainter& painter, const QRectF& rect, double radius, const QPen& pen,
                      const QBrush& brush);

/// A tinted rounded rectangle; with an edge in high contrast.
void paintTintedBox(QPainter& painter, const QRectF& rect, double radius, const QColor& tint,
                    const QPalette& palette, bool isEnabled = true);

/// The bezel of a control, with a focus ring if showsFocus().
void paintBezel(QPainter& painter, const QRectF& rect, QStyle::State state,
                const QPalette& palette);

/// The bezel of a default button, filled with `accent`, with a focus ring if showsFocus().
void paintProminentBezel(QPainter& painter, const QRectF& rect, QStyle::State state,
                         const QPalette& palette, const QColor& accent, double radius);

/// The colour of a title on a prominent bezel.
[[nodiscard]] QColor prominentText(QStyle::State state, const QPalette& palette);

/// Returns true if the control has got the focus by the keyboard.
[[nodiscard]] bool showsFocus(QStyle::State state);

/// A focus ring along the inner side of `rect`.
void paintFocusRing(QPainter& painter, const QRectF& rect, double radius, const QColor& color);

/// The two arrows of a pop-up button, in the centre of `rect`.
void paintPopUpArrows(QPainter& painter, const QRectF& rect, const QColor& color);

/// A row of a pop-up menu, with a check mark before the current choice.
void paintMenuItem(QPainter& painter, const QStyleOptionMenuItem& item);

/// The edge of a pop-up menu.
void paintMenuFrame(QPainter& painter, const QStyleOption& option);

/// The rectangle of a part of a scroll bar; empty for a part that it does not have, such as an
/// arrow.
[[nodiscard]] QRect scrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part);

/// A scroll bar. Draws nothing if there is nothing to scroll.
void paintScrollBar(QPainter& painter, const QStyleOptionSlider& option);

} // namespace ControlPainter
