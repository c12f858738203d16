// SPDX-License-Identifier: MIT
#pragma once

#include "Process/LogCallback.h"

#include <QCoroTask>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <stop_token>

class FileDownloader;

/// Installs the game: downloads the branch archive of its repository and puts it in place.
namespace RepoDownloader {

/// The address of the archive. Throws AppError "Invalid game URL.".
QUrl zipURL();

/// Downloads, unpacks and checks the game, then swaps it in at Paths::game(), and gives the folder
/// in it that holds `project.godot`. Until the swap an installed game stays untouched, and no
/// staging or temporary folder is left on any way out. Throws AppError, PlatformError, or Cancelled
/// when `stop` is requested before the swap. Main thread; blocks nothing.
QCoro::Task<QString> fetch(std::shared_ptr<FileDownloader> downloader, LogCallback log,
                           std::stop_token stop);

/// Puts `staging` in the place of `target`, as FileTree::replace() does.
using Swap = std::function<void(const QString& target, const QString& staging, const QString& aside,
                                const std::stop_token& stop)>;

/// The same with the given swap, which runs on the thread pool.
QCoro::Task<QString> fetchWith(Swap swap, std::shared_ptr<FileDownloader> downloader,
                               LogCallback log, std::stop_token stop);

} // namespace RepoDownloader
