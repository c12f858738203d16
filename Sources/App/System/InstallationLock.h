// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QString>

/// The lock file of an installation. At most one launcher holds its lock, and the running game,
/// which may outlive a killed launcher, holds another.
///
/// Both are record locks (fcntl) on a file that nothing else opens. A record lock belongs to one
/// process: it survives exec, is not inherited by children, and ends with the process. A launcher
/// whose lock file cannot be created or locked, or was removed or replaced, holds no lock.
///
/// A process may have only one object per file: closing a second one would release the locks.
class InstallationLock final
{
public:
    /// Creates the file at `path`, with missing parents.
    explicit InstallationLock(const QString& path);
    /// Calls release().
    ~InstallationLock();

    InstallationLock(const InstallationLock&) = delete;
    InstallationLock& operator=(const InstallationLock&) = delete;

    /// Acquires the launcher's lock, on a new file if the old one was removed or replaced. Returns
    /// isHeld().
    bool tryAcquire();
    /// Like tryAcquire(), but throws PlatformError on failure.
    void acquire();
    /// Returns true if the last tryAcquire() failed because another launcher holds the lock.
    [[nodiscard]] bool isHeldByOther() const;
    /// Releases the lock, and removes the file unless a game still uses it. Afterwards isHeld() and
    /// isGameRunning() return false.
    void release();
    /// Returns true if this process holds the launcher's lock. Stale folders are then unused.
    [[nodiscard]] bool isHeld() const;

    /// Returns true if another process holds the game's lock.
    [[nodiscard]] bool isGameRunning() const;

    /// The argument for acquireAsGame(); negative if the file could not be opened.
    [[nodiscard]] int descriptor() const { return m_file.get(); }

    /// Acquires the game's lock in a child process. Only makes system calls, so it may be called
    /// between fork and exec.
    static void acquireAsGame(int descriptor) noexcept;

private:
    void open();
    [[nodiscard]] bool isStillThere() const;

    QString m_path;
    FileDescriptor m_file;
    bool m_isLocked = false;
    /// The error number of the last attempt to open or lock the file.
    int m_error = 0;
};
