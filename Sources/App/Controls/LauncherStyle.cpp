// SPDX-License-Identifier: MIT
#include "Controls/LauncherStyle.h"

#include "Controls/ControlPainter.h"
#include "Controls/Palettes.h"
#include "Controls/SystemColors.h"

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QEvent>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto popUpArrowsWidth = 26;
constexpr auto animationDuration = 200;

bool isDefaultButton(const QStyleOption& option)
{
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    return button && button->features.testFlag(QStyleOptionButton::DefaultButton);
}

/// Returns true for the menu of a combo box, whose items are choices rather than commands.
bool isChoice(const QWidget* menu)
{
    return qobject_cast<const QComboBox*>(menu);
}

void paintDialogEdge(QPainter& painter, const QStyleOption& option)
{
    painter.setPen(SystemColors::edge(option.palette));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
}

} // namespace

LauncherStyle::LauncherStyle()
    : QProxyStyle(u"fusion"_s)
{
}

QPalette LauncherStyle::standardPalette() const
{
    return SystemColors::isDark(QProxyStyle::standardPalette()) ? Palettes::dark()
                                                                : Palettes::light();
}

void LauncherStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    // Makes Qt draw the dialog's background as PE_Widget.
    if (qobject_cast<QDialog*>(widget))
        widget->setAttribute(Qt::WA_StyledBackground);
}

void LauncherStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                  QPainter* painter, const QWidget* widget) const
{
    const auto& palette = option->palette;
    switch (element) {
    case PE_Widget:
        paintDialogEdge(*painter, *option);
        return;
    case PE_PanelButtonCommand:
        if (isDefaultButton(*option)) {
            ControlPainter::paintProminentBezel(*painter, option->rect, option->state, palette,
                                                SystemColors::accentUnderText(palette),
                                                ControlPainter::cornerRadius);
        } else {
            ControlPainter::paintBezel(*painter, option->rect, option->state, palette);
        }
        return;
    case PE_FrameFocusRect:
        // A button's bezel includes the ring.
        if (!qstyleoption_cast<const QStyleOptionButton*>(option) &&
            !(widget && widget->inherits("QPushButton")))
            ControlPainter::paintFocusRing(*painter, option->rect, 4,
                                           SystemColors::focusRing(palette));
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void LauncherStyle::drawControl(ControlElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const
{
    switch (element) {
    case CE_FocusFrame:
        ControlPainter::paintFocusRing(*painter, option->rect, ControlPainter::cornerRadius,
                                       SystemColors::focusRing(option->palette));
        return;
    case CE_MenuItem:
        if (const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
            item && isChoice(widget)) {
            ControlPainter::paintMenuItem(*painter, *item);
            return;
        }
        break;
    case CE_ShapedFrame:
        if (widget && widget->inherits("QComboBoxPrivateContainer")) {
            ControlPainter::paintMenuFrame(*painter, *option);
            return;
        }
        break;
    case CE_PushButtonLabel:
        if (const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
            auto label = *button;
            if (isDefaultButton(*option))
                label.palette.setColor(QPalette::ButtonText, ControlPainter::prominentText(
                                                                 option->state, option->palette));
            if (widget && widget->hasHeightForWidth())
                ControlPainter::paintTitle(*painter, widget->rect(), label.direction, label.text,
                                           label.palette.color(QPalette::ButtonText));
            else
                QProxyStyle::drawControl(element, &label, painter, widget);
            return;
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void LauncherStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const
{
    if (control == CC_ComboBox) {
        ControlPainter::paintBezel(*painter, option->rect, option->state, option->palette);
        const auto arrows = proxy()->subControlRect(control, option, SC_ComboBoxArrow, widget);
        ControlPainter::paintPopUpArrows(*painter, arrows,
                                         option->palette.color(QPalette::ButtonText));
        return;
    }
    if (const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar && control == CC_ScrollBar) {
        ControlPainter::paintScrollBar(*painter, *bar);
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

void LauncherStyle::setReducesMotion(bool reduces)
{
    if (std::exchange(m_reducesMotion, reduces) == reduces)
        return;
    const auto widgets = QApplication::allWidgets();
    for (auto* const widget : widgets) {
        QEvent change(QEvent::StyleChange);
        QCoreApplication::sendEvent(widget, &change);
    }
}

QRect LauncherStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                    SubControl part, const QWidget* widget) const
{
    const auto& rect = option->rect;
    if (control == CC_ComboBox && part == SC_ComboBoxEditField) {
        return visualRect(
            option->direction, rect,
            rect.adjusted(ControlPainter::horizontalPadding - 4, 1, -popUpArrowsWidth, -1));
    }
    if (control == CC_ComboBox && part == SC_ComboBoxArrow) {
        return visualRect(
            option->direction, rect,
            {rect.right() + 1 - popUpArrowsWidth, rect.top(), popUpArrowsWidth, rect.height()});
    }
    if (const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
        bar && control == CC_ScrollBar)
        return visualRect(option->direction, rect, ControlPainter::scrollBarPart(*bar, part));
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize LauncherStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                      const QSize& contents, const QWidget* widget) const
{
    const auto padded =
        option ? option->fontMetrics.height() + 2 * ControlPainter::verticalPadding : 0;
    const auto height = std::max(padded, ControlPainter::minHeight);
    if (type == CT_PushButton)
        return {contents.width() + 2 * ControlPainter::horizontalPadding, height};
    if (type == CT_ComboBox)
        return {contents.width() + ControlPainter::horizontalPadding + popUpArrowsWidth, height};
    if (type == CT_MenuItem && isChoice(widget))
        return {contents.width(), height};
    return QProxyStyle::sizeFromContents(type, option, contents, widget);
}

int LauncherStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                               const QWidget* widget) const
{
    switch (metric) {
    case PM_ScrollBarExtent:
        return ControlPainter::scrollBarWidth;
    case PM_ScrollBarSliderMin:
        return ControlPainter::minScrollBarSlider;
    case PM_FocusFrameHMargin:
    case PM_FocusFrameVMargin:
        return 4;
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
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons || hint == SH_EtchDisabledText ||
        hint == SH_ComboBox_AllowWheelScrolling)
        return 0;
    if (hint == SH_Widget_Animation_Duration)
        return m_reducesMotion ? 0 : animationDuration;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}
