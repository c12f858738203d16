// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "Process/LogStore.h"

#include <QFuture>
#include <QString>
#include <QUrl>

#include <memory>
#include <optional>
#include <stop_token>

class FileDownloader;
class InputFile;

/// The engine build that the launcher installs: its names, its path on disk, its installation.
struct EngineManager
{
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

    /// Returns the SHA-512 of the file as 128 lower-case hexadecimal digits. Reads it in pieces, so
    /// that memory stays flat. Throws PlatformError, or Cancelled when `stop` is requested. Blocks.
    static QString sha512(const InputFile& file, const std::stop_token& stop = {});

    /// The installed engine program, if there is one. Reads the engine folder.
    [[nodiscard]] std::optional<QString> executable() const;

    /// Downloads the engine, proves it against the published checksum list, unpacks it, swaps it in
    /// at folder() and returns its program. The work is done on the worker pool. Until the swap an
    /// installed engine stays untouched. The future carries an AppError, a PlatformError, or
    /// Cancelled if `stop` is requested before the swap. `platform` must outlive the work.
    [[nodiscard]] QFuture<QString> install(std::shared_ptr<const FileDownloader> downloader,
                                           LogCallback log, std::stop_token stop,
                                           const Platform& platform = hostPlatform()) const;
};
