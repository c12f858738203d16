// SPDX-License-Identifier: MIT
#include "Install/Leftovers.h"

#include "Install/Paths.h"
#include "Install/TemporaryFolder.h"
#include "Platform/FileTree.h"
#include "Platform/OffThread.h"
#include "Platform/PlatformError.h"
#include "Platform/SessionLock.h"

namespace {

QStringList abandonedStagingFolders(const SessionLock& session)
{
    if (!session.isClaimed() || session.isGameRunning())
        return {};
    try {
        return Paths::stagingFolders();
    } catch (const PlatformError&) {
        return {}; // Without a home there is no root.
    }
}

} // namespace

QFuture<bool> Leftovers::clear(const SessionLock& session)
{
    // The staging folders are listed at once: what appears later is this program's own. The
    // temporary ones have their locks.
    return offThread([stagingFolders = abandonedStagingFolders(session)] {
        for (const auto& folder : stagingFolders)
            FileTree::removeQuietly(folder);
        const auto temporaryFolders = Paths::tempDirs();
        for (const auto& folder : temporaryFolders)
            TemporaryFolder::removeIfAbandoned(folder);
        return !stagingFolders.isEmpty();
    });
}
