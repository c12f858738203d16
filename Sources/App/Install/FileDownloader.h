// SPDX-License-Identifier: MIT
#pragma once

#include "Install/DownloadProgress.h"
#include "System/Durations.h"
#include "System/InputFile.h"

#include <QString>
#include <QUrl>

#include <chrono>
#include <functional>
#include <stop_token>

/// Downloads a file over HTTP.
class FileDownloader final
{
public:
    using ProgressCallback = std::function<void(const DownloadProgress&)>;

    /// start() calls `onProgress` for every chunk on its own thread, and fails after `stallTimeout`
    /// without data.
    explicit FileDownloader(ProgressCallback onProgress,
                            std::chrono::milliseconds stallTimeout = Durations().stallTimeout);

    /// Downloads `url` into the existing folder `into` and returns the complete file, open for
    /// reading. Replaces a file of the same name, which is the last component of the URL's path, or
    /// "download" if that is not a valid file name.
    ///
    /// Throws AppError for an HTTP status other than 200, PlatformError for an error of the network
    /// or the file system, and Cancelled when `stop` is requested; nothing is then left in `into`.
    /// Blocks.
    [[nodiscard]] InputFile start(const QUrl& url, const QString& into,
                                  const std::stop_token& stop) const;

    [[nodiscard]] std::chrono::milliseconds stallTimeout() const { return m_stallTimeout; }

private:
    ProgressCallback m_onProgress;
    std::chrono::milliseconds m_stallTimeout;
};
