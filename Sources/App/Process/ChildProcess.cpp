// SPDX-License-Identifier: MIT
#include "Process/ChildProcess.h"

#include "System/Errors.h"
#include "System/InheritedAttributes.h"
#include "System/InstallationLock.h"

#include <QFile>

#include <cerrno>
#include <climits>
#include <csignal>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>
#if defined(Q_OS_LINUX)
#include <linux/close_range.h>
#include <sys/prctl.h>
#endif

namespace {

PlatformError startError(const ChildProcess::Command& command, int error)
{
    return PlatformError::fromErrno(PlatformError::tr("Could not start “%1”").arg(command.program),
                                    error);
}

// The next functions run in the child between fork and exec, where a program with several threads
// may only make system calls.

void setParentDeathSignal([[maybe_unused]] pid_t parent) noexcept
{
#if defined(Q_OS_LINUX)
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
        ::kill(::getpid(), SIGKILL);
#endif
}

void setCloseOnExec() noexcept
{
#if defined(Q_OS_LINUX)
    // A library may have opened a descriptor without O_CLOEXEC.
    ::close_range(STDERR_FILENO + 1, UINT_MAX, CLOSE_RANGE_CLOEXEC);
#endif
}

void unblockSignals() noexcept
{
    sigset_t none;
    sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

[[noreturn]] void execProgram(const ChildProcess::Command& command, char* const* arguments,
                              int nullDevice, int errors, pid_t parent) noexcept
{
    ::setpgid(0, 0);
    ::dup2(nullDevice, STDIN_FILENO);
    ::dup2(command.output, STDOUT_FILENO);
    ::dup2(command.output, STDERR_FILENO);
    setCloseOnExec();
    unblockSignals();
    InheritedAttributes::restoreInChild();
    if (command.lifetime == ChildProcess::Lifetime::endsWithLauncher)
        setParentDeathSignal(parent);
    else
        ::signal(SIGPIPE, SIG_IGN); // It may write after the launcher has ended.
    if (command.installationLock >= 0)
        InstallationLock::acquireAsGame(command.installationLock);
    ::execv(arguments[0], arguments);
    const auto error = errno;
    static_cast<void>(::write(errors, &error, sizeof error));
    ::_exit(EXIT_FAILURE);
}

// The functions below run in the launcher.

Pipe makePipe(const ChildProcess::Command& command)
{
    auto pipe = Pipe::make();
    if (!pipe)
        throw startError(command, errno);
    return std::move(*pipe);
}

std::vector<QByteArray> encodedArguments(const ChildProcess::Command& command)
{
    std::vector<QByteArray> encoded{QFile::encodeName(command.program)};
    for (const auto& argument : command.arguments)
        encoded.push_back(argument.toLocal8Bit());
    return encoded;
}

/// Waits for the child's end but does not reap it, so that its process id is not reused.
void waitForEnd(pid_t id)
{
    siginfo_t info = {};
    while (::waitid(P_PID, static_cast<id_t>(id), &info, WEXITED | WNOWAIT) != 0 &&
           errno == EINTR) {
    }
}

} // namespace

ChildProcess::ChildProcess(const Command& command)
    : m_end(makePipe(command))
{
    auto encoded = encodedArguments(command);
    std::vector<char*> arguments;
    for (auto& argument : encoded)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    // The child writes the error number of a failed exec here. A successful exec closes the pipe.
    auto errors = makePipe(command);
    const FileDescriptor nullDevice(::open("/dev/null", O_RDWR | O_CLOEXEC));
    const auto parent = ::getpid();

    m_id = ::fork();
    if (m_id == 0)
        execProgram(command, arguments.data(), nullDevice.get(), errors.writeEnd.get(), parent);
    if (m_id < 0)
        throw startError(command, errno);
    errors.writeEnd.close();
    startWaiter(command);
    int error = 0;
    if (::read(errors.readEnd.get(), &error, sizeof error) == sizeof error) {
        reap();
        throw startError(command, error);
    }
}

void ChildProcess::startWaiter(const Command& command)
{
    try {
        m_waiter = std::thread([this] {
            waitForEnd(m_id);
            m_end.writeEnd.close();
        });
    } catch (const std::system_error& error) {
        ::kill(m_id, SIGKILL);
        ::waitpid(m_id, nullptr, 0);
        throw startError(command, error.code().value());
    }
}

ChildProcess::~ChildProcess()
{
    if (m_waiter.joinable())
        reap();
}

void ChildProcess::signalGroup(int signal) const
{
    ::kill(-m_id, signal);
}

int ChildProcess::reap()
{
    m_waiter.join();
    int status = 0;
    ::waitpid(m_id, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : WTERMSIG(status);
}
