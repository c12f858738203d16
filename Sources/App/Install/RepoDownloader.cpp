// SPDX-License-Identifier: MIT
#include "Install/RepoDownloader.h"

#include "AppError.h"
#include "Install/FileDownloader.h"
#include "Install/Finally.h"
#include "Install/Paths.h"
#include "Install/TemporaryFolder.h"
#include "Install/Unzipper.h"
#include "Install/WebHost.h"
#include "Platform/Cancelled.h"
#include "Platform/FileTree.h"
#include "Platform/OffThread.h"
#include "Project/ProjectInspector.h"

#include <QCoreApplication>
#include <QCoroFuture>

#include <utility>

namespace {

QString branch()
{
    return QStringLiteral("master");
}

/// Swaps the unpacked game in, and gives its project's folder. Blocks.
QString putInPlace(const RepoDownloader::Swap& swap, const QString& staging,
                   const std::stop_token& stop)
{
    if (!ProjectInspector::findProject(staging))
        throw AppError(QCoreApplication::translate(
            "RepoDownloader", "The downloaded game does not contain a project.godot file."));
    const auto game = Paths::game();
    swap(game, staging, Paths::newStagingFolder(game), stop);
    const auto project = ProjectInspector::findProject(game);
    if (!project)
        throw AppError(QCoreApplication::translate(
            "RepoDownloader", "The game folder was unpacked but project.godot was not found."));
    return *project;
}

QCoro::Task<QString> unpackAndPutInPlace(RepoDownloader::Swap swap, QString archive,
                                         QString staging, LogCallback log, std::stop_token stop)
{
    auto unpacking = Unzipper::unzip(archive, staging, log, stop);
    co_await unpacking;
    const auto placing = offThread([=] { return putInPlace(swap, staging, stop); });
    const QString project = co_await placing;
    co_return project;
}

QCoro::Task<QString> fetchThrough(QString temporary, RepoDownloader::Swap swap,
                                  std::shared_ptr<FileDownloader> downloader, LogCallback log,
                                  std::stop_token stop)
{
    log(QStringLiteral("Downloading the game source from GitHub (branch %1)…").arg(branch()));
    const auto url = RepoDownloader::zipURL();
    throwIfCancelled(stop);
    const auto download = downloader->start(url, temporary);
    const std::stop_callback cancel(stop, [downloader] { downloader->cancel(); });
    const QString archive = co_await download;
    throwIfCancelled(stop);
    log(QStringLiteral("Unpacking the game with ditto…"));
    const auto ensured = offThread([] { Paths::ensure(Paths::root()); });
    co_await ensured;
    const auto staging = Paths::newStagingFolder(Paths::game());
    auto installing = finallyOffThread(unpackAndPutInPlace(swap, archive, staging, log, stop),
                                       [staging] { FileTree::removeQuietly(staging); });
    const QString project = co_await installing;
    log(QStringLiteral("Game ready at %1").arg(project));
    co_return project;
}

} // namespace

QUrl RepoDownloader::zipURL()
{
    const QUrl url(
        webHost() +
            QStringLiteral("/brindlework-demos/tetherwalk/archive/refs/heads/%1.zip").arg(branch()),
        QUrl::StrictMode);
    if (!url.isValid())
        throw AppError(QCoreApplication::translate("RepoDownloader", "Invalid game URL."));
    return url;
}

QCoro::Task<QString> RepoDownloader::fetch(std::shared_ptr<FileDownloader> downloader,
                                           LogCallback log, std::stop_token stop)
{
    return fetchWith(FileTree::replace, std::move(downloader), std::move(log), std::move(stop));
}

QCoro::Task<QString> RepoDownloader::fetchWith(Swap swap,
                                               std::shared_ptr<FileDownloader> downloader,
                                               LogCallback log, std::stop_token stop)
{
    const auto created =
        offThread([] { return std::make_shared<TemporaryFolder>(Paths::newTempDir()); });
    const std::shared_ptr<TemporaryFolder> temporary = co_await created;
    auto fetching = finallyOffThread(fetchThrough(temporary->path(), swap, downloader, log, stop),
                                     [temporary] { temporary->remove(); });
    const QString project = co_await fetching;
    co_return project;
}
