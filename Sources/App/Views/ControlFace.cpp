// SPDX-License-Identifier: MIT
#include "Views/ControlFace.h"

#include "Views/SystemColors.h"

#include <QPainter>
#include <QPalette>
#include <QPen>
#include <QRectF>

namespace ControlFace {

namespace {

/// `color` as it looks while the control is hovered, pressed or disabled: with more or less of
/// `shade` over it.
QColor inState(const QColor& color, QStyle::State state, const QColor& shade)
{
    if (!state.testFlag(QStyle::State_Enabled))
        return SystemColors::withOpacity(color, 0.45);
    if (state.testFlag(QStyle::State_Sunken))
        return SystemColors::blended(SystemColors::withOpacity(shade, 0.16), color);
    if (state.testFlag(QStyle::State_MouseOver))
        return SystemColors::blended(SystemColors::withOpacity(shade, 0.06), color);
    return color;
}

} // namespace

void paint(QPainter& painter, const QRectF& rect, QStyle::State state, const QPalette& palette)
{
    const auto text = palette.color(QPalette::Active, QPalette::WindowText);
    const auto enabled = state.testFlag(QStyle::State_Enabled);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(enabled ? SystemColors::edge(palette) : SystemColors::withOpacity(text, 0.12));
    painter.setBrush(inState(palette.color(QPalette::Active, QPalette::Button), state, text));
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.restore();
    if (showsFocus(state))
        paintFocusRing(painter, rect, radius, SystemColors::blue(palette));
}

void paintProminent(QPainter& painter, const QRectF& rect, QStyle::State state,
                    const QPalette& palette, const QColor& accent, double cornerRadius)
{
    const auto text = palette.color(QPalette::Active, QPalette::WindowText);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    // Darker in dark too: its label is white.
    painter.setBrush(state.testFlag(QStyle::State_Enabled) ? inState(accent, state, Qt::black)
                                                           : SystemColors::withOpacity(text, 0.12));
    painter.drawRoundedRect(rect, cornerRadius, cornerRadius);
    painter.restore();
    if (showsFocus(state))
        paintFocusRing(painter, rect.adjusted(2, 2, -2, -2), cornerRadius - 2, Qt::white);
}

QColor prominentText(QStyle::State state, const QPalette& palette)
{
    if (state.testFlag(QStyle::State_Enabled))
        return Qt::white;
    return SystemColors::withOpacity(palette.color(QPalette::Active, QPalette::WindowText), 0.38);
}

bool showsFocus(QStyle::State state)
{
    return state.testFlag(QStyle::State_HasFocus) &&
           state.testFlag(QStyle::State_KeyboardFocusChange);
}

void paintFocusRing(QPainter& painter, const QRectF& rect, double cornerRadius, const QColor& color)
{
    constexpr auto width = 2.5;
    constexpr auto inset = width / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(rect.adjusted(inset, inset, -inset, -inset), cornerRadius - inset / 2,
                            cornerRadius - inset / 2);
    painter.restore();
}

} // namespace ControlFace
