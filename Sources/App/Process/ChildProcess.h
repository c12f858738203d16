// SPDX-License-Identifier: MIT
#pragma once

#include "Process/ManagedProcess.h"

#include <QObject>
#include <QProcess>
#include <QPromise>
#include <QTimer>

#include <atomic>
#include <memory>

class ChildOutput;

/// The part of a ManagedProcess that lives on the thread of the child processes and serves one of
/// them there. It keeps itself while the child runs, whatever its owner does meanwhile.
///
/// `create`, `run`, `isRunning` and `terminate` may be called on any thread; all else happens on
/// the thread of the child processes.
class ChildProcess final : public QObject, public std::enable_shared_from_this<ChildProcess>
{
public:
    static std::shared_ptr<ChildProcess>
    create(ManagedProcess::Lifetime lifetime, std::chrono::milliseconds killGrace, int sessionLock);
    ~ChildProcess() override;

    QFuture<int> run(const QString& executable, const QStringList& arguments, LogCallback onLine);
    [[nodiscard]] bool isRunning() const { return m_isRunning; }
    void terminate();

private:
    ChildProcess(ManagedProcess::Lifetime lifetime, std::chrono::milliseconds killGrace,
                 int sessionLock);

    void start(const QString& executable, const QStringList& arguments, LogCallback onLine);
    void setUpProcess();
    void childHasStarted();
    void childHasEnded(int status);
    void fail(const QString& executable, const QString& reason);
    void endGroup();
    void signalGroup(int signal) const;
    void letGo();

    const ManagedProcess::Lifetime m_lifetime;
    const int m_sessionLock;
    std::atomic<bool> m_isRunning = false;
    QPromise<int> m_promise;
    std::shared_ptr<ChildProcess> m_self;
    std::unique_ptr<ChildOutput> m_output;
    std::unique_ptr<QProcess> m_process;
    QTimer m_killTimer;
    /// The process group of the child while it runs, else 0.
    qint64 m_group = 0;
    bool m_endRequested = false;
};
