// SPDX-License-Identifier: MIT
#include "Install/ChecksumList.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const auto archive = u"Godot_x11.64.zip"_s;

std::optional<QString> digestIn(const QByteArray& list)
{
    return ChecksumList::digestFor(list, archive);
}

} // namespace

TEST(ChecksumList, findsTheDigestOfTheFile)
{
    EXPECT_EQ(digestIn("aa  other.zip\nbb  Godot_x11.64.zip\ncc  third.zip\n"), u"bb"_s);
    EXPECT_EQ(digestIn("bb Godot_x11.64.zip"), u"bb"_s);
    EXPECT_EQ(digestIn(" \tbb\t \tsize  Godot_x11.64.zip \t\n"), u"bb"_s);
}

TEST(ChecksumList, ignoresAsterisksAroundTheName)
{
    EXPECT_EQ(digestIn("bb  *Godot_x11.64.zip\n"), u"bb"_s);
    EXPECT_EQ(digestIn("bb  ***Godot_x11.64.zip**\n"), u"bb"_s);
    EXPECT_EQ(digestIn("bb  Godot*_x11.64.zip\n"), std::nullopt);
}

TEST(ChecksumList, matchesTheExactNameOnly)
{
    EXPECT_EQ(digestIn("bb  godot_x11.64.zip\n"), std::nullopt);
    EXPECT_EQ(digestIn("bb  ./Godot_x11.64.zip\n"), std::nullopt);
    EXPECT_EQ(digestIn("bb  mono_Godot_x11.64.zip\n"), std::nullopt);
    EXPECT_EQ(digestIn("bb  Godot_x11.64.zip.sig\n"), std::nullopt);
    EXPECT_EQ(digestIn("bb  Godot_x11.64.zip more\n"), std::nullopt);
}

TEST(ChecksumList, lowersTheCaseOfTheDigest)
{
    EXPECT_EQ(digestIn("AbCd09  Godot_x11.64.zip\n"), u"abcd09"_s);
}

TEST(ChecksumList, takesTheLastOfSeveralLines)
{
    EXPECT_EQ(digestIn("aa  Godot_x11.64.zip\nbb  *Godot_x11.64.zip\ncc  x\n"), u"bb"_s);
}

TEST(ChecksumList, findsNothingInAListWithCarriageReturns)
{
    EXPECT_EQ(digestIn("bb  Godot_x11.64.zip\r\n"), std::nullopt);
}

TEST(ChecksumList, findsNothingInALineWithoutADigest)
{
    EXPECT_EQ(digestIn("Godot_x11.64.zip\n"), std::nullopt);
    EXPECT_EQ(digestIn(""), std::nullopt);
    EXPECT_EQ(digestIn("\n\n \t\n"), std::nullopt);
}

TEST(ChecksumList, readsPastBytesThatAreNotUtf8)
{
    EXPECT_EQ(digestIn("\xff\xfe  \x80\nbb  Godot_x11.64.zip\n"), u"bb"_s);
}

TEST(ChecksumList, doesNotTakeOtherWhiteSpaceForABlank)
{
    EXPECT_EQ(digestIn("bb\xc2\xa0Godot_x11.64.zip\n"), std::nullopt);
    EXPECT_EQ(digestIn("bb\x0bGodot_x11.64.zip\n"), std::nullopt);
}
