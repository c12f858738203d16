// SPDX-License-Identifier: MIT
#include "SingleInstance.h"

#include "Platform/SessionLock.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QLocalSocket>

#include <algorithm>
#include <thread>
#include <utility>

#include <sys/socket.h>
#include <unistd.h>

using namespace std::chrono_literals;
using std::chrono::milliseconds;

namespace {

constexpr auto answerTime = 2s;
constexpr auto retryInterval = 50ms;
constexpr qint64 longestToken = 4096;

/// The addresses are open to every user of the machine, so each side looks whom it talks to.
bool isOwnUser(const QLocalSocket& socket)
{
#if defined(Q_OS_LINUX)
    ucred peer = {};
    socklen_t size = sizeof peer;
    return ::getsockopt(static_cast<int>(socket.socketDescriptor()), SOL_SOCKET, SO_PEERCRED, &peer,
                        &size) == 0 &&
           peer.uid == ::geteuid();
#else
    uid_t user = 0;
    gid_t group = 0;
    return ::getpeereid(static_cast<int>(socket.socketDescriptor()), &user, &group) == 0 &&
           user == ::geteuid();
#endif
}

} // namespace

SingleInstance::SingleInstance(SessionLock& lock, QString name)
    : m_lock(lock)
    , m_name(std::move(name))
{
    // Where the system has addresses that are not files.
    m_server.setSocketOptions(QLocalServer::AbstractNamespaceOption);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (auto* const caller = m_server.nextPendingConnection())
            serve(caller);
    });
}

QString SingleInstance::addressOf(const QString& lockFile)
{
    // The lock is one file however its folder is spelled, and so must be the address.
    const QFileInfo file(lockFile);
    const auto folder = QFileInfo(file.path()).canonicalFilePath();
    const auto path = folder.isEmpty() ? lockFile : folder + u'/' + file.fileName();
    const auto key = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256);
    return QStringLiteral("cavernyx-platformer-%1-%2")
        .arg(::geteuid())
        .arg(QString::fromLatin1(key.toHex().first(16)));
}

SingleInstance::Start SingleInstance::start(const QByteArray& activationToken,
                                            milliseconds patience)
{
    const QDeadlineTimer deadline(patience);
    while (!m_lock.claim()) {
        if (handOver(activationToken, deadline))
            return Start::handedOver;
        if (deadline.hasExpired())
            return Start::noAnswer;
        std::this_thread::sleep_for(retryInterval);
    }
    listen();
    return Start::first;
}

bool SingleInstance::handOver(const QByteArray& activationToken, const QDeadlineTimer& deadline)
{
    const auto wait = static_cast<int>(
        std::clamp<qint64>(deadline.remainingTime(), 1, milliseconds(answerTime).count()));

    QLocalSocket socket;
    socket.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
    socket.connectToServer(m_name);
    if (!socket.waitForConnected(wait) || !isOwnUser(socket))
        return false;
    socket.write(activationToken + '\n');
    return socket.waitForReadyRead(wait);
}

void SingleInstance::listen()
{
    // Where an address is a file, one may be left of a launcher that was killed.
    QLocalServer::removeServer(m_name);
    // Where that fails, a later launcher is not answered, and says so.
    m_server.listen(m_name);
}

void SingleInstance::stopListening()
{
    m_server.close();
    // Also those who have called already.
    const auto callers = m_server.findChildren<QLocalSocket*>();
    for (auto* const caller : callers)
        caller->abort();
}

void SingleInstance::serve(QLocalSocket* caller)
{
    connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
    if (!isOwnUser(*caller)) {
        caller->abort();
        return;
    }
    caller->setReadBufferSize(longestToken);
    const auto read = [this, caller] {
        if (!caller->canReadLine())
            return;
        const auto token = caller->readLine().trimmed();
        caller->write("\n");
        caller->flush();
        Q_EMIT activated(token);
    };
    connect(caller, &QLocalSocket::readyRead, this, read);
    read();
}
