// SPDX-License-Identifier: MIT
#include "Install/DownloadProgress.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

TEST(DownloadProgress, readsAsAmountTotalAndRate)
{
    const DownloadProgress progress{7'300'000, 70'100'000, 2'400'000};

    EXPECT_EQ(progress.text(), u"7.3 MB of 70.1 MB · 2.4 MB/s"_s);
}

TEST(DownloadProgress, leavesOutATotalThatIsUnknown)
{
    EXPECT_EQ((DownloadProgress{7'300'000, -1, 2'400'000}.text()), u"7.3 MB · 2.4 MB/s"_s);
    EXPECT_EQ((DownloadProgress{7'300'000, 0, 2'400'000}.text()), u"7.3 MB · 2.4 MB/s"_s);
    EXPECT_EQ((DownloadProgress{0, 1, 0}.text()), u"Zero KB of 1 byte · Zero KB/s"_s);
}

TEST(DownloadProgress, truncatesTheRateTowardsZero)
{
    EXPECT_EQ((DownloadProgress{0, -1, 1.99}.text()), u"Zero KB · 1 byte/s"_s);
}

TEST(DownloadProgress, takesTheRateOverAtLeastAMillisecond)
{
    EXPECT_EQ(DownloadProgress::after(0ns, 500, 1'000).bytesPerSecond, 500'000);
    EXPECT_EQ(DownloadProgress::after(-5s, 500, 1'000).bytesPerSecond, 500'000);
    EXPECT_EQ(DownloadProgress::after(999us, 500, 1'000).bytesPerSecond, 500'000);
    EXPECT_EQ(DownloadProgress::after(2s, 500, 1'000).bytesPerSecond, 250);
}

TEST(DownloadProgressDeathTest, stopsTheProgramAtARateThatIsNotFinite)
{
    const DownloadProgress progress{1, 1, std::numeric_limits<double>::infinity()};

    EXPECT_DEATH((void)progress.text(), "must be finite");
}
