// SPDX-License-Identifier: MIT
#pragma once

#include "Durations.h"
#include "Platform/HostPlatform.h"
#include "Platform/ToolCommand.h"
#include "Process/LogCallback.h"

#include <QCoroTask>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <stop_token>

class FileDownloader;

/// Everything about the one engine build the launcher installs: its names, its place on disk, and
/// its installation.
struct EngineManager
{
    /// Gives the tool that clears the mark of a downloaded program from the folder it is given;
    /// none on a system without such a mark.
    using QuarantineTool = std::function<std::optional<ToolCommand>(const QString& folder)>;

    /// Whether the engine's C# edition is meant.
    bool mono = false;

    static QString version();

    /// The archive's name on the release page. Throws AppError for a processor without a build.
    [[nodiscard]] QString archiveName() const;
    /// Where this build is installed.
    [[nodiscard]] QString folder() const;
    /// The file whose existence says that the first-time import was done with this build.
    [[nodiscard]] QString markerFile() const;

    /// The address of a file of the engine's release. Throws AppError "Invalid engine URL.".
    static QUrl releaseURL(const QString& fileName);

    /// The SHA-512 of the file as 128 lower-case hexadecimal digits. Reads it in small pieces;
    /// belongs off the main thread. Throws PlatformError, or Cancelled when `stop` is requested.
    static QString sha512(const QString& file, const std::stop_token& stop = {});

    /// The installed engine program, if there is one. Reads the engine folder.
    [[nodiscard]] std::optional<QString> executable() const;

    /// Downloads the engine, proves it against the published checksum list, unpacks it and swaps
    /// it in at folder(); gives its program. Until the swap an installed engine stays untouched,
    /// and no staging or temporary folder is left on any way out. Throws AppError, PlatformError,
    /// or Cancelled when `stop` is requested before the swap. Main thread; blocks nothing.
    /// `stallLimit` bounds the silence of the server of the checksum list; `quarantineTool` runs
    /// between the unpacking and the swap.
    [[nodiscard]] QCoro::Task<QString>
    install(std::shared_ptr<FileDownloader> downloader, LogCallback log, std::stop_token stop,
            std::chrono::milliseconds stallLimit = Durations().transferStall,
            QuarantineTool quarantineTool = HostPlatform::clearQuarantineCommand) const;
};
