// SPDX-License-Identifier: MIT
#include "DiskWork.h"

#include "Install/EngineManager.h"
#include "Install/Paths.h"
#include "Install/Unzipper.h"
#include "Measurement.h"
#include "Project/ImportChecker.h"
#include "System/InputFile.h"

#include <cstdio>

void DiskWork::digest(const QString& file)
{
    const Measurement measurement;
    measurement.report(EngineManager::sha512(InputFile(file)).size());
}

void DiskWork::unpack(const QString& archive, const QString& folder)
{
    const LogCallback log(
        [](const QString& line) { std::fprintf(stderr, "%s\n", line.toUtf8().constData()); });
    const Measurement measurement;
    Unzipper::unzip(InputFile(archive), folder, log, std::stop_token());
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
