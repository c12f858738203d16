// SPDX-License-Identifier: MIT
#include "Install/StaleFolders.h"

#include "Install/Paths.h"
#include "Install/TemporaryFolder.h"
#include "System/Errors.h"
#include "System/FileTree.h"
#include "System/InstallationLock.h"

#include <tuple>

QStringList StaleFolders::putBackAndList(const InstallationLock& lock)
{
    if (!lock.isHeld() || lock.isGameRunning())
        return {};
    try {
        for (const auto& [aside, target] : Paths::asideFolders()) {
            if (!FileTree::exists(target))
                std::ignore = FileTree::rename(aside, target);
        }
        auto folders = Paths::stagingFolders();
        for (const auto& [aside, target] : Paths::asideFolders())
            folders.append(aside);
        return folders;
    } catch (const PlatformError&) {
        return {}; // Without a home there is no root.
    }
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
