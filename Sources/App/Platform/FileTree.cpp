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

#include <sys/stat.h>

namespace {

/// Not QFile::rename: it copies, slowly and in part, where the file systems differ.
bool rename(const QString& from, const QString& to)
{
    return std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

void move(const QString& from, const QString& to)
{
    if (!rename(from, to))
        throw PlatformError::fromErrno(PlatformError::tr("move “%1” to “%2”").arg(from, to), errno);
}

/// Leaves the old folder at `aside`, or on failure where it was.
void replaceInTwoSteps(const QString& target, const QString& staging, const QString& aside)
{
    const auto isOldAside = rename(target, aside);
    if (!isOldAside && errno != ENOENT)
        throw PlatformError::fromErrno(PlatformError::tr("move “%1” to “%2”").arg(target, aside),
                                       errno);
    try {
        move(staging, target);
    } catch (const PlatformError&) {
        if (isOldAside)
            rename(aside, target);
        throw;
    }
}

} // namespace

bool FileTree::exists(const QString& path)
{
    struct stat status = {};
    return ::lstat(QFile::encodeName(path).constData(), &status) == 0;
}

void FileTree::remove(const QString& path)
{
    if (const auto obstacle = TreeRemoval::remove(path))
        throw PlatformError::fromReason(PlatformError::tr("remove “%1”").arg(obstacle->path),
                                        obstacle->reason);
}

void FileTree::removeAtOnce(const QString& path, const QString& aside)
{
    remove(rename(path, aside) ? aside : path);
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
    // The new folder stands then, and the old one has a staging name. A part of it that cannot be
    // deleted is no reason to call the replacement failed.
    const auto isExchanged = exchangePaths(staging, target);
    if (!isExchanged)
        replaceInTwoSteps(target, staging, aside);
    // The old one goes only when a power cut can no longer bring it back to its place.
    makeNamesDurable(QFileInfo(target).path());
    removeQuietly(isExchanged ? staging : aside);
}
