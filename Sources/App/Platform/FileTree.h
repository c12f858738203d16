// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Changes to whole folders. Every operation may block and belongs off the main thread. No
/// operation follows a symbolic link at the path it is given.
namespace FileTree {

/// Whether anything, a dangling symbolic link included, is at `path`.
bool exists(const QString& path);

/// Removes the file, link or folder at `path` with everything in it. Nothing there is success.
/// Throws PlatformError; what could be removed is then gone and the rest stays.
void remove(const QString& path);

/// Removes what is at `path` so that nobody ever finds half of it there: moves it to `aside`, a
/// free name in the same folder, in one step first. Nothing there is success. Throws PlatformError;
/// what could not be removed is then at `aside`, or still at `path`.
void removeAtOnce(const QString& path, const QString& aside);

/// Removes `path` as remove() does, ignoring errors.
void removeQuietly(const QString& path) noexcept;

/// Puts the folder `staging` at `target`, replacing what is there.
///
/// Where the file system can exchange two folders in one step, `target` is at every instant a
/// complete old or a complete new folder; elsewhere the old one is deleted and the new one moved.
/// Throws PlatformError; `staging` then still exists and is the caller's to delete.
void replace(const QString& target, const QString& staging);

} // namespace FileTree
