// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <gtest/gtest.h>

#include <QByteArray>

#include <array>
#include <csignal>
#include <functional>
#include <tuple>

#include <sys/wait.h>
#include <unistd.h>

/// A forked process that runs `work` and exits with its result. `work` gets a pipe to write answers
/// to and a pipe to read orders from, which is closed when this object ends.
class OtherProcess final
{
public:
    using Work = std::function<int(int answer, int orders)>;

    explicit OtherProcess(const Work& work)
    {
        std::array<int, 2> answers{};
        std::array<int, 2> orders{};
        EXPECT_EQ(::pipe(answers.data()), 0);
        EXPECT_EQ(::pipe(orders.data()), 0);
        m_id = ::fork();
        if (m_id == 0) {
            ::close(orders[1]);
            ::_exit(work(answers[1], orders[0]));
        }
        ::close(answers[1]);
        ::close(orders[0]);
        m_answers = FileDescriptor(answers[0]);
        m_orders = FileDescriptor(orders[1]);
    }
    ~OtherProcess() { std::ignore = end(); }

    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    /// Waits for the next answer, one line.
    QByteArray answer()
    {
        QByteArray line;
        char next = 0;
        while (::read(m_answers.get(), &next, 1) == 1 && next != '\n')
            line.append(next);
        return line;
    }

    void kill() { ::kill(m_id, SIGKILL); }
    void order() { EXPECT_EQ(::write(m_orders.get(), "\n", 1), 1); }

    /// Waits for the end and returns the exit status; negative if the process was killed.
    int end()
    {
        m_orders.close();
        if (m_id > 0) {
            int status = 0;
            EXPECT_EQ(::waitpid(m_id, &status, 0), m_id);
            m_status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
            m_id = -1;
        }
        return m_status;
    }

private:
    pid_t m_id = -1;
    int m_status = -1;
    FileDescriptor m_answers;
    FileDescriptor m_orders;
};
