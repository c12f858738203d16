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

TextLabel::Sizes& TextLabel::sizes() const
{
    if (m_sizes.text != text() || m_sizes.font != font()) {
        const QSize oneLine(fontMetrics().size(0, text()).width(),
                            WrappedText::height(text(), font(), QWIDGETSIZE_MAX));
        m_sizes = {text(), font(), oneLine, {}};
    }
    return m_sizes;
}

QSize TextLabel::sizeHint() const
{
    return sizes().oneLine;
}

QSize TextLabel::minimumSizeHint() const
{
    // Only the width matters: the layout asks heightForWidth() for the height.
    constexpr auto minWrappedWidth = 80;
    const auto size = sizes().oneLine;
    return {wordWrap() ? std::min(size.width(), minWrappedWidth) : size.width(), size.height()};
}

int TextLabel::heightForWidth(int width) const
{
    auto& known = sizes();
    if (width > known.oneLine.width())
        return known.oneLine.height();
    const auto [height, isNew] = known.heights.try_emplace(width);
    if (isNew)
        height->second = WrappedText::height(text(), font(), width);
    return height->second;
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
