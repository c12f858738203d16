// SPDX-License-Identifier: MIT
#pragma once

class QPainterPath;
class QRectF;

/// A rectangle whose rounded corners run into the straight sides without a jump in curvature, which
/// looks softer than a quarter circle of the same radius.
[[nodiscard]] QPainterPath continuousRoundedRect(const QRectF& rect, double radius);
