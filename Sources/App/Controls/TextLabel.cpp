// SPDX-License-Identifier: MIT
#include "Controls/TextLabel.h"

#include "Controls/SystemColors.h"
#include "Controls/WrappedText.h"

#include <QPainter>

#include <algorithm>

TextLabel::TextLabel(const std::function<QFont()>& font, const QString& text, TextTone tone)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    setForegroundRole(tone == TextTone::secondary ? QPalette::PlaceholderText
                                                  : QPalette::WindowText);
    followFont(*this, font);
    setText(text);
}

TextLabel::TextLabel(TextStyle style, const QString& text, TextTone tone)
    : TextLabel([style] { return textFont(style); }, text, tone)
{
}

QSize TextLabel::sizeHint() const
{
    return WrappedText::size(text(), font(), QWIDGETSIZE_MAX);
}

QSize TextLabel::minimumSizeHint() const
{
    // Only the width matters: the layout asks heightForWidth() for the height.
    constexpr auto minWrappedWidth = 80;
    const auto size = sizeHint();
    return {wordWrap() ? std::min(size.width(), minWrappedWidth) : size.width(), size.height()};
}

int TextLabel::heightForWidth(int width) const
{
    const auto oneLine = sizeHint();
    return width > oneLine.width() ? oneLine.height()
                                   : WrappedText::size(text(), font(), width).height();
}

void TextLabel::paintEvent(QPaintEvent*)
{
    // QLabel would align the text by its own direction instead of the window's.
    QPainter painter(this);
    painter.setPen(foregroundRole() == QPalette::PlaceholderText
                       ? SystemColors::secondaryText(palette())
                       : palette().color(foregroundRole()));
    WrappedText::paint(painter, contentsRect(), alignment(), layoutDirection(), text());
}
