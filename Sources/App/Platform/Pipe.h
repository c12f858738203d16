// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/FileDescriptor.h"

#include <optional>

/// The two ends of a pipe, neither of which a child process inherits.
struct Pipe
{
    FileDescriptor readEnd;
    FileDescriptor writeEnd;

    /// Nothing, with the reason in errno, when the system gives none.
    static std::optional<Pipe> make();
};

/// Has reading from and writing to `descriptor` fail with EAGAIN rather than wait.
void makeNonBlocking(const FileDescriptor& descriptor);
