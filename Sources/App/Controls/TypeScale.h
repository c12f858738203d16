// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

#include <functional>

class QEvent;
class QWidget;

/// The text styles of the window. Body has the size of the application's font; the others keep
/// their ratio to it, so that a larger system font enlarges everything.
enum class TextStyle { title2, headline, body, callout, subheadline, caption };

/// The application's font in the size of `style`.
[[nodiscard]] QFont textFont(TextStyle style, QFont::Weight weight);
/// The same in the style's own weight: bold for a title and a headline, regular for the others.
[[nodiscard]] QFont textFont(TextStyle style);

/// The system's fixed-width font in the size of `style`.
[[nodiscard]] QFont monospacedFont(TextStyle style);

/// The application's font at a size in device-independent pixels.
[[nodiscard]] QFont systemFont(int pixelSize, QFont::Weight weight);

/// Sets the font of `widget` to what `font` returns, now and after each change of the application's
/// font. The window has to call propagateFontChange().
void followFont(QWidget& widget, const std::function<QFont()>& font);

/// Sends a change of the application's font on to every widget in `window`: Qt tells windows only.
/// To be called with each event of the window.
void propagateFontChange(const QWidget& window, const QEvent& event);
