// SPDX-License-Identifier: MIT
#include "Views/SoftShadow.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <vector>

namespace {

/// Averages each value of a row with its neighbours up to `reach` away; outside all is empty.
/// `step` is the distance between two neighbours, so that a column is a row too.
void boxBlur(uchar* first, qsizetype count, qsizetype step, qsizetype reach)
{
    std::vector<int> values(static_cast<size_t>(count + 2 * reach));
    for (qsizetype i = 0; i < count; ++i)
        values[static_cast<size_t>(i + reach)] = first[i * step];
    auto sum = 0;
    for (qsizetype i = 0; i < 2 * reach; ++i)
        sum += values[static_cast<size_t>(i)];
    for (qsizetype i = 0; i < count; ++i) {
        sum += values[static_cast<size_t>(i + 2 * reach)];
        first[i * step] = static_cast<uchar>(sum / (2 * reach + 1));
        sum -= values[static_cast<size_t>(i)];
    }
}

/// Three box blurs in each direction come close to a Gaussian.
void blur(QImage& mask, int reach)
{
    auto* const bits = mask.bits();
    const auto stride = mask.bytesPerLine();
    for (auto pass = 0; pass < 3; ++pass) {
        for (auto y = 0; y < mask.height(); ++y)
            boxBlur(bits + y * stride, mask.width(), 1, reach);
        for (auto x = 0; x < mask.width(); ++x)
            boxBlur(bits + x, mask.height(), stride, reach);
    }
}

} // namespace

QImage softShadow(const QPainterPath& shape, const QSize& size, double scale, double radius,
                  const QColor& color)
{
    const auto pixels = (QSizeF(size) * scale).toSize();
    QImage mask(pixels, QImage::Format_Alpha8);
    mask.fill(0);
    QPainter maskPainter(&mask);
    maskPainter.setRenderHint(QPainter::Antialiasing);
    maskPainter.scale(scale, scale);
    maskPainter.fillPath(shape, Qt::black);
    maskPainter.end();
    blur(mask, std::max(1, qRound(radius * scale / 3)));

    QImage shadow(pixels, QImage::Format_ARGB32_Premultiplied);
    shadow.fill(color);
    QPainter painter(&shadow);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, mask);
    painter.end();
    shadow.setDevicePixelRatio(scale);
    return shadow;
}
