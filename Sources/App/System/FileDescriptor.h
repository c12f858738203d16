// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <utility>

#include <unistd.h>

/// Owns a file descriptor, or none, and closes it in the destructor.
class FileDescriptor final
{
public:
    FileDescriptor() = default;
    /// Takes ownership of `descriptor`; a negative one means none.
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
    /// Returns the descriptor, still owned; negative if there is none.
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

/// The two ends of a pipe, both close-on-exec.
struct Pipe
{
    FileDescriptor readEnd;
    FileDescriptor writeEnd;

    /// Returns nothing and sets errno if the limit of open files is reached.
    static std::optional<Pipe> make();
};

/// Makes reads and writes fail with EAGAIN instead of blocking.
void makeNonBlocking(const FileDescriptor& descriptor);

/// Returns true if `path` names the open file or folder. Does not follow a link at `path`.
bool isSameFile(const FileDescriptor& file, const char* path);
