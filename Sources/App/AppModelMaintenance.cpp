// SPDX-License-Identifier: MIT
//
// The housekeeping a player can do besides playing. What destroys something asks first.
#include "AppModel.h"

#include "Desktop.h"
#include "Install/EngineManager.h"
#include "Install/FileDownloader.h"
#include "Install/Paths.h"
#include "Platform/FileTree.h"
#include "Platform/HostPlatform.h"
#include "Platform/OffThread.h"
#include "ProgressRelay.h"

#include <QCoroFuture>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr int copiedLogLines = 2000;

}

void AppModel::updateGame()
{
    if (isBusy())
        return;
    if (!m_desktop.confirm(
            tr("Update the game?"),
            tr("The game is downloaded again from GitHub. Your save files are kept."),
            tr("Update")))
        return;
    if (isBusy())
        return;
    m_forceGameDownload = true;
    if (m_info)
        QFile::remove(EngineManager{.mono = m_info->usesCSharp}.markerFile());
    play();
}

void AppModel::reinstall()
{
    if (isBusy())
        return;
    if (!m_desktop.confirm(
            tr("Reinstall everything?"),
            tr("The game and the engine are deleted and downloaded again. Your save files are "
               "kept."),
            tr("Reinstall")))
        return;
    if (isBusy())
        return;
    m_flowRunning = true;
    m_cancelled = false;
    Q_EMIT changed();
    m_flowTask = deleteAndReinstall();
}

QCoro::Task<> AppModel::deleteAndReinstall()
{
    const QStringList folders{Paths::game(), Paths::engines()};
    const auto removal = offThread([folders] {
        for (const auto& folder : folders)
            FileTree::removeQuietly(folder);
    });
    co_await removal;
    m_flowRunning = false;
    refreshState();
    if (m_cancelled)
        Q_EMIT flowEnded(); // The player quit meanwhile.
    else
        play();
}

void AppModel::removeEverything()
{
    if (isBusy())
        return;
    const auto size = m_installedSize.isEmpty() ? tr("all downloaded files") : m_installedSize;
    if (!m_desktop.confirm(
            tr("Remove everything?"),
            tr("This deletes the downloaded game and engine and frees %1. Your save files in "
               "Godot's folder are not touched.")
                .arg(size),
            tr("Remove")))
        return;
    if (isBusy())
        return;
    m_flowRunning = true;
    Q_EMIT changed();
    m_flowTask = deleteRoot();
}

QCoro::Task<> AppModel::deleteRoot()
{
    std::optional<QString> failure;
    try {
        const auto removal = offThread([root = Paths::root()] { FileTree::remove(root); });
        co_await removal;
    } catch (const std::exception& error) {
        failure = QString::fromUtf8(error.what());
    }
    m_flowRunning = false;
    if (failure) {
        fail(QStringLiteral("Could not remove the files: ") + *failure);
    } else {
        m_log.clear();
        refreshState();
    }
    Q_EMIT flowEnded();
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
    const auto root = Paths::root();
    m_desktop.revealFolder(QFileInfo::exists(root) ? root : QFileInfo(root).path());
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
        stopGame(); // Harmless when the game has ended while the question stood.
    } else if (isBusy()) {
        cancelSetup();
    }
    return true;
}
