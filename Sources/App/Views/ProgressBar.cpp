// SPDX-License-Identifier: MIT
#include "Views/ProgressBar.h"

#include "Views/Mirroring.h"
#include "Views/SystemColors.h"

#include <QPainter>
#include <QPainterPath>
#include <QTimerEvent>

#include <algorithm>
#include <chrono>
#include <cmath>

using namespace std::chrono_literals;

namespace {

constexpr auto thickness = 6;
/// Fine enough that a download of gigabytes moves smoothly on any screen.
constexpr auto steps = 10'000;
constexpr auto framePeriod = 16ms;
constexpr auto travelTime = 1600ms;
/// The length of the travelling piece, as a share of the bar.
constexpr auto pieceLength = 0.3;

} // namespace

ProgressBar::ProgressBar(const QString& name)
{
    setAccessibleName(name);
    setTextVisible(false);
    setRange(0, 0);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ProgressBar::setFraction(std::optional<double> fraction)
{
    const auto range = fraction ? steps : 0;
    if (maximum() != range)
        setRange(0, range);
    if (fraction)
        fillTo(static_cast<int>(std::lround(std::clamp(*fraction, 0.0, 1.0) * steps)));
    updateAnimation();
}

void ProgressBar::fillTo(int step)
{
    if (step == value())
        return;
    setValue(step);
    // The base class leaves out what would not move a bar of its own look.
    update();
}

QSize ProgressBar::sizeHint() const
{
    return {100, thickness};
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
    painter.fillPath(track, SystemColors::line(palette()));
    if (to > from)
        painter.fillPath(track.intersected(filled), SystemColors::blue(palette()));
}

void ProgressBar::showEvent(QShowEvent* event)
{
    QProgressBar::showEvent(event);
    updateAnimation();
}

void ProgressBar::hideEvent(QHideEvent* event)
{
    QProgressBar::hideEvent(event);
    updateAnimation();
}

void ProgressBar::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_animation.timerId())
        update();
    else
        QProgressBar::timerEvent(event);
}

std::pair<double, double> ProgressBar::filledPart() const
{
    if (!isIndeterminate())
        return {0, static_cast<double>(value()) / maximum()};
    const auto elapsed = m_travel.isValid() ? m_travel.elapsed() : 0;
    const auto round =
        static_cast<double>(elapsed % travelTime.count()) / static_cast<double>(travelTime.count());
    const auto start = round * (1 + pieceLength) - pieceLength;
    return {std::max(0.0, start), std::min(1.0, start + pieceLength)};
}

void ProgressBar::updateAnimation()
{
    const auto wanted = isIndeterminate() && isVisible();
    if (wanted == m_animation.isActive())
        return;
    if (wanted) {
        m_travel.start();
        m_animation.start(static_cast<int>(framePeriod.count()), Qt::PreciseTimer, this);
    } else {
        m_animation.stop();
        update();
    }
}
