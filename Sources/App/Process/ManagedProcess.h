// SPDX-License-Identifier: MIT
#pragma once

#include "Process/ChildProcess.h"
#include "Process/LogStore.h"
#include "System/Durations.h"

#include <atomic>
#include <chrono>
#include <stop_token>

/// Runs a child process to its end and delivers its standard output and standard error, interleaved
/// as written, as lines. One object serves one run.
class ManagedProcess final
{
public:
    using Lifetime = ChildProcess::Lifetime;

    /// `killTimeout` is the time between SIGTERM and SIGKILL. With the descriptor of an
    /// InstallationLock, which must be open until the child has started, the child acquires the
    /// game's lock. Throws PlatformError if the limit of open files is reached.
    explicit ManagedProcess(Lifetime lifetime = Lifetime::endsWithLauncher,
                            std::chrono::milliseconds killTimeout = Durations().killTimeout,
                            int installationLock = -1);

    /// Runs `program` without a shell. Returns its exit status, or the number of the signal that
    /// ended it, after all its output was delivered. Calls `onLines` on this thread; splits a line
    /// of more than 16 KiB. Throws PlatformError if the program cannot be started. Blocks.
    ///
    /// After the end of the program, kills the rest of its process group, except after a game that
    /// ended without terminate().
    int run(const QString& program, const QStringList& arguments, const LogCallback& onLines);

    /// Returns true during run(). Thread-safe.
    [[nodiscard]] bool isRunning() const { return m_isRunning; }

    /// Sends SIGTERM to the child's process group, and SIGKILL if the child has not ended after the
    /// timeout. Before run(), it takes effect at the start. Returns at once. Thread-safe.
    void terminate();

private:
    const Lifetime m_lifetime;
    const std::chrono::milliseconds m_killTimeout;
    const int m_installationLock;
    std::atomic<bool> m_isRunning = false;
    std::atomic<bool> m_isEndRequested = false;
    /// terminate() closes its write end to wake up run().
    Pipe m_wakeUp;
};

/// Runs a tool with ManagedProcess::run(). When `stop` is requested, terminates the tool and throws
/// Cancelled after its end. Blocks.
int runTool(const QString& program, const QStringList& arguments, const LogCallback& onLines,
            const std::stop_token& stop);
