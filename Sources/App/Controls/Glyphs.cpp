// SPDX-License-Identifier: MIT
#include "Controls/Glyphs.h"

#include <QPainterPath>
#include <QPainterPathStroker>
#include <QRectF>
#include <QTransform>

namespace Glyphs {

namespace {

/// The controller's outline, 100 wide and 64 high, from the top centre clockwise.
QPainterPath controllerBody()
{
    QPainterPath body(QPointF(50, 5));
    body.cubicTo(58, 5, 60, 1, 68, 1);
    body.cubicTo(84, 1, 91, 13, 96, 33);
    body.cubicTo(99, 45, 100, 53, 97, 58);
    body.cubicTo(94, 63, 86, 64, 80, 58);
    body.cubicTo(74, 52, 71, 44, 62, 44);
    body.lineTo(38, 44);
    body.cubicTo(29, 44, 26, 52, 20, 58);
    body.cubicTo(14, 64, 6, 63, 3, 58);
    body.cubicTo(0, 53, 1, 45, 4, 33);
    body.cubicTo(9, 13, 16, 1, 32, 1);
    body.cubicTo(40, 1, 42, 5, 50, 5);
    body.closeSubpath();
    return body;
}

QPainterPath directionalPad(const QPointF& centre)
{
    constexpr auto arm = 8.5;
    constexpr auto half = 2.8;
    QPainterPath across;
    across.addRoundedRect(QRectF(centre.x() - arm, centre.y() - half, 2 * arm, 2 * half), 1.6, 1.6);
    QPainterPath down;
    down.addRoundedRect(QRectF(centre.x() - half, centre.y() - arm, 2 * half, 2 * arm), 1.6, 1.6);
    return across.united(down);
}

QPainterPath disc(const QPointF& centre, double radius)
{
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    return path;
}

} // namespace

QPainterPath gameController(const QRectF& rect)
{
    const auto drawing = controllerBody()
                             .subtracted(directionalPad({29, 23}))
                             .subtracted(disc({66, 28}, 4.2))
                             .subtracted(disc({76.5, 18}, 4.2));
    const auto scale = rect.width() / 100;
    return QTransform::fromTranslate(rect.left(), rect.center().y() - 32 * scale)
        .scale(scale, scale)
        .map(drawing);
}

QPainterPath play(const QRectF& rect)
{
    // A round pen around the triangle, united with it, rounds the corners.
    const auto pen = rect.height() * 0.16;
    const auto inner = rect.adjusted(pen / 2, pen / 2, -pen / 2, -pen / 2);
    QPainterPath triangle(inner.topLeft());
    triangle.lineTo(inner.right(), inner.center().y());
    triangle.lineTo(inner.bottomLeft());
    triangle.closeSubpath();
    QPainterPathStroker stroker;
    stroker.setWidth(pen);
    stroker.setJoinStyle(Qt::RoundJoin);
    return triangle.united(stroker.createStroke(triangle));
}

QPainterPath chevron(const QRectF& rect)
{
    QPainterPath path(rect.topLeft());
    path.lineTo(rect.right(), rect.center().y());
    path.lineTo(rect.bottomLeft());
    return path;
}

QPainterPath checkMark(const QRectF& rect)
{
    QPainterPath path({rect.left(), rect.center().y()});
    path.lineTo(rect.left() + rect.width() * 0.36, rect.bottom());
    path.lineTo(rect.topRight());
    return path;
}

} // namespace Glyphs
