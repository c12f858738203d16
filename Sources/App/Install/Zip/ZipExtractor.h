// SPDX-License-Identifier: MIT
#pragma once

#include "Process/LogStore.h"

#include <QString>

#include <stop_token>

class InputFile;

/// Unpacks zip archives in process, and reports as a tool would: in lines, and with a status.
namespace ZipExtractor {

/// Unpacks `archive` into the existing, empty folder `destination`, and returns 0; or 1 when the
/// archive is damaged, not to be trusted, or cannot be written, with a line for `log` that says
/// why. An archive that is not to be trusted, or too large for the disk, is refused before anything
/// of it is unpacked. Folders and executable files get the mode 0755 and other files 0644, as far
/// as the user's mask allows; symbolic links are kept. Throws Cancelled when `stop` is requested.
/// Blocks.
int extract(const InputFile& archive, const QString& destination, const LogCallback& log,
            const std::stop_token& stop);

} // namespace ZipExtractor
