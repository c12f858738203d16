// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <memory>
#include <string>
#include <tuple>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

struct CloseListing
{
    void operator()(DIR* listing) const { ::closedir(listing); }
};

/// The open listing of a folder, to be read with readdir().
using FolderListing = std::unique_ptr<DIR, CloseListing>;

/// The listing of the open folder, which it takes over; null when that is none or cannot be read.
inline FolderListing listingOf(FileDescriptor folder)
{
    FolderListing listing(::fdopendir(folder.get()));
    if (listing)
        std::ignore = folder.release();
    return listing;
}

/// Whether a folder, and no link to one, is at `place` in the open folder `base`.
inline bool isFolder(int base, const std::string& place)
{
    struct stat status = {};
    return ::fstatat(base, place.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISDIR(status.st_mode);
}
