// SPDX-License-Identifier: MIT
//
// The one symbol that the module exports; see installTools().
#include "Install/InstallTools.h"

extern "C" __attribute__((visibility("default"))) const InstallTools cavernyxInstallTools;

const InstallTools cavernyxInstallTools{
    .httpGet = &httpGet, .sha512 = &sha512, .extractZip = &ZipExtractor::extract};
