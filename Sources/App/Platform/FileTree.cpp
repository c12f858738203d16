// SPDX-License-Identifier: MIT
#include "Platform/FileTree.h"

#include "Platform/ExchangePaths.h"
#include "Platform/PlatformError.h"
#include "Platform/TreeRemoval.h"

#include <QFile>

#include <cerrno>
#include <cstdio>

#include <sys/stat.h>

namespace {

void move(const QString& from, const QString& to)
{
    // Not QFile::rename: it copies, slowly and in part, where the file systems differ.
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        throw PlatformError::fromErrno(QStringLiteral("move “%1” to “%2”").arg(from, to), errno);
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
        throw PlatformError::fromReason(QStringLiteral("remove “%1”").arg(obstacle->path),
                                        obstacle->reason);
}

void FileTree::removeAtOnce(const QString& path, const QString& aside)
{
    const auto moved =
        std::rename(QFile::encodeName(path).constData(), QFile::encodeName(aside).constData()) == 0;
    remove(moved ? aside : path);
}

void FileTree::removeQuietly(const QString& path) noexcept
{
    TreeRemoval::remove(path);
}

void FileTree::replace(const QString& target, const QString& staging)
{
    if (exchangePaths(staging, target)) {
        // The new folder stands; the old one now has the staging name. A part of it that cannot
        // be deleted is no reason to call the replacement failed.
        removeQuietly(staging);
        return;
    }
    remove(target);
    move(staging, target);
}
