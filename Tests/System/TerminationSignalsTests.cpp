// SPDX-License-Identifier: MIT
#include "System/TerminationSignals.h"

#include "Support/Await.h"
#include "Support/InAnotherProcess.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include <csignal>

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
    const auto status = inAnotherProcess([] {
        {
            const TerminationSignals signals_;
        }
        return ::raise(GetParam());
    });
    EXPECT_EQ(status, -GetParam()) << "the signal ended it";
}

TEST_P(TerminationSignal, staysIgnoredWhereItWas)
{
    const auto status = inAnotherProcess([] {
        ::signal(GetParam(), SIG_IGN);
        const TerminationSignals signals_;
        struct sigaction present = {};
        ::sigaction(GetParam(), nullptr, &present);
        return present.sa_handler == SIG_IGN ? 0 : 1;
    });
    EXPECT_EQ(status, 0);
}

INSTANTIATE_TEST_SUITE_P(All, TerminationSignal, testing::Values(SIGTERM, SIGINT, SIGHUP),
                         [](const auto& instance) {
                             return std::string(::sigabbrev_np(instance.param));
                         });

} // namespace
