// SPDX-License-Identifier: MIT
#include "Install/EngineManager.h"

#include "AppError.h"
#include "Install/ChecksumDownload.h"
#include "Install/ChecksumList.h"
#include "Install/ClearQuarantine.h"
#include "Install/FileDownloader.h"
#include "Install/Finally.h"
#include "Install/Paths.h"
#include "Install/Sha512.h"
#include "Install/TemporaryFolder.h"
#include "Install/Unzipper.h"
#include "Install/WebHost.h"
#include "Platform/Cancelled.h"
#include "Platform/FileTree.h"
#include "Platform/HostPlatform.h"
#include "Platform/OffThread.h"

#include <QCoroFuture>

#include <QCoreApplication>
#include <QFile>

namespace {

/// What the steps of one installation share. A copy travels with each of them.
struct Job
{
    EngineManager manager;
    std::shared_ptr<FileDownloader> downloader;
    LogCallback log;
    std::stop_token stop;
    EngineManager::QuarantineTool quarantineTool;
};

QString editionName(const EngineManager& manager)
{
    return EngineManager::version() + (manager.mono ? QStringLiteral("-mono") : QString());
}

/// The release archives should carry the execute bit, but an engine without it would be of no use.
void makeExecutable(const QString& program)
{
    QFile::setPermissions(program, QFile::permissions(program) | QFileDevice::ExeOwner |
                                       QFileDevice::ExeGroup | QFileDevice::ExeOther);
}

/// Swaps the unpacked engine in, and gives its program. Blocks.
QString putInPlace(const EngineManager& manager, const QString& staging,
                   const std::stop_token& stop)
{
    if (const auto program = HostPlatform::findEngineProgram(staging))
        makeExecutable(*program);
    const auto target = manager.folder();
    FileTree::replace(target, staging, Paths::newStagingFolder(target), stop);
    const auto program = manager.executable();
    if (!program)
        throw AppError(QCoreApplication::translate(
            "EngineManager", "The engine was unpacked but its program was not found."));
    return *program;
}

QCoro::Task<QString> readChecksum(Job job, std::chrono::milliseconds stallLimit)
{
    job.log(QStringLiteral("Reading the official checksum list (SHA512-SUMS.txt)…"));
    const auto url = EngineManager::releaseURL(QStringLiteral("SHA512-SUMS.txt"));
    const auto archiveName = job.manager.archiveName();
    throwIfCancelled(job.stop);
    ChecksumDownload download(url, stallLimit);
    const std::stop_callback cancel(job.stop, [&download] { download.cancel(); });
    const auto pending = download.list();
    const QByteArray list = co_await pending;
    throwIfCancelled(job.stop);
    const auto digest = ChecksumList::digestFor(list, archiveName);
    if (!digest) {
        throw AppError(
            QCoreApplication::translate("EngineManager", "The checksum list has no entry for %1.")
                .arg(archiveName));
    }
    co_return *digest;
}

QCoro::Task<QString> download(Job job, QString temporary)
{
    const auto archiveName = job.manager.archiveName();
    job.log(QStringLiteral("Downloading %1 from godotengine/godot releases…").arg(archiveName));
    const auto url = EngineManager::releaseURL(archiveName);
    throwIfCancelled(job.stop);
    const auto pending = job.downloader->start(url, temporary);
    const std::stop_callback cancel(job.stop,
                                    [downloader = job.downloader] { downloader->cancel(); });
    const QString file = co_await pending;
    throwIfCancelled(job.stop);
    co_return file;
}

QCoro::Task<> verify(Job job, QString file, QString expected)
{
    job.log(QStringLiteral("Checking the download against the official SHA-512 checksum…"));
    const auto hashing =
        offThread([file, stop = job.stop] { return EngineManager::sha512(file, stop); });
    const QString actual = co_await hashing;
    if (actual != expected) {
        throw AppError(QCoreApplication::translate(
            "EngineManager",
            "The engine download did not match its official checksum, so it was discarded."));
    }
    job.log(QStringLiteral("Checksum OK."));
}

QCoro::Task<QString> unpackAndPutInPlace(Job job, QString file, QString staging)
{
    auto unpacking = Unzipper::unzip(file, staging, job.log, job.stop);
    co_await unpacking;
    if (const auto tool = job.quarantineTool(staging)) {
        auto clearing = clearQuarantine(*tool, job.log, job.stop);
        co_await clearing;
    }
    const auto placing = offThread([manager = job.manager, staging, stop = job.stop] {
        return putInPlace(manager, staging, stop);
    });
    const QString program = co_await placing;
    co_return program;
}

QCoro::Task<QString> installThrough(Job job, QString temporary, QString expected)
{
    auto downloading = download(job, temporary);
    const QString file = co_await downloading;
    auto verifying = verify(job, file, expected);
    co_await verifying;
    const auto ensured = offThread([] { Paths::ensure(Paths::engines()); });
    co_await ensured;
    const auto staging = Paths::newStagingFolder(job.manager.folder());
    auto installing = finallyOffThread(unpackAndPutInPlace(job, file, staging),
                                       [staging] { FileTree::removeQuietly(staging); });
    const QString program = co_await installing;
    co_return program;
}

QCoro::Task<QString> installEngine(Job job, std::chrono::milliseconds stallLimit)
{
    auto reading = readChecksum(job, stallLimit);
    const QString expected = co_await reading;
    const auto created =
        offThread([] { return std::make_shared<TemporaryFolder>(Paths::newTempDir()); });
    const std::shared_ptr<TemporaryFolder> temporary = co_await created;
    auto installing = finallyOffThread(installThrough(job, temporary->path(), expected),
                                       [temporary] { temporary->remove(); });
    const QString program = co_await installing;
    co_return program;
}

} // namespace

QString EngineManager::version()
{
    return QStringLiteral("3.5.3-stable");
}

QString EngineManager::archiveName() const
{
    return QStringLiteral("Godot_v%1_%2").arg(version(), HostPlatform::engineArchiveSuffix(mono));
}

QString EngineManager::folder() const
{
    return Paths::engines() + u'/' + editionName(*this);
}

QString EngineManager::markerFile() const
{
    return Paths::game() + QStringLiteral("/.setup-v2-") + editionName(*this);
}

QUrl EngineManager::releaseURL(const QString& fileName)
{
    const QUrl url(
        webHost() +
            QStringLiteral("/godotengine/godot/releases/download/%1/%2").arg(version(), fileName),
        QUrl::StrictMode);
    if (!url.isValid())
        throw AppError(QCoreApplication::translate("EngineManager", "Invalid engine URL."));
    return url;
}

QString EngineManager::sha512(const QString& file, const std::stop_token& stop)
{
    return sha512OfFile(file, stop);
}

std::optional<QString> EngineManager::executable() const
{
    return HostPlatform::findEngineProgram(folder());
}

QCoro::Task<QString> EngineManager::install(std::shared_ptr<FileDownloader> downloader,
                                            LogCallback log, std::stop_token stop,
                                            std::chrono::milliseconds stallLimit,
                                            QuarantineTool quarantineTool) const
{
    // Not a coroutine itself: the record it is called on may be gone before the work is done.
    Job job{*this, std::move(downloader), std::move(log), std::move(stop),
            std::move(quarantineTool)};
    return installEngine(std::move(job), stallLimit);
}
