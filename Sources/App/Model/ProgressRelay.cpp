// SPDX-License-Identifier: MIT
#include "Model/ProgressRelay.h"

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
            return; // The pending deliver() includes this report.
    }
    QMetaObject::invokeMethod(
        this, [this] { QTimer::singleShot(deliveryInterval, this, &ProgressRelay::deliver); },
        Qt::QueuedConnection);
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
