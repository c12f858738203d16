// SPDX-License-Identifier: MIT
#include "DiskWork.h"

#include "Install/EngineManager.h"
#include "Install/Paths.h"
#include "Install/Unzipper.h"
#include "Measurement.h"
#include "Project/ImportChecker.h"

#include <QCoroTask>

#include <cstdio>
#include <exception>

namespace {

/// Unpacks and puts the exception, if there is one, into `error`: the wait for a task never ends
/// when the task ends with one. `error` outlives the task.
QCoro::Task<> unpackOrTell(QString archive, QString folder, LogCallback log,
                           std::exception_ptr& error)
{
    try {
        co_await Unzipper::unzip(archive, folder, log, std::stop_token());
    } catch (...) {
        error = std::current_exception();
    }
}

} // namespace

void DiskWork::digest(const QString& file)
{
    const Measurement measurement;
    measurement.report(EngineManager::sha512(file).size());
}

void DiskWork::unpack(const QString& archive, const QString& folder)
{
    const LogCallback log(
        [](const QString& line) { std::fprintf(stderr, "%s\n", line.toUtf8().constData()); });
    const Measurement measurement;
    std::exception_ptr error;
    QCoro::waitFor(unpackOrTell(archive, folder, log, error));
    if (error)
        std::rethrow_exception(error);
    measurement.report(0);
}

void DiskWork::size(const QString& folder)
{
    const Measurement measurement;
    measurement.report(Paths::size(folder));
}

void DiskWork::missing(const QString& folder)
{
    const Measurement measurement;
    measurement.report(ImportChecker::missingCount(folder));
}
