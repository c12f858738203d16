// SPDX-License-Identifier: MIT
#pragma once

#include "Process/LogStore.h"

#include <QString>

#include <stop_token>

class InputFile;

/// Unpacks zip archives in this process. Reports like a command line tool, by log lines and a
/// status.
namespace ZipExtractor {

/// Unpacks `archive` into the existing, empty folder `destination`. Returns 0; or 1 after a line to
/// `log` that says why, if the archive is damaged or unsafe, or if a file cannot be written. An
/// unsafe archive, or one too large for the disk, is refused before anything is unpacked. Folders
/// and executable files get the mode 0755, other files 0644, both limited by the umask. Symbolic
/// links are kept. Throws Cancelled when `stop` is requested. Blocks.
int extract(const InputFile& archive, const QString& destination, const LogCallback& log,
            const std::stop_token& stop);

} // namespace ZipExtractor
