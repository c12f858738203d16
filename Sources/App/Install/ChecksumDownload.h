// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFuture>
#include <QUrl>

#include <chrono>
#include <memory>

class HttpTransfer;

/// The download of the engine's checksum list, into memory. A list of more than 1 MiB is refused
/// before more of it is read, so that no answer can fill memory.
class ChecksumDownload final
{
public:
    /// Starts it. The future carries an AppError for a status other than 200 or a list that is too
    /// large, a PlatformError for what the network reports, a silence of `stallLimit` included, and
    /// Cancelled after cancel().
    ChecksumDownload(const QUrl& url, std::chrono::milliseconds stallLimit);
    ~ChecksumDownload();

    [[nodiscard]] QFuture<QByteArray> list() const { return m_list; }

    /// Harmless once the download has ended. Any thread.
    void cancel();

private:
    QFuture<QByteArray> m_list;
    std::shared_ptr<HttpTransfer> m_transfer;
};
