// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <stop_token>

/// Waits until all that was written below the folder at `path`, and the names there, survive a
/// power cut. A file system may otherwise commit a later rename before the content of the files.
///
/// Blocks, for as long as the disk takes, and so belongs off the main thread. Throws PlatformError
/// when the folder cannot be opened or the disk could not keep what was written. A file system that
/// does not support it counts as written. Throws Cancelled as soon as `stop` is requested; the
/// disk then goes on by itself.
void syncTree(const QString& path, const std::stop_token& stop = {});

/// The same file by file, for systems that know no other way. Links are not followed. It goes on to
/// the end when something fails and then throws the first failure.
void syncFiles(const QString& path, const std::stop_token& stop = {});

/// Waits until the names in the folder at `path` survive a power cut, as far as the file
/// system can promise it: a failure is ignored. Returns as soon as `stop` is requested. Blocks.
void syncDirectory(const QString& path, const std::stop_token& stop = {}) noexcept;
