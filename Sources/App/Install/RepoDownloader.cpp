// SPDX-License-Identifier: MIT
#include "Install/RepoDownloader.h"

#include "Install/ArchiveInstallation.h"
#include "Install/FileDownloader.h"
#include "Install/Http/WebHost.h"
#include "Install/Paths.h"
#include "Platform/Platform.h"
#include "Project/ProjectInspector.h"
#include "System/Errors.h"
#include "System/OffThread.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool isPlayable(const std::optional<ProjectInfo>& info)
{
    return info && info->isForGodot3();
}

bool hasPlayableGame(const QString& game)
{
    const auto project = ProjectInspector::findProject(game);
    return project && isPlayable(ProjectInspector::inspect(*project));
}

/// Throws AppError or RefusedUpdate if the unpacked game must not replace the installed one.
void check(const QString& staging, const QString& game)
{
    const auto project = ProjectInspector::findProject(staging);
    if (!project)
        throw AppError(AppError::tr("The downloaded game does not contain a project.godot file."));
    // A first installation continues; the setup then reports the problem.
    auto info = ProjectInspector::inspect(*project);
    if (!isPlayable(info) && hasPlayableGame(game))
        throw RefusedUpdate(std::move(info), ProjectInspector::facts(*project, staging));
}

QString install(const FileDownloader& downloader, const LogCallback& log,
                const std::stop_token& stop)
{
    const auto game = Paths::game();
    installArchive(
        {.announcement =
             u"Downloading the game source from GitHub (branch %1)…"_s.arg(RepoDownloader::branch),
         .url = RepoDownloader::zipURL,
         .target = game,
         .beforeUnpacking = [&log](const InputFile&) { log(u"Unpacking the game with ditto…"_s); },
         .finish = [&game](const QString& staging) { check(staging, game); }},
        downloader, log, stop, hostPlatform());
    const auto project = ProjectInspector::findProject(game);
    if (!project)
        throw AppError(
            AppError::tr("The game folder was unpacked but project.godot was not found."));
    log(u"Game ready at %1"_s.arg(*project));
    return *project;
}

} // namespace

RefusedUpdate::RefusedUpdate(std::optional<ProjectInfo> info, RepoFacts facts)
    : m_info(std::move(info))
    , m_facts(std::move(facts))
{
}

QUrl RepoDownloader::zipURL()
{
    const QUrl url(webHost() +
                       u"/%1/archive/refs/heads/%2.zip"_s.arg(GameFacts::repository, branch),
                   QUrl::StrictMode);
    if (!url.isValid())
        throw AppError(AppError::tr("Invalid game URL."));
    return url;
}

QFuture<QString> RepoDownloader::fetch(std::shared_ptr<const FileDownloader> downloader,
                                       LogCallback log, std::stop_token stop)
{
    return offThread([=] { return install(*downloader, log, stop); });
}
