// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/ToolCommand.h"

#include <QString>
#include <QSysInfo>

#include <optional>

/// What the launcher decides differently on macOS. LinuxPlatform answers the same questions for
/// Linux and says what they mean; HostPlatform names the one in use.
namespace MacPlatform {

/// `~/Library/Application Support`. Throws PlatformError when the home folder is not known.
QString applicationSupport();

/// "osx.universal.zip" or "mono_osx.universal.zip"; one build serves every processor.
QString engineArchiveSuffix(bool mono,
                            const QString& processor = QSysInfo::currentCpuArchitecture());

/// The program of the first application bundle ("*.app") in the engine folder: in its
/// Contents/MacOS the first entry, in plain string order, whose lower-cased name contains "godot",
/// else the first entry. Bundles are not searched for further bundles.
std::optional<QString> findEngineProgram(const QString& engineFolder);

/// `/usr/bin/ditto -x -k <archive> <destination>`.
std::optional<ToolCommand> unpackCommand(const QString& archive, const QString& destination);

/// `/usr/bin/xattr -dr com.apple.quarantine <folder>`.
std::optional<ToolCommand> clearQuarantineCommand(const QString& folder);

/// `~/Library/Application Support/Godot/app_userdata/<gameName>`.
QString savesFolder(const QString& gameName);

} // namespace MacPlatform
