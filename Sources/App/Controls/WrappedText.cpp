// SPDX-License-Identifier: MIT
#include "Controls/WrappedText.h"

#include <QPainter>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <cmath>

namespace WrappedText {

namespace {

/// Lays out `text` as QPainter does, and returns its size.
QSize layOut(const QString& text, const QFont& font, QTextOption::WrapMode mode, int width)
{
    auto lines = text;
    QTextLayout layout(lines.replace(u'\n', QChar::LineSeparator), font);
    QTextOption option;
    option.setWrapMode(mode);
    layout.setTextOption(option);
    const auto leading = QFontMetricsF(layout.font()).leading();
    auto height = -leading;
    auto widest = 0.0;
    layout.beginLayout();
    for (auto line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        height = std::ceil(height + leading) + line.height();
        widest = std::max(widest, line.naturalTextWidth());
    }
    layout.endLayout();
    return QSizeF(std::ceil(widest), std::ceil(height)).toSize();
}

} // namespace

int height(const QString& text, const QFont& font, int width)
{
    return layOut(text, font, QTextOption::WrapAtWordBoundaryOrAnywhere, width).height();
}

int widestWord(const QString& text, const QFont& font)
{
    return layOut(text, font, QTextOption::WordWrap, 0).width();
}

void paint(QPainter& painter, const QRect& rect, Qt::Alignment alignment,
           Qt::LayoutDirection direction, const QString& text)
{
    QTextOption option(alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(direction);
    painter.drawText(QRectF(rect), text, option);
}

} // namespace WrappedText
