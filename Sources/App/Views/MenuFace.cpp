// SPDX-License-Identifier: MIT
#include "Views/MenuFace.h"

#include "Views/ControlFace.h"
#include "Views/Glyphs.h"
#include "Views/SystemColors.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionMenuItem>

namespace MenuFace {

namespace {

/// The place of the mark before the title, and the room around both.
constexpr auto markWidth = 12;
constexpr auto margin = 8;
constexpr auto highlightInset = 3;

} // namespace

void paintItem(QPainter& painter, const QStyleOptionMenuItem& item)
{
    const auto& palette = item.palette;
    const auto highlighted = item.state.testFlag(QStyle::State_Selected);
    const auto color =
        palette.color(highlighted ? QPalette::HighlightedText : QPalette::ButtonText);
    const QRect row = item.rect;
    const QRect mark(row.left() + margin, row.top(), markWidth, row.height());
    const auto title = row.adjusted(margin + markWidth + margin, 0, -margin, 0);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(row, palette.color(QPalette::Button));
    if (highlighted) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette.color(QPalette::Highlight));
        painter.drawRoundedRect(row.adjusted(highlightInset, 1, -highlightInset, -1),
                                ControlFace::radius - 1, ControlFace::radius - 1);
    }
    if (item.checked) {
        const auto place = QStyle::visualRect(item.direction, row, mark);
        painter.setPen(QPen(color, 1.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(
            Glyphs::checkMark(QRectF(QPointF(), QSizeF(9, 7))
                                  .translated(QRectF(place).center() - QPointF(4.5, 3.5))));
    }
    painter.setPen(color);
    painter.setFont(item.font);
    painter.drawText(QStyle::visualRect(item.direction, row, title),
                     static_cast<int>(Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine),
                     item.text);
    painter.restore();
}

void paintFrame(QPainter& painter, const QStyleOption& option)
{
    const auto face = option.palette.color(QPalette::Button);
    painter.save();
    painter.setPen(SystemColors::blended(SystemColors::edge(option.palette), face));
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

} // namespace MenuFace
