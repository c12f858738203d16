// SPDX-License-Identifier: MIT
#include "Process/ChildProcess.h"

#include "Platform/ChildSetup.h"
#include "Platform/PlatformError.h"
#include "Platform/ServiceThread.h"
#include "Platform/SessionLock.h"
#include "Process/ChildOutput.h"

#include <csignal>
#include <utility>

#include <unistd.h>

namespace {

/// QProcess puts the name of the system call that failed before the reason.
QString systemReason(const QString& error)
{
    return error.section(QStringLiteral(": "), -1);
}

} // namespace

std::shared_ptr<ChildProcess> ChildProcess::create(ManagedProcess::Lifetime lifetime,
                                                   std::chrono::milliseconds killGrace,
                                                   int sessionLock)
{
    // Whoever lets go of it last may be on another thread than the one it lives on.
    const std::shared_ptr<ChildProcess> child(new ChildProcess(lifetime, killGrace, sessionLock),
                                              [](ChildProcess* last) { last->deleteLater(); });
    child->moveToThread(&ServiceThread::children());
    return child;
}

ChildProcess::ChildProcess(ManagedProcess::Lifetime lifetime, std::chrono::milliseconds killGrace,
                           int sessionLock)
    : m_lifetime(lifetime)
    , m_sessionLock(sessionLock)
    , m_killTimer(this)
{
    m_killTimer.setSingleShot(true);
    m_killTimer.setTimerType(Qt::PreciseTimer);
    m_killTimer.setInterval(killGrace);
    connect(&m_killTimer, &QTimer::timeout, this, [this] { signalGroup(SIGKILL); });
}

ChildProcess::~ChildProcess() = default;

QFuture<int> ChildProcess::run(const QString& executable, const QStringList& arguments,
                               LogCallback onLine)
{
    m_isRunning = true;
    m_promise.start();
    ServiceThread::children().post(
        [self = shared_from_this(), executable, arguments, onLine = std::move(onLine)] {
            self->start(executable, arguments, onLine);
        });
    return m_promise.future();
}

void ChildProcess::terminate()
{
    ServiceThread::children().post([self = shared_from_this()] {
        if (!std::exchange(self->m_endRequested, true))
            self->endGroup();
    });
}

void ChildProcess::start(const QString& executable, const QStringList& arguments,
                         LogCallback onLine)
{
    m_self = shared_from_this();
    try {
        m_output = std::make_unique<ChildOutput>(std::move(onLine));
    } catch (const PlatformError& error) {
        fail(executable, error.message());
        return;
    }
    m_process = std::make_unique<QProcess>();
    setUpProcess();
    connect(m_process.get(), &QProcess::started, this, &ChildProcess::childHasStarted);
    connect(m_process.get(), &QProcess::finished, this, &ChildProcess::childHasEnded);
    connect(m_process.get(), &QProcess::errorOccurred, this,
            [this, executable](QProcess::ProcessError error) {
                // Every other error is told by finished() too.
                if (error == QProcess::FailedToStart)
                    fail(executable, systemReason(m_process->errorString()));
            });
    m_process->start(executable, arguments, QIODevice::ReadOnly);
    if (m_output)
        m_output->closeWriteEnd();
}

void ChildProcess::setUpProcess()
{
    // The output goes through a pipe of our own: QProcess would, at the child's end, read on for as
    // long as any process that inherited its pipe keeps writing.
    m_process->setProcessChannelMode(QProcess::ForwardedChannels);
    // Nothing here has anything to say to a child; and what is typed into the terminal that the
    // launcher was started from is not for it.
    m_process->setStandardInputFile(QProcess::nullDevice());
    m_process->setChildProcessModifier([lifetime = m_lifetime, sessionLock = m_sessionLock,
                                        output = m_output->writeEnd(), parent = ::getpid()] {
        ChildSetup::leadOwnGroup();
        ChildSetup::sendOutputTo(output);
        ChildSetup::withholdOtherDescriptors();
        ChildSetup::unblockSignals();
        if (lifetime == ManagedProcess::Lifetime::endsWithLauncher)
            ChildSetup::endWithParent(parent);
        else
            ChildSetup::ignoreBrokenPipes();
        if (sessionLock >= 0)
            SessionLock::holdAsGame(sessionLock);
    });
}

void ChildProcess::childHasStarted()
{
    m_group = m_process->processId();
    if (m_endRequested)
        endGroup();
}

void ChildProcess::childHasEnded(int status)
{
    // Whoever asked for the end meant all of the child, also what it started and left behind.
    if (m_endRequested)
        signalGroup(SIGKILL);
    m_output->finish();
    letGo();
    m_promise.addResult(status);
    m_promise.finish();
}

void ChildProcess::fail(const QString& executable, const QString& reason)
{
    letGo();
    m_promise.setException(std::make_exception_ptr(
        PlatformError::fromReason(PlatformError::tr("start “%1”").arg(executable), reason)));
    m_promise.finish();
}

/// Asks the child's group to end, and kills it after the grace.
void ChildProcess::endGroup()
{
    if (m_group == 0)
        return;
    signalGroup(SIGTERM);
    m_killTimer.start();
}

void ChildProcess::signalGroup(int signal) const
{
    if (m_group > 0)
        ::kill(static_cast<pid_t>(-m_group), signal);
}

/// Frees what served the child. The object itself goes once its owner and the events under way
/// have let go of it too.
void ChildProcess::letGo()
{
    m_killTimer.stop();
    m_group = 0;
    m_output.reset();
    // This is called from a signal of the process.
    if (m_process)
        m_process.release()->deleteLater();
    m_isRunning = false;
    const auto self = std::exchange(m_self, nullptr);
    Q_UNUSED(self)
}
