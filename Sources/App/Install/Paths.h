// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <stop_token>
#include <utility>

class TemporaryFolder;

/// The launcher's paths on disk. Everything it installs lies under one root, so that removing
/// everything deletes one folder. Each call computes its path; nothing is cached. Thread-safe.
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

/// The file of the player's settings. Throws PlatformError as root() does.
QString settingsFile();

/// A random UUID in its standard text form: upper-case, without braces.
QString newUuid();

/// Returns a new path for the staging folder of `target`: `target` + ".new-" + a random UUID. It
/// lies beside the target, so that one rename moves it there.
QString newStagingFolder(const QString& target);

/// Returns a new path for the old folder while `target` is replaced in two steps: `target` +
/// ".old-" + a random UUID.
QString newAsideFolder(const QString& target);

/// The existing staging folders of the game and of the engines, of any process.
QStringList stagingFolders();

/// The existing folders of newAsideFolder(), each with the path of its target.
QList<std::pair<QString, QString>> asideFolders();

/// Creates and returns a new folder "CavernyxPlatformer-" + a random UUID, readable by the user
/// alone, in `$TMPDIR`, or in `/tmp` if that names no absolute path that exists. Throws
/// PlatformError.
TemporaryFolder newTempDir();

/// The existing folders of newTempDir(), of any process.
QStringList tempDirs();

/// Creates the folder at `path` and its missing parents. An existing folder is kept.
/// Throws PlatformError.
void ensure(const QString& path);

/// The bytes allocated on disk for all regular files at any depth below `path`, hidden ones
/// included. Links are neither followed nor counted; what cannot be read does not count. Returns 0
/// for a folder that does not exist, and the bytes counted so far when `stop` is requested.
qint64 size(const QString& path, const std::stop_token& stop = {});

} // namespace Paths
