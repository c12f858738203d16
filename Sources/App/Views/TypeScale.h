// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>

/// The text styles of the window. Body is the system's own font size; the others keep their ratio
/// to it, so that a player's larger font enlarges everything.
enum class TextStyle { title2, headline, body, callout, subheadline, caption };

/// The application's font in the size and weight of `style`. Follows the application's font of the
/// moment: ask again after a font change.
[[nodiscard]] QFont textFont(TextStyle style, QFont::Weight weight);
/// The same in the style's own weight: bold for a headline, regular for the rest.
[[nodiscard]] QFont textFont(TextStyle style);

/// The system's fixed-width font in the size of `style`.
[[nodiscard]] QFont monospacedFont(TextStyle style);

/// The application's font at a size of its own, in device-independent pixels.
[[nodiscard]] QFont systemFont(int pixelSize, QFont::Weight weight);
