// SPDX-License-Identifier: MIT
#pragma once

class QPainterPath;
class QPointF;
class QRectF;

/// The window's symbols as vector paths, to be filled.
namespace Glyphs {

/// A filled game controller with its directional pad and buttons cut out, as wide as `rect` and
/// centred in it.
[[nodiscard]] QPainterPath gameController(const QRectF& rect);

/// A filled triangle that points to the right, with softened corners, inside `rect`.
[[nodiscard]] QPainterPath play(const QRectF& rect);

/// An angle that points to the right, to be stroked, inside `rect`.
[[nodiscard]] QPainterPath chevron(const QRectF& rect);

/// A check mark, to be stroked, inside `rect`.
[[nodiscard]] QPainterPath checkMark(const QRectF& rect);

} // namespace Glyphs
