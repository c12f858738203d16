// SPDX-License-Identifier: MIT
//
// The player's maintenance actions, and quitting.
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

#include <algorithm>
#include <cerrno>
#include <tuple>

namespace {

/// Replaces a folder that cannot be renamed by an empty one.
void emptyInPlace(const QString& folder, const std::stop_token& stop)
{
    const QString empty = Paths::newStagingFolder(folder) + FileTree::completeSuffix;
    Paths::ensure(empty);
    FileTree::supersede(folder, empty, stop);
}

/// Renames a folder, so that it is not at its final path while it is deleted.
void moveAside(const QString& folder, const std::stop_token& stop)
{
    const auto error = FileTree::rename(folder, Paths::newStagingFolder(folder));
    if (error == EXDEV)
        emptyInPlace(folder, stop);
    else if (error != 0 && error != ENOENT)
        FileTree::remove(folder, stop);
    for (const auto& [complete, target] : Paths::completeFolders()) {
        if (target == folder)
            std::ignore = FileTree::rename(complete, Paths::newStagingFolder(folder));
    }
}

/// Moves the game and the engines aside. The caller finds what could not be moved.
void moveAllAside(const std::stop_token& stop)
{
    for (const auto& folder : {Paths::game(), Paths::engines()}) {
        try {
            moveAside(folder, stop);
        } catch (const PlatformError&) {
        }
    }
}

} // namespace

bool AppModel::askToChange(const QString& title, const QString& message, const QString& button)
{
    const auto isRefused = [this] { return isBusy() || failIfGameRuns() || failIfNotOwner(); };
    // The event loop runs while the question is open, so the state may have changed.
    return !isRefused() && m_desktop.confirm(title, message, button) && !isRefused();
}

void AppModel::updateGame()
{
    if (!askToChange(tr("Update the game?"),
                     tr("The game is downloaded again from GitHub. Your save files are kept."),
                     //: The button that answers the question.
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
            //: The button that answers the question.
            tr("Reinstall")))
        startFlow(&AppModel::deleteAndSetUp);
}

QCoro::Task<> AppModel::deleteAndSetUp(std::stop_token stop)
{
    co_await waitForDeletion();
    const auto moving = offThread([stop] { moveAllAside(stop); });
    co_await moving;
    clearStaleFolders();
    refreshState();
    m_failureText.reset();
    co_await setUpAndPlay(stop);
}

void AppModel::removeEverything()
{
    const auto consequence =
        m_installedSize.isEmpty()
            ? tr("This deletes the downloaded game and engine and frees all downloaded files. Your "
                 "save files in Godot's folder are not touched.")
            //: %1 is an amount, such as "70.1 MB".
            : tr("This deletes the downloaded game and engine and frees %1. Your save files in "
                 "Godot's folder are not touched.")
                  .arg(m_installedSize);
    //: "Remove" is the button that answers the question.
    if (askToChange(tr("Remove everything?"), consequence, tr("Remove")))
        startFlow(&AppModel::deleteEverything);
}

QCoro::Task<> AppModel::deleteEverything(std::stop_token stop)
{
    co_await waitForDeletion();
    // If the root is a symbolic link, only the link is removed.
    if (!QFileInfo(Paths::root()).isSymLink()) {
        const auto moving = offThread([stop] { moveAllAside(stop); });
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
            //: %1 is a whole sentence, such as "Could not remove “file”: Permission denied."
            return tr("Could not remove the files: %1").arg(error.message());
        } catch (const Cancelled&) {
            // The next start removes the rest.
        }
        return QString();
    });
    whenFinished(m_deletion, this, [this](const QString& failure) { concludeRemoval(failure); });
}

void AppModel::concludeRemoval(const QString& failure)
{
    m_deletion = QtFuture::makeReadyFuture(QString());
    // The log is kept after a cancelled removal, and if a flow has started.
    if (failure.isEmpty() && !isFlowRunning() && !FileTree::exists(Paths::root()))
        m_log.clear();
    // A flow that has started gets the failure from waitForDeletion().
    if (isFlowRunning())
        updateSize();
    else if (failure.isEmpty())
        refreshState();
    else
        fail(failure);
}

/// Clears stale folders in the background.
void AppModel::clearStaleFolders()
{
    const auto folders = StaleFolders::restoreAndList(m_lock);
    m_deletion = offThread([folders, stop = m_backgroundStop.get_token()] {
        StaleFolders::clear(folders, stop);
        return QString();
    });
    const auto replaces = std::ranges::any_of(
        folders, [](const QString& folder) { return folder.endsWith(FileTree::completeSuffix); });
    whenFinished(m_deletion, this, [this, folders, replaces](const QString&) {
        if (replaces && m_phase == Phase::notDownloaded() && !isFlowRunning())
            refreshState(); // A complete game may have come to its place.
        else if (!folders.isEmpty())
            updateSize();
    });
}

/// Waits for the deletion in the background. Throws AppError if it has failed.
QCoro::Task<> AppModel::waitForDeletion()
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
        fail(error.message()); // There is no home folder.
    }
}

void AppModel::copyFailure()
{
    if (m_failureText)
        m_desktop.copyText(*m_failureText);
}

void AppModel::copyLog()
{
    m_desktop.copyText(m_log.newest().join(u'\n'));
}

bool AppModel::confirmQuit()
{
    if (m_phase == Phase::Kind::playing) {
        if (!m_desktop.confirm(tr("Quit and close the game?"),
                               tr("The game is still running. Quitting will close it."),
                               //: The button that answers the question.
                               tr("Quit")))
            return false;
    }
    endForQuit();
    return true;
}

void AppModel::endForQuit()
{
    // A question that is still open must not start a flow.
    m_quitting = true;
    if (m_phase == Phase::Kind::playing)
        stopGame();
    else if (isFlowRunning())
        cancelSetup();
    m_backgroundStop.request_stop();
}
