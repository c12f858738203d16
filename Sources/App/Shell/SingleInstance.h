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

/// Allows only one launcher per installation. The first one holds the installation's lock and
/// listens on a local socket; a later one asks it over the socket to come to the front, and ends.
///
/// The lock decides which launcher is first, so two that start at the same time do not both become
/// first, and a killed one does not block the next. If there is no lock, the socket decides.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    enum class Start {
        /// This launcher is the first.
        first,
        /// Another launcher has come to the front instead.
        handedOver,
        /// Another launcher holds the lock and did not answer.
        noAnswer,
    };

    /// `lock` must outlive this object.
    SingleInstance(InstallationLock& lock, QByteArray serverName);
    ~SingleInstance() override;

    /// Returns the socket's name for this user and the lock file. Resolves symbolic links of the
    /// file's folder, which must exist.
    static QByteArray serverName(const QString& lockFile);

    /// Becomes the first launcher, or sends `activationToken` to the first one, which needs it to
    /// come to the front. If the first one is ending, waits up to `timeout` to become the first.
    /// Runs the event loop meanwhile.
    Start start(const QByteArray& activationToken,
                std::chrono::milliseconds timeout = std::chrono::seconds{4});

    /// From now on, later launchers wait for the end of this one.
    void stopListening();

Q_SIGNALS:
    /// The program was started again, which should bring the window to the front. The token may be
    /// empty.
    void activated(const QByteArray& activationToken);

private:
    bool becomeFirst();
    bool handOver(const QByteArray& activationToken, const QDeadlineTimer& deadline);
    void acceptCallers();

    /// A connected later launcher.
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
