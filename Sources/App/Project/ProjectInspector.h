// SPDX-License-Identifier: MIT
#pragma once

#include "Project/ProjectInfo.h"

#include <optional>

/// Finds the game's Godot project and reads the few facts the launcher relies on. Only reads, never
/// throws, and may be called from any thread: a problem becomes an absent result or a default. How
/// much is read is bounded, whatever the folders hold.
namespace ProjectInspector {

/// The shallowest folder at or below `root`, at most four levels down, that holds a file
/// "project.godot". Hidden folders are not entered.
std::optional<QString> findProject(const QString& root);

/// What `folder`/project.godot says; nothing when the file is missing, unreadable, not UTF-8 or
/// has no usable `config_version`.
std::optional<ProjectInfo> inspect(const QString& folder);

/// The facts of the repository around the project `folder`, read from README and licence files in
/// it and in its ancestors up to `stopFolder`, at most six folders in all. An outer folder's fact
/// overrides an inner one's.
RepoFacts facts(const QString& folder, const QString& stopFolder);

} // namespace ProjectInspector
