// SPDX-License-Identifier: MIT
#include "Support/WithoutSystemCall.h"

#include "System/Errors.h"

#include <gtest/gtest.h>

#include <QFile>

#include <array>
#include <cstddef>

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// From here on, has the system refuse one of its calls to this process with the given error.
bool forbid(unsigned systemCall, unsigned error)
{
    std::array filter{
        sock_filter BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr)),
        sock_filter BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, systemCall, 0, 1),
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | error),
        sock_filter BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW),
    };
    const sock_fprog program{static_cast<unsigned short>(filter.size()), filter.data()};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) == 0;
}

} // namespace

QString sentenceWithout(unsigned systemCall, unsigned error, const std::function<void()>& action)
{
    std::array<int, 2> pipe = {};
    EXPECT_EQ(::pipe(pipe.data()), 0);
    const auto child = ::fork();
    if (child == 0) {
        try {
            if (!forbid(systemCall, error))
                ::_exit(1);
            action();
        } catch (const PlatformError& thrown) {
            const auto sentence = thrown.message().toUtf8();
            const auto size = static_cast<std::size_t>(sentence.size());
            ::_exit(::write(pipe[1], sentence.constData(), size) == sentence.size() ? 0 : 2);
        }
        ::_exit(0);
    }
    ::close(pipe[1]);
    QFile output;
    EXPECT_TRUE(output.open(pipe[0], QIODevice::ReadOnly, QFileDevice::AutoCloseHandle));
    const auto sentence = QString::fromUtf8(output.readAll());
    int status = -1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    return sentence;
}
