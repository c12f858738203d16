// SPDX-License-Identifier: MIT
#include "Platform/ByteCount.h"

#include <gtest/gtest.h>

namespace {

struct Example
{
    qint64 bytes;
    const char* text;
};

class ByteCount : public testing::TestWithParam<Example>
{
};

TEST_P(ByteCount, isWrittenInTheStyleOfAFileSize)
{
    EXPECT_EQ(formattedByteCount(GetParam().bytes).toStdString(), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Examples, ByteCount,
    testing::Values(Example{0, "Zero KB"}, Example{1, "1 byte"}, Example{512, "512 bytes"},
        Example{999, "999 bytes"}, Example{1000, "1 KB"}, Example{11'999, "12 KB"},
        Example{12'345, "12 KB"}, Example{7'300'000, "7.3 MB"}, Example{70'100'000, "70.1 MB"},
        Example{123'456'789, "123.5 MB"}, Example{999'900'000, "999.9 MB"},
        Example{1'000'000'000, "1 GB"}, Example{1'500'000'000, "1.5 GB"},
        Example{1'234'567'898, "1.23 GB"}, Example{999'999, "1 MB"},
        Example{999'999'999, "1 GB"}, Example{-2'000, "-2 KB"}));

} // namespace
