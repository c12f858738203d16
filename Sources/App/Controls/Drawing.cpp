// SPDX-License-Identifier: MIT
#include "Controls/Drawing.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QTransform>

#include <algorithm>
#include <array>
#include <vector>

namespace {

/// The length of a continuous corner along each side, in radii.
constexpr auto cornerReach = 1.528665;

/// Adds one corner to `path`, from the end of its horizontal side to the end of its vertical one.
/// `transform` maps a top-left corner of radius 1 at the origin to the wanted corner.
void addCorner(QPainterPath& path, const QTransform& transform)
{
    const auto at = [&transform](double x, double y) { return transform.map(QPointF(x, y)); };
    path.lineTo(at(cornerReach, 0));
    path.cubicTo(at(1.088493, 0), at(0.868407, 0), at(0.669934, 0.065496));
    path.lineTo(at(0.631494, 0.074911));
    path.cubicTo(at(0.372824, 0.169059), at(0.169060, 0.372824), at(0.074911, 0.631494));
    path.cubicTo(at(0, 0.868407), at(0, 1.088493), at(0, cornerReach));
}

/// Averages each byte of a row or column with its neighbours up to `reach` away. `step` is the
/// distance between two neighbours in memory. Outside of the image everything is zero.
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

/// Approximates a Gaussian blur by three box blurs in each direction.
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

void mirror(QPainter& painter, int width)
{
    painter.translate(width, 0);
    painter.scale(-1, 1);
}

QPainterPath continuousRoundedRect(const QRectF& rect, double radius)
{
    const auto size = std::min(radius, std::min(rect.width(), rect.height()) / (2 * cornerReach));
    const std::array corners{
        QTransform(size, 0, 0, size, rect.left(), rect.top()),
        QTransform(0, -size, size, 0, rect.left(), rect.bottom()),
        QTransform(-size, 0, 0, -size, rect.right(), rect.bottom()),
        QTransform(0, size, -size, 0, rect.right(), rect.top()),
    };
    QPainterPath path(corners.front().map(QPointF(cornerReach, 0)));
    for (const auto& corner : corners)
        addCorner(path, corner);
    path.closeSubpath();
    return path;
}

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
