// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"

#include <QSysInfo>

/// The decisions for Linux. No tools are needed: archives are unpacked in process, and there is no
/// quarantine attribute.
class LinuxPlatform : public Platform
{
public:
    /// `processor` is a name from QSysInfo::currentCpuArchitecture().
    explicit LinuxPlatform(QString processor = QSysInfo::currentCpuArchitecture());

    /// `$XDG_DATA_HOME`, else `~/.local/share`. Ignores a relative path, as the XDG base directory
    /// specification requires. Throws PlatformError also if the path is not UTF-8.
    [[nodiscard]] QString applicationSupport() const override;
    /// `$XDG_CONFIG_HOME`, else `~/.config`, like applicationSupport().
    [[nodiscard]] QString configuration() const override;
    /// Returns "x11.64.zip", for example, or "mono_x11_64.zip" for the C# edition.
    [[nodiscard]] QString engineArchiveSuffix(bool mono) const override;
    /// Returns the shallowest regular file whose lower-cased name contains "godot"; the first in
    /// string order if there are several.
    [[nodiscard]] std::optional<QString>
    findEngineProgram(const QString& engineFolder) const override;
    /// `share/<name>/translations` beside the program's folder.
    [[nodiscard]] QString translationsFolder(const QString& programFolder,
                                             const QString& name) const override;
    /// `applicationSupport()/godot/app_userdata/<name>`, with characters of the name replaced.
    [[nodiscard]] QString savesFolder(const QString& gameName) const override;

private:
    const QString m_processor;
};
