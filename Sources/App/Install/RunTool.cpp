// SPDX-License-Identifier: MIT
#include "Install/RunTool.h"

#include "Platform/Cancelled.h"
#include "Process/ManagedProcess.h"

#include <QCoroFuture>

QCoro::Task<int> runTool(ToolCommand command, LogCallback log, std::stop_token stop)
{
    throwIfCancelled(stop);
    ManagedProcess process;
    const auto ended = process.run(command.program, command.arguments, log);
    const std::stop_callback terminate(stop, [&process] { process.terminate(); });
    const auto status = co_await ended;
    throwIfCancelled(stop);
    co_return status;
}
