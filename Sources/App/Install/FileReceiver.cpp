// SPDX-License-Identifier: MIT
#include "Install/FileReceiver.h"

#include "AppError.h"
#include "Install/Paths.h"
#include "Platform/FileTree.h"
#include "Platform/PlatformError.h"

#include <QCoreApplication>

#include <utility>

FileReceiver::FileReceiver(QUrl url, const QString& folder, const QString& name,
                           ProgressCallback onProgress, QPromise<QString> result)
    : m_url(std::move(url))
    , m_destination(folder + u'/' + name)
    , m_partPath(folder + QStringLiteral("/.download-") + Paths::newUuid())
    , m_onProgress(std::move(onProgress))
    , m_result(std::move(result))
{
    m_sinceStart.start();
}

FileReceiver::~FileReceiver()
{
    removePart();
}

void FileReceiver::begin(int status, qint64 length)
{
    if (status != 200) {
        throw AppError(
            QCoreApplication::translate("FileReceiver", "The server answered with HTTP %1 for %2.")
                .arg(QString::number(status), m_url.toString(QUrl::FullyEncoded)));
    }
    m_length = length;
    m_part.emplace(m_partPath);
}

void FileReceiver::take(QByteArrayView piece)
{
    m_part->write(piece);
    m_received += piece.size();
    m_onProgress(DownloadProgress::after(std::chrono::nanoseconds(m_sinceStart.nsecsElapsed()),
                                         m_received, m_length));
}

void FileReceiver::complete()
{
    m_part->close();
    FileTree::remove(m_destination);
    if (const auto error = FileTree::rename(m_partPath, m_destination); error != 0)
        throw PlatformError::fromErrno(PlatformError::tr("save “%1”").arg(m_destination), error);
    m_part.reset();
    m_result.addResult(m_destination);
    m_result.finish();
}

void FileReceiver::fail(const std::exception_ptr& error) noexcept
{
    removePart();
    m_result.setException(error);
    m_result.finish();
}

void FileReceiver::removePart() noexcept
{
    if (!m_part)
        return;
    m_part.reset();
    FileTree::removeQuietly(m_partPath);
}
