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

QFuture<bool> Leftovers::clear(const SessionLock& session, const std::stop_token& stop)
{
    // The staging folders are listed at once: what appears later is this program's own. The
    // temporary ones have their locks.
    return offThread([stagingFolders = abandonedStagingFolders(session), stop] {
        bool anyRemoved = false;
        for (const auto& folder : stagingFolders) {
            if (stop.stop_requested())
                return anyRemoved;
            FileTree::removeQuietly(folder);
            anyRemoved = true;
        }
        const auto temporaryFolders = Paths::tempDirs();
        for (const auto& folder : temporaryFolders) {
            if (stop.stop_requested())
                return anyRemoved;
            TemporaryFolder::removeIfAbandoned(folder);
        }
        return anyRemoved;
    });
}
