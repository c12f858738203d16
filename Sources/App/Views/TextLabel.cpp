// SPDX-License-Identifier: MIT
#include "Views/TextLabel.h"

#include <QEvent>

TextLabel::TextLabel(std::function<QFont()> font, const QString& text, TextTone tone)
    : m_font(std::move(font))
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
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

bool TextLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ApplicationFontChange)
        setFont(m_font());
    return QLabel::event(event);
}
