// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

class QFont;
class QPainter;
class QRect;
class QSize;
class QString;

/// Plain text that wraps between words, and inside a word only if it is wider than the line. For
/// the main thread.
namespace WrappedText {

/// Returns the size of `text` wrapped to `width`.
[[nodiscard]] QSize size(const QString& text, const QFont& font, int width);

/// Returns the width of the widest word of `text`.
[[nodiscard]] int widestWord(const QString& text, const QFont& font);

/// Draws `text` with the painter's font and pen. `direction` decides what a leading alignment
/// means, and the order of the words if some are right-to-left.
void paint(QPainter& painter, const QRect& rect, Qt::Alignment alignment,
           Qt::LayoutDirection direction, const QString& text);

} // namespace WrappedText
