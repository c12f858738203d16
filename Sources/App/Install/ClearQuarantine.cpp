// SPDX-License-Identifier: MIT
#include "Install/ClearQuarantine.h"

#include "Install/RunTool.h"

#include <QString>

QCoro::Task<> clearQuarantine(ToolCommand tool, LogCallback log, std::stop_token stop)
{
    log(QStringLiteral(
        "Removing macOS's \"downloaded from the internet\" flag from the engine. It was just "
        "verified against Godot's published checksum, and without this step macOS would block it "
        "from opening."));
    auto run = runTool(tool, log, stop);
    const int status = co_await run;
    if (status != 0) {
        log(QStringLiteral(
                "xattr finished with code %1 (usually harmless if the flag was not set).")
                .arg(status));
    }
}
