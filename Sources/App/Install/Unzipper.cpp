// SPDX-License-Identifier: MIT
#include "Install/Unzipper.h"

#include "Install/InstallTools.h"
#include "Install/Paths.h"
#include "Process/ManagedProcess.h"
#include "System/Errors.h"
#include "System/InputFile.h"

void Unzipper::unzip(const InputFile& archive, const QString& destination, const LogCallback& log,
                     const std::stop_token& stop, const Platform& platform)
{
    Paths::ensure(destination);
    const auto tool = platform.unpackCommand(archive.path(), destination);
    const auto status = tool ? runTool(tool->program, tool->arguments, log, stop)
                             : installTools().extractZip(archive, destination, log, stop);
    if (status != 0) {
        //: Where there is no program named ditto, a translation speaks of unpacking only.
        throw AppError(AppError::tr("Unzipping failed (ditto exit code %1).").arg(status));
    }
}
