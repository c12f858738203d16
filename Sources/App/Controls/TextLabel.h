// SPDX-License-Identifier: MIT
#pragma once

#include "Controls/TypeScale.h"

#include <QLabel>

#include <functional>
#include <map>

/// The two strengths of the window's text.
enum class TextTone { primary, secondary };

/// A text in one of the window's styles, which wraps to as many lines as it needs; inside a word
/// only if that is wider than the label.
///
/// Plain text only: nothing that a repository or a server says is taken for markup. It follows the
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

private:
    /// The sizes of `text` in `font`. Kept because layouts ask for them again and again: without
    /// this, the window takes half as long again to be laid out.
    struct Sizes
    {
        QString text;
        QFont font;
        QSize oneLine;
        std::map<int, int> heights;
    };
    [[nodiscard]] Sizes& sizes() const;

    mutable Sizes m_sizes;
};
