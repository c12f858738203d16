// SPDX-License-Identifier: MIT
#include "Shell/SingleInstance.h"

#include "Project/GameFacts.h"
#include "System/InstallationLock.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QLocalSocket>
#include <QTimer>

#include <algorithm>
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

/// Runs the event loop until it quits, at most for `time`.
void runFor(QEventLoop& loop, milliseconds time)
{
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
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
    while (!becomeFirst()) {
        if (handOver(activationToken, deadline))
            return Start::handedOver;
        if (deadline.hasExpired())
            return Start::noAnswer;
        QEventLoop pause;
        runFor(pause, retryInterval);
    }
    return Start::first;
}

bool SingleInstance::becomeFirst()
{
    if (!m_lock.tryAcquire() && m_lock.isHeldByOther())
        return false;
    // Where the socket is a file, a killed launcher may have left one.
    QLocalServer::removeServer(m_serverName);
    // Another launcher may hold no lock, because it cannot or because somebody removed the file. It
    // takes the lock again when it needs it.
    QLocalSocket other;
    if (!m_server.listen(m_serverName) && connectToOther(other)) {
        m_lock.release();
        return false;
    }
    // If it does not listen, a later launcher gets no answer and says so.
    return true;
}

bool SingleInstance::connectToOther(QLocalSocket& socket) const
{
    socket.setSocketOptions(QLocalSocket::AbstractNamespaceOption);
    socket.connectToServer(m_serverName);
    return socket.waitForConnected(static_cast<int>(milliseconds(retryInterval).count())) &&
           isOwnUser(socket);
}

bool SingleInstance::handOver(const QByteArray& activationToken, const QDeadlineTimer& deadline)
{
    QLocalSocket socket;
    if (!connectToOther(socket))
        return false;
    QEventLoop answer;
    connect(&socket, &QLocalSocket::readyRead, &answer, &QEventLoop::quit);
    connect(&socket, &QLocalSocket::disconnected, &answer, &QEventLoop::quit);
    socket.write(activationToken + '\n');
    runFor(answer, std::min<milliseconds>(milliseconds(deadline.remainingTime()), answerTimeout));
    return socket.bytesAvailable() > 0;
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
