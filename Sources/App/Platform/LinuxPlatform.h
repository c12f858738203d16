// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/ToolCommand.h"

#include <QString>
#include <QSysInfo>

#include <optional>

/// What the launcher decides differently on Linux. MacPlatform answers the same questions for
/// macOS; HostPlatform names the one in use. All are plain functions, callable from any thread.
namespace LinuxPlatform {

/// The folder for the user's application data: `$XDG_DATA_HOME`, else `~/.local/share`. A relative
/// XDG_DATA_HOME is ignored, as the XDG base directory rules say. Throws PlatformError when the
/// home folder is not known.
QString applicationSupport();

/// The engine release's part of an archive name that names system and processor, ".zip" included,
/// e.g. "x11.64.zip", or "mono_x11_64.zip" for the C# edition. `processor` is named as
/// QSysInfo::currentCpuArchitecture() names it. Throws AppError for a processor without a build.
QString engineArchiveSuffix(bool mono,
                            const QString& processor = QSysInfo::currentCpuArchitecture());

/// The engine program in an installed engine folder: the shallowest regular file, then the first
/// in plain string order, whose lower-cased name contains "godot". Reads only.
std::optional<QString> findEngineProgram(const QString& engineFolder);

/// The tool that unpacks a zip archive; none here: the launcher unpacks in process.
std::optional<ToolCommand> unpackCommand(const QString& archive, const QString& destination);

/// The tool that clears the "downloaded" mark of a folder; none here: there is no such mark.
std::optional<ToolCommand> clearQuarantineCommand(const QString& folder);

/// Where the engine keeps the saves of the game called `gameName`. The folder may not exist.
QString savesFolder(const QString& gameName);

} // namespace LinuxPlatform
