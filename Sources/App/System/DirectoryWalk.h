// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <span>
#include <stop_token>
#include <string_view>

/// Walks a whole folder tree, fast enough for one of a hundred thousand files.
///
/// Entries come in no particular order. Symbolic links are visited but never followed, except at
/// the given path. Folders that cannot be read are skipped. Few folders are open at a time, however
/// deep the tree is, and it may be deeper than a path may be long. Blocks, and so belongs off the
/// main thread.
namespace DirectoryWalk {

/// Whether entries whose name begins with a dot, and what is below them, are visited.
enum class Hidden { include, skip };

enum class Kind { regularFile, folder, other };

/// One entry, valid only while it is visited.
struct Entry
{
    /// The open folder that it lies in.
    int folder = -1;
    /// Its name there as the file system has it; a null byte follows.
    std::string_view name;
    Kind kind = Kind::other;
};

using Visit = std::function<void(const Entry&)>;

/// Calls `visit` for every entry below `path` until `stop` is requested. Returns false if the
/// folder at `path` cannot be read.
bool walk(const QString& path, Hidden hidden, const std::stop_token& stop, const Visit& visit);

/// Like walk(), with one thread for each visitor: each entry is visited by one of them. None of
/// them may throw.
bool walkTogether(const QString& path, Hidden hidden, const std::stop_token& stop,
                  std::span<const Visit> visitors);

} // namespace DirectoryWalk
