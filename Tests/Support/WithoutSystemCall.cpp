// SPDX-License-Identifier: MIT
#include "Support/WithoutSystemCall.h"

#include "Support/OtherProcess.h"
#include "System/Errors.h"

#include <array>
#include <cstddef>

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

/// Makes a system call of this process fail with the given error (seccomp).
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
    OtherProcess process([&](int answer, int) {
        if (!forbid(systemCall, error))
            return 1;
        try {
            action();
        } catch (const PlatformError& thrown) {
            const auto sentence = thrown.message().toUtf8();
            const auto size = static_cast<std::size_t>(sentence.size());
            return ::write(answer, sentence.constData(), size) == sentence.size() ? 0 : 2;
        }
        return 0;
    });
    const auto sentence = QString::fromUtf8(process.answer());
    EXPECT_EQ(process.end(), 0);
    return sentence;
}
