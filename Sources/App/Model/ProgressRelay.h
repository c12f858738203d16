// SPDX-License-Identifier: MIT
#pragma once

#include "Install/DownloadProgress.h"

#include <QObject>

#include <mutex>
#include <optional>

/// Passes the progress of a download from its worker thread to the thread of this object.
///
/// A fast download reports thousands of times a second. The relay passes on only the newest report,
/// at most twenty times a second. Its destructor drops a pending report.
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
