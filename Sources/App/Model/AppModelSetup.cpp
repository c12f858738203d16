// SPDX-License-Identifier: MIT
//
// Play, and its first three steps: the game, the engine, the import. Each checks the disk and is
// skipped if it is already complete.
#include "Model/AppModel.h"

#include "Install/EngineManager.h"
#include "Install/Paths.h"
#include "Install/RepoDownloader.h"
#include "Install/StaleFolders.h"
#include "Project/ImportChecker.h"
#include "Project/ProjectInspector.h"
#include "System/Errors.h"
#include "System/OffThread.h"
#include "System/Sync.h"

#include <QCoroFuture>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QString projectLine(const ProjectInfo& info)
{
    return u"project.godot: config_version=%1 → Godot %2.x, C#: %3, main scene: "_s
               .arg(info.configVersion)
               .arg(info.isForGodot3() ? 3 : 4)
               .arg(info.usesCSharp ? u"yes"_s : u"no"_s) +
           info.mainScene;
}

QFuture<int> countMissing(const QString& project, const std::stop_token& stop)
{
    return offThread([project, stop] { return ImportChecker::missingCount(project, stop); });
}

/// Writes the assets in the folder of `path` to the disk, then creates the marker `path`. Ignores a
/// failure to create it: the next Play then imports again. Throws PlatformError if the assets
/// cannot be written, and Cancelled when `stop` is requested. Blocks.
void createMarker(const QString& path, const std::stop_token& stop)
{
    syncTree(QFileInfo(path).path(), stop);
    QFile file(path);
    static_cast<void>(file.open(QIODevice::WriteOnly));
}

} // namespace

void AppModel::play()
{
    if (isBusy())
        return;
    m_failureText.reset();
    if (failIfGameRuns())
        return;
    startFlow(&AppModel::setUpAndPlay);
}

QCoro::Task<> AppModel::setUpAndPlay(std::stop_token stop)
{
    co_await finishReplacements(stop);
    const auto project = co_await getGame(stop);
    const auto info = co_await readProject(project);
    const auto engine = co_await getEngine(info, stop);
    co_await importAssets(engine, info, stop);
    co_await launch(engine, info.folder);
}

QCoro::Task<> AppModel::finishReplacements(std::stop_token stop)
{
    if (Paths::completeFolders().isEmpty())
        co_return;
    ensureOwner();
    co_await waitForDeletion();
    const auto finishing = offThread([stop] { StaleFolders::finishReplacements(stop); });
    co_await finishing;
}

QCoro::Task<QString> AppModel::getGame(std::stop_token stop)
{
    const auto search =
        offThread([game = Paths::game()] { return ProjectInspector::findProject(game); });
    const auto installed = co_await search;
    if (installed && !m_forceGameDownload) {
        m_log.append(u"Step 1 of 4 · Game already downloaded, skipping."_s);
        throwIfCancelled(stop);
        co_return *installed;
    }
    throwIfCancelled(stop);
    ensureOwner();
    m_forceGameDownload = false;
    //: The name of a step, shown below the title "Downloading".
    enter(Phase::downloading(), tr("Step 1 of 4 · Downloading the game"));
    co_await waitForDeletion();
    throwIfCancelled(stop);
    const auto fetching = RepoDownloader::fetch(makeDownloader(), m_log.callback(), stop);
    QString project;
    try {
        project = co_await fetching;
    } catch (const RefusedUpdate& update) {
        useProject(update.info(), update.facts());
    }
    throwIfCancelled(stop);
    co_return project;
}

QCoro::Task<ProjectInfo> AppModel::readProject(QString project)
{
    const auto reading = offThread([project] { return ProjectInspector::inspect(project); });
    const auto info = co_await reading;
    const auto gathering = offThread(
        [project, game = Paths::game()] { return ProjectInspector::facts(project, game); });
    useProject(info, co_await gathering);
    co_return *info;
}

/// Publishes and logs the facts of the downloaded game. Throws AppError if it cannot be played.
void AppModel::useProject(const std::optional<ProjectInfo>& info, const RepoFacts& facts)
{
    if (!info)
        throw AppError(tr("The downloaded folder has no readable project.godot."));
    m_info = info;
    m_facts = facts;
    Q_EMIT changed();
    m_log.append(projectLine(*info));
    if (!info->isForGodot3())
        throw AppError(tr("This game is made for Godot 4, but this app only knows how "
                          "to install Godot 3."));
}

QCoro::Task<QString> AppModel::getEngine(ProjectInfo info, std::stop_token stop)
{
    const EngineManager manager{.mono = info.usesCSharp};
    const auto search = offThread([manager] { return manager.executable(); });
    auto engine = co_await search;
    if (engine) {
        m_log.append(u"Step 2 of 4 · Engine already installed, skipping."_s);
    } else {
        throwIfCancelled(stop);
        ensureOwner();
        //: %1 is a version, such as "3.5.3-stable-mono".
        enter(Phase::downloading(),
              tr("Step 2 of 4 · Downloading the Godot engine (%1)").arg(manager.buildName()));
        const auto installing = manager.install(makeDownloader(), m_log.callback(), stop);
        engine = co_await installing;
    }
    throwIfCancelled(stop);
    if (!engine)
        throw AppError(tr("The Godot engine is missing."));
    co_return *engine;
}

QCoro::Task<> AppModel::importAssets(QString engine, ProjectInfo info, std::stop_token stop)
{
    const EngineManager manager{.mono = info.usesCSharp};
    const auto firstCount = countMissing(info.folder, stop);
    const auto before = co_await firstCount;
    throwIfCancelled(stop);
    if (before < 1 && QFile::exists(manager.markerFile())) {
        m_log.append(u"Step 3 of 4 · Already set up, skipping."_s);
        co_return;
    }
    ensureOwner();
    QFile::remove(manager.markerFile());
    enter(Phase::settingUp(), tr("Step 3 of 4 · First-time setup, this can take a minute or more"));
    // This text is fixed, although runImport() passes no --quit.
    m_log.append(u"Importing the game's assets (Godot 3 has no --headless flag; "
                 "using --editor --no-window --quit)."_s);
    throwIfCancelled(stop); // A handler of changed() may have called cancelSetup().
    const auto log = m_log.callback();
    const auto status =
        co_await m_runner.runImport(engine, info.folder, m_durations.importTimeout, log);
    const auto secondCount = countMissing(info.folder, stop);
    const auto after = co_await secondCount;
    throwIfCancelled(stop);
    if (after >= 1) {
        throw AppError(tr("The first-time setup did not finish: %n game assets were "
                          "not imported (engine exit code %1).",
                          nullptr, after)
                           .arg(status));
    }
    const auto marking =
        offThread([path = manager.markerFile(), stop] { createMarker(path, stop); });
    co_await marking;
    throwIfCancelled(stop);
}
