// SPDX-License-Identifier: MIT
#include "System/FileTree.h"

#include "System/Errors.h"
#include "System/Sync.h"
#include "System/TreeRemoval.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <tuple>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

int exchange([[maybe_unused]] const char* first, [[maybe_unused]] const char* second)
{
#if defined(Q_OS_MACOS)
    return ::renamex_np(first, second, RENAME_SWAP);
#elif defined(Q_OS_LINUX)
    return ::renameat2(AT_FDCWD, first, AT_FDCWD, second, RENAME_EXCHANGE);
#else
    errno = ENOSYS;
    return -1;
#endif
}

/// Exchanges two paths atomically. Returns false, without any change, if one of them does not exist
/// or the file system does not support it.
bool exchangePaths(const QString& first, const QString& second)
{
    const auto a = QFile::encodeName(first);
    const auto b = QFile::encodeName(second);
    if (exchange(a.constData(), b.constData()) == 0)
        return true;
    const auto error = errno;
    // Two separate renames may still succeed.
    if (error == ENOENT || error == EXDEV || isUnsupported(error))
        return false;
    throw PlatformError::fromErrno(
        PlatformError::tr("Could not exchange “%1” and “%2”").arg(first, second), error);
}

void throwIfNotMoved(int error, const QString& from, const QString& to)
{
    if (error != 0)
        throw PlatformError::fromErrno(
            PlatformError::tr("Could not move “%1” to “%2”").arg(from, to), error);
}

void move(const QString& from, const QString& to)
{
    throwIfNotMoved(FileTree::rename(from, to), from, to);
}

void replaceInTwoSteps(const QString& target, const QString& staging, const QString& backup,
                       const std::stop_token& stop)
{
    const auto backupError = FileTree::rename(target, backup);
    if (backupError == EXDEV) {
        const QString complete = staging + FileTree::completeSuffix;
        move(staging, complete);
        return FileTree::supersede(target, complete, stop);
    }
    if (backupError != ENOENT)
        throwIfNotMoved(backupError, target, backup);
    const auto error = FileTree::rename(staging, target);
    if (error == 0) {
        // If it fails, the next start deletes the backup.
        std::ignore = FileTree::rename(backup, staging);
        return;
    }
    if (backupError == 0 && FileTree::rename(backup, target) != 0) {
        throw PlatformError(PlatformError::tr("Could not move “%1” to “%2”. What was there before "
                                              "is now at “%3”.")
                                .arg(staging, target, backup));
    }
    throwIfNotMoved(error, staging, target);
}

} // namespace

bool FileTree::exists(const QString& path)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0;
}

int FileTree::rename(const QString& from, const QString& to) noexcept
{
    const auto source = QFile::encodeName(from);
    const auto destination = QFile::encodeName(to);
    return std::rename(source.constData(), destination.constData()) == 0 ? 0 : errno;
}

void FileTree::remove(const QString& path, const std::stop_token& stop)
{
    const auto failure = TreeRemoval::remove(path, stop);
    throwIfCancelled(stop);
    if (failure)
        throw PlatformError::fromReason(
            PlatformError::tr("Could not remove “%1”").arg(failure->path), failure->reason);
}

void FileTree::removeBestEffort(const QString& path, const std::stop_token& stop) noexcept
{
    TreeRemoval::remove(path, stop);
}

void FileTree::replace(const QString& target, const QString& staging, const QString& backup,
                       const std::stop_token& stop)
{
    syncTree(staging, stop);
    throwIfCancelled(stop);
    if (!exchangePaths(staging, target))
        replaceInTwoSteps(target, staging, backup, stop);
    // The caller deletes the old folder next, so the renames must be on the disk first.
    syncDirectory(QFileInfo(target).path(), stop);
}

void FileTree::supersede(const QString& target, const QString& complete,
                         const std::stop_token& stop)
{
    syncDirectory(QFileInfo(complete).path(), stop);
    remove(target, stop);
    move(complete, target);
}
