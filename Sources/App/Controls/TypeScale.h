// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

#include <functional>

class QEvent;
class QWidget;

/// The text styles of the window. Body has the size of the application's font; the others are in
/// proportion to it.
enum class TextStyle { title2, headline, body, callout, subheadline, caption };

/// Returns the application's font in the size of `style`.
[[nodiscard]] QFont textFont(TextStyle style, QFont::Weight weight);
/// The same in the weight of `style`: bold for a title and a headline, regular for the others.
[[nodiscard]] QFont textFont(TextStyle style);

/// Returns the system's fixed-width font in the size of `style`.
[[nodiscard]] QFont monospacedFont(TextStyle style);

/// Returns the application's font in a size in device-independent pixels.
[[nodiscard]] QFont systemFont(int pixelSize, QFont::Weight weight);

/// Sets the font of `widget` to the result of `font`, now and after each change of the
/// application's font. The window must call propagateFontChange().
void followFont(QWidget& widget, const std::function<QFont()>& font);

/// Passes on QEvent::ApplicationFontChange to all widgets in `window`, since Qt sends it only to
/// windows. Call it with each event of the window.
void propagateFontChange(const QWidget& window, const QEvent& event);
