// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QStringList>

#include <thread>

#include <sys/types.h>

/// A child process. It leads a new process group, so that it can be signalled together with its own
/// children.
///
/// It inherits the environment, the working directory, and the limits that the launcher inherited.
/// No signal is blocked, standard input is the null device, and no other descriptor than the three
/// standard ones is open.
class ChildProcess final
{
public:
    /// endsWithLauncher: the system kills the child when the launcher ends in any way.
    enum class Lifetime { endsWithLauncher, mayOutliveLauncher };

    struct Command
    {
        QString program;
        QStringList arguments;
        /// The descriptor for standard output and standard error.
        int output = -1;
        Lifetime lifetime = Lifetime::endsWithLauncher;
        /// The descriptor of an InstallationLock that the child acquires as the game; else
        /// negative.
        int installationLock = -1;
    };

    /// Starts the program. With endsWithLauncher, the child also ends with the calling thread.
    /// Throws PlatformError if the program cannot be started.
    explicit ChildProcess(const Command& command);
    /// Blocks until the child has ended.
    ~ChildProcess();

    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// A descriptor that becomes readable when the child has ended.
    [[nodiscard]] int endDescriptor() const { return m_end.readEnd.get(); }

    /// Signals the child's process group. After the child's end, until reap(), this reaches the
    /// rest of the group.
    void signalGroup(int signal) const;

    /// Waits for the child's end and returns its exit status, or the number of the signal that
    /// ended it. Call it once. Blocks.
    int reap();

private:
    void startWaiter(const Command& command);

    Pipe m_end;
    pid_t m_id = 0;
    std::thread m_waiter;
};
