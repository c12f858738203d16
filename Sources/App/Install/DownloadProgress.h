// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// How far a download has come.
struct DownloadProgress
{
    /// Bytes written to disk so far.
    qint64 received = 0;
    /// Bytes expected in all, as the server announced; below 1 when unknown.
    qint64 total = -1;
    /// The average since the transfer started; always finite.
    double bytesPerSecond = 0;

    /// E.g. "7.3 MB of 70.1 MB · 2.4 MB/s", without the total when that is unknown.
    [[nodiscard]] QString text() const;
};
