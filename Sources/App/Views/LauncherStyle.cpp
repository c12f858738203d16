// SPDX-License-Identifier: MIT
#include "Views/LauncherStyle.h"

#include "Views/ControlFace.h"
#include "Views/Glyphs.h"
#include "Views/MenuFace.h"
#include "Views/ScrollBarFace.h"
#include "Views/SystemColors.h"

#include <QComboBox>
#include <QDialog>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOption>

#include <algorithm>

namespace {

constexpr auto popUpArrowWidth = 26;
constexpr auto focusFrameMargin = 4;

/// The colours that the light and the dark palette are made of.
struct PaletteColors
{
    QColor window;
    QColor base;
    QColor button;
    QColor text;
};

QPalette paletteOf(const PaletteColors& colors)
{
    QPalette palette(colors.button, colors.window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, colors.text);
    palette.setColor(QPalette::Base, colors.base);
    palette.setColor(QPalette::AlternateBase, colors.window);
    palette.setColor(QPalette::ToolTipBase, colors.base);
    palette.setColor(QPalette::ToolTipText, colors.text);
    palette.setColor(QPalette::Highlight, SystemColors::accentUnderText(palette));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    const auto faint = SystemColors::withOpacity(colors.text, 0.38);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, faint);
    const auto link = SystemColors::readable(SystemColors::blue(palette), colors.window, palette);
    palette.setColor(QPalette::Link, link);
    palette.setColor(QPalette::LinkVisited, link);
    palette.setColor(QPalette::PlaceholderText, SystemColors::secondaryText(palette));
    return palette;
}

/// Whether this is the button that Return presses; it is filled with the accent colour.
bool isDefaultButton(const QStyleOption& option)
{
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    return button && button->features.testFlag(QStyleOptionButton::DefaultButton);
}

/// Whether a row of a menu is one of the choices of a pop-up button, and no command.
bool isChoice(const QWidget* menu)
{
    return qobject_cast<const QComboBox*>(menu);
}

void paintPopUpArrows(QPainter& painter, const QRectF& place, const QColor& color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (const auto direction : {-1, 1}) {
        painter.save();
        painter.translate(place.center() + QPointF(0, direction * 3.5));
        painter.rotate(direction * 90);
        painter.drawPath(Glyphs::chevron({-1.75, -3, 3.5, 6}));
        painter.restore();
    }
    painter.restore();
}

void paintDialogEdge(QPainter& painter, const QStyleOption& option)
{
    const auto edge = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(SystemColors::edge(option.palette));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(edge);
}

} // namespace

LauncherStyle::LauncherStyle()
    : QProxyStyle(QStringLiteral("fusion"))
{
}

QPalette LauncherStyle::lightPalette()
{
    return paletteOf({.window = QColor(244, 244, 246),
                      .base = Qt::white,
                      .button = Qt::white,
                      .text = QColor(29, 29, 31)});
}

QPalette LauncherStyle::darkPalette()
{
    return paletteOf({.window = QColor(30, 30, 32),
                      .base = QColor(22, 22, 24),
                      .button = QColor(62, 62, 66),
                      .text = QColor(240, 240, 243)});
}

QPalette LauncherStyle::standardPalette() const
{
    return SystemColors::isDark(QProxyStyle::standardPalette()) ? darkPalette() : lightPalette();
}

void LauncherStyle::drawItemText(QPainter* painter, const QRect& rect, int flags,
                                 const QPalette& palette, bool enabled, const QString& text,
                                 QPalette::ColorRole role) const
{
    if (role != QPalette::PlaceholderText) {
        QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
        return;
    }
    auto secondary = palette;
    secondary.setColor(role, SystemColors::secondaryText(palette));
    QProxyStyle::drawItemText(painter, rect, flags, secondary, enabled, text, role);
}

void LauncherStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    // Only then is the background asked for as PE_Widget.
    if (qobject_cast<QDialog*>(widget))
        widget->setAttribute(Qt::WA_StyledBackground);
}

void LauncherStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const
{
    switch (element) {
    case PE_Widget:
        paintDialogEdge(*painter, *option);
        return;
    case PE_PanelButtonCommand:
        if (isDefaultButton(*option)) {
            ControlFace::paintProminent(*painter, option->rect, option->state, option->palette,
                                        SystemColors::accentUnderText(option->palette),
                                        ControlFace::radius);
        } else {
            ControlFace::paint(*painter, option->rect, option->state, option->palette);
        }
        return;
    case PE_FrameFocusRect:
        // A button's face paints its own ring; this one is for the rest, links for example.
        if (!qstyleoption_cast<const QStyleOptionButton*>(option) &&
            !(widget && widget->inherits("QPushButton")))
            ControlFace::paintFocusRing(*painter, option->rect, 4,
                                        SystemColors::blue(option->palette));
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void LauncherStyle::drawControl(ControlElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const
{
    if (const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        item && element == CE_MenuItem && isChoice(widget)) {
        MenuFace::paintItem(*painter, *item);
        return;
    }
    if (element == CE_FocusFrame) {
        ControlFace::paintFocusRing(*painter, option->rect, ControlFace::radius,
                                    SystemColors::blue(option->palette));
        return;
    }
    if (element == CE_ShapedFrame && widget && widget->inherits("QComboBoxPrivateContainer")) {
        MenuFace::paintFrame(*painter, *option);
        return;
    }
    if (element != CE_PushButtonLabel || !isDefaultButton(*option)) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    auto label = *qstyleoption_cast<const QStyleOptionButton*>(option);
    label.palette.setColor(QPalette::ButtonText,
                           ControlFace::prominentText(option->state, option->palette));
    QProxyStyle::drawControl(element, &label, painter, widget);
}

void LauncherStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const
{
    if (control == CC_ComboBox) {
        ControlFace::paint(*painter, option->rect, option->state, option->palette);
        const auto arrows = proxy()->subControlRect(control, option, SC_ComboBoxArrow, widget);
        paintPopUpArrows(*painter, arrows, option->palette.color(QPalette::ButtonText));
        return;
    }
    if (const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar && control == CC_ScrollBar) {
        ScrollBarFace::paint(*painter, *bar);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect LauncherStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                    SubControl part, const QWidget* widget) const
{
    const auto& rect = option->rect;
    if (control == CC_ComboBox && part == SC_ComboBoxEditField) {
        return visualRect(
            option->direction, rect,
            rect.adjusted(ControlFace::horizontalPadding - 4, 1, -popUpArrowWidth, -1));
    }
    if (control == CC_ComboBox && part == SC_ComboBoxArrow) {
        return visualRect(
            option->direction, rect,
            {rect.right() + 1 - popUpArrowWidth, rect.top(), popUpArrowWidth, rect.height()});
    }
    if (const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar && control == CC_ScrollBar)
        return visualRect(option->direction, rect, ScrollBarFace::part(*bar, part));
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize LauncherStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                      const QSize& contents, const QWidget* widget) const
{
    const auto height =
        option ? option->fontMetrics.height() + 2 * ControlFace::verticalPadding : 0;
    switch (type) {
    case CT_PushButton:
        return {contents.width() + 2 * ControlFace::horizontalPadding,
                std::max(height, ControlFace::leastHeight)};
    case CT_ComboBox:
        return {contents.width() + ControlFace::horizontalPadding + popUpArrowWidth,
                std::max(height, ControlFace::leastHeight)};
    case CT_MenuItem:
        if (isChoice(widget))
            return {contents.width(), std::max(height, ControlFace::leastHeight)};
        break;
    default:
        break;
    }
    return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

int LauncherStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                               const QWidget* widget) const
{
    switch (metric) {
    case PM_ScrollBarExtent:
        return ScrollBarFace::extent;
    case PM_ScrollBarSliderMin:
        return ScrollBarFace::shortestSlider;
    case PM_FocusFrameHMargin:
    case PM_FocusFrameVMargin:
        return focusFrameMargin;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int LauncherStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* returnData) const
{
    switch (hint) {
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_EtchDisabledText:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}
