// SPDX-License-Identifier: MIT
#include "Model/PlayOutcome.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

PlayOutcome judge(bool userStopped, std::chrono::nanoseconds elapsed, int status)
{
    return PlayOutcome::judge(userStopped, elapsed, status, 10s);
}

TEST(PlayOutcome, callsAGameThatClosesBeforeTenSecondsAFailedStartWhateverItsStatus)
{
    const auto clean = judge(false, 9900ms, 0);
    EXPECT_EQ(clean.kind(), PlayOutcome::Kind::closedTooSoon);
    EXPECT_EQ(clean.sentence(),
              u"The game closed after 9 seconds (exit code 0), so it did not start properly.");

    const auto crashed = judge(false, 999ms, 11);
    EXPECT_EQ(crashed.kind(), PlayOutcome::Kind::closedTooSoon);
    EXPECT_EQ(crashed.sentence(),
              u"The game closed after 0 seconds (exit code 11), so it did not start properly.");
}

TEST(PlayOutcome, callsAnEndAfterExactlyTenSecondsNormal)
{
    EXPECT_EQ(judge(false, 10s - 1ns, 0).kind(), PlayOutcome::Kind::closedTooSoon);
    const auto outcome = judge(false, 10s, 0);
    EXPECT_EQ(outcome.kind(), PlayOutcome::Kind::closedNormally);
    EXPECT_EQ(outcome.sentence(), u"Game closed normally.");
}

TEST(PlayOutcome, callsALaterEndWithAnotherStatusUnexpected)
{
    const auto outcome = judge(false, 30s, 1);
    EXPECT_EQ(outcome.kind(), PlayOutcome::Kind::stoppedUnexpectedly);
    EXPECT_EQ(outcome.sentence(), u"The game stopped unexpectedly (exit code 1).");
}

TEST(PlayOutcome, letsThePlayersOwnStopComeBeforeTimeAndStatus)
{
    for (const auto elapsed : {0s, 10s, 3600s}) {
        for (const auto status : {0, 1, 15}) {
            const auto outcome = judge(true, elapsed, status);
            EXPECT_EQ(outcome.kind(), PlayOutcome::Kind::stoppedByPlayer);
            EXPECT_EQ(outcome.sentence(), u"Game stopped by you.");
        }
    }
}

} // namespace
