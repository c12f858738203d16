// SPDX-License-Identifier: MIT
#include "Views/TextLabel.h"

#include <QEvent>

#include <algorithm>

namespace {

/// The narrowest column that a text is asked to wrap in.
constexpr auto leastWidth = 80;

} // namespace

TextLabel::TextLabel(std::function<QFont()> font, const QString& text, TextTone tone)
    : m_font(std::move(font))
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    // The style draws this role in the secondary colour of the palette of the moment.
    setForegroundRole(tone == TextTone::secondary ? QPalette::PlaceholderText
                                                  : QPalette::WindowText);
    setFont(m_font());
    setText(text);
}

TextLabel::TextLabel(TextStyle style, const QString& text, TextTone tone)
    : TextLabel([style] { return textFont(style); }, text, tone)
{
}

TextLabel::TextLabel(TextStyle style, QFont::Weight weight, const QString& text)
    : TextLabel([style, weight] { return textFont(style, weight); }, text, TextTone::primary)
{
}

TextLabel::TextLabel(int pixelSize, QFont::Weight weight, const QString& text)
    : TextLabel([pixelSize, weight] { return systemFont(pixelSize, weight); }, text,
                TextTone::primary)
{
}

TextLabel::Measurement& TextLabel::measurement() const
{
    if (m_measurement.text != text() || m_measurement.font != font()) {
        const QSize line(fontMetrics().size(0, text()).width(),
                         QLabel::heightForWidth(QWIDGETSIZE_MAX));
        m_measurement = {text(), font(), line, {}};
    }
    return m_measurement;
}

QSize TextLabel::sizeHint() const
{
    return wordWrap() ? measurement().line : QLabel::sizeHint();
}

int TextLabel::heightForWidth(int width) const
{
    if (!wordWrap())
        return QLabel::heightForWidth(width);
    auto& measured = measurement();
    if (width > measured.line.width())
        return measured.line.height();
    const auto [height, isNew] = measured.heights.try_emplace(width);
    if (isNew)
        height->second = QLabel::heightForWidth(width);
    return height->second;
}

QSize TextLabel::minimumSizeHint() const
{
    if (!wordWrap())
        return QLabel::minimumSizeHint();
    // The height follows from the width that the label is given. One guessed from a small width
    // would make the column that all stands in taller than it has to be.
    return {std::min(measurement().line.width(), leastWidth), measurement().line.height()};
}

bool TextLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationFontChange)
        setFont(m_font());
    return QLabel::event(event);
}
