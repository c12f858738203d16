// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"

#include "Platform/LinuxPlatform.h"
#include "Platform/MacPlatform.h"

#include "System/Errors.h"

#include <QDir>
#include <QFile>

#include <array>

#include <pwd.h>
#include <unistd.h>

namespace {

constexpr std::size_t maxEntrySize = 16'384;

QString homeInUserDatabase()
{
    std::array<char, maxEntrySize> buffer = {};
    struct passwd entry = {};
    struct passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || !found)
        return {};
    return QFile::decodeName(entry.pw_dir);
}

} // namespace

QString homeFolder()
{
    // Not QDir::homePath(): without HOME it returns the root folder.
    for (const auto& candidate : {QFile::decodeName(qgetenv("HOME")), homeInUserDatabase()}) {
        if (QDir::isAbsolutePath(candidate))
            return QDir::cleanPath(candidate);
    }
    throw PlatformError(PlatformError::tr("Could not find your home folder: HOME is not set."));
}

const Platform& hostPlatform()
{
#if defined(Q_OS_MACOS)
    static const MacPlatform platform;
#else
    static const LinuxPlatform platform;
#endif
    return platform;
}
