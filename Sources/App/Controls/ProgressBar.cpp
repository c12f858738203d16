// SPDX-License-Identifier: MIT
#include "Controls/ProgressBar.h"

#include "Controls/ControlPainter.h"
#include "Controls/Drawing.h"
#include "Controls/SystemColors.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QVariantAnimation>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

/// Assistive technology reads out every change of the value.
constexpr auto steps = 10;
/// The bar is redrawn only when it has visibly changed.
constexpr auto drawnSteps = 10'000;
/// The length of the moving piece, as a fraction of the bar.
constexpr auto pieceLength = 0.3;

} // namespace

ProgressBar::ProgressBar(const QString& name)
    : m_animation(new QVariantAnimation(this))
{
    setAccessibleName(name);
    setTextVisible(false);
    setRange(0, 0);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_animation->setStartValue(-pieceLength);
    m_animation->setEndValue(1.0);
    m_animation->setDuration(1600);
    m_animation->setLoopCount(-1);
    connect(m_animation, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
}

void ProgressBar::setFraction(std::optional<double> fraction)
{
    const auto range = fraction ? steps : 0;
    if (maximum() != range)
        setRange(0, range);
    const auto filled =
        std::round(std::clamp(fraction.value_or(0), 0.0, 1.0) * drawnSteps) / drawnSteps;
    if (std::exchange(m_filled, filled) != filled)
        update();
    if (fraction)
        setValue(static_cast<int>(filled * steps));
    updateAnimation();
}

QSize ProgressBar::sizeHint() const
{
    return {100, 6};
}

void ProgressBar::paintEvent(QPaintEvent*)
{
    const auto bar = QRectF(rect());
    const auto radius = bar.height() / 2;
    const auto [from, to] = filledPart();
    QPainterPath track;
    track.addRoundedRect(bar, radius, radius);
    QPainterPath filled;
    filled.addRoundedRect(QRectF(bar.width() * from, 0, bar.width() * (to - from), bar.height()),
                          radius, radius);

    QPainter painter(this);
    if (isRightToLeft())
        mirror(painter, width());
    painter.setRenderHint(QPainter::Antialiasing);
    if (SystemColors::isHighContrast(palette()))
        ControlPainter::paintTintedBox(painter, bar, radius, Qt::transparent, palette());
    else
        painter.fillPath(track, SystemColors::line(palette()));
    if (to > from)
        painter.fillPath(track.intersected(filled), SystemColors::blue(palette()));
}

bool ProgressBar::event(QEvent* event)
{
    const auto handled = QProgressBar::event(event);
    if (event->type() == QEvent::Show || event->type() == QEvent::Hide ||
        event->type() == QEvent::StyleChange)
        updateAnimation();
    return handled;
}

std::pair<double, double> ProgressBar::filledPart() const
{
    if (!isIndeterminate())
        return {0, m_filled};
    const auto start =
        isAnimated() ? m_animation->currentValue().toDouble() : (1 - pieceLength) / 2;
    return {std::max(0.0, start), std::min(1.0, start + pieceLength)};
}

bool ProgressBar::isAnimated() const
{
    return style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
}

void ProgressBar::updateAnimation()
{
    if (isIndeterminate() && isVisible() && isAnimated())
        m_animation->start();
    else
        m_animation->stop();
}
