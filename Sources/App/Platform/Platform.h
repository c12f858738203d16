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

/// What the launcher decides differently from one operating system to the next. Every system's
/// decisions are compiled and tested everywhere; hostPlatform() names the one in use. Thread-safe.
class Platform
{
public:
    Platform() = default;
    virtual ~Platform() = default;
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;

    /// The folder for the user's application data. Throws PlatformError if the home folder is not
    /// known.
    [[nodiscard]] virtual QString applicationSupport() const = 0;

    /// The folder for the user's settings. Throws PlatformError as applicationSupport() does.
    [[nodiscard]] virtual QString configuration() const = 0;

    /// The part of the engine archive's name that names the system and the processor, ".zip"
    /// included, for the standard or the C# edition. Throws AppError for a processor without a
    /// build.
    [[nodiscard]] virtual QString engineArchiveSuffix(bool mono) const = 0;

    /// The engine program in an installed engine folder. Reads only.
    [[nodiscard]] virtual std::optional<QString>
    findEngineProgram(const QString& engineFolder) const = 0;

    /// The tool that unpacks a zip archive; nothing where the launcher unpacks in process.
    [[nodiscard]] virtual std::optional<ToolCommand>
    unpackCommand(const QString& archive, const QString& destination) const = 0;

    /// The tool that clears the "downloaded" mark of a folder; nothing where there is no such mark.
    [[nodiscard]] virtual std::optional<ToolCommand>
    clearQuarantineCommand(const QString& folder) const = 0;

    /// Where the engine keeps the saves of the game called `gameName`. The folder may not exist.
    [[nodiscard]] virtual QString savesFolder(const QString& gameName) const = 0;
};

/// The decisions of the system that the program runs on.
const Platform& hostPlatform();

/// The user's home folder, an absolute path without a trailing slash: `$HOME`, else what the user
/// database says. Throws PlatformError when neither names one that absoluteFolder() takes.
QString homeFolder();

/// The folder that the system names with `bytes`, without a trailing slash; nothing unless they
/// begin with a slash. Throws PlatformError if they are not UTF-8, which Qt would turn into the
/// name of another folder.
std::optional<QString> absoluteFolder(const QByteArray& bytes);
