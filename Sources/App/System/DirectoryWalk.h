// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <span>
#include <stop_token>
#include <string_view>

/// Walks a whole folder tree.
///
/// Entries come in no particular order. Symbolic links are visited but never followed, except at
/// the given path. Folders that cannot be read are skipped. The number of open folders does not
/// grow with the depth, and paths may be longer than PATH_MAX. Blocks.
namespace DirectoryWalk {

/// Includes or skips entries whose name begins with a dot, and everything below them.
enum class Hidden { include, skip };

enum class Kind { regularFile, folder, other };

/// One entry; valid only during the visit.
struct Entry
{
    /// The descriptor of its folder.
    int folder = -1;
    /// Its name in that folder, undecoded and null-terminated.
    std::string_view name;
    Kind kind = Kind::other;
};

using Visit = std::function<void(const Entry&)>;

/// Calls `visit` for every entry below `path` until `stop` is requested. Returns false if the
/// folder at `path` cannot be read.
bool walk(const QString& path, Hidden hidden, const std::stop_token& stop, const Visit& visit);

/// Like walk(), with one thread per visitor. Each entry goes to one of the visitors, which must not
/// throw.
bool walkInParallel(const QString& path, Hidden hidden, const std::stop_token& stop,
                    std::span<const Visit> visitors);

} // namespace DirectoryWalk
