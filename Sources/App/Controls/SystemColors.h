// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

/// The colours that a palette has no role for. Each follows from the palette that is passed in, so
/// that a change between light and dark needs a repaint only.
namespace SystemColors {

[[nodiscard]] bool isDark(const QPalette& palette);

/// Whether the palette is one for players who ask for contrast: all but black and white. Every edge
/// is then as strong as the text, and text has a contrast of at least 7.
[[nodiscard]] bool isHighContrast(const QPalette& palette);

[[nodiscard]] QColor blue(const QPalette& palette);
[[nodiscard]] QColor green(const QPalette& palette);
[[nodiscard]] QColor orange(const QPalette& palette);
[[nodiscard]] QColor red(const QPalette& palette);
[[nodiscard]] QColor gray(const QPalette& palette);

/// The window's text at an opacity of about 55 %, high enough to be readable on the window and on
/// its panels.
[[nodiscard]] QColor secondaryText(const QPalette& palette);

[[nodiscard]] QColor disabledText(const QPalette& palette);

/// The background of a panel: the secondary colour at an opacity of 8 %.
[[nodiscard]] QColor panel(const QPalette& palette);

/// The line around a control, a menu or a dialog.
[[nodiscard]] QColor edge(const QPalette& palette);
/// The line around a disabled control.
[[nodiscard]] QColor disabledEdge(const QPalette& palette);

/// The ring around the control that has the focus.
[[nodiscard]] QColor focusRing(const QPalette& palette);

/// A dividing line, and the track of a progress bar.
[[nodiscard]] QColor line(const QPalette& palette);

/// `color` at `opacity`, 0 to 1.
[[nodiscard]] QColor withOpacity(const QColor& color, double opacity);

/// Returns how a translucent `color` looks on `background`.
[[nodiscard]] QColor blended(const QColor& color, const QColor& background);

/// The contrast between two opaque colours, 1 to 21, as the accessibility guidelines define it.
[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// `color`, mixed with as little of the palette's text colour as makes it readable on `background`.
[[nodiscard]] QColor readable(const QColor& color, const QColor& background,
                              const QPalette& palette);

/// The accent colour below white text of ordinary size: blue, darkened as little as makes that text
/// readable.
[[nodiscard]] QColor accentUnderText(const QPalette& palette);

} // namespace SystemColors
