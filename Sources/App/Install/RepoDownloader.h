// SPDX-License-Identifier: MIT
#pragma once

#include "Process/LogStore.h"
#include "Project/GameFacts.h"
#include "Project/ProjectInfo.h"

#include <QFuture>
#include <QString>
#include <QUrl>

#include <exception>
#include <memory>
#include <optional>
#include <stop_token>

class FileDownloader;

/// Thrown if an update cannot be played but the installed game can. The installed game stays.
class RefusedUpdate final : public std::exception
{
public:
    RefusedUpdate(std::optional<ProjectInfo> info, RepoFacts facts);

    /// The refused game's project; nothing if its project file cannot be read.
    [[nodiscard]] const std::optional<ProjectInfo>& info() const { return m_info; }
    [[nodiscard]] const RepoFacts& facts() const { return m_facts; }
    [[nodiscard]] const char* what() const noexcept override { return "Refused update."; }

private:
    std::optional<ProjectInfo> m_info;
    RepoFacts m_facts;
};

/// Installs the game from the branch archive of its repository.
namespace RepoDownloader {

inline constexpr QStringView branch = GameFacts::branch;

/// Returns the URL of the archive. Throws AppError "Invalid game URL.".
QUrl zipURL();

/// Downloads, unpacks and checks the game, replaces Paths::game(), and returns the folder with
/// `project.godot`. Until the replacement, the installed game is unchanged. Runs on the worker
/// pool. The future may carry AppError, PlatformError, RefusedUpdate, or Cancelled when `stop` is
/// requested.
QFuture<QString> fetch(std::shared_ptr<const FileDownloader> downloader, LogCallback log,
                       std::stop_token stop);

} // namespace RepoDownloader
