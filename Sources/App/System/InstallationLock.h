// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QString>

/// Says which processes use an installation: at most one launcher, and the game, which may outlive
/// a launcher that is killed.
///
/// Both are record locks (fcntl) on a file that nothing else opens. Such a lock belongs to one
/// process: it stays when the process becomes another program, is not passed on to what the process
/// starts, and ends with the process however that ends, so that nothing ever has to be cleared
/// away. A launcher whose file cannot be made or locked, or was removed or replaced by somebody,
/// does not hold the lock.
///
/// A process has at most one of these for a file: closing it would end the locks of another.
class InstallationLock final
{
public:
    /// Creates the file at `path`, with missing parents.
    explicit InstallationLock(const QString& path);
    /// As release() does.
    ~InstallationLock();

    InstallationLock(const InstallationLock&) = delete;
    InstallationLock& operator=(const InstallationLock&) = delete;

    /// Makes this process the launcher, with a new file if the former one was removed or replaced.
    /// Returns isHeld().
    bool tryAcquire();
    /// As tryAcquire(), but throws PlatformError unless this process is the launcher then.
    void acquire();
    /// Whether the last tryAcquire() failed because another process is the launcher.
    [[nodiscard]] bool isHeldByOther() const;
    /// Releases the lock, and removes the file unless a game still uses it. From then on this
    /// object holds nothing and sees no game.
    void release();
    /// Whether this process is the launcher. Stale folders then belong to no running process.
    [[nodiscard]] bool isHeld() const;

    /// Whether another process runs as the game.
    [[nodiscard]] bool isGameRunning() const;

    /// What to hand to holdAsGame(); negative where locks do not work.
    [[nodiscard]] int descriptor() const { return m_file.get(); }

    /// Makes the calling process, a new child about to become the game, count as the running game
    /// until it ends. Does nothing but make system calls.
    static void holdAsGame(int descriptor) noexcept;

private:
    void open();
    [[nodiscard]] bool isStillThere() const;

    QString m_path;
    FileDescriptor m_file;
    bool m_isLocked = false;
    /// Why the file could not be opened or locked last time.
    int m_error = 0;
};
