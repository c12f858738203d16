// SPDX-License-Identifier: MIT
#include "Views/DisclosureButton.h"

#include "Views/ControlFace.h"
#include "Views/Glyphs.h"
#include "Views/SystemColors.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionButton>

namespace {

/// The middle of the angle, and where the title begins: there the status title above it does too.
constexpr auto angleCentre = 8;
constexpr auto titleStart = 18;
/// The room around the title for the focus ring.
constexpr auto margin = 5;

} // namespace

DisclosureButton::DisclosureButton(const QString& title)
    : BorderedButton(title)
{
    setCheckable(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAttribute(Qt::WA_Hover);
}

QSize DisclosureButton::sizeHint() const
{
    const auto label = fontMetrics().size(Qt::TextSingleLine, text());
    return {titleStart + label.width() + margin, label.height() + margin};
}

void DisclosureButton::paintEvent(QPaintEvent*)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const auto text = palette().color(QPalette::WindowText);
    const auto emphasised = option.state & (QStyle::State_MouseOver | QStyle::State_Sunken);
    const auto place = QRect(0, 0, 2 * angleCentre, height());

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    painter.setPen(QPen(emphasised ? text : SystemColors::secondaryText(palette()), 1.75,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.translate(QRectF(QStyle::visualRect(layoutDirection(), rect(), place)).center());
    painter.rotate(isChecked() ? 90 : (isRightToLeft() ? 180 : 0));
    painter.drawPath(Glyphs::chevron({-2, -4, 4, 8}));
    painter.restore();

    painter.setPen(text);
    const auto label = rect().adjusted(titleStart, 0, 0, 0);
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), label),
                     static_cast<int>(Qt::AlignVCenter | Qt::AlignLeading), this->text());
    if (ControlFace::showsFocus(option.state))
        ControlFace::paintFocusRing(painter, rect(), 4, SystemColors::blue(palette()));
}
