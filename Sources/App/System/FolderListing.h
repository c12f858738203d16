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

/// Opens the folder at `path`, or the one that a link there leads to. Returns none, and sets errno,
/// if that fails.
inline FileDescriptor openFolder(const QString& path)
{
    return FileDescriptor(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

struct CloseListing
{
    void operator()(DIR* listing) const { ::closedir(listing); }
};

/// The open listing of a folder, to be read with readdir().
using FolderListing = std::unique_ptr<DIR, CloseListing>;

/// Returns the listing of the open folder and takes it over; null if it cannot be read.
inline FolderListing listingOf(FileDescriptor folder)
{
    FolderListing listing(::fdopendir(folder.get()));
    if (listing)
        std::ignore = folder.release();
    return listing;
}

/// Whether `path`, relative to the open folder `base`, is a folder and not a link to one.
inline bool isFolder(int base, const std::string& path)
{
    struct stat status = {};
    return ::fstatat(base, path.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISDIR(status.st_mode);
}
