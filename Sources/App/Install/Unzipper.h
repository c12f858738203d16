// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/ToolCommand.h"
#include "Process/LogCallback.h"

#include <QCoroTask>
#include <QString>

#include <optional>
#include <stop_token>

/// Unpacks downloaded zip archives.
namespace Unzipper {

/// Unpacks `archive` into the folder `destination`, which is created with missing parents. Keeps
/// symbolic links and the execute bit. What the tool has to say goes to `log`. Throws
/// AppError "Unzipping failed (ditto exit code N)." when the archive is damaged or not to be
/// trusted, PlatformError when the destination cannot be created or the tool not be started, and
/// Cancelled when `stop` is requested. After a failure the destination holds what was unpacked so
/// far; the caller deletes it. Main thread; blocks nothing.
QCoro::Task<> unzip(QString archive, QString destination, LogCallback log, std::stop_token stop);

/// The same by the given tool; without one, in process.
QCoro::Task<> unzipWith(std::optional<ToolCommand> tool, QString archive, QString destination,
                        LogCallback log, std::stop_token stop);

} // namespace Unzipper
