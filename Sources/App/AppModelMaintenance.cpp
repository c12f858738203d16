// SPDX-License-Identifier: MIT
//
// The housekeeping a player can do besides playing. What destroys something asks first.
#include "AppModel.h"

#include "Desktop.h"
#include "Install/EngineManager.h"
#include "Install/Paths.h"
#include "Platform/Cancelled.h"
#include "Platform/FileTree.h"
#include "Platform/HostPlatform.h"
#include "Platform/OffThread.h"
#include "Platform/PlatformError.h"

#include <QCoroFuture>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr int copiedLogLines = 2000;

/// Half of a game or an engine must never be taken for a whole one, whenever the deletion ends.
void removeAtOnce(const QString& folder)
{
    FileTree::removeAtOnce(folder, Paths::newStagingFolder(folder));
}

void removeAtOnceQuietly(const QString& folder)
{
    try {
        removeAtOnce(folder);
    } catch (const PlatformError&) {
        // The setup that follows says what is wrong, if it is in its way.
    }
}

/// Of a root that is a symbolic link only the link goes, as when a file browser removes it.
void removeInstallation(const QString& root)
{
    if (!QFileInfo(root).isSymLink()) {
        // The removal of the root says what stayed.
        removeAtOnceQuietly(Paths::game());
        removeAtOnceQuietly(Paths::engines());
    }
    FileTree::remove(root);
}

} // namespace

bool AppModel::mayChangeInstallation(const QString& title, const QString& message,
                                     const QString& button)
{
    if (isBusy() || refuseWhileGameStillRuns())
        return false;
    // While a question stands the program goes on, and may have begun something else.
    return m_desktop.confirm(title, message, button) && !isBusy();
}

void AppModel::updateGame()
{
    if (!mayChangeInstallation(
            tr("Update the game?"),
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
    if (mayChangeInstallation(
            tr("Reinstall everything?"),
            tr("The game and the engine are deleted and downloaded again. Your save files are "
               "kept."),
            tr("Reinstall")))
        startFlow(&AppModel::deleteAndSetUp);
}

QCoro::Task<> AppModel::deleteAndSetUp(std::stop_token stop)
{
    const QStringList folders{Paths::game(), Paths::engines()};
    const auto removal = offThread([folders] {
        for (const auto& folder : folders)
            removeAtOnceQuietly(folder);
    });
    co_await removal;
    throwIfCancelled(stop);
    refreshState();
    m_failureText.reset();
    co_await setUpAndPlay(stop);
}

void AppModel::removeEverything()
{
    const auto size = m_installedSize.isEmpty() ? tr("all downloaded files") : m_installedSize;
    if (mayChangeInstallation(
            tr("Remove everything?"),
            tr("This deletes the downloaded game and engine and frees %1. Your save files in "
               "Godot's folder are not touched.")
                .arg(size),
            tr("Remove")))
        startFlow(&AppModel::deleteEverything);
}

QCoro::Task<> AppModel::deleteEverything(std::stop_token)
{
    try {
        const auto removal = offThread([root = Paths::root()] { removeInstallation(root); });
        co_await removal;
    } catch (const std::exception& error) {
        fail(tr("Could not remove the files: %1").arg(QString::fromUtf8(error.what())));
        updateSize();
        co_return;
    }
    m_log.clear();
    refreshState();
}

std::optional<QString> AppModel::savesFolder() const
{
    if (!m_info)
        return std::nullopt;
    const auto folder = HostPlatform::savesFolder(m_info->name);
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
    // Whoever comes afterwards, with a question that was answered in the same instant, is too late.
    m_quitting = true;
    if (m_phase == Phase::Kind::playing)
        stopGame();
    else if (isFlowRunning())
        cancelSetup();
    m_sizeStop.request_stop(); // Nobody waits for that number any more.
}
