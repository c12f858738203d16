// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"

#include <QSysInfo>

/// The decisions on Linux, which has no tools to call: archives are unpacked in process, and there
/// is no mark of a downloaded program.
class LinuxPlatform : public Platform
{
public:
    /// `processor` is named as QSysInfo::currentCpuArchitecture() names it.
    explicit LinuxPlatform(QString processor = QSysInfo::currentCpuArchitecture());

    /// `$XDG_DATA_HOME`, else `~/.local/share`. A relative XDG_DATA_HOME is ignored, as the XDG
    /// base directory rules say. Throws PlatformError also if the folder's name is not UTF-8.
    [[nodiscard]] QString applicationSupport() const override;
    /// `$XDG_CONFIG_HOME`, else `~/.config`, by the same rules.
    [[nodiscard]] QString configuration() const override;
    /// E.g. "x11.64.zip", or "mono_x11_64.zip" for the C# edition.
    [[nodiscard]] QString engineArchiveSuffix(bool mono) const override;
    /// The shallowest regular file, then the first in plain string order, whose lower-cased name
    /// contains "godot".
    [[nodiscard]] std::optional<QString>
    findEngineProgram(const QString& engineFolder) const override;
    [[nodiscard]] std::optional<ToolCommand>
    unpackCommand(const QString& archive, const QString& destination) const override;
    [[nodiscard]] std::optional<ToolCommand>
    clearQuarantineCommand(const QString& folder) const override;
    /// `<application support>/godot/app_userdata/<the name as the engine rewrites it>`.
    [[nodiscard]] QString savesFolder(const QString& gameName) const override;

private:
    const QString m_processor;
};
