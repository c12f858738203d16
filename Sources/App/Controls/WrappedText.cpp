// SPDX-License-Identifier: MIT
#include "Controls/WrappedText.h"

#include <QCache>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace WrappedText {

namespace {

/// Replaces each newline by the line separator of QTextLayout.
QString separated(QString text)
{
    return text.replace(u'\n', QChar::LineSeparator);
}

/// Lays out the text in lines of `width`, and returns its size.
QSize layOut(QTextLayout& layout, const QTextOption& option, int width)
{
    layout.setTextOption(option);
    const auto leading = QFontMetricsF(layout.font()).leading();
    auto height = -leading;
    auto widest = 0.0;
    layout.beginLayout();
    for (auto line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, std::ceil(height + leading)});
        height = line.y() + line.height();
        widest = std::max(widest, line.naturalTextWidth());
    }
    layout.endLayout();
    return QSizeF(std::ceil(widest), std::ceil(height)).toSize();
}

QTextOption wrapping(QTextOption::WrapMode mode)
{
    QTextOption option;
    option.setWrapMode(mode);
    return option;
}

struct Measurement
{
    QString text;
    QFont font;
    int width;
    QTextOption::WrapMode mode;

    bool operator==(const Measurement&) const = default;
};

std::size_t qHash(const Measurement& measurement, std::size_t seed)
{
    return qHashMulti(seed, measurement.text, measurement.font, measurement.width,
                      static_cast<int>(measurement.mode));
}

/// Returns the size of the text, from a cache: without it, the layout of the window takes half as
/// long again.
QSize knownSize(const Measurement& measurement)
{
    constexpr auto maxSizes = 1000;
    static QCache<Measurement, QSize> sizes(maxSizes);
    if (const auto* const known = sizes[measurement])
        return *known;
    QTextLayout layout(separated(measurement.text), measurement.font);
    const auto size = layOut(layout, wrapping(measurement.mode), measurement.width);
    sizes.insert(measurement, new QSize(size));
    return size;
}

bool isReadFromTheRight(QChar character)
{
    return character.direction() == QChar::DirR || character.direction() == QChar::DirAL;
}

} // namespace

QSize size(const QString& text, const QFont& font, int width)
{
    return knownSize({text, font, width, QTextOption::WrapAtWordBoundaryOrAnywhere});
}

int widestWord(const QString& text, const QFont& font)
{
    return knownSize({text, font, 0, QTextOption::WordWrap}).width();
}

void paint(QPainter& painter, const QRect& rect, Qt::Alignment alignment,
           Qt::LayoutDirection direction, const QString& text)
{
    auto option = wrapping(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setAlignment(QStyle::visualAlignment(direction, alignment));
    // Otherwise the full stop of an English sentence would be on the left.
    const auto isMirrored = std::any_of(text.begin(), text.end(), isReadFromTheRight);
    option.setTextDirection(isMirrored ? direction : Qt::LeftToRight);
    QTextLayout layout(separated(text), painter.font());
    const auto size = layOut(layout, option, rect.width());
    layout.draw(&painter, QStyle::alignedRect(Qt::LeftToRight, alignment & Qt::AlignVertical_Mask,
                                              {rect.width(), size.height()}, rect)
                              .topLeft());
}

} // namespace WrappedText
