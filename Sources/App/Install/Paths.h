// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <stop_token>
#include <utility>

class TemporaryFolder;

/// The launcher's paths. Everything installed is below one root folder. Paths are computed on each
/// call. Thread-safe.
namespace Paths {

/// Returns the root, "Cavernyx Platformer" in the application-support folder. It may not exist.
/// Throws PlatformError if the home folder is unknown.
QString root();

/// The folder of the installed game, `root()`/"Game".
QString game();

/// The parent folder of the installed engine builds, `root()`/"Engine".
QString engines();

/// The path for InstallationLock. It is beside the root, so that removing the root keeps the lock.
QString lockFile();

/// The settings file. Throws like root().
QString settingsFile();

/// Returns a random UUID in upper case, without braces.
QString newUuid();

/// Returns a new path for a staging folder beside `target`: `target` + ".new-" + a random UUID.
QString newStagingFolder(const QString& target);

/// Returns a new path for the old folder while `target` is replaced: `target` + ".old-" + a random
/// UUID.
QString newBackupFolder(const QString& target);

/// Returns the existing staging folders of the game and the engines, of any process.
QStringList stagingFolders();

/// Returns the existing backup folders, each with the path of its target.
QList<std::pair<QString, QString>> backupFolders();

/// Returns the complete new folders whose targets must still be deleted and replaced, each with the
/// path of its target.
QList<std::pair<QString, QString>> completeFolders();

/// Creates a folder "CavernyxPlatformer-" + a random UUID with mode 0700, in `$TMPDIR`, or in
/// `/tmp` if that is not an existing absolute path. Throws PlatformError.
TemporaryFolder newTempDir();

/// Returns the existing folders of newTempDir(), of any process.
QStringList tempDirs();

/// Creates the folder at `path` and its missing parents. Keeps an existing folder. Throws
/// PlatformError.
void ensure(const QString& path);

/// Returns the bytes allocated on disk for all regular files below `path`, including hidden ones.
/// Does not follow or count links. Skips unreadable folders. Returns 0 if `path` does not exist,
/// and the sum so far when `stop` is requested. Blocks.
qint64 size(const QString& path, const std::stop_token& stop = {});

} // namespace Paths
