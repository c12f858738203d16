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

/// The engine build for the game: its names, its paths and its installation.
struct EngineManager
{
    /// Selects the C# edition.
    bool mono = false;

    /// Returns the version without the edition.
    static QString version();

    /// Returns the version and the edition, such as "3.5.3-stable-mono".
    [[nodiscard]] QString buildName() const;

    /// Returns the archive's name in the release. Throws AppError if there is no build for the
    /// processor.
    [[nodiscard]] QString archiveName() const;
    /// Returns the folder of the installed build.
    [[nodiscard]] QString folder() const;
    /// Returns the path of the marker, a file that exists if this build has imported the assets.
    [[nodiscard]] QString markerFile() const;

    /// Returns the URL of a file of the release. Throws AppError "Invalid engine URL.".
    static QUrl releaseURL(const QString& fileName);

    /// Returns the SHA-512 digest of the file in lower-case hexadecimal digits. Throws
    /// PlatformError, or Cancelled when `stop` is requested. Blocks.
    static QString sha512(const InputFile& file, const std::stop_token& stop = {});

    /// Returns the installed engine program, if there is one. Reads the disk.
    [[nodiscard]] std::optional<QString> executable() const;

    /// Downloads the engine, checks it against the published checksum list, unpacks it, replaces
    /// folder() and returns the engine program. Until the replacement, folder() is unchanged. Runs
    /// on the worker pool. The future may carry AppError, PlatformError, or Cancelled when `stop`
    /// is requested. `platform` provides the tools, and must outlive the work.
    [[nodiscard]] QFuture<QString> install(std::shared_ptr<const FileDownloader> downloader,
                                           LogCallback log, std::stop_token stop,
                                           const Platform& platform = hostPlatform()) const;
};
