// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include <chrono>

/// The progress of a download.
struct DownloadProgress
{
    Q_DECLARE_TR_FUNCTIONS(DownloadProgress)

public:
    /// Bytes written to disk so far.
    qint64 received = 0;
    /// The size that the server announced; below 1 if unknown.
    qint64 total = -1;
    /// The average rate since the start; always finite.
    double bytesPerSecond = 0;

    /// Returns the progress of a transfer that started `elapsed` ago. Computes the rate over at
    /// least one millisecond, so that it is finite.
    static DownloadProgress after(std::chrono::nanoseconds elapsed, qint64 received, qint64 total);

    /// Returns e.g. "7.3 MB of 70.1 MB · 2.4 MB/s", without the total if it is unknown. Aborts if
    /// the rate is not finite.
    [[nodiscard]] QString text() const;
};
