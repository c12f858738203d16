// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/ToolCommand.h"
#include "Process/LogCallback.h"

#include <QCoroTask>

#include <stop_token>

/// Runs a tool of the operating system to its end, its output lines going to `log`, and gives its
/// exit status. Throws PlatformError when it cannot be started, and Cancelled when `stop` is
/// requested; the tool is then asked to stop and has ended. Main thread; blocks nothing.
QCoro::Task<int> runTool(ToolCommand command, LogCallback log, std::stop_token stop);
