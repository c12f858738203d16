// SPDX-License-Identifier: MIT
#include "ProgressRelay.h"

#include <QTimer>

#include <chrono>
#include <utility>

namespace {

constexpr auto deliveryInterval = std::chrono::milliseconds{50};

}

void ProgressRelay::report(const DownloadProgress& progress)
{
    {
        const std::scoped_lock guard(m_lock);
        if (std::exchange(m_waiting, progress))
            return; // A delivery is on its way and takes this report along.
    }
    QMetaObject::invokeMethod(this, &ProgressRelay::scheduleDelivery, Qt::QueuedConnection);
}

void ProgressRelay::scheduleDelivery()
{
    QTimer::singleShot(deliveryInterval, this, &ProgressRelay::deliver);
}

void ProgressRelay::deliver()
{
    std::optional<DownloadProgress> newest;
    {
        const std::scoped_lock guard(m_lock);
        newest = std::exchange(m_waiting, std::nullopt);
    }
    if (newest)
        Q_EMIT progressed(*newest);
}
