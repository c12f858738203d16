// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include <chrono>

/// How far a download has come.
struct DownloadProgress
{
    Q_DECLARE_TR_FUNCTIONS(DownloadProgress)

public:
    /// Bytes written to disk so far.
    qint64 received = 0;
    /// Bytes expected in all, as the server announced; below 1 when unknown.
    qint64 total = -1;
    /// The average since the transfer started; always finite.
    double bytesPerSecond = 0;

    /// The progress of a transfer that started `elapsed` ago. The rate of the first moment is
    /// taken over a whole millisecond, so that it stays finite.
    static DownloadProgress after(std::chrono::nanoseconds elapsed, qint64 received, qint64 total);

    /// E.g. "7.3 MB of 70.1 MB · 2.4 MB/s", without the total when that is unknown. A rate that is
    /// not finite is a programming error and stops the program.
    [[nodiscard]] QString text() const;
};
