// SPDX-License-Identifier: MIT
#include "Install/Paths.h"

#include "Install/TemporaryFolder.h"
#include "Platform/Platform.h"
#include "Project/GameFacts.h"
#include "System/DirectoryWalk.h"
#include "System/Errors.h"
#include "System/FileTree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QUuid>

#include <array>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

const auto stagingInfix = u".new-"_s;
const auto backupInfix = u".old-"_s;
const auto temporaryPrefix = GameFacts::launcherName.toString().remove(u' ') + u'-';

/// Returns the system's temporary folder. QDir::tempPath() would return the root folder for a
/// TMPDIR that does not exist.
QString temporaryFolder()
{
    const auto path = qEnvironmentVariable("TMPDIR");
    const auto isUsable =
        path.startsWith(u'/') && QDir::cleanPath(path) != u"/"_s && QFileInfo::exists(path);
    return isUsable ? QDir::cleanPath(path) : u"/tmp"_s;
}

constexpr qsizetype uuidLength = 36;

/// Returns the folders in `parent`, and links to folders, whose name is `prefix`, a regular
/// expression, a UUID and `suffix`.
QStringList foldersNamed(const QString& parent, const QString& prefix, const QString& suffix = {})
{
    const QRegularExpression name(QRegularExpression::anchoredPattern(
        prefix + u"[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}"_s +
        QRegularExpression::escape(suffix)));
    const QDir folder(parent);
    QStringList found;
    const auto names =
        folder.entryList(QDir::Dirs | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const auto& candidate : names.filter(name))
        found.append(folder.filePath(candidate));
    return found;
}

/// Returns the folders beside the game and the engine builds whose names have `infix`, a UUID and
/// `suffix` after their target's.
QStringList foldersBesideTargets(const QString& infix, const QString& suffix = {})
{
    const auto prefix = u"[^/]+"_s + QRegularExpression::escape(infix);
    return foldersNamed(Paths::root(), prefix, suffix) +
           foldersNamed(Paths::engines(), prefix, suffix);
}

/// Returns the same folders, each with the path of its target.
QList<std::pair<QString, QString>> foldersWithTargets(const QString& infix,
                                                      const QString& suffix = {})
{
    QList<std::pair<QString, QString>> folders;
    for (const auto& folder : foldersBesideTargets(infix, suffix))
        folders.append({folder, folder.chopped(infix.size() + uuidLength + suffix.size())});
    return folders;
}

/// Returns the bytes allocated for a regular file; 0 for anything else.
qint64 allocatedSize(const DirectoryWalk::Entry& entry)
{
    constexpr qint64 blockSize = 512; // the unit of st_blocks on every file system
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
    return hostPlatform().applicationSupport() + u"/%1"_s.arg(GameFacts::launcherName);
}

QString Paths::game()
{
    return root() + u"/Game"_s;
}

QString Paths::engines()
{
    return root() + u"/Engine"_s;
}

QString Paths::lockFile()
{
    return hostPlatform().applicationSupport() + u"/.%1.lock"_s.arg(GameFacts::launcherName);
}

QString Paths::settingsFile()
{
    return hostPlatform().configuration() + u"/%1/%1.conf"_s.arg(GameFacts::launcherName);
}

QString Paths::newUuid()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

QString Paths::newStagingFolder(const QString& target)
{
    return target + stagingInfix + newUuid();
}

QString Paths::newBackupFolder(const QString& target)
{
    return target + backupInfix + newUuid();
}

QStringList Paths::stagingFolders()
{
    return foldersBesideTargets(stagingInfix);
}

QList<std::pair<QString, QString>> Paths::backupFolders()
{
    return foldersWithTargets(backupInfix);
}

QList<std::pair<QString, QString>> Paths::completeFolders()
{
    return foldersWithTargets(stagingInfix, FileTree::completeSuffix);
}

TemporaryFolder Paths::newTempDir()
{
    return TemporaryFolder(temporaryFolder() + u'/' + temporaryPrefix + newUuid());
}

QStringList Paths::tempDirs()
{
    return foldersNamed(temporaryFolder(), temporaryPrefix);
}

void Paths::ensure(const QString& path)
{
    std::error_code error;
    std::filesystem::create_directories(QFile::encodeName(path).toStdString(), error);
    if (error)
        throw PlatformError::fromErrno(
            PlatformError::tr("Could not create the folder “%1”").arg(path), error.value());
}

qint64 Paths::size(const QString& path, const std::stop_token& stop)
{
    // Two threads, since the time is spent in system calls, at least one per file.
    std::array<qint64, 2> sums = {};
    const auto addTo = [](qint64& sum) {
        return [&sum](const DirectoryWalk::Entry& entry) { sum += allocatedSize(entry); };
    };
    const std::array<DirectoryWalk::Visit, 2> visitors{addTo(sums[0]), addTo(sums[1])};
    DirectoryWalk::walkInParallel(path, DirectoryWalk::Hidden::include, stop, visitors);
    return sums[0] + sums[1];
}
