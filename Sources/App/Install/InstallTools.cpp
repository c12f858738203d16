// SPDX-License-Identifier: MIT
#include "Install/InstallTools.h"

#include "System/Errors.h"

#include <dlfcn.h>

namespace {

const InstallTools& load()
{
    // Never unloaded, since an abandoned thread may still run its code. dlopen() searches the run
    // path of this program.
    auto* const module = ::dlopen(CAVERNYX_INSTALL_MODULE, RTLD_NOW | RTLD_LOCAL);
    const auto* const tools = module ? ::dlsym(module, "cavernyxInstallTools") : nullptr;
    if (!tools) {
        throw AppError(AppError::tr("A part of the launcher, “%1”, cannot be loaded. Close the "
                                    "launcher and start it again, or install it again.")
                           .arg(QString::fromLatin1(CAVERNYX_INSTALL_MODULE)));
    }
    return *static_cast<const InstallTools*>(tools);
}

} // namespace

const InstallTools& installTools()
{
    static const auto& tools = load();
    return tools;
}
