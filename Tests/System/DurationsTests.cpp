// SPDX-License-Identifier: MIT
#include "System/Durations.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

TEST(Durations, areInProductionWhatThePlayerIsToldOrExpects)
{
    const Durations durations;
    EXPECT_EQ(durations.startupThreshold, 10s);
    EXPECT_EQ(durations.importPollInterval, 2s);
    EXPECT_EQ(durations.importSettleTime, 4s);
    EXPECT_EQ(durations.importTimeout, 900s);
    EXPECT_EQ(durations.logFlushInterval, 100ms);
    EXPECT_EQ(durations.stallTimeout, 60s);
    EXPECT_EQ(durations.killTimeout, 5s);
}
