// SPDX-License-Identifier: MIT
#include "Controls/ControlPainter.h"

#include "Controls/Glyphs.h"
#include "Controls/SystemColors.h"
#include "Controls/WrappedText.h"

#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QStyleOption>

#include <algorithm>

namespace ControlPainter {

namespace {

/// Returns `color` blended with `overlay` on a pressed or hovered control, faded on a disabled one.
QColor inState(const QColor& color, QStyle::State state, const QColor& overlay)
{
    if (!state.testFlag(QStyle::State_Enabled))
        return SystemColors::withOpacity(color, 0.45);
    if (state.testFlag(QStyle::State_Sunken))
        return SystemColors::blended(SystemColors::withOpacity(overlay, 0.16), color);
    if (state.testFlag(QStyle::State_MouseOver))
        return SystemColors::blended(SystemColors::withOpacity(overlay, 0.06), color);
    return color;
}

/// The width available to a title in a control of `width`.
int titleWidth(const QString& title, const QFont& font, int width)
{
    // One pixel more on each side, because size hints are rounded.
    const auto usual = width - 2 * (horizontalPadding - 1);
    return WrappedText::widestWord(title, font) <= usual ? usual : width - 2 * minHorizontalPadding;
}

QPen roundPen(const QColor& color, double width)
{
    return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

} // namespace

int minTitleWidth(const QString& title, const QFont& font)
{
    return WrappedText::widestWord(title, font) + 2 * minHorizontalPadding;
}

int titleHeight(const QString& title, const QFont& font, int width)
{
    const auto text = WrappedText::size(title, font, titleWidth(title, font, width));
    return std::max(text.height() + 2 * verticalPadding, minHeight);
}

void paintTitle(QPainter& painter, const QRect& rect, Qt::LayoutDirection direction,
                const QString& title, const QColor& color)
{
    const auto padding = rect.width() - titleWidth(title, painter.font(), rect.width());
    painter.setPen(color);
    WrappedText::paint(painter, rect.adjusted(padding / 2, 0, -(padding - padding / 2), 0),
                       Qt::AlignCenter, direction, title);
}

void paintRoundedRect(QPainter& painter, const QRectF& rect, double radius, const QPen& pen,
                      const QBrush& brush)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.drawRoundedRect(rect, radius, radius);
    painter.restore();
}

void paintTintedBox(QPainter& painter, const QRectF& rect, double radius, const QColor& tint,
                    const QPalette& palette, bool isEnabled)
{
    if (!SystemColors::isHighContrast(palette)) {
        paintRoundedRect(painter, rect, radius, Qt::NoPen, tint);
        return;
    }
    paintRoundedRect(painter, rect.adjusted(0.5, 0.5, -0.5, -0.5), radius,
                     SystemColors::edge(palette, isEnabled), tint);
}

void paintBezel(QPainter& painter, const QRectF& rect, QStyle::State state, const QPalette& palette)
{
    const auto text = palette.color(QPalette::Active, QPalette::WindowText);
    const auto edge = SystemColors::edge(palette, state.testFlag(QStyle::State_Enabled));
    const auto face = inState(palette.color(QPalette::Active, QPalette::Button), state, text);
    paintRoundedRect(painter, rect.adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius, edge, face);
    if (showsFocus(state))
        paintFocusRing(painter, rect, cornerRadius, SystemColors::focusRing(palette));
}

void paintProminentBezel(QPainter& painter, const QRectF& rect, QStyle::State state,
                         const QPalette& palette, const QColor& accent, double radius)
{
    const auto text = palette.color(QPalette::Active, QPalette::WindowText);
    const auto isEnabled = state.testFlag(QStyle::State_Enabled);
    // Black also in dark mode, since the title is white.
    const auto face =
        isEnabled ? inState(accent, state, Qt::black) : SystemColors::withOpacity(text, 0.12);
    paintTintedBox(painter, rect, radius, face, palette, isEnabled);
    if (showsFocus(state))
        paintFocusRing(painter, rect.adjusted(2, 2, -2, -2), radius - 2, Qt::white);
}

QColor prominentText(QStyle::State state, const QPalette& palette)
{
    if (state.testFlag(QStyle::State_Enabled))
        return Qt::white;
    return SystemColors::disabledText(palette);
}

bool showsFocus(QStyle::State state)
{
    return state.testFlag(QStyle::State_HasFocus) &&
           state.testFlag(QStyle::State_KeyboardFocusChange);
}

void paintFocusRing(QPainter& painter, const QRectF& rect, double radius, const QColor& color)
{
    constexpr auto width = 2.5;
    constexpr auto inset = width / 2;
    paintRoundedRect(painter, rect.adjusted(inset, inset, -inset, -inset), radius - inset / 2,
                     QPen(color, width), Qt::NoBrush);
}

void paintPopUpArrows(QPainter& painter, const QRectF& rect, const QColor& color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(roundPen(color, 1.5));
    for (const auto direction : {-1, 1}) {
        painter.save();
        painter.translate(rect.center() + QPointF(0, direction * 3.5));
        painter.rotate(direction * 90);
        painter.drawPath(Glyphs::chevron({-1.75, -3, 3.5, 6}));
        painter.restore();
    }
    painter.restore();
}

void paintMenuItem(QPainter& painter, const QStyleOptionMenuItem& item)
{
    constexpr auto markWidth = 12;
    constexpr auto margin = 8;
    const auto& palette = item.palette;
    const auto isHighlighted = item.state.testFlag(QStyle::State_Selected);
    const auto color =
        palette.color(isHighlighted ? QPalette::HighlightedText : QPalette::ButtonText);
    const auto& row = item.rect;
    const QRect mark(row.left() + margin, row.top(), markWidth, row.height());
    const auto title = row.adjusted(margin + markWidth + margin, 0, -margin, 0);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(row, palette.color(QPalette::Button));
    if (isHighlighted)
        paintRoundedRect(painter, row.adjusted(3, 1, -3, -1), cornerRadius - 1, Qt::NoPen,
                         palette.color(QPalette::Highlight));
    if (item.checked) {
        const auto centre = QRectF(QStyle::visualRect(item.direction, row, mark)).center();
        painter.setPen(roundPen(color, 1.75));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(Glyphs::checkMark({centre - QPointF(4.5, 3.5), QSizeF(9, 7)}));
    }
    painter.setPen(color);
    painter.setFont(item.font);
    painter.drawText(QStyle::visualRect(item.direction, row, title),
                     static_cast<int>(Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine),
                     item.text);
    painter.restore();
}

void paintMenuFrame(QPainter& painter, const QStyleOption& option)
{
    const auto face = option.palette.color(QPalette::Button);
    painter.save();
    painter.setPen(SystemColors::blended(SystemColors::edge(option.palette), face));
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

QRect scrollBarPart(const QStyleOptionSlider& option, QStyle::SubControl part)
{
    const auto& bar = option.rect;
    const auto isHorizontal = option.orientation == Qt::Horizontal;
    const auto length = isHorizontal ? bar.width() : bar.height();
    const auto range = qint64{option.maximum} - option.minimum;
    const auto wanted =
        range > 0 ? static_cast<int>(qint64{length} * option.pageStep / (range + option.pageStep))
                  : length;
    const auto slider = std::min(length, std::max(wanted, minScrollBarSlider));
    const auto start = QStyle::sliderPositionFromValue(
        option.minimum, option.maximum, option.sliderPosition, length - slider, option.upsideDown);
    const auto section = [&](int from, int count) {
        return isHorizontal ? QRect(bar.left() + from, bar.top(), count, bar.height())
                            : QRect(bar.left(), bar.top() + from, bar.width(), count);
    };
    switch (part) {
    case QStyle::SC_ScrollBarGroove:
        return bar;
    case QStyle::SC_ScrollBarSlider:
        return section(start, slider);
    case QStyle::SC_ScrollBarSubPage:
        return section(0, start);
    case QStyle::SC_ScrollBarAddPage:
        return section(start + slider, length - start - slider);
    default:
        return {};
    }
}

void paintScrollBar(QPainter& painter, const QStyleOptionSlider& option)
{
    if (option.maximum <= option.minimum)
        return;
    const auto isActive = option.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider) &&
                          option.state & (QStyle::State_MouseOver | QStyle::State_Sunken);
    const auto text = option.palette.color(QPalette::WindowText);
    const auto slider = QRectF(scrollBarPart(option, QStyle::SC_ScrollBarSlider));
    const auto shape = slider.adjusted(3, 3, -3, -3);
    const auto opacity = SystemColors::isHighContrast(option.palette) ? 1 : isActive ? 0.5 : 0.3;
    paintRoundedRect(painter, shape, std::min(shape.width(), shape.height()) / 2, Qt::NoPen,
                     SystemColors::withOpacity(text, opacity));
}

} // namespace ControlPainter
