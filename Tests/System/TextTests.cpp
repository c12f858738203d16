// SPDX-License-Identifier: MIT
#include "System/Text.h"

#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QFile>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

TEST(TextFile, isReadWhole)
{
    const TestFolder folder;
    EXPECT_EQ(Text::readFile(folder.write(u"größe"_s, "a\r\n\tb € \n")), u"a\r\n\tb € \n"_s);
    EXPECT_EQ(Text::readFile(folder.write(u"empty"_s)), QString());
}

TEST(TextFile, isReadWithoutTheByteOrderMarkAtItsBeginning)
{
    const TestFolder folder;
    EXPECT_EQ(Text::readFile(folder.write(u"file"_s, "\xef\xbb\xbf"
                                                     "a\n\xef\xbb\xbf"
                                                     "b")),
              u"a\n\uFEFFb"_s);
}

TEST(TextFile, isReadThroughALink)
{
    const TestFolder folder;
    const auto link = folder.path(u"link"_s);
    ASSERT_TRUE(QFile::link(folder.write(u"file"_s, "text"), link));
    EXPECT_EQ(Text::readFile(link), u"text"_s);
}

TEST(TextFile, isUnreadableWhenItIsNotUtf8)
{
    const TestFolder folder;
    for (const auto* bytes : {"\xff", "caf\xe9 ", "\xc0\xaf", "\xed\xa0\x80", "cut \xe2\x82"})
        EXPECT_EQ(Text::readFile(folder.write(u"file"_s, bytes)), std::nullopt);
}

TEST(TextFile, isUnreadableBeyondItsLargestSize)
{
    const TestFolder folder;
    const auto file = folder.write(u"file"_s, QByteArray(Text::maxFileSize, 'x'));
    ASSERT_TRUE(Text::readFile(file));
    EXPECT_EQ(Text::readFile(file)->size(), Text::maxFileSize);
    folder.write(u"file"_s, QByteArray(Text::maxFileSize + 1, 'x'));
    EXPECT_EQ(Text::readFile(file), std::nullopt);
}

TEST(TextFile, isUnreadableWhenItIsNoRegularFile)
{
    const TestFolder folder;
    EXPECT_EQ(Text::readFile(folder.path(u"none"_s)), std::nullopt);
    EXPECT_EQ(Text::readFile(folder.path()), std::nullopt);
    EXPECT_EQ(Text::readFile(u"/dev/zero"_s), std::nullopt);
    const auto pipe = folder.path(u"pipe"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(Text::readFile(pipe), std::nullopt);
}

TEST(TextFile, isTrimmedOfSpacesAndTabsOnly)
{
    EXPECT_EQ(Text::trimmedBlanks(u" \t a \t b\t "), u"a \t b"_s);
    EXPECT_EQ(Text::trimmedBlanks(u" a\r"), u"a\r"_s);
    EXPECT_EQ(Text::trimmedBlanks(u"\n a"), u"\n a"_s);
    EXPECT_TRUE(Text::trimmedBlanks(u" \t").isEmpty());
    EXPECT_TRUE(Text::trimmedBlanks({}).isEmpty());
}

} // namespace
