// SPDX-License-Identifier: MIT
#include "System/Sync.h"

#include "System/Abandonable.h"
#include "System/DirectoryWalk.h"
#include "System/Errors.h"
#include "System/FileDescriptor.h"
#include "System/FolderListing.h"

#include <cerrno>
#include <chrono>

#include <fcntl.h>
#include <unistd.h>

namespace {

[[noreturn]] void throwNotWritten(const QString& path, int error)
{
    throw PlatformError::fromErrno(PlatformError::tr("Could not write “%1” to the disk").arg(path),
                                   error);
}

/// Calls fsync() and returns the error number; 0 also if the file system does not support it.
int syncFile(const FileDescriptor& file)
{
    return ::fsync(file.get()) == 0 || isUnsupported(errno) ? 0 : errno;
}

int syncEntry(const DirectoryWalk::Entry& entry)
{
    if (entry.kind == DirectoryWalk::Kind::other)
        return 0; // A link is part of its folder.
    const FileDescriptor file(
        ::openat(entry.folder, entry.name.data(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    return file.isOpen() ? syncFile(file) : errno;
}

/// Flushes the drive's write cache on systems where fsync() does not.
bool flushDriveCache([[maybe_unused]] const FileDescriptor& file)
{
#if defined(F_FULLFSYNC)
    return ::fcntl(file.get(), F_FULLFSYNC) == 0 || isUnsupported(errno);
#else
    return true;
#endif
}

} // namespace

void syncTree(const QString& path, const std::stop_token& stop)
{
#if defined(Q_OS_LINUX)
    // For the many small files of a game, one syncfs() takes a tenth of the time of an fsync() per
    // file. But it cannot be interrupted.
    const auto error = runAbandonable(
        [path] {
            const auto folder = openFolder(path);
            if (!folder.isOpen())
                return errno;
            return ::syncfs(folder.get()) == 0 || isUnsupported(errno) ? 0 : errno;
        },
        std::chrono::hours(24), stop);
    throwIfCancelled(stop);
    if (error != 0)
        throwNotWritten(path, error.value_or(ETIMEDOUT));
#else
    syncFiles(path, stop);
#endif
}

void syncFiles(const QString& path, const std::stop_token& stop)
{
    int error = 0;
    const auto syncNext = [&error](const DirectoryWalk::Entry& entry) {
        const auto entryError = syncEntry(entry);
        if (error == 0)
            error = entryError;
    };
    DirectoryWalk::walk(path, DirectoryWalk::Hidden::include, stop, syncNext);
    throwIfCancelled(stop);
    if (error != 0)
        throwNotWritten(path, error);
    const auto folder = openFolder(path);
    if (!folder.isOpen() || syncFile(folder) != 0 || !flushDriveCache(folder))
        throwNotWritten(path, errno);
}

void syncDirectory(const QString& path, const std::stop_token& stop) noexcept
{
    try {
        runAbandonable(
            [path] {
                const auto folder = openFolder(path);
                return folder.isOpen() ? ::fsync(folder.get()) : 0;
            },
            std::chrono::hours(24), stop);
    } catch (const PlatformError&) {
        // No thread can be started.
    }
}
