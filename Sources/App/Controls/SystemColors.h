// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

/// Colours without a role in QPalette. They depend only on the palette that is passed in, so a
/// change between light and dark needs only a repaint.
namespace SystemColors {

[[nodiscard]] bool isDark(const QPalette& palette);

/// Returns true for a palette of almost only black and white. Edges then have the colour of the
/// text, and text has a contrast of at least 7.
[[nodiscard]] bool isHighContrast(const QPalette& palette);

[[nodiscard]] QColor blue(const QPalette& palette);
[[nodiscard]] QColor green(const QPalette& palette);
[[nodiscard]] QColor orange(const QPalette& palette);
[[nodiscard]] QColor red(const QPalette& palette);
[[nodiscard]] QColor gray(const QPalette& palette);

/// The text colour at an opacity of 55 % or more, readable on the window and on its panels.
[[nodiscard]] QColor secondaryText(const QPalette& palette);

[[nodiscard]] QColor disabledText(const QPalette& palette);

/// The background of a panel: the secondary colour at an opacity of 8 %.
[[nodiscard]] QColor panel(const QPalette& palette);

/// The line around a control, a menu or a dialog.
[[nodiscard]] QColor edge(const QPalette& palette, bool isEnabled = true);

/// The ring around the control that has the focus.
[[nodiscard]] QColor focusRing(const QPalette& palette);

/// A dividing line, and the track of a progress bar.
[[nodiscard]] QColor line(const QPalette& palette);

/// `color` at `opacity`, 0 to 1.
[[nodiscard]] QColor withOpacity(const QColor& color, double opacity);

/// Returns the colour of a translucent `color` on `background`.
[[nodiscard]] QColor blended(const QColor& color, const QColor& background);

/// The contrast ratio of two opaque colours, 1 to 21, as WCAG defines it.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// Returns `color` mixed with just enough of the text colour to be readable on `background`.
[[nodiscard]] QColor readable(const QColor& color, const QColor& background,
                              const QPalette& palette);

/// The accent colour behind white text: blue, darkened just enough to make the text readable.
[[nodiscard]] QColor accentUnderText(const QPalette& palette);

} // namespace SystemColors
