// SPDX-License-Identifier: MIT
#include "Platform/DirectoryWalk.h"

#include "Platform/FileDescriptor.h"

#include <QFile>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

using DirectoryWalk::Kind;

struct CloseListing
{
    void operator()(DIR* listing) const { ::closedir(listing); }
};
using Listing = std::unique_ptr<DIR, CloseListing>;

/// Takes over `folder`.
Listing listingOf(FileDescriptor folder)
{
    Listing listing(::fdopendir(folder.get()));
    if (listing)
        std::ignore = folder.release();
    return listing;
}

Kind kindByStatus(int folder, const char* name)
{
    struct stat status = {};
    if (::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0)
        return Kind::Other;
    return S_ISREG(status.st_mode)   ? Kind::RegularFile
           : S_ISDIR(status.st_mode) ? Kind::Folder
                                     : Kind::Other;
}

Kind kindOf(int folder, const dirent& entry)
{
    switch (entry.d_type) {
    case DT_REG:
        return Kind::RegularFile;
    case DT_DIR:
        return Kind::Folder;
    case DT_UNKNOWN: // Some file systems do not say.
        return kindByStatus(folder, entry.d_name);
    default:
        return Kind::Other;
    }
}

bool isSkipped(std::string_view name, DirectoryWalk::Hidden hidden)
{
    if (!name.starts_with('.'))
        return false;
    return hidden == DirectoryWalk::Hidden::Skip || name == "." || name == "..";
}

} // namespace

bool DirectoryWalk::walk(const QString& path, Hidden hidden, const std::stop_token& stop,
                         const std::function<void(const Entry&)>& visit)
{
    const FileDescriptor root(
        ::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!root.isOpen())
        return false;
    // The folders still to be read, as paths from the root.
    std::vector<std::string> pending{"."};
    while (!pending.empty() && !stop.stop_requested()) {
        const auto folder = std::move(pending.back());
        pending.pop_back();
        const auto listing = listingOf(FileDescriptor(
            ::openat(root.get(), folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC)));
        if (!listing)
            continue;
        const auto descriptor = ::dirfd(listing.get());
        while (const auto* entry = ::readdir(listing.get())) {
            const std::string_view name(entry->d_name);
            if (isSkipped(name, hidden))
                continue;
            const auto kind = kindOf(descriptor, *entry);
            visit({descriptor, name, kind});
            if (kind == Kind::Folder)
                pending.push_back(folder + '/' + entry->d_name);
        }
    }
    return true;
}
