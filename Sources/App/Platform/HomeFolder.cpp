// SPDX-License-Identifier: MIT
#include "Platform/HomeFolder.h"

#include "Platform/PlatformError.h"

#include <QDir>
#include <QFile>

#include <array>

#include <pwd.h>
#include <unistd.h>

namespace {

constexpr std::size_t longestEntry = 16'384;

QString homeInUserDatabase()
{
    std::array<char, longestEntry> buffer = {};
    struct passwd entry = {};
    struct passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || !found)
        return {};
    return QFile::decodeName(entry.pw_dir);
}

} // namespace

QString homeFolder()
{
    // Not QDir::homePath(): without HOME it gives the root folder.
    for (const auto& candidate : {QFile::decodeName(qgetenv("HOME")), homeInUserDatabase()}) {
        if (QDir::isAbsolutePath(candidate))
            return QDir::cleanPath(candidate);
    }
    throw PlatformError(PlatformError::tr("Could not find your home folder: HOME is not set."));
}
