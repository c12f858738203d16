// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/ToolCommand.h"
#include "Process/LogCallback.h"

#include <QCoroTask>

#include <stop_token>

/// Clears the mark of a downloaded program with the given tool, which only some systems have. The
/// tool's failure is no reason to give up an installation: it only leaves a sentence in the log.
/// Throws PlatformError when the tool cannot be started, and Cancelled when `stop` is requested.
QCoro::Task<> clearQuarantine(ToolCommand tool, LogCallback log, std::stop_token stop);
