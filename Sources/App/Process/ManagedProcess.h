// SPDX-License-Identifier: MIT
#pragma once

#include "Durations.h"
#include "Process/LogCallback.h"

#include <QFuture>
#include <QString>
#include <QStringList>

#include <chrono>
#include <memory>

class ChildProcess;

/// Runs one child program to its end, delivers its output (standard output and standard error,
/// interleaved as written) line by line, and tells its exit status.
///
/// It is made for one run. The child is the leader of its own process group. It is served on a
/// thread of its own that lives as long as the program, never on the caller's.
class ManagedProcess final
{
public:
    /// Whether the child ends with the launcher, however the launcher ends, or may outlive it.
    enum class Lifetime { endsWithLauncher, mayOutliveLauncher };

    /// `killGrace` is the time from the polite request to stop to the kill. With the descriptor of
    /// a SessionLock, which must stay open until the child has started, the child counts as the
    /// running game.
    explicit ManagedProcess(Lifetime lifetime = Lifetime::endsWithLauncher,
                            std::chrono::milliseconds killGrace = Durations().killGrace,
                            int sessionLock = -1);
    /// Leaves a child that still runs to its end, and its future with it.
    ~ManagedProcess();

    /// Starts `executable` with `arguments`, no shell between. The future finishes once the child
    /// has ended and all its output was delivered, with its exit status; a child ended by a signal
    /// gives the signal's number. A child that cannot be started gives a PlatformError and no line.
    /// `onLine` is called on a background thread.
    QFuture<int> run(const QString& executable, const QStringList& arguments, LogCallback onLine);

    /// Whether the child has been asked to run and has not ended yet. Any thread.
    [[nodiscard]] bool isRunning() const;

    /// Asks the child to stop, and kills its whole process group when it has not ended after the
    /// grace. Asked before the child has started, it is carried out then. Harmless after its end.
    /// Any thread; returns at once.
    void terminate();

private:
    std::shared_ptr<ChildProcess> m_child;
};
