// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "Process/LogStore.h"

#include <QString>

#include <stop_token>

class InputFile;

/// Unpacks downloaded zip archives.
namespace Unzipper {

/// Unpacks `archive` into the folder `destination`, which is created with missing parents. Keeps
/// symbolic links and the execute bit. What the tool has to say goes to `log`. Throws AppError
/// "Unzipping failed (ditto exit code N)." when the archive is damaged or not to be trusted,
/// PlatformError when the destination cannot be created or the tool not be started, and Cancelled
/// when `stop` is requested. After a failure the destination holds what was unpacked so far; the
/// caller deletes it. Blocks.
void unzip(const InputFile& archive, const QString& destination, const LogCallback& log,
           const std::stop_token& stop, const Platform& platform = hostPlatform());

} // namespace Unzipper
