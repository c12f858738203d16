// SPDX-License-Identifier: MIT
//
// The housekeeping a player can do besides playing. What destroys something asks first.
#include "Model/AppModel.h"

#include "Install/EngineManager.h"
#include "Install/Paths.h"
#include "Install/StaleFolders.h"
#include "Model/Desktop.h"
#include "Platform/Platform.h"
#include "System/Errors.h"
#include "System/FileTree.h"
#include "System/OffThread.h"

#include <QCoroFuture>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

namespace {

constexpr int copiedLogLines = 2000;

/// Renames the game and the engines, each in one step, so that no half-deleted folder stays at a
/// final path. A folder that cannot be renamed is deleted where it is.
void vacate(const std::stop_token& stop)
{
    for (const auto& folder : {Paths::game(), Paths::engines()}) {
        const auto error = FileTree::rename(folder, Paths::newStagingFolder(folder));
        if (error != 0 && error != ENOENT)
            FileTree::removeBestEffort(folder, stop);
    }
}

} // namespace

bool AppModel::askToChange(const QString& title, const QString& message, const QString& button)
{
    const auto isRefused = [this] { return isBusy() || failIfGameRuns() || failIfNotOwner(); };
    // While a question stands the program goes on, and may have begun something else.
    return !isRefused() && m_desktop.confirm(title, message, button) && !isRefused();
}

void AppModel::updateGame()
{
    if (!askToChange(tr("Update the game?"),
                     tr("The game is downloaded again from GitHub. Your save files are kept."),
                     tr("Update")))
        return;
    m_forceGameDownload = true;
    if (m_info)
        QFile::remove(EngineManager{.mono = m_info->usesCSharp}.markerFile());
    play();
}

void AppModel::reinstall()
{
    if (askToChange(
            tr("Reinstall everything?"),
            tr("The game and the engine are deleted and downloaded again. Your save files are "
               "kept."),
            tr("Reinstall")))
        startFlow(&AppModel::deleteAndSetUp);
}

QCoro::Task<> AppModel::deleteAndSetUp(std::stop_token stop)
{
    co_await waitUntilCleared();
    const auto moving = offThread([stop] { vacate(stop); });
    co_await moving;
    throwIfCancelled(stop);
    clearStaleFolders();
    refreshState();
    m_failureText.reset();
    co_await setUpAndPlay(stop);
}

void AppModel::removeEverything()
{
    const auto size = m_installedSize.isEmpty() ? tr("all downloaded files") : m_installedSize;
    if (askToChange(
            tr("Remove everything?"),
            tr("This deletes the downloaded game and engine and frees %1. Your save files in "
               "Godot's folder are not touched.")
                .arg(size),
            tr("Remove")))
        startFlow(&AppModel::deleteEverything);
}

QCoro::Task<> AppModel::deleteEverything(std::stop_token stop)
{
    co_await waitUntilCleared();
    // Of a root that is a symbolic link only the link goes, as when a file browser removes it.
    if (!QFileInfo(Paths::root()).isSymLink()) {
        const auto moving = offThread([stop] { vacate(stop); });
        co_await moving;
        throwIfCancelled(stop);
    }
    refreshState();
    removeRoot();
}

void AppModel::removeRoot()
{
    m_deletion = offThread([root = Paths::root(), stop = m_backgroundStop.get_token()] {
        try {
            FileTree::remove(root, stop);
        } catch (const PlatformError& error) {
            return tr("Could not remove the files: %1").arg(error.message());
        } catch (const Cancelled&) {
            // The next start goes on.
        }
        return QString();
    });
    whenFinished(m_deletion, this, [this](const QString& failure) { concludeRemoval(failure); });
}

void AppModel::concludeRemoval(const QString& failure)
{
    m_deletion = QtFuture::makeReadyFuture(QString());
    // Neither a cancelled removal nor a flow that has begun meanwhile loses its lines.
    if (failure.isEmpty() && !isFlowRunning() && !FileTree::exists(Paths::root()))
        m_log.clear();
    // A flow that began meanwhile has waited for this, and tells the failure itself.
    if (isFlowRunning())
        updateSize();
    else if (failure.isEmpty())
        refreshState();
    else
        fail(failure);
}

/// Deletes stale folders in the background. Neither a cancel nor the first press of Play waits for
/// that.
void AppModel::clearStaleFolders()
{
    const auto folders = StaleFolders::restoreAndList(m_lock);
    m_deletion = offThread([folders, stop = m_backgroundStop.get_token()] {
        StaleFolders::remove(folders, stop);
        return QString();
    });
    whenFinished(m_deletion, this, [this, folders](const QString&) {
        if (!folders.isEmpty())
            updateSize();
    });
}

/// A deletion makes room for what is about to be downloaded.
QCoro::Task<> AppModel::waitUntilCleared()
{
    const auto deletion = m_deletion;
    const QString failure = co_await deletion;
    if (!failure.isEmpty())
        throw AppError(failure);
}

std::optional<QString> AppModel::savesFolder() const
{
    if (!m_info)
        return std::nullopt;
    const auto folder = hostPlatform().savesFolder(m_info->name);
    return QFileInfo(folder).isDir() ? std::optional(folder) : std::nullopt;
}

void AppModel::showSaves()
{
    if (const auto folder = savesFolder())
        m_desktop.openFolder(*folder);
}

void AppModel::revealInFinder()
{
    try {
        const auto root = Paths::root();
        m_desktop.revealFolder(QFileInfo::exists(root) ? root : QFileInfo(root).path());
    } catch (const PlatformError& error) {
        fail(error.message()); // There is no home, and so nothing to show.
    }
}

void AppModel::copyFailure()
{
    if (m_failureText)
        m_desktop.copyText(*m_failureText);
}

void AppModel::copyLog()
{
    m_desktop.copyText(m_log.newest(copiedLogLines).join(u'\n'));
}

bool AppModel::confirmQuit()
{
    if (m_phase == Phase::Kind::playing) {
        if (!m_desktop.confirm(tr("Quit and close the game?"),
                               tr("The game is still running. Quitting will close it."),
                               tr("Quit")))
            return false;
    }
    endForQuit(); // Harmless when the game has ended while the question stood.
    return true;
}

void AppModel::endForQuit()
{
    // An answer to a question that comes after this starts no flow.
    m_quitting = true;
    if (m_phase == Phase::Kind::playing)
        stopGame();
    else if (isFlowRunning())
        cancelSetup();
    m_backgroundStop.request_stop();
}
