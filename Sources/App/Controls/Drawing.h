// SPDX-License-Identifier: MIT
// What QPainter has no call for.
#pragma once

#include <QColor>

class QImage;
class QPainter;
class QPainterPath;
class QRectF;
class QSize;

/// Mirrors everything that `painter` draws from now on, for right-to-left layouts. `width` is that
/// of the painted widget.
void mirror(QPainter& painter, int width);

/// A rectangle with continuous corners: their curvature grows gradually from the straight sides,
/// which looks softer than a quarter circle of the same radius.
[[nodiscard]] QPainterPath continuousRoundedRect(const QRectF& rect, double radius);

/// The blurred silhouette of `shape` in `color` on a transparent image. `size` and `radius`, which
/// is how far the blur reaches, are device-independent pixels; `scale` is the device pixel ratio.
[[nodiscard]] QImage softShadow(const QPainterPath& shape, const QSize& size, double scale,
                                double radius, const QColor& color);
