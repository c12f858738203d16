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

QByteArray homeInUserDatabase()
{
    std::array<char, maxEntrySize> buffer = {};
    struct passwd entry = {};
    struct passwd* found = nullptr;
    if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || !found)
        return {};
    return entry.pw_dir;
}

} // namespace

QString homeFolder()
{
    // Not QDir::homePath(): without HOME it returns the root folder.
    for (const auto& candidate : {qgetenv("HOME"), homeInUserDatabase()}) {
        if (const auto home = absoluteFolder(candidate))
            return *home;
    }
    throw PlatformError(PlatformError::tr("Could not find your home folder: HOME is not set."));
}

std::optional<QString> absoluteFolder(const QByteArray& bytes)
{
    if (!bytes.startsWith('/'))
        return std::nullopt;
    const auto folder = QFile::decodeName(bytes);
    if (QFile::encodeName(folder) != bytes)
        throw PlatformError(
            PlatformError::tr("Could not use the folder “%1”, because its name is not UTF-8.")
                .arg(folder));
    return QDir::cleanPath(folder);
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
