// SPDX-License-Identifier: MIT
#pragma once

#include "Project/ProjectInfo.h"

#include <optional>

/// Finds and reads the game's Godot project. Does not throw. The number of files and bytes read is
/// limited. Blocks. Thread-safe.
namespace ProjectInspector {

/// Returns the shallowest folder with a file "project.godot", at most four levels below `root`.
/// Does not search hidden folders.
std::optional<QString> findProject(const QString& root);

/// Reads `folder`/project.godot. Returns nothing if the file is missing, unreadable, not UTF-8 or
/// has no valid `config_version`.
std::optional<ProjectInfo> inspect(const QString& folder);

/// Reads the README and license files in `folder` and its parents up to `stopFolder`, at most six
/// folders. A fact from an outer folder overrides one from an inner folder.
RepoFacts facts(const QString& folder, const QString& stopFolder);

} // namespace ProjectInspector
