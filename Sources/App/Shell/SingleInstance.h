// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <chrono>
#include <list>
#include <memory>

class QDeadlineTimer;
class QSocketNotifier;
class InstallationLock;

/// Makes sure that one launcher at a time serves an installation. The first one holds the
/// installation's lock and listens on a local socket; a later one asks it there to come to the
/// front, and ends.
///
/// The lock decides which one is first: of two that start at the same time one is, and a killed
/// launcher does not block the next one. Where there is no lock, who listens is first.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    enum class Start {
        /// This is the launcher.
        first,
        /// Another launcher has come to the front instead.
        handedOver,
        /// Another launcher holds the lock and did not answer.
        noAnswer,
    };

    /// `lock` must outlive this object.
    SingleInstance(InstallationLock& lock, QByteArray serverName);
    ~SingleInstance() override;

    /// Returns the socket's name for one user and one lock file. It is the same whatever
    /// symbolic links lead to the file's folder, which must exist.
    static QByteArray serverName(const QString& lockFile);

    /// Becomes the first launcher, or hands `activationToken` over to it, the desktop's permission
    /// to come to the front. Waits up to `timeout` for a launcher that is about to end, and then
    /// takes its place. Meanwhile the event loop runs.
    Start start(const QByteArray& activationToken,
                std::chrono::milliseconds timeout = std::chrono::seconds{4});

    /// Makes later launchers wait for the end of this one instead of handing over to it.
    void stopListening();

Q_SIGNALS:
    /// The program was started again and wants its window in front. The token may be empty.
    void activated(const QByteArray& activationToken);

private:
    bool becomeFirst();
    bool handOver(const QByteArray& activationToken, const QDeadlineTimer& deadline);
    void acceptCallers();

    /// A later launcher that is connected.
    struct Caller
    {
        FileDescriptor socket;
        std::unique_ptr<QSocketNotifier> notifier;
        QByteArray token;
    };
    void serve(std::list<Caller>::iterator caller);

    InstallationLock& m_lock;
    QByteArray m_serverName;
    FileDescriptor m_listener;
    std::unique_ptr<QSocketNotifier> m_calls;
    std::list<Caller> m_callers;
};
