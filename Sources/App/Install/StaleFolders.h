// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <stop_token>

class InstallationLock;

/// What launchers that were killed, or that the player did not want to wait for, have left behind:
/// folders that were being put together, replaced or deleted, and temporary folders.
namespace StaleFolders {

/// Puts back what was moved aside in order to be replaced and has not been, and returns what else
/// is left below the storage root. To be called while this program makes no such folders of its
/// own. Nothing is touched unless `lock` is claimed and no game runs.
QStringList putBackAndList(const InstallationLock& lock);

/// Removes the folders listed, and the temporary folders of this user whose owner is gone. What
/// cannot be removed stays; the rest, too, once `stop` is requested. Blocks.
void remove(const QStringList& folders, const std::stop_token& stop = {});

} // namespace StaleFolders
