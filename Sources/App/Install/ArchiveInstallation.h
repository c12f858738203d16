// SPDX-License-Identifier: MIT
#pragma once

#include "Process/LogStore.h"

#include <QString>
#include <QUrl>

#include <functional>
#include <stop_token>

class FileDownloader;
class InputFile;
class Platform;

/// The differences between installing the game and the engine.
struct ArchiveInstallation
{
    /// The log line before the download.
    QString announcement;
    /// Returns the archive's URL.
    std::function<QUrl()> url;
    /// The installed folder.
    QString target;
    /// Called with the complete archive before it is unpacked. Throws to refuse it.
    std::function<void(const InputFile& archive)> beforeUnpacking;
    /// Checks and completes the unpacked folder before it replaces the target. Throws to refuse it.
    std::function<void(const QString& staging)> finish;
};

/// Downloads an archive, unpacks it beside its target and then replaces the target. Until then the
/// target is unchanged. Throws AppError, PlatformError, or Cancelled when `stop` is requested. A
/// cancel may leave a staging folder, which StaleFolders removes. Blocks.
void installArchive(const ArchiveInstallation& what, const FileDownloader& downloader,
                    const LogCallback& log, const std::stop_token& stop, const Platform& platform);
