// SPDX-License-Identifier: MIT
#pragma once

#include "Install/Http/HttpGet.h"
#include "Install/Sha512.h"
#include "Install/Zip/ZipExtractor.h"

/// The functions of an installation that need further libraries: libcurl, libzip and libcrypto.
///
/// They are in a module that is loaded on first use. Linking its 30 libraries with the program
/// would take a fifth of the time of every start, and a seventh of the memory.
struct InstallTools
{
    decltype(&::httpGet) httpGet;
    decltype(&::sha512) sha512;
    decltype(&ZipExtractor::extract) extractZip;
};

/// Returns the tools; the first call loads the module. Thread-safe. Throws AppError if the module
/// is missing or damaged.
const InstallTools& installTools();
