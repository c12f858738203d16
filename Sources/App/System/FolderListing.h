// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QFile>
#include <QString>

#include <memory>
#include <string>
#include <tuple>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

/// Opens the folder at `path`. Follows a link. Returns none and sets errno on failure.
inline FileDescriptor openFolder(const QString& path)
{
    return FileDescriptor(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

struct CloseListing
{
    void operator()(DIR* listing) const { ::closedir(listing); }
};

/// A directory stream for readdir().
using FolderListing = std::unique_ptr<DIR, CloseListing>;

/// Takes ownership of the open folder and returns its listing; null if it cannot be read.
inline FolderListing openListing(FileDescriptor folder)
{
    FolderListing listing(::fdopendir(folder.get()));
    if (listing)
        std::ignore = folder.release();
    return listing;
}

/// Returns true if `path`, relative to the open folder `base`, is a folder. Does not follow a link.
inline bool isFolder(int base, const std::string& path)
{
    struct stat status = {};
    return ::fstatat(base, path.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISDIR(status.st_mode);
}
