// SPDX-License-Identifier: MIT
#include "Install/Paths.h"

#include "Install/TemporaryFolder.h"
#include "Platform/DirectoryWalk.h"
#include "Platform/HostPlatform.h"
#include "Platform/PlatformError.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QUuid>

#include <array>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

const auto stagingInfix = QStringLiteral(".new-");
const auto temporaryPrefix = QStringLiteral("CavernyxPlatformer-");

/// The folders in `parent`, links among them, that are named `prefix` and then one of our UUIDs.
QStringList foldersNamed(const QString& parent, const QString& prefix)
{
    const QRegularExpression name(QRegularExpression::anchoredPattern(
        prefix + QStringLiteral("[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}")));
    const QDir folder(parent);
    QStringList found;
    const auto names =
        folder.entryList(QDir::Dirs | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const auto& candidate : names.filter(name))
        found.append(folder.filePath(candidate));
    return found;
}

/// The bytes that a regular file takes on disk; 0 for anything else.
qint64 allocatedSize(const DirectoryWalk::Entry& entry)
{
    constexpr qint64 blockSize = 512; // whatever the file system's own block size is
    struct stat status = {};
    if (entry.kind != DirectoryWalk::Kind::regularFile ||
        ::fstatat(entry.folder, entry.name.data(), &status, AT_SYMLINK_NOFOLLOW) != 0 ||
        !S_ISREG(status.st_mode))
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

QString Paths::sessionLock()
{
    return HostPlatform::applicationSupport() + QStringLiteral("/.Cavernyx Platformer.lock");
}

QString Paths::newUuid()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

QString Paths::newStagingFolder(const QString& target)
{
    return target + stagingInfix + newUuid();
}

QStringList Paths::stagingFolders()
{
    const auto prefix = QStringLiteral("[^/]+") + QRegularExpression::escape(stagingInfix);
    return foldersNamed(root(), prefix) + foldersNamed(engines(), prefix);
}

TemporaryFolder Paths::newTempDir()
{
    return TemporaryFolder(QDir::tempPath() + u'/' + temporaryPrefix + newUuid());
}

QStringList Paths::tempDirs()
{
    return foldersNamed(QDir::tempPath(), temporaryPrefix);
}

void Paths::ensure(const QString& path)
{
    std::error_code error;
    std::filesystem::create_directories(QFile::encodeName(path).toStdString(), error);
    if (error)
        throw PlatformError::fromReason(PlatformError::tr("create the folder “%1”").arg(path),
                                        QString::fromStdString(error.message()));
}

qint64 Paths::size(const QString& path, const std::stop_token& stop)
{
    // Two threads, since the time goes into the calls of the system: one for each file.
    std::array<qint64, 2> sums = {};
    const auto addTo = [](qint64& sum) {
        return [&sum](const DirectoryWalk::Entry& entry) { sum += allocatedSize(entry); };
    };
    const std::array<DirectoryWalk::Visit, 2> visitors{addTo(sums[0]), addTo(sums[1])};
    DirectoryWalk::walkTogether(path, DirectoryWalk::Hidden::include, stop, visitors);
    return sums[0] + sums[1];
}
