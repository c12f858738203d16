// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <stop_token>

/// Tells how many of a project's assets the engine has still to import. Only reads; may be called
/// from any thread, but walks the whole project and so belongs off the main thread.
namespace ImportChecker {

/// The number of importable assets (images, sounds, models) below `project` that have no import
/// record, or one whose converted files are all missing. Hidden files and folders do not count.
/// 0 also for a folder that cannot be read, and when `stop` is requested.
int missingCount(const QString& project, const std::stop_token& stop = {});

} // namespace ImportChecker
