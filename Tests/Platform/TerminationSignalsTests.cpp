// SPDX-License-Identifier: MIT
#include "Platform/TerminationSignals.h"

#include "Support/Await.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include <csignal>

#include <sys/wait.h>
#include <unistd.h>

namespace {

class TerminationSignal : public testing::TestWithParam<int>
{
};

TEST_P(TerminationSignal, isReceivedInsteadOfEndingTheProgram)
{
    const TerminationSignals signals_;
    QSignalSpy received(&signals_, &TerminationSignals::received);
    ASSERT_EQ(::raise(GetParam()), 0);
    EXPECT_TRUE(received.isEmpty()) << "nothing may happen inside the handler";
    EXPECT_TRUE(waitUntil([&received] { return !received.isEmpty(); }));
    ASSERT_EQ(::raise(GetParam()), 0);
    EXPECT_TRUE(waitUntil([&received] { return received.size() == 2; }));
}

TEST_P(TerminationSignal, endsTheProgramAgainAfterwards)
{
    const auto child = ::fork();
    if (child == 0) {
        {
            const TerminationSignals signals_;
        }
        ::raise(GetParam());
        ::_exit(0);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFSIGNALED(status));
}

TEST_P(TerminationSignal, staysIgnoredWhereItWas)
{
    const auto child = ::fork();
    if (child == 0) {
        ::signal(GetParam(), SIG_IGN);
        const TerminationSignals signals_;
        struct sigaction present = {};
        ::sigaction(GetParam(), nullptr, &present);
        ::_exit(present.sa_handler == SIG_IGN ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

INSTANTIATE_TEST_SUITE_P(All, TerminationSignal, testing::Values(SIGTERM, SIGINT, SIGHUP),
                         [](const auto& instance) {
                             return std::string(::sigabbrev_np(instance.param));
                         });

} // namespace
