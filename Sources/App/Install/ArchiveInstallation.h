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

/// What the installation of the game and that of the engine do differently.
struct ArchiveInstallation
{
    /// What the log says before the download.
    QString announcement;
    /// The address of the archive.
    std::function<QUrl()> url;
    /// The folder that the archive becomes.
    QString target;
    /// Looks at the archive before it is unpacked. What it throws refuses the archive.
    std::function<void(const InputFile& archive)> verify;
    /// Looks at the unpacked folder before it is swapped in, and finishes it. What it throws
    /// refuses the folder.
    std::function<void(const QString& staging)> finish;
};

/// Downloads an archive, unpacks it beside its target and swaps it in. Until the swap, what is at
/// the target stays untouched.
///
/// Throws AppError, PlatformError, or Cancelled if `stop` is requested before the swap. No
/// temporary folder is left on any way out; a staging folder only after a cancel, for StaleFolders
/// to clear. Blocks.
void installArchive(const ArchiveInstallation& what, const FileDownloader& downloader,
                    const LogCallback& log, const std::stop_token& stop, const Platform& platform);
