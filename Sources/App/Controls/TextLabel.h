// SPDX-License-Identifier: MIT
#pragma once

#include "Controls/TypeScale.h"

#include <QLabel>

#include <functional>

/// The two strengths of the window's text.
enum class TextTone { primary, secondary };

/// A plain text that wraps, inside a word only if the word is wider than the label. Follows the
/// application's font and palette.
class TextLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit TextLabel(TextStyle style, const QString& text = {},
                       TextTone tone = TextTone::primary);
    /// `font` is called again after each change of the application's font.
    TextLabel(const std::function<QFont()>& font, const QString& text,
              TextTone tone = TextTone::primary);

    /// The size of the text on one line.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
