// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <stop_token>

class InstallationLock;

/// Staging, backup and temporary folders that a killed or cancelled launcher has left.
namespace StaleFolders {

/// Moves each backup folder without a target back to its target, and returns the other stale
/// folders below the storage root. Ignores errors. Does nothing unless `lock` is held and no game
/// runs. No installation may run meanwhile.
QStringList restoreAndList(const InstallationLock& lock);

/// Finishes what FileTree::supersede() began. Otherwise, a partly deleted folder could count as
/// installed. Throws PlatformError, or Cancelled when `stop` is requested. Blocks.
void finishReplacements(const std::stop_token& stop);

/// Removes the listed folders, or moves them to their targets if they are complete, and removes the
/// temporary folders of this user whose owner has ended. Ignores errors. Returns early when `stop`
/// is requested. Blocks.
void clear(const QStringList& folders, const std::stop_token& stop = {});

} // namespace StaleFolders
