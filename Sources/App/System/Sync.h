// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <stop_token>

/// Writes the files and directories below `path` to the disk, so that they survive a power cut. A
/// file system may otherwise commit a later rename before the content of the files.
///
/// Throws PlatformError if the directory cannot be opened or the disk reports an error, and
/// Cancelled when `stop` is requested. Does nothing where the file system does not support it.
/// Blocks.
void syncTree(const QString& path, const std::stop_token& stop = {});

/// Like syncTree(), file by file, for systems without syncfs. Does not follow links. Continues
/// after a failure and throws the first one at the end.
void syncFiles(const QString& path, const std::stop_token& stop = {});

/// Writes the entries of the directory at `path` to the disk. Ignores errors. Returns early when
/// `stop` is requested. Blocks.
void syncDirectory(const QString& path, const std::stop_token& stop = {}) noexcept;
