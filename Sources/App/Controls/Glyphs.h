// SPDX-License-Identifier: MIT
#pragma once

class QPainterPath;
class QPointF;
class QRectF;

/// The window's symbols as vector paths.
namespace Glyphs {

/// A game controller, to be filled. As wide as `rect` and vertically centred in it.
[[nodiscard]] QPainterPath gameController(const QRectF& rect);

/// A triangle with rounded corners that points to the right, to be filled.
[[nodiscard]] QPainterPath play(const QRectF& rect);

/// A chevron that points to the right, to be stroked.
[[nodiscard]] QPainterPath chevron(const QRectF& rect);

/// A check mark, to be stroked.
[[nodiscard]] QPainterPath checkMark(const QRectF& rect);

} // namespace Glyphs
