// SPDX-License-Identifier: MIT
#include "Shell/SingleInstance.h"

#include "Project/GameFacts.h"
#include "System/InstallationLock.h"
#include "System/LocalSocket.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QSocketNotifier>
#include <QTimer>

#include <algorithm>
#include <utility>

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using std::chrono::milliseconds;

namespace {

constexpr auto answerTimeout = 2s;
constexpr auto retryInterval = 50ms;
constexpr qsizetype maxTokenLength = 4096;

/// Runs `loop` until it quits, at most for `time`.
void runFor(QEventLoop& loop, milliseconds time)
{
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

SingleInstance::SingleInstance(InstallationLock& lock, QByteArray serverName)
    : m_lock(lock)
    , m_serverName(std::move(serverName))
{
}

SingleInstance::~SingleInstance() = default;

QByteArray SingleInstance::serverName(const QString& lockFile)
{
    // Several paths may name the same lock file.
    const QFileInfo file(lockFile);
    const auto folder = QFileInfo(file.path()).canonicalFilePath();
    const auto path = folder.isEmpty() ? lockFile : folder + u'/' + file.fileName();
    const auto key = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256);
    return GameFacts::programName.toUtf8() + '-' + QByteArray::number(::geteuid()) + '-' +
           key.toHex().first(16);
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
    m_listener = LocalSocket::listen(m_serverName);
    if (m_listener.isOpen()) {
        m_calls = std::make_unique<QSocketNotifier>(m_listener.get(), QSocketNotifier::Read);
        connect(m_calls.get(), &QSocketNotifier::activated, this, &SingleInstance::acceptCallers);
        return true;
    }
    // A running launcher holds no lock if the file could not be created or was removed. It acquires
    // the lock again when it needs it.
    if (LocalSocket::connect(m_serverName).isOpen()) {
        m_lock.release();
        return false;
    }
    // Nothing listens. This one runs without a socket; a later one will get no answer.
    return true;
}

bool SingleInstance::handOver(const QByteArray& activationToken, const QDeadlineTimer& deadline)
{
    const auto socket = LocalSocket::connect(m_serverName);
    if (!socket.isOpen())
        return false;
    const QSocketNotifier notifier(socket.get(), QSocketNotifier::Read);
    QEventLoop answer;
    connect(&notifier, &QSocketNotifier::activated, &answer, &QEventLoop::quit);
    LocalSocket::send(socket, activationToken + '\n');
    runFor(answer, std::min<milliseconds>(milliseconds(deadline.remainingTime()), answerTimeout));
    QByteArray received;
    return LocalSocket::receive(socket, received) && !received.isEmpty();
}

void SingleInstance::stopListening()
{
    m_calls.reset();
    m_listener.close();
    // Connected callers get no answer either.
    m_callers.clear();
}

void SingleInstance::acceptCallers()
{
    while (true) {
        auto socket = LocalSocket::accept(m_listener);
        if (!socket.isOpen())
            return;
        const auto caller = m_callers.insert(m_callers.end(), Caller());
        caller->socket = std::move(socket);
        caller->notifier =
            std::make_unique<QSocketNotifier>(caller->socket.get(), QSocketNotifier::Read);
        connect(caller->notifier.get(), &QSocketNotifier::activated, this,
                [this, caller] { serve(caller); });
    }
}

void SingleInstance::serve(std::list<Caller>::iterator caller)
{
    const auto isConnected = LocalSocket::receive(caller->socket, caller->token);
    const auto lineFeed = caller->token.indexOf('\n');
    if (lineFeed < 0 && isConnected && caller->token.size() < maxTokenLength)
        return;
    const auto token = caller->token.first(std::max<qsizetype>(lineFeed, 0)).trimmed();
    if (lineFeed >= 0)
        LocalSocket::send(caller->socket, "\n");
    caller->notifier->setEnabled(false);
    caller->notifier.release()->deleteLater(); // Its signal calls this function.
    m_callers.erase(caller);
    if (lineFeed >= 0)
        Q_EMIT activated(token);
}
