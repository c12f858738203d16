// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <stop_token>
#include <utility>

class TemporaryFolder;

/// Where the launcher keeps things on disk. Everything it installs lies under one root, so that
/// removing everything is one folder delete. Every call computes its path anew; nothing is cached.
/// All operations may be called from any thread.
namespace Paths {

/// The root: the application-support folder's "Cavernyx Platformer". It may not exist yet.
/// Throws PlatformError when the user's home folder is not known.
QString root();

/// The installed game, `root()`/"Game".
QString game();

/// The parent of the installed engine builds, `root()`/"Engine".
QString engines();

/// The file of the InstallationLock of this installation. It lies beside the root, so that removing
/// everything does not end the lock.
QString lockFile();

/// A random UUID in its standard text form: upper-case, without braces.
QString newUuid();

/// A fresh name for a folder in which the new content of `target` is put together: `target` +
/// ".new-" + a random UUID. It lies beside the target, so that moving it there is one step.
QString newStagingFolder(const QString& target);

/// A fresh name for the folder `target` while it is being replaced in two steps: `target` + ".old-"
/// + a random UUID.
QString newAsideFolder(const QString& target);

/// The staging folders of the game and of the engines that stand on the disk now, whoever made
/// them.
QStringList stagingFolders();

/// The folders of newAsideFolder() that stand on the disk now, each with the path of its target.
QList<std::pair<QString, QString>> asideFolders();

/// Creates and gives a new folder "CavernyxPlatformer-" + a random UUID in the system's temporary
/// folder, readable by the user alone. Throws PlatformError.
TemporaryFolder newTempDir();

/// The folders of newTempDir() that stand on the disk now, whoever made them.
QStringList tempDirs();

/// Creates the folder at `path` with missing parents. A folder that exists already is success.
/// Throws PlatformError.
void ensure(const QString& path);

/// The bytes allocated on disk for all regular files at any depth below `path`, hidden ones
/// included. Links are neither followed nor counted; what cannot be read does not count. Gives 0
/// for a folder that does not exist, and what was counted so far when `stop` is requested.
qint64 size(const QString& path, const std::stop_token& stop = {});

} // namespace Paths
