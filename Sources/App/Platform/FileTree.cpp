// SPDX-License-Identifier: MIT
#include "Platform/FileTree.h"

#include "Platform/Cancelled.h"
#include "Platform/ExchangePaths.h"
#include "Platform/MakeDurable.h"
#include "Platform/PlatformError.h"
#include "Platform/TreeRemoval.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <tuple>

#include <sys/stat.h>

namespace {

void throwIfNotMoved(int error, const QString& from, const QString& to)
{
    if (error != 0)
        throw PlatformError::fromErrno(PlatformError::tr("move “%1” to “%2”").arg(from, to), error);
}

/// Leaves the old folder at `aside`, or on failure where it was.
void replaceInTwoSteps(const QString& target, const QString& staging, const QString& aside)
{
    const auto error = FileTree::rename(target, aside);
    if (error != ENOENT)
        throwIfNotMoved(error, target, aside);
    const auto finalError = FileTree::rename(staging, target);
    if (finalError != 0 && error == 0)
        std::ignore = FileTree::rename(aside, target);
    throwIfNotMoved(finalError, staging, target);
}

} // namespace

bool FileTree::exists(const QString& path)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0;
}

int FileTree::rename(const QString& from, const QString& to) noexcept
{
    const auto old = QFile::encodeName(from);
    const auto fresh = QFile::encodeName(to);
    return std::rename(old.constData(), fresh.constData()) == 0 ? 0 : errno;
}

void FileTree::remove(const QString& path)
{
    if (const auto obstacle = TreeRemoval::remove(path))
        throw PlatformError::fromReason(PlatformError::tr("remove “%1”").arg(obstacle->path),
                                        obstacle->reason);
}

void FileTree::removeAtOnce(const QString& path, const QString& aside)
{
    remove(rename(path, aside) == 0 ? aside : path);
}

void FileTree::removeQuietly(const QString& path) noexcept
{
    TreeRemoval::remove(path);
}

void FileTree::replace(const QString& target, const QString& staging, const QString& aside,
                       const std::stop_token& stop)
{
    throwIfCancelled(stop);
    makeDurable(staging);
    throwIfCancelled(stop);
    const auto isExchanged = exchangePaths(staging, target);
    if (!isExchanged)
        replaceInTwoSteps(target, staging, aside);
    // The new folder stands. The old one goes only when a power cut can no longer bring it back,
    // and a part of it that cannot be deleted is no reason to call the replacement failed.
    makeNamesDurable(QFileInfo(target).path());
    removeQuietly(isExchanged ? staging : aside);
}
