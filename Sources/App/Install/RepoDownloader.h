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

/// Thrown in place of an update that could not be played, while a game that can be is installed:
/// the installed one stays.
class RefusedUpdate final : public std::exception
{
public:
    RefusedUpdate(std::optional<ProjectInfo> info, RepoFacts facts);

    /// What is known of the refused game; nothing if its project file cannot be read.
    [[nodiscard]] const std::optional<ProjectInfo>& info() const { return m_info; }
    [[nodiscard]] const RepoFacts& facts() const { return m_facts; }
    [[nodiscard]] const char* what() const noexcept override { return "Refused update."; }

private:
    std::optional<ProjectInfo> m_info;
    RepoFacts m_facts;
};

/// Installs the game: downloads the branch archive of its repository and moves it to Paths::game().
namespace RepoDownloader {

inline constexpr QStringView branch = GameFacts::branch;

/// The address of the archive. Throws AppError "Invalid game URL.".
QUrl zipURL();

/// Downloads, unpacks and checks the game, swaps it in at Paths::game(), and returns the folder in
/// it that holds `project.godot`. The work is done on the worker pool. Until the swap an installed
/// game stays untouched. The future carries an AppError, a PlatformError, a RefusedUpdate, or
/// Cancelled if `stop` is requested before the swap.
QFuture<QString> fetch(std::shared_ptr<const FileDownloader> downloader, LogCallback log,
                       std::stop_token stop);

} // namespace RepoDownloader
