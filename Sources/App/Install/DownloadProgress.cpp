// SPDX-License-Identifier: MIT
#include "Install/DownloadProgress.h"

#include "System/ByteCount.h"

#include <algorithm>
#include <cmath>

DownloadProgress DownloadProgress::after(std::chrono::nanoseconds elapsed, qint64 received,
                                         qint64 total)
{
    const auto seconds = std::max(std::chrono::duration<double>(elapsed).count(), 0.001);
    return {.received = received,
            .total = total,
            .bytesPerSecond = static_cast<double>(received) / seconds};
}

QString DownloadProgress::text() const
{
    if (!std::isfinite(bytesPerSecond))
        qFatal("A download's rate must be finite.");
    const auto amount = formattedByteCount(received);
    //: The rate of a download: %1 is an amount, such as "3 MB".
    const auto rate = tr("%1/s").arg(formattedByteCount(static_cast<qint64>(bytesPerSecond)));
    if (total < 1)
        //: What has been downloaded, and the rate: "20.1 MB · 3 MB/s".
        return tr("%1 · %2").arg(amount, rate);
    //: What of how much has been downloaded, and the rate: "20.1 MB of 70.1 MB · 3 MB/s".
    return tr("%1 of %2 · %3").arg(amount, formattedByteCount(total), rate);
}
