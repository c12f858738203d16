// SPDX-License-Identifier: MIT
#include "Install/FileDownloader.h"

#include "Install/FileReceiver.h"
#include "Install/HttpTransfer.h"

#include <QPromise>

#include <utility>

namespace {

/// A name that stays in the folder it is put into, whatever the URL says.
QString fileNameOf(const QUrl& url)
{
    const auto name = url.fileName(QUrl::FullyDecoded);
    const auto isName = !name.isEmpty() && name != QLatin1String(".") &&
                        name != QLatin1String("..") && !name.contains(u'/') &&
                        !name.contains(QChar(u'\0'));
    return isName ? name : QStringLiteral("download");
}

} // namespace

FileDownloader::FileDownloader(ProgressCallback onProgress, std::chrono::milliseconds stallLimit)
    : m_onProgress(std::move(onProgress))
    , m_stallLimit(stallLimit)
{
}

FileDownloader::~FileDownloader() = default;

QFuture<QString> FileDownloader::start(const QUrl& url, const QString& into)
{
    QPromise<QString> result;
    result.start();
    const auto future = result.future();
    auto receiver =
        std::make_unique<FileReceiver>(url, into, fileNameOf(url), m_onProgress, std::move(result));
    const std::lock_guard lock(m_mutex);
    m_transfer = HttpTransfer::start(url, std::move(receiver), m_stallLimit);
    return future;
}

void FileDownloader::cancel()
{
    const std::lock_guard lock(m_mutex);
    if (m_transfer)
        m_transfer->cancel();
}
