// SPDX-License-Identifier: MIT
#include "Controls/Buttons.h"

#include "Controls/Accessibility.h"
#include "Controls/ControlPainter.h"
#include "Controls/Glyphs.h"
#include "Controls/Stack.h"
#include "Controls/SystemColors.h"
#include "Controls/TypeScale.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionButton>

#include <algorithm>

namespace {

/// The disclosure button: the centre of the chevron, the start of the title, aligned with the
/// status title above it, and the margin of the title for the focus ring.
constexpr auto chevronCentre = 8;
constexpr auto titleStart = 18;
constexpr auto titleMargin = 5;

/// The Play button: the size of its symbol, and the padding of its label.
constexpr auto playSymbolSize = QSizeF(16, 18);
constexpr auto playPadding = 4;

class ReturnKeyFilter final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::KeyPress && event->type() != QEvent::KeyRelease)
            return false;
        const auto key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter)
            return false;
        // An ignored event is passed to the parent, and at last to the window.
        event->ignore();
        return true;
    }
};

} // namespace

void forwardReturnKey(QWidget& control)
{
    control.installEventFilter(new ReturnKeyFilter(&control));
}

BorderedButton::BorderedButton(const QString& title, const std::function<void()>& action)
    : QPushButton(title)
{
    installAccessibleButtons();
    if (action)
        connect(this, &QPushButton::clicked, this, action);
    setAutoDefault(false);
    setFocusPolicy(Qt::TabFocus);
    forwardReturnKey(*this);
    auto policy = sizePolicy();
    policy.setHorizontalPolicy(QSizePolicy::Maximum);
    policy.setVerticalPolicy(QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QSize BorderedButton::minimumSizeHint() const
{
    return {ControlPainter::minTitleWidth(text(), font()), sizeHint().height()};
}

int BorderedButton::heightForWidth(int width) const
{
    return std::max(ControlPainter::titleHeight(text(), font(), width), sizeHint().height());
}

void DestructiveButton::initStyleOption(QStyleOptionButton* option) const
{
    BorderedButton::initStyleOption(option);
    auto& colors = option->palette;
    const auto face = colors.color(QPalette::Active, QPalette::Button);
    const auto red = SystemColors::readable(SystemColors::red(colors), face, colors);
    colors.setColor(QPalette::Active, QPalette::ButtonText, red);
    colors.setColor(QPalette::Inactive, QPalette::ButtonText, red);
    colors.setColor(QPalette::Disabled, QPalette::ButtonText,
                    SystemColors::isHighContrast(colors) ? SystemColors::disabledText(colors)
                                                         : SystemColors::withOpacity(red, 0.45));
}

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
    return {titleStart + label.width() + titleMargin, label.height() + titleMargin};
}

void DisclosureButton::paintEvent(QPaintEvent*)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const auto textColor = palette().color(QPalette::WindowText);
    const auto isActive = option.state & (QStyle::State_MouseOver | QStyle::State_Sunken);
    const QRect chevron(0, 0, 2 * chevronCentre, height());
    const auto title = rect().adjusted(titleStart, 0, 0, 0);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.save();
    painter.setPen(QPen(isActive ? textColor : SystemColors::secondaryText(palette()), 1.75,
                        Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.translate(QRectF(QStyle::visualRect(layoutDirection(), rect(), chevron)).center());
    painter.rotate(isChecked() ? 90 : (isRightToLeft() ? 180 : 0));
    painter.drawPath(Glyphs::chevron({-2, -4, 4, 8}));
    painter.restore();

    painter.setPen(textColor);
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), title),
                     static_cast<int>(Qt::AlignVCenter | Qt::AlignLeading), text());
    if (ControlPainter::showsFocus(option.state))
        ControlPainter::paintFocusRing(painter, rect(), 4, SystemColors::focusRing(palette()));
}

PlayButton::PlayButton(const QString& title, const std::function<void()>& action)
    : QPushButton(title)
{
    connect(this, &QPushButton::clicked, this, action);
    followFont(*this, [] { return systemFont(24, QFont::Bold); });
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setDefault(true);
    forwardReturnKey(*this);
}

QSize PlayButton::sizeHint() const
{
    constexpr auto minLabelHeight = 44;
    const auto title = fontMetrics().size(Qt::TextSingleLine, text());
    const auto width = qRound(playSymbolSize.width()) + defaultSpacing + title.width();
    return {width + 4 * playPadding, std::max(title.height(), minLabelHeight) + 2 * playPadding};
}

void PlayButton::paintEvent(QPaintEvent*)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const auto titleWidth = fontMetrics().horizontalAdvance(text());
    const auto labelWidth = playSymbolSize.width() + defaultSpacing + titleWidth;
    const auto left = (width() - labelWidth) / 2;
    QRectF symbol({left, (height() - playSymbolSize.height()) / 2}, playSymbolSize);
    QRectF title(symbol.right() + defaultSpacing, 0, titleWidth + 1, height());
    if (isRightToLeft()) {
        title.moveLeft(left);
        symbol.moveLeft(left + titleWidth + defaultSpacing);
    }

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // White text this large and bold is readable on blue, except in high contrast.
    const auto accent = SystemColors::isHighContrast(palette())
                            ? SystemColors::accentUnderText(palette())
                            : SystemColors::blue(palette());
    ControlPainter::paintProminentBezel(painter, rect(), option.state, palette(), accent, 9);
    const auto color = ControlPainter::prominentText(option.state, palette());
    painter.fillPath(Glyphs::play(symbol), color);
    painter.setPen(color);
    painter.drawText(title, Qt::AlignVCenter | Qt::TextSingleLine, text());
}
