// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <stop_token>

/// Changes to whole folders. Every operation may block and belongs off the main thread. No
/// operation follows a symbolic link at the path it is given.
namespace FileTree {

/// Whether anything, a dangling symbolic link included, is at `path`.
bool exists(const QString& path);

/// Moves `from` to `to` in one step, as rename(2) does. Returns the system's error number, 0 for
/// success. Never copies between file systems, as QFile::rename does.
[[nodiscard]] int rename(const QString& from, const QString& to) noexcept;

/// Removes the file, link or folder at `path` with everything in it. Nothing there is success.
/// Throws PlatformError, or Cancelled when `stop` is requested; what could be removed is then gone
/// and the rest stays.
void remove(const QString& path, const std::stop_token& stop = {});

/// Removes `path` as remove() does, ignoring errors. When `stop` is requested the rest stays.
void removeBestEffort(const QString& path, const std::stop_token& stop = {}) noexcept;

/// Puts the folder `staging` at `target`. The old folder is at `staging` afterwards; the caller
/// deletes it. Before that, everything in `staging` is written to the disk, so that a power
/// cut leaves no folder with empty files there.
///
/// Where the file system can exchange two folders in one step, `target` is at every instant a
/// complete old or a complete new folder. Elsewhere the old one is moved to `aside`, a free name in
/// the same folder, and the new one to `target`; if only `aside` is found at a later start, it
/// is moved back. A folder that cannot be moved is deleted first. Throws PlatformError, or
/// Cancelled when `stop` is requested before the first of these steps; the old folder is then whole
/// at `target`, unless the error says that it is elsewhere.
void replace(const QString& target, const QString& staging, const QString& aside,
             const std::stop_token& stop = {});

} // namespace FileTree
