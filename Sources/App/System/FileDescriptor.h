// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <utility>

#include <unistd.h>

/// Owns an open file descriptor, or none, and closes it.
class FileDescriptor final
{
public:
    FileDescriptor() = default;
    /// Takes over `descriptor`; a negative one is none.
    explicit FileDescriptor(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    FileDescriptor(FileDescriptor&& other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, -1))
    {
    }
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    ~FileDescriptor() { close(); }

    [[nodiscard]] bool isOpen() const { return m_descriptor >= 0; }
    /// The descriptor, still owned; negative when there is none.
    [[nodiscard]] int get() const { return m_descriptor; }
    /// Returns the descriptor, which the caller must close.
    [[nodiscard]] int release() { return std::exchange(m_descriptor, -1); }

    void close()
    {
        if (isOpen())
            ::close(release());
    }

private:
    int m_descriptor = -1;
};

/// The two ends of a pipe, neither of which a child process inherits.
struct Pipe
{
    FileDescriptor readEnd;
    FileDescriptor writeEnd;

    /// Returns nothing, and sets errno, if the system has no descriptor left.
    static std::optional<Pipe> make();
};

/// Has reading from and writing to `descriptor` fail with EAGAIN rather than wait.
void makeNonBlocking(const FileDescriptor& descriptor);
