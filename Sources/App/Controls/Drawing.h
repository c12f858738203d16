// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

class QImage;
class QPainter;
class QPainterPath;
class QRectF;
class QSize;

/// Mirrors the painter's coordinates horizontally, for a right-to-left widget of `width`.
void mirror(QPainter& painter, int width);

/// A rectangle with continuous corners: their curvature grows gradually from the straight sides.
[[nodiscard]] QPainterPath continuousRoundedRect(const QRectF& rect, double radius);

/// An image with the blurred silhouette of `shape` in `color`. `size` and the blur's `radius` are
/// in device-independent pixels; `scale` is the device pixel ratio.
[[nodiscard]] QImage softShadow(const QPainterPath& shape, const QSize& size, double scale,
                                double radius, const QColor& color);
