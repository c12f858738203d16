// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <stop_token>

/// Counts the assets of a project that the engine has not imported yet. Thread-safe.
namespace ImportChecker {

/// Returns the number of importable assets (images, sounds, models) below `project` without an
/// import record, or whose record names only missing files. Hidden files and folders do not count.
/// Returns 0 if the folder cannot be read or `stop` is requested. Blocks.
int missingCount(const QString& project, const std::stop_token& stop = {});

} // namespace ImportChecker
