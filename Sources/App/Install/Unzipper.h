// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "Process/LogStore.h"

#include <QString>

#include <stop_token>

class InputFile;

/// Unpacks zip archives.
namespace Unzipper {

/// Unpacks `archive` into the folder `destination`, which it creates with missing parents. Keeps
/// symbolic links and the execute bit. Writes messages to `log`. Throws AppError if the archive is
/// damaged or refused, PlatformError if the destination cannot be created or the tool cannot be
/// started, and Cancelled when `stop` is requested. The caller then deletes `destination`. Blocks.
void unzip(const InputFile& archive, const QString& destination, const LogCallback& log,
           const std::stop_token& stop, const Platform& platform = hostPlatform());

} // namespace Unzipper
