// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

/// The colours of the window that the palette has no role for. Each is a function of the palette
/// of the moment, so that a change between light and dark needs nothing but a repaint.
namespace SystemColors {

[[nodiscard]] bool isDark(const QPalette& palette);

[[nodiscard]] QColor blue(const QPalette& palette);
[[nodiscard]] QColor green(const QPalette& palette);
[[nodiscard]] QColor orange(const QPalette& palette);
[[nodiscard]] QColor red(const QPalette& palette);
[[nodiscard]] QColor gray(const QPalette& palette);

/// The window's text at about 55 % opacity, opaque enough to be read on the window and on the
/// panels that stand on it.
[[nodiscard]] QColor secondaryText(const QPalette& palette);

/// The tint of the panels that set off a part of the window: the secondary colour at 8 %.
[[nodiscard]] QColor panel(const QPalette& palette);

/// The line around a control, a menu or a dialog.
[[nodiscard]] QColor edge(const QPalette& palette);

/// The line between two parts, and the track of what moves along one.
[[nodiscard]] QColor line(const QPalette& palette);

/// `color` at `opacity`, 0 to 1.
[[nodiscard]] QColor withOpacity(const QColor& color, double opacity);

/// How `color`, if translucent, looks on `background`.
[[nodiscard]] QColor blended(const QColor& color, const QColor& background);

/// The contrast between two opaque colours, 1 to 21, as the accessibility guidelines define it.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// `color`, moved towards the palette's text only as far as reading it on `background` requires.
[[nodiscard]] QColor readable(const QColor& color, const QColor& background,
                              const QPalette& palette);

/// What is filled with the accent colour and bears white text of ordinary size: blue, darkened only
/// as far as reading that text requires.
[[nodiscard]] QColor accentUnderText(const QPalette& palette);

} // namespace SystemColors
