// SPDX-License-Identifier: MIT
#pragma once

#include "Install/DownloadProgress.h"
#include "Install/HttpReceiver.h"
#include "Platform/OutputFile.h"

#include <QElapsedTimer>
#include <QPromise>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

/// Writes a transfer to a file, and reports its progress.
///
/// The bytes go to a file of another name in the same folder, which gets its own name only when
/// they are complete and written; on every other way out it is removed.
class FileReceiver final : public HttpReceiver
{
public:
    using ProgressCallback = std::function<void(const DownloadProgress&)>;

    /// Writes what `url` gives to the file `name` in the existing folder `folder`, and gives its
    /// path through `result`. The transfer's time counts from now.
    FileReceiver(QUrl url, const QString& folder, const QString& name, ProgressCallback onProgress,
                 QPromise<QString> result);
    ~FileReceiver() override;

    void begin(int status, qint64 length) override;
    void take(QByteArrayView piece) override;
    void complete() override;
    void fail(const std::exception_ptr& error) noexcept override;

private:
    void removePart() noexcept;

    QUrl m_url;
    QString m_destination;
    QString m_partPath;
    ProgressCallback m_onProgress;
    QPromise<QString> m_result;
    QElapsedTimer m_sinceStart;
    std::optional<OutputFile> m_part;
    qint64 m_received = 0;
    qint64 m_length = -1;
};
