// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// A program of the operating system and its arguments, never run through a shell.
struct ToolCommand
{
    QString program;
    QStringList arguments;

    bool operator==(const ToolCommand&) const = default;
};

/// The paths, names and tools that differ between operating systems. All implementations are
/// compiled and tested on every system; hostPlatform() returns the one in use. Thread-safe.
///
/// The services of the desktop, such as FileBrowser and DesktopNotification, are not here: the
/// build selects their sources.
class Platform
{
public:
    Platform() = default;
    virtual ~Platform() = default;
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;

    /// Returns the folder for the user's application data. Throws PlatformError if the home folder
    /// is unknown.
    [[nodiscard]] virtual QString applicationSupport() const = 0;

    /// Returns the folder for the user's settings. Throws like applicationSupport().
    [[nodiscard]] virtual QString configuration() const = 0;

    /// Returns the end of the engine archive's name: the edition, the system and the processor,
    /// with ".zip". Throws AppError if there is no build for the processor.
    [[nodiscard]] virtual QString engineArchiveSuffix(bool mono) const = 0;

    /// Returns the engine program in an installed engine folder, if there is one.
    [[nodiscard]] virtual std::optional<QString>
    findEngineProgram(const QString& engineFolder) const = 0;

    /// Returns the tool that unpacks a zip archive; nothing if the launcher unpacks it itself.
    [[nodiscard]] virtual std::optional<ToolCommand>
    unpackCommand(const QString& /*archive*/, const QString& /*destination*/) const
    {
        return std::nullopt;
    }

    /// Returns the tool that removes the quarantine attribute of a folder; nothing if none exists.
    [[nodiscard]] virtual std::optional<ToolCommand>
    clearQuarantineCommand(const QString& /*folder*/) const
    {
        return std::nullopt;
    }

    /// Returns the folder of the translations of the program `name`, which is in the folder
    /// `programFolder`.
    [[nodiscard]] virtual QString translationsFolder(const QString& programFolder,
                                                     const QString& name) const = 0;

    /// Returns the engine's folder for the saves of the game `gameName`. It may not exist.
    [[nodiscard]] virtual QString savesFolder(const QString& gameName) const = 0;
};

/// Returns the decisions for this operating system.
const Platform& hostPlatform();

/// Returns the user's home folder, from `$HOME` or else the user database, as an absolute path
/// without a trailing slash. Throws PlatformError if there is none.
QString homeFolder();

/// Decodes a path and removes a trailing slash. Returns nothing if the path is not absolute. Throws
/// PlatformError if it is not UTF-8, since decoding would change it.
std::optional<QString> absoluteFolder(const QByteArray& bytes);
