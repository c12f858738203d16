// SPDX-License-Identifier: MIT
#include "Platform/ChildSetup.h"

#include <QtGlobal>

#include <climits>
#include <csignal>

#include <unistd.h>
#if defined(Q_OS_LINUX)
#include <linux/close_range.h>
#include <sys/prctl.h>
#endif

void ChildSetup::leadOwnGroup() noexcept
{
    ::setpgid(0, 0);
}

void ChildSetup::endWithParent([[maybe_unused]] pid_t parent) noexcept
{
#if defined(Q_OS_LINUX)
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
        ::kill(::getpid(), SIGKILL);
#endif
}

void ChildSetup::sendOutputTo(int descriptor) noexcept
{
    ::dup2(descriptor, STDOUT_FILENO);
    ::dup2(descriptor, STDERR_FILENO);
}

void ChildSetup::withholdOtherDescriptors() noexcept
{
#if defined(Q_OS_LINUX)
    // Marked rather than closed: one of them reports to the parent whether the program was started.
    ::close_range(STDERR_FILENO + 1, UINT_MAX, CLOSE_RANGE_CLOEXEC);
#endif
}

void ChildSetup::unblockSignals() noexcept
{
    sigset_t none;
    ::sigemptyset(&none);
    ::sigprocmask(SIG_SETMASK, &none, nullptr);
}

void ChildSetup::ignoreBrokenPipes() noexcept
{
    ::signal(SIGPIPE, SIG_IGN);
}
