// SPDX-License-Identifier: MIT
#include "Durations.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

TEST(Durations, areInProductionWhatThePlayerIsToldOrExpects)
{
    const Durations durations;
    EXPECT_EQ(durations.startUpWatch, 10s);
    EXPECT_EQ(durations.importPoll, 2s);
    EXPECT_EQ(durations.importSettled, 4s);
    EXPECT_EQ(durations.importLimit, 900s);
    EXPECT_EQ(durations.logPublication, 100ms);
    EXPECT_EQ(durations.transferStall, 60s);
    EXPECT_EQ(durations.killGrace, 5s);
}
