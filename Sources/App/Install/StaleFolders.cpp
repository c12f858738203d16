// SPDX-License-Identifier: MIT
#include "Install/StaleFolders.h"

#include "Install/Paths.h"
#include "Install/TemporaryFolder.h"
#include "System/Errors.h"
#include "System/FileTree.h"
#include "System/InstallationLock.h"

#include <tuple>

namespace {

/// Finishes the replacements among `folders`. If one fails, the next Play reports why.
void finishBestEffort(const QStringList& folders, const std::stop_token& stop)
{
    if (folders.isEmpty())
        return; // There may be no home folder.
    for (const auto& [complete, target] : Paths::completeFolders()) {
        if (!folders.contains(complete))
            continue;
        try {
            FileTree::supersede(target, complete, stop);
        } catch (const PlatformError&) {
        } catch (const Cancelled&) {
        }
    }
}

} // namespace

QStringList StaleFolders::restoreAndList(const InstallationLock& lock)
{
    if (!lock.isHeld() || lock.isGameRunning())
        return {};
    try {
        auto folders = Paths::stagingFolders();
        for (const auto& [complete, target] : Paths::completeFolders())
            folders.append(complete);
        for (const auto& [backup, target] : Paths::backupFolders()) {
            if (FileTree::exists(target))
                folders.append(backup);
            else // If it fails, the next start tries again.
                std::ignore = FileTree::rename(backup, target);
        }
        return folders;
    } catch (const PlatformError&) {
        return {}; // There is no home folder.
    }
}

void StaleFolders::finishReplacements(const std::stop_token& stop)
{
    for (const auto& [complete, target] : Paths::completeFolders())
        FileTree::supersede(target, complete, stop);
}

void StaleFolders::clear(const QStringList& folders, const std::stop_token& stop)
{
    finishBestEffort(folders, stop);
    for (const auto& folder : folders) {
        if (!folder.endsWith(FileTree::completeSuffix))
            FileTree::removeBestEffort(folder, stop);
    }
    const auto temporaryFolders = Paths::tempDirs();
    for (const auto& folder : temporaryFolders) {
        if (!stop.stop_requested())
            TemporaryFolder::removeIfAbandoned(folder);
    }
}
