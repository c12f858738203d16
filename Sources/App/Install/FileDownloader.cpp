// SPDX-License-Identifier: MIT
#include "Install/FileDownloader.h"

#include "Install/InstallTools.h"
#include "Install/Paths.h"
#include "System/ByteCount.h"
#include "System/DiskSpace.h"
#include "System/Errors.h"
#include "System/FileTree.h"
#include "System/OutputFile.h"

#include <QFileInfo>
#include <QScopeGuard>

#include <algorithm>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// Returns the URL's file name, or "download" if it is not a valid one.
QString fileNameOf(const QUrl& url)
{
    const auto name = url.fileName(QUrl::FullyDecoded);
    const auto isName = !name.isEmpty() && name != "."_L1 && name != ".."_L1 &&
                        !name.contains(u'/') && !name.contains(QChar(u'\0'));
    return isName ? name : u"download"_s;
}

/// Stops a download that is larger than the free space.
class SpaceCheck final
{
public:
    /// Messages name the parent of `folder`, since `folder` is deleted after a failure.
    SpaceCheck(const QUrl& url, const QString& folder, const OutputFile& file)
        : m_url(url)
        , m_folder(QFileInfo(folder).path())
        , m_free(freeSpace(file.descriptor()))
    {
    }

    void checkLength(qint64 length) const
    {
        if (m_free && length > *m_free) {
            throw PlatformError(
                PlatformError::tr("The download of “%1” is %2 larger than what is "
                                  "free in “%3”. Make room there and try again.")
                    .arg(m_url.toDisplayString(), formattedByteCount(length - *m_free), m_folder));
        }
    }

    /// A download of unknown length must leave a reserve for other programs.
    void checkReceived(qint64 size) const
    {
        if (m_free && size > *m_free - std::min(reserve, *m_free / 2)) {
            throw PlatformError(PlatformError::tr("The download of “%1” takes up all that is free "
                                                  "in “%2”, but for a reserve. Make room there and "
                                                  "try again.")
                                    .arg(m_url.toDisplayString(), m_folder));
        }
    }

private:
    static constexpr qint64 reserve = 64'000'000;

    const QUrl& m_url;
    const QString m_folder;
    const std::optional<qint64> m_free;
};

/// Moves the complete file to its final name, replacing what is there.
void moveInto(const QString& destination, const QString& part)
{
    FileTree::remove(destination);
    if (const auto error = FileTree::rename(part, destination); error != 0)
        throw PlatformError::fromErrno(PlatformError::tr("Could not save “%1”").arg(destination),
                                       error);
}

} // namespace

FileDownloader::FileDownloader(ProgressCallback onProgress, std::chrono::milliseconds stallTimeout)
    : m_onProgress(std::move(onProgress))
    , m_stallTimeout(stallTimeout)
{
}

InputFile FileDownloader::start(const QUrl& url, const QString& into,
                                const std::stop_token& stop) const
{
    const auto destination = into + u'/' + fileNameOf(url);
    const auto part = into + u"/.download-"_s + Paths::newUuid();
    auto removePart = qScopeGuard([&part] { FileTree::removeBestEffort(part); });
    OutputFile file(part);
    const SpaceCheck space(url, into, file);
    const auto start = std::chrono::steady_clock::now();
    qint64 received = 0;
    qint64 total = -1;
    const HttpReceiver receiver{
        .begin =
            [&](int status, qint64 length) {
                if (status != 200) {
                    throw AppError(
                        AppError::tr("The server answered with HTTP %1 for %2.")
                            .arg(QString::number(status), url.toString(QUrl::FullyEncoded)));
                }
                total = length;
                space.checkLength(length);
            },
        .take =
            [&](QByteArrayView piece) {
                file.write(piece);
                received += piece.size();
                if (total < 0)
                    space.checkReceived(received);
                m_onProgress(DownloadProgress::after(std::chrono::steady_clock::now() - start,
                                                     received, total));
            }};
    installTools().httpGet(url, receiver, m_stallTimeout, stop);
    auto downloaded = file.closeForReading();
    moveInto(destination, part);
    removePart.dismiss();
    return {destination, std::move(downloaded)};
}
