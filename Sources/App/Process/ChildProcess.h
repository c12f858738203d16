// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QStringList>

#include <thread>

#include <sys/types.h>

/// A child program that was started: the leader of a process group of its own, so that it can be
/// signalled together with what it starts.
///
/// It inherits the environment, the working directory, and the limits that the launcher inherited.
/// No signal is blocked in it, its standard input is the null device, and no descriptor but the
/// three standard ones is open.
class ChildProcess final
{
public:
    /// Whether the child ends with the launcher, however the launcher ends, or may outlive it.
    enum class Lifetime { endsWithLauncher, mayOutliveLauncher };

    struct Command
    {
        QString program;
        QStringList arguments;
        /// Where standard output and standard error go.
        int output = -1;
        Lifetime lifetime = Lifetime::endsWithLauncher;
        /// With the descriptor of an InstallationLock, the child counts as the running game.
        int installationLock = -1;
    };

    /// Starts the program. A child that ends with the launcher also ends with the calling thread.
    /// Throws PlatformError if it cannot be started.
    explicit ChildProcess(const Command& command);
    /// Blocks until the child has ended.
    ~ChildProcess();

    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// A descriptor that becomes readable when the child has ended.
    [[nodiscard]] int endDescriptor() const { return m_end.readEnd.get(); }

    /// Signals the child's process group. Also after the child's end, until reap(), when it reaches
    /// what the child has left behind.
    void signalGroup(int signal) const;

    /// Waits for the child's end and returns its exit status; the number of the signal that ended
    /// it, if one did. To be called once.
    int reap();

private:
    void startWaiter(const Command& command);

    Pipe m_end;
    pid_t m_id = 0;
    std::thread m_waiter;
};
