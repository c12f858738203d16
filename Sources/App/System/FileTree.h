// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <stop_token>

/// Operations on whole folders. None follows a symbolic link at the given path. All block.
namespace FileTree {

/// Returns true if anything exists at `path`, even a dangling symbolic link.
bool exists(const QString& path);

/// Calls rename(2) and returns the error number; 0 for success. Unlike QFile::rename, it never
/// copies between file systems.
[[nodiscard]] int rename(const QString& from, const QString& to) noexcept;

/// Removes the file, link or folder at `path` with everything in it. Succeeds if nothing exists
/// there. Throws PlatformError, or Cancelled when `stop` is requested; part of the folder may then
/// be removed.
void remove(const QString& path, const std::stop_token& stop = {});

/// Like remove(), but ignores errors. Returns early when `stop` is requested.
void removeBestEffort(const QString& path, const std::stop_token& stop = {}) noexcept;

/// Replaces the folder `target`, if it exists, by the folder `staging`. Writes `staging` to the
/// disk first, so that a power cut leaves no empty files. Afterwards the old folder is at
/// `staging`; the caller deletes it.
///
/// Exchanges the two atomically where the file system supports it. Elsewhere it renames `target` to
/// `backup`, an unused path in the same parent, and then `staging` to `target`; a later start must
/// rename `backup` back if there is no `target`, and delete it otherwise. A folder in the lower
/// layer of overlayfs cannot be renamed: there `staging` gets the suffix `completeSuffix` and
/// supersedes `target`, which a later start must repeat. Throws PlatformError, or Cancelled when
/// `stop` is requested. The old folder is then intact at `target`, unless the message names another
/// path or a later start has to finish.
void replace(const QString& target, const QString& staging, const QString& backup,
             const std::stop_token& stop = {});

/// The suffix of a complete new folder whose target is still being deleted.
inline constexpr QLatin1StringView completeSuffix(".complete");

/// Deletes `target` and renames `complete` to it. First writes the names in their parent folder to
/// the disk, so that a power cut does not leave the target partly deleted without `complete`.
/// Throws PlatformError, or Cancelled when `stop` is requested; `target` may then be partly
/// deleted, and the call can be repeated.
void supersede(const QString& target, const QString& complete, const std::stop_token& stop = {});

} // namespace FileTree
