// SPDX-License-Identifier: MIT
#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>

#include <chrono>

class QDeadlineTimer;
class QLocalSocket;
class SessionLock;

/// Sees to it that one launcher serves an installation: the first one holds the session's lock and
/// listens; a later one asks it to come to the front, and ends.
///
/// Who is first is decided by the lock alone, so of two that start in the same instant one is, and
/// a launcher that was killed is in nobody's way.
class SingleInstance final : public QObject
{
    Q_OBJECT

public:
    /// What a start comes to.
    enum class Start {
        /// This is the launcher.
        first,
        /// Another launcher has come to the front instead.
        handedOver,
        /// Another launcher holds the lock and did not answer.
        noAnswer,
    };

    /// `lock` must outlive this. `name` tells installations apart, see addressOf().
    SingleInstance(SessionLock& lock, QString name);

    /// The name by which the launchers of one user and one lock file find each other, whatever
    /// symbolic links lead to its folder. That has to exist.
    static QString addressOf(const QString& lockFile);

    /// Becomes the first launcher, or hands over to it, passing on `activationToken`, by which the
    /// desktop lets a window come to the front. A launcher that is about to end is waited for, and
    /// succeeded, for at most `patience`. Blocks.
    Start start(const QByteArray& activationToken,
                std::chrono::milliseconds patience = std::chrono::seconds{10});

    /// From now on a later launcher waits for the end of this one instead of handing over to it.
    void stopListening();

Q_SIGNALS:
    /// Another start wants the window in front. The token may be empty.
    void activated(const QByteArray& activationToken);

private:
    bool handOver(const QByteArray& activationToken, const QDeadlineTimer& deadline);
    void listen();
    void serve(QLocalSocket* caller);

    SessionLock& m_lock;
    QString m_name;
    QLocalServer m_server;
};
