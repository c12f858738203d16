// SPDX-License-Identifier: MIT
#include "System/FileDescriptor.h"

#include <array>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

std::optional<Pipe> Pipe::make()
{
    std::array<int, 2> ends{-1, -1};
    if (::pipe(ends.data()) != 0)
        return std::nullopt;
    // Not pipe2(), which macOS lacks.
    for (const auto end : ends)
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    return Pipe{FileDescriptor(ends[0]), FileDescriptor(ends[1])};
}

void makeNonBlocking(const FileDescriptor& descriptor)
{
    ::fcntl(descriptor.get(), F_SETFL, O_NONBLOCK);
}

bool isSameFile(const FileDescriptor& file, const char* path)
{
    struct stat opened = {};
    struct stat found = {};
    return ::fstat(file.get(), &opened) == 0 && ::lstat(path, &found) == 0 &&
           opened.st_ino == found.st_ino && opened.st_dev == found.st_dev;
}
