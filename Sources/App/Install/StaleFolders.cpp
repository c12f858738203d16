// SPDX-License-Identifier: MIT
#include "Install/StaleFolders.h"

#include "Install/Paths.h"
#include "Install/TemporaryFolder.h"
#include "System/Errors.h"
#include "System/FileTree.h"
#include "System/InstallationLock.h"

#include <tuple>

namespace {

/// If it fails, the next start tries again.
void supersedeBestEffort(const QString& target, const QString& complete)
{
    try {
        FileTree::supersede(target, complete);
    } catch (const PlatformError&) {
    }
}

} // namespace

QStringList StaleFolders::restoreAndList(const InstallationLock& lock)
{
    if (!lock.isHeld() || lock.isGameRunning())
        return {};
    try {
        for (const auto& [complete, target] : Paths::completeFolders())
            supersedeBestEffort(target, complete);
        auto folders = Paths::stagingFolders();
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

void StaleFolders::remove(const QStringList& folders, const std::stop_token& stop)
{
    for (const auto& folder : folders)
        FileTree::removeBestEffort(folder, stop);
    const auto temporaryFolders = Paths::tempDirs();
    for (const auto& folder : temporaryFolders) {
        if (!stop.stop_requested())
            TemporaryFolder::removeIfAbandoned(folder);
    }
}
