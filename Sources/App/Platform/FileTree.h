// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <stop_token>

/// Changes to whole folders. Every operation may block and belongs off the main thread. No
/// operation follows a symbolic link at the path it is given.
namespace FileTree {

/// Whether anything, a dangling symbolic link included, is at `path`.
bool exists(const QString& path);

/// Moves what is at `from` to `to` in one step; what is there is replaced if the system allows it.
/// Gives the system's error number, 0 for success. Never copies, as QFile::rename does, slowly and
/// in part, where the file systems differ.
[[nodiscard]] int rename(const QString& from, const QString& to) noexcept;

/// Removes the file, link or folder at `path` with everything in it. Nothing there is success.
/// Throws PlatformError; what could be removed is then gone and the rest stays.
void remove(const QString& path);

/// Removes what is at `path` so that nobody ever finds half of it there: moves it to `aside`, a
/// free name in the same folder, in one step first. Nothing there is success. Throws PlatformError;
/// what could not be removed is then at `aside`, or still at `path`.
void removeAtOnce(const QString& path, const QString& aside);

/// Removes `path` as remove() does, ignoring errors.
void removeQuietly(const QString& path) noexcept;

/// Puts the folder `staging` at `target`, replacing what is there. Before that, everything in
/// `staging` is written to the disk, so that a power cut leaves no folder with empty files there.
///
/// Where the file system can exchange two folders in one step, `target` is at every instant a
/// complete old or a complete new folder. Elsewhere the old one is moved to `aside`, a free name in
/// the same folder, and the new one to `target`; between the two steps nothing is there, and never
/// a part of something. The old folder is deleted last; a part of it that cannot be deleted stays
/// at `staging` or `aside`. Throws PlatformError, or Cancelled when `stop` is requested before the
/// first of these steps; the old folder is then whole at `target`, and `staging` still exists and
/// is the caller's to delete.
void replace(const QString& target, const QString& staging, const QString& aside,
             const std::stop_token& stop = {});

} // namespace FileTree
