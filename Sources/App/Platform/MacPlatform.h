// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"

/// The decisions for macOS.
class MacPlatform final : public Platform
{
public:
    /// `~/Library/Application Support`.
    [[nodiscard]] QString applicationSupport() const override;
    /// `~/Library/Preferences`.
    [[nodiscard]] QString configuration() const override;
    /// "osx.universal.zip" or "mono_osx.universal.zip", for every processor.
    [[nodiscard]] QString engineArchiveSuffix(bool mono) const override;
    /// Returns the program of the first application bundle ("*.app"): in its Contents/MacOS, the
    /// first entry in string order whose lower-cased name contains "godot", else the first entry.
    /// Does not search for bundles inside bundles.
    [[nodiscard]] std::optional<QString>
    findEngineProgram(const QString& engineFolder) const override;
    /// `/usr/bin/ditto -x -k <archive> <destination>`.
    [[nodiscard]] std::optional<ToolCommand>
    unpackCommand(const QString& archive, const QString& destination) const override;
    /// `/usr/bin/xattr -dr com.apple.quarantine <folder>`.
    [[nodiscard]] std::optional<ToolCommand>
    clearQuarantineCommand(const QString& folder) const override;
    /// The bundle's `Contents/Resources/translations`.
    [[nodiscard]] QString translationsFolder(const QString& programFolder,
                                             const QString& name) const override;
    /// `~/Library/Application Support/Godot/app_userdata/<gameName>`.
    [[nodiscard]] QString savesFolder(const QString& gameName) const override;
};
