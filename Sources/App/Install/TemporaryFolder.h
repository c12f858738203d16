// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QString>

/// A temporary folder that is removed, with everything in it, in the destructor.
///
/// The folder itself is locked (flock). The lock ends with the process, so a later start can tell a
/// folder in use from a stale one.
class TemporaryFolder final
{
public:
    /// Creates the folder at `path`, with missing parents, and locks it. Throws PlatformError.
    explicit TemporaryFolder(const QString& path);
    ~TemporaryFolder();

    TemporaryFolder(TemporaryFolder&& other) noexcept;
    TemporaryFolder& operator=(TemporaryFolder&&) = delete;

    /// Removes the folder at `path` if it belongs to this user and its owner has ended. Does
    /// nothing to a link, nor where folders cannot be locked. May block.
    static void removeIfAbandoned(const QString& path) noexcept;

    [[nodiscard]] const QString& path() const { return m_path; }

    /// Removes the folder now, ignoring errors. May block; the destructor then has nothing to do.
    void remove() noexcept;

private:
    QString m_path;
    FileDescriptor m_lock;
};
