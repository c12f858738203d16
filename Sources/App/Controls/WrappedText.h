// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>

class QFont;
class QPainter;
class QRect;
class QString;

/// Plain text that wraps between words, and inside a word only where that is wider than the line.
namespace WrappedText {

/// The height of `text` in lines of `width`.
[[nodiscard]] int height(const QString& text, const QFont& font, int width);

/// The width of the widest word of `text`.
[[nodiscard]] int widestWord(const QString& text, const QFont& font);

/// Draws `text` with the painter's font and pen. A leading alignment follows `direction`, and
/// so does the order of the words if some are written from the right.
void paint(QPainter& painter, const QRect& rect, Qt::Alignment alignment,
           Qt::LayoutDirection direction, const QString& text);

} // namespace WrappedText
