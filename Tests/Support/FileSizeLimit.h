// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>

#include <sys/resource.h>

/// Limits the size of the files that this process writes: a longer write fails part of the way
/// through, as on a full disk. The destructor restores the limit.
class FileSizeLimit final
{
public:
    explicit FileSizeLimit(rlim_t bytes);
    ~FileSizeLimit();

    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_before = {};
    void (*const m_handlerBefore)(int);
};
