// SPDX-License-Identifier: MIT
#pragma once

#include "Process/LogCallback.h"

#include <QString>

#include <stop_token>

/// Unpacks zip archives in process, and reports as a tool would: in lines, and with a status.
namespace ZipExtractor {

/// Unpacks `archive` into the existing, empty folder `destination`, and gives 0; or 1 when the
/// archive is damaged, not to be trusted, or cannot be written, with a line for `log` that says
/// why. An archive that is not to be trusted, or too large for the disk, is refused before anything
/// of it is unpacked. Folders and executable files get the mode 0755 and other files 0644, as far
/// as the user's mask allows; symbolic links are kept. Throws Cancelled when `stop` is requested.
/// May block; any thread.
int extract(const QString& archive, const QString& destination, const LogCallback& log,
            const std::stop_token& stop);

} // namespace ZipExtractor
