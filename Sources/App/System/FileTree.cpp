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

/// Exchanges the two existing paths in one atomic step of the file system. Returns false, and
/// changes nothing, if one of them does not exist or the system or file system knows no such step.
bool exchangePaths(const QString& first, const QString& second)
{
    const auto a = QFile::encodeName(first);
    const auto b = QFile::encodeName(second);
    if (exchange(a.constData(), b.constData()) == 0)
        return true;
    const auto error = errno;
    // Then the step was not even tried, and moving one path after the other may still succeed.
    if (error == ENOENT || error == EXDEV || isUnsupported(error))
        return false;
    throw PlatformError::fromErrno(PlatformError::tr("exchange “%1” and “%2”").arg(first, second),
                                   error);
}

void throwIfNotMoved(int error, const QString& from, const QString& to)
{
    if (error != 0)
        throw PlatformError::fromErrno(PlatformError::tr("move “%1” to “%2”").arg(from, to), error);
}

/// Moves the old folder out of the way, or deletes it where it cannot be moved: a folder of a lower
/// layer of an overlay file system.
void moveAside(const QString& target, const QString& aside, const std::stop_token& stop)
{
    const auto error = FileTree::rename(target, aside);
    if (error == EXDEV)
        FileTree::remove(target, stop);
    else if (error != ENOENT)
        throwIfNotMoved(error, target, aside);
}

void replaceInTwoSteps(const QString& target, const QString& staging, const QString& aside,
                       const std::stop_token& stop)
{
    moveAside(target, aside, stop);
    const auto error = FileTree::rename(staging, target);
    if (error == 0) {
        std::ignore = FileTree::rename(aside, staging);
        return;
    }
    if (FileTree::exists(aside) && FileTree::rename(aside, target) != 0) {
        throw PlatformError(PlatformError::tr("Could not move “%1” to “%2”. What was there before "
                                              "is now at “%3”.")
                                .arg(staging, target, aside));
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
        throw PlatformError::fromReason(PlatformError::tr("remove “%1”").arg(failure->path),
                                        failure->reason);
}

void FileTree::removeBestEffort(const QString& path, const std::stop_token& stop) noexcept
{
    TreeRemoval::remove(path, stop);
}

void FileTree::replace(const QString& target, const QString& staging, const QString& aside,
                       const std::stop_token& stop)
{
    syncTree(staging, stop);
    throwIfCancelled(stop);
    if (!exchangePaths(staging, target))
        replaceInTwoSteps(target, staging, aside, stop);
    // The new folder stands. The old one may go only when a power cut can no longer bring it back.
    syncDirectory(QFileInfo(target).path(), stop);
}
