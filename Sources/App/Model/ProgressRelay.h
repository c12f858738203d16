// SPDX-License-Identifier: MIT
#pragma once

#include "Install/DownloadProgress.h"

#include <QObject>

#include <mutex>
#include <optional>

/// Carries one download's progress from its worker thread to the thread the relay was made on.
///
/// A fast download reports thousands of times a second. The relay passes on the newest report, at
/// most twenty times a second, so that the window stays smooth. Reports that are still waiting when
/// the relay is deleted are dropped.
class ProgressRelay final : public QObject
{
    Q_OBJECT

public:
    /// Any thread.
    void report(const DownloadProgress& progress);

Q_SIGNALS:
    void progressed(const DownloadProgress& progress);

private:
    void deliver();

    std::mutex m_lock;
    std::optional<DownloadProgress> m_waiting;
};
