// SPDX-License-Identifier: MIT
#include "Shell/SingleInstance.h"

#include "Project/GameFacts.h"
#include "System/InstallationLock.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QLocalSocket>

#include <algorithm>
#include <thread>
#include <utility>

#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using std::chrono::milliseconds;

namespace {

constexpr auto answerTimeout = 2s;
constexpr auto retryInterval = 50ms;
constexpr qint64 maxTokenLength = 4096;

/// Every user of the machine can use the socket, so each side checks who the other one is.
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

SingleInstance::SingleInstance(InstallationLock& lock, QString serverName)
    : m_lock(lock)
    , m_serverName(std::move(serverName))
{
    // No socket file that a killed launcher would leave behind, where the system supports that.
    m_server.setSocketOptions(QLocalServer::AbstractNamespaceOption);
    connect(&m_server, &QLocalServer::newConnection, this, [this] {
        while (auto* const caller = m_server.nextPendingConnection())
            serve(caller);
    });
}

QString SingleInstance::serverName(const QString& lockFile)
{
    // Several paths may lead to the one lock file.
    const QFileInfo file(lockFile);
    const auto folder = QFileInfo(file.path()).canonicalFilePath();
    const auto path = folder.isEmpty() ? lockFile : folder + u'/' + file.fileName();
    const auto key = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256);
    return u"%1-%2-%3"_s.arg(GameFacts::programName)
        .arg(::geteuid())
        .arg(QString::fromLatin1(key.toHex().first(16)));
}

SingleInstance::Start SingleInstance::start(const QByteArray& activationToken, milliseconds timeout)
{
    const QDeadlineTimer deadline(timeout);
    while (!m_lock.tryAcquire()) {
        if (handOver(activationToken, deadline))
            return Start::handedOver;
        if (deadline.hasExpired())
            return Start::noAnswer;
        std::this_thread::sleep_for(retryInterval);
    }
    // Where the socket is a file, a killed launcher may have left one.
    QLocalServer::removeServer(m_serverName);
    // If this fails, a later launcher gets no answer and says so.
    m_server.listen(m_serverName);
    return Start::first;
}

bool SingleInstance::handOver(const QByteArray& activationToken, const QDeadlineTimer& deadline)
{
    const auto wait = static_cast<int>(
        std::clamp<qint64>(deadline.remainingTime(), 1, milliseconds(answerTimeout).count()));

    QLocalSocket socket;
    socket.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
    socket.connectToServer(m_serverName);
    if (!socket.waitForConnected(wait) || !isOwnUser(socket))
        return false;
    socket.write(activationToken + '\n');
    return socket.waitForReadyRead(wait);
}

void SingleInstance::stopListening()
{
    m_server.close();
    // Callers that are connected already get no answer either.
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
    caller->setReadBufferSize(maxTokenLength);
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
