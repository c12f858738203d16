// SPDX-License-Identifier: MIT
#include "Install/Paths.h"

#include "Install/TemporaryFolder.h"
#include "Platform/DirectoryWalk.h"
#include "Platform/HostPlatform.h"
#include "Platform/PlatformError.h"

#include <QDir>
#include <QFile>
#include <QUuid>

#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

QString newUuid()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

/// The bytes that a regular file takes on disk; 0 for anything else.
qint64 allocatedSize(const DirectoryWalk::Entry& entry)
{
    constexpr qint64 blockSize = 512; // whatever the file system's own block size is
    struct stat status = {};
    if (entry.kind != DirectoryWalk::Kind::RegularFile
        || ::fstatat(entry.folder, entry.name.data(), &status, AT_SYMLINK_NOFOLLOW) != 0
        || !S_ISREG(status.st_mode))
        return 0;
    return status.st_blocks * blockSize;
}

} // namespace

QString Paths::root()
{
    return HostPlatform::applicationSupport() + QStringLiteral("/Cavernyx Platformer");
}

QString Paths::game()
{
    return root() + QStringLiteral("/Game");
}

QString Paths::engines()
{
    return root() + QStringLiteral("/Engine");
}

QString Paths::newStagingFolder(const QString& target)
{
    return target + QStringLiteral(".new-") + newUuid();
}

TemporaryFolder Paths::newTempDir()
{
    return TemporaryFolder(
        QDir::tempPath() + QStringLiteral("/CavernyxPlatformer-") + newUuid());
}

void Paths::ensure(const QString& path)
{
    std::error_code error;
    std::filesystem::create_directories(QFile::encodeName(path).toStdString(), error);
    if (error)
        throw PlatformError::fromReason(QStringLiteral("create the folder “%1”").arg(path),
            QString::fromStdString(error.message()));
}

qint64 Paths::size(const QString& path, const std::stop_token& stop)
{
    qint64 sum = 0;
    DirectoryWalk::walk(
        path, DirectoryWalk::Hidden::Include, stop,
        [&sum](const DirectoryWalk::Entry& entry) { sum += allocatedSize(entry); });
    return sum;
}
