// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

class QImage;
class QPainterPath;
class QSize;

/// The blurred silhouette of `shape`, in `color`, on a transparent image of `size`
/// device-independent pixels at `scale` device pixels each. `radius` is how far the blur reaches.
[[nodiscard]] QImage softShadow(const QPainterPath& shape, const QSize& size, double scale,
                                double radius, const QColor& color);
