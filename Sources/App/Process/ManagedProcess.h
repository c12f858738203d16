// SPDX-License-Identifier: MIT
#pragma once

#include "Process/ChildProcess.h"
#include "Process/LogStore.h"
#include "System/Durations.h"

#include <atomic>
#include <chrono>
#include <stop_token>

/// Runs one child program to its end, delivers its output (standard output and standard error,
/// interleaved as written) as text lines, and returns its exit status.
///
/// One object serves one run; terminate() may be called from another thread meanwhile.
class ManagedProcess final
{
public:
    using Lifetime = ChildProcess::Lifetime;

    /// `killTimeout` is the time from the polite request to stop to the kill. With the descriptor
    /// of an InstallationLock, which must stay open until the child has started, the child counts
    /// as the running game. Throws PlatformError if the system has no descriptor left.
    explicit ManagedProcess(Lifetime lifetime = Lifetime::endsWithLauncher,
                            std::chrono::milliseconds killTimeout = Durations().killTimeout,
                            int installationLock = -1);

    /// Starts `program` with `arguments`, no shell between, and returns its exit status once it has
    /// ended and all its output was delivered; the number of the signal that ended it, if one did.
    /// `onLines` is called on this thread; a line of more than 16 KiB comes in pieces.
    ///
    /// At the end of a program that ends with the launcher, the rest of its process group is
    /// killed; at the end of a game only if the game was asked to stop.
    ///
    /// Throws PlatformError, and delivers nothing, if the child cannot be started. Blocks.
    int run(const QString& program, const QStringList& arguments, const LogCallback& onLines);

    /// Whether run() is under way. Thread-safe.
    [[nodiscard]] bool isRunning() const { return m_isRunning; }

    /// Sends SIGTERM to the child's process group, and SIGKILL if the child has not ended after the
    /// timeout. Called before the start, it takes effect at the start; after the end it does
    /// nothing. Returns at once. Thread-safe.
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

/// Runs a tool that ends with the launcher as ManagedProcess::run() does. When `stop` is requested
/// the tool is asked to stop, and Cancelled is thrown once it has ended. Blocks.
int runTool(const QString& program, const QStringList& arguments, const LogCallback& onLines,
            const std::stop_token& stop);
