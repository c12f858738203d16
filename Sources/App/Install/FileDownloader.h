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

/// Downloads a file over HTTP into a folder of the caller's choice.
///
/// Only the final status 200 is a success. The file appears under its own name only when it is
/// complete; after a failure the folder holds nothing of this download.
class FileDownloader final
{
public:
    using ProgressCallback = std::function<void(const DownloadProgress&)>;

    /// `onProgress` is called for every piece that arrives, on the thread that runs start(). A
    /// transfer in which no byte arrives for `stallTimeout` fails.
    explicit FileDownloader(ProgressCallback onProgress,
                            std::chrono::milliseconds stallTimeout = Durations().stallTimeout);

    /// Downloads `url` into the existing folder `into`, replacing a file of that name, and returns
    /// the file, opened for reading: what is read through it is what was received, whatever
    /// happens to its name. The file is named after the URL's last path component, or "download"
    /// when that is empty or no name for a file.
    ///
    /// Throws AppError for a status other than 200, PlatformError for what the network or the file
    /// system reports, and Cancelled when `stop` is requested. Blocks.
    [[nodiscard]] InputFile start(const QUrl& url, const QString& into,
                                  const std::stop_token& stop) const;

    [[nodiscard]] std::chrono::milliseconds stallTimeout() const { return m_stallTimeout; }

private:
    ProgressCallback m_onProgress;
    std::chrono::milliseconds m_stallTimeout;
};
