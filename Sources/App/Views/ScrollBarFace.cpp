// SPDX-License-Identifier: MIT
#include "Views/ScrollBarFace.h"

#include "Views/SystemColors.h"

#include <QPainter>
#include <QStyleOptionSlider>

#include <algorithm>

namespace ScrollBarFace {

QRect part(const QStyleOptionSlider& option, QStyle::SubControl which)
{
    const auto horizontal = option.orientation == Qt::Horizontal;
    const auto length = horizontal ? option.rect.width() : option.rect.height();
    const auto range = option.maximum - option.minimum;
    const auto wanted =
        range > 0
            ? static_cast<int>(qint64{length} * option.pageStep / (qint64{range} + option.pageStep))
            : length;
    const auto slider = std::min(length, std::max(wanted, shortestSlider));
    const auto start = QStyle::sliderPositionFromValue(
        option.minimum, option.maximum, option.sliderPosition, length - slider, option.upsideDown);
    const auto along = [&option, horizontal](int from, int count) {
        const auto& bar = option.rect;
        return horizontal ? QRect(bar.left() + from, bar.top(), count, bar.height())
                          : QRect(bar.left(), bar.top() + from, bar.width(), count);
    };
    switch (which) {
    case QStyle::SC_ScrollBarGroove:
        return option.rect;
    case QStyle::SC_ScrollBarSlider:
        return along(start, slider);
    case QStyle::SC_ScrollBarSubPage:
        return along(0, start);
    case QStyle::SC_ScrollBarAddPage:
        return along(start + slider, length - start - slider);
    default:
        return {};
    }
}

void paint(QPainter& painter, const QStyleOptionSlider& option)
{
    if (option.maximum <= option.minimum)
        return;
    const auto active = option.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider) &&
                        option.state & (QStyle::State_MouseOver | QStyle::State_Sunken);
    const auto text = option.palette.color(QPalette::WindowText);
    const auto shape = QRectF(part(option, QStyle::SC_ScrollBarSlider)).adjusted(3, 3, -3, -3);
    const auto radius = std::min(shape.width(), shape.height()) / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(SystemColors::withOpacity(text, active ? 0.5 : 0.3));
    painter.drawRoundedRect(shape, radius, radius);
    painter.restore();
}

} // namespace ScrollBarFace
