// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QString>

#include <cstddef>

/// A regular file that is open for reading. It is the same file to the end, whatever happens to its
/// name meanwhile.
class InputFile final
{
public:
    /// Opens the file at `path`. Throws PlatformError.
    explicit InputFile(const QString& path);
    /// Takes over `descriptor`, which was opened at `path`.
    InputFile(QString path, FileDescriptor descriptor);

    [[nodiscard]] const QString& path() const { return m_path; }
    [[nodiscard]] int descriptor() const { return m_descriptor.get(); }

    /// The size in bytes. Throws PlatformError.
    [[nodiscard]] qint64 size() const;

    /// Reads up to `size` bytes at `offset` and returns how many those were; 0 at the end. Throws
    /// PlatformError.
    std::size_t readAt(qint64 offset, char* buffer, std::size_t size) const;

private:
    QString m_path;
    FileDescriptor m_descriptor;
};
