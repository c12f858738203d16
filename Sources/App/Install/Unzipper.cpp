// SPDX-License-Identifier: MIT
#include "Install/Unzipper.h"

#include "AppError.h"
#include "Install/Paths.h"
#include "Install/RunTool.h"
#include "Install/ZipExtractor.h"
#include "Platform/HostPlatform.h"
#include "Platform/OffThread.h"

#include <QCoreApplication>
#include <QCoroFuture>

#include <utility>

QCoro::Task<> Unzipper::unzip(QString archive, QString destination, LogCallback log,
                              std::stop_token stop)
{
    auto tool = HostPlatform::unpackCommand(archive, destination);
    return unzipWith(std::move(tool), archive, destination, log, stop);
}

QCoro::Task<> Unzipper::unzipWith(std::optional<ToolCommand> tool, QString archive,
                                  QString destination, LogCallback log, std::stop_token stop)
{
    const auto ensured = offThread([destination] { Paths::ensure(destination); });
    co_await ensured;
    int status = 0;
    if (tool) {
        auto run = runTool(*tool, log, stop);
        status = co_await run;
    } else {
        const auto extracted =
            offThread([=] { return ZipExtractor::extract(archive, destination, log, stop); });
        status = co_await extracted;
    }
    if (status != 0) {
        throw AppError(
            QCoreApplication::translate("Unzipper", "Unzipping failed (ditto exit code %1).")
                .arg(status));
    }
}
