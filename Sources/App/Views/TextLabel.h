// SPDX-License-Identifier: MIT
#pragma once

#include "Views/TypeScale.h"

#include <QLabel>

#include <functional>
#include <map>

/// The two strengths of the window's text.
enum class TextTone { primary, secondary };

/// A text in one of the window's styles that wraps to as many lines as it needs.
///
/// Plain text only: what a repository or a server says is never taken for markup. It follows the
/// system's font and palette while it is shown.
class TextLabel final : public QLabel
{
    Q_OBJECT

public:
    explicit TextLabel(TextStyle style, const QString& text = {},
                       TextTone tone = TextTone::primary);
    /// The same in another weight than the style's own.
    TextLabel(TextStyle style, QFont::Weight weight, const QString& text);
    /// The same at a size of its own, in device-independent pixels.
    TextLabel(int pixelSize, QFont::Weight weight, const QString& text);

    /// All of the text in one line.
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    bool event(QEvent* event) override;

private:
    TextLabel(std::function<QFont()> font, const QString& text, TextTone tone);

    /// How large the text is in its font. A layout asks for that over and over, and the label's own
    /// answers shape the whole text each time.
    struct Measurement
    {
        QString text;
        QFont font;
        QSize line;
        std::map<int, int> heights;
    };
    Measurement& measurement() const;

    /// Gives the font as the system would have it at the moment.
    std::function<QFont()> m_font;
    mutable Measurement m_measurement;
};
