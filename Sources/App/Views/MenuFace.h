// SPDX-License-Identifier: MIT
#pragma once

class QPainter;
class QStyleOption;
class QStyleOptionMenuItem;

/// The menu that a pop-up button opens: rows with a softly rounded highlight, and a mark at the
/// choice of the moment.
namespace MenuFace {

void paintItem(QPainter& painter, const QStyleOptionMenuItem& item);

/// The edge that sets the menu off from what is behind it.
void paintFrame(QPainter& painter, const QStyleOption& option);

} // namespace MenuFace
