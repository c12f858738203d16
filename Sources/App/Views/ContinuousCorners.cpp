// SPDX-License-Identifier: MIT
#include "Views/ContinuousCorners.h"

#include <QPainterPath>
#include <QRectF>
#include <QTransform>

#include <algorithm>
#include <array>

namespace {

/// How far along each side, in radii, the corner reaches.
constexpr auto reach = 1.528665;

/// One corner in a frame of its own: it enters along the top side from the right, at (reach, 0),
/// and leaves along the left side at (0, reach). In radii.
void addCorner(QPainterPath& path, const QTransform& place)
{
    const auto at = [&place](double x, double y) { return place.map(QPointF(x, y)); };
    path.lineTo(at(reach, 0));
    path.cubicTo(at(1.088493, 0), at(0.868407, 0), at(0.669934, 0.065496));
    path.lineTo(at(0.631494, 0.074911));
    path.cubicTo(at(0.372824, 0.169059), at(0.169060, 0.372824), at(0.074911, 0.631494));
    path.cubicTo(at(0, 0.868407), at(0, 1.088493), at(0, reach));
}

} // namespace

QPainterPath continuousRoundedRect(const QRectF& rect, double radius)
{
    const auto size = std::min(radius, std::min(rect.width(), rect.height()) / (2 * reach));
    // Each corner's place: its own point, and the directions of its two sides.
    const std::array places{
        QTransform(size, 0, 0, size, rect.left(), rect.top()),
        QTransform(0, -size, size, 0, rect.left(), rect.bottom()),
        QTransform(-size, 0, 0, -size, rect.right(), rect.bottom()),
        QTransform(0, size, -size, 0, rect.right(), rect.top()),
    };
    QPainterPath path(places.front().map(QPointF(reach, 0)));
    for (const auto& place : places)
        addCorner(path, place);
    path.closeSubpath();
    return path;
}
