// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QString>

#include <cstddef>

/// A regular file, open for reading. It stays the same file if another one replaces it at its path.
class InputFile final
{
public:
    /// Opens the file at `path`. Throws PlatformError.
    explicit InputFile(const QString& path);
    /// Takes ownership of `descriptor`, which was opened at `path`.
    InputFile(QString path, FileDescriptor descriptor);

    [[nodiscard]] const QString& path() const { return m_path; }
    [[nodiscard]] int descriptor() const { return m_descriptor.get(); }

    /// Returns the size in bytes. Throws PlatformError.
    [[nodiscard]] qint64 size() const;

    /// Reads up to `size` bytes at `offset`. Returns the number of bytes read; 0 at the end of the
    /// file. Throws PlatformError.
    std::size_t readAt(qint64 offset, char* buffer, std::size_t size) const;

private:
    QString m_path;
    FileDescriptor m_descriptor;
};
