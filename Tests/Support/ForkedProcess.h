// SPDX-License-Identifier: MIT
#pragma once

#include <csignal>
#include <functional>

#include <sys/wait.h>
#include <unistd.h>
#if defined(__linux__)
#include <sys/prctl.h>
#endif

/// A forked process that runs `work` and then waits. The destructor kills it, and so does the end
/// of the test.
class ForkedProcess final
{
public:
    explicit ForkedProcess(const std::function<void()>& work)
        : m_id(::fork())
    {
        if (m_id != 0)
            return;
#if defined(__linux__)
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
#endif
        work();
        while (true)
            ::pause();
    }
    ~ForkedProcess() { kill(); }

    ForkedProcess(const ForkedProcess&) = delete;
    ForkedProcess& operator=(const ForkedProcess&) = delete;

    /// Kills the process and waits for its end.
    void kill()
    {
        if (m_id <= 0)
            return;
        ::kill(m_id, SIGKILL);
        ::waitpid(m_id, nullptr, 0);
        m_id = -1;
    }

private:
    pid_t m_id;
};
