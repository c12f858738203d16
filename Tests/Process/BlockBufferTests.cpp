// SPDX-License-Identifier: MIT
#include "Process/BlockBuffer.h"

#include <gtest/gtest.h>

namespace {

TEST(BlockBuffer, givesCompleteLinesWithTheirLineFeeds)
{
    BlockBuffer buffer;
    EXPECT_EQ(buffer.append("ab"), QByteArray());
    EXPECT_EQ(buffer.append("c\n\nd\r\ne"), QByteArray("abc\n\nd\r\n"));
    EXPECT_EQ(buffer.append("\n"), QByteArray("e\n"));
    EXPECT_EQ(buffer.append("f\n"), QByteArray("f\n"));
    EXPECT_EQ(buffer.append(QByteArrayView()), QByteArray());
}

TEST(BlockBuffer, givesTheUnfinishedLineDecodedAndOnlyOnce)
{
    BlockBuffer buffer;
    EXPECT_EQ(buffer.flush(), std::nullopt);
    buffer.append("a\n\xe2\x82");
    buffer.append("\xac\xff");
    EXPECT_EQ(buffer.flush(), QStringLiteral("€\uFFFD"));
    EXPECT_EQ(buffer.flush(), std::nullopt);
    buffer.append("\xef\xbb\xbfx");
    EXPECT_EQ(buffer.flush(), QStringLiteral("\uFEFFx"));
}

} // namespace
