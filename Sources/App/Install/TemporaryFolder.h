// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QString>

/// A temporary folder. The destructor removes it with everything in it.
///
/// The folder is locked with flock(). The lock ends with the process, so that a later start
/// recognises a stale folder.
class TemporaryFolder final
{
public:
    /// Creates the folder at `path`, with missing parents, and locks it. Throws PlatformError.
    explicit TemporaryFolder(const QString& path);
    ~TemporaryFolder();

    TemporaryFolder(TemporaryFolder&& other) noexcept;
    TemporaryFolder& operator=(TemporaryFolder&&) = delete;

    /// Removes the folder at `path` if it belongs to this user and its owner has ended. Does
    /// nothing to a link, or if the file system does not support locks. Blocks.
    static void removeIfAbandoned(const QString& path) noexcept;

    [[nodiscard]] const QString& path() const { return m_path; }

    /// Removes the folder before the destructor does. Ignores errors. Blocks.
    void remove() noexcept;

private:
    QString m_path;
    FileDescriptor m_lock;
};
