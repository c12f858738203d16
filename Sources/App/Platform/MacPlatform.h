// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"

/// The decisions on macOS.
class MacPlatform final : public Platform
{
public:
    /// `~/Library/Application Support`.
    [[nodiscard]] QString applicationSupport() const override;
    /// `~/Library/Preferences`.
    [[nodiscard]] QString configuration() const override;
    /// "osx.universal.zip" or "mono_osx.universal.zip"; one build serves every processor.
    [[nodiscard]] QString engineArchiveSuffix(bool mono) const override;
    /// The program of the first application bundle ("*.app") in the engine folder: in its
    /// Contents/MacOS the first entry, in plain string order, whose lower-cased name contains
    /// "godot", else the first entry. Bundles are not searched for further bundles.
    [[nodiscard]] std::optional<QString>
    findEngineProgram(const QString& engineFolder) const override;
    /// `/usr/bin/ditto -x -k <archive> <destination>`.
    [[nodiscard]] std::optional<ToolCommand>
    unpackCommand(const QString& archive, const QString& destination) const override;
    /// `/usr/bin/xattr -dr com.apple.quarantine <folder>`.
    [[nodiscard]] std::optional<ToolCommand>
    clearQuarantineCommand(const QString& folder) const override;
    /// `~/Library/Application Support/Godot/app_userdata/<gameName>`.
    [[nodiscard]] QString savesFolder(const QString& gameName) const override;
};
