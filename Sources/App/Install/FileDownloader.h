// SPDX-License-Identifier: MIT
#pragma once

#include "Durations.h"
#include "Install/DownloadProgress.h"

#include <QFuture>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <mutex>

class HttpTransfer;

/// Downloads a file over HTTP into a folder of the caller's choice, one at a time.
///
/// Only the final status 200 is a success. The file appears under its own name only when it is
/// complete; after a failure the folder holds nothing of this download. The bytes are served on the
/// network thread, never on the caller's.
class FileDownloader final
{
public:
    using ProgressCallback = std::function<void(const DownloadProgress&)>;

    /// `onProgress` is called on the network thread, for every piece that arrives. A transfer in
    /// which no byte arrives for `stallLimit` fails.
    explicit FileDownloader(ProgressCallback onProgress,
                            std::chrono::milliseconds stallLimit = Durations().transferStall);
    ~FileDownloader();

    /// Downloads `url` into the existing folder `into`, replacing a file of that name, and gives
    /// the file's path. The file is named after the URL's last path component, or "download" when
    /// that is empty or no name for a file. The future carries an AppError for a status other than
    /// 200, a PlatformError for what the network or the file system reports, and Cancelled after
    /// cancel(). Must not be called while a download is pending.
    QFuture<QString> start(const QUrl& url, const QString& into);

    /// Ends the pending download, if any, with Cancelled. Any thread.
    void cancel();

private:
    ProgressCallback m_onProgress;
    std::chrono::milliseconds m_stallLimit;
    std::mutex m_mutex;
    std::shared_ptr<HttpTransfer> m_transfer;
};
