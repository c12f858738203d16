// SPDX-License-Identifier: MIT
#include "Platform/TextFile.h"

#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QFile>

#include <sys/stat.h>

namespace {

TEST(TextFile, isReadWhole)
{
    const TestFolder folder;
    EXPECT_EQ(TextFile::read(folder.write(QStringLiteral("größe"), "a\r\n\tb € \n")),
              QStringLiteral("a\r\n\tb € \n"));
    EXPECT_EQ(TextFile::read(folder.write(QStringLiteral("empty"))), QString());
}

TEST(TextFile, isReadWithoutTheByteOrderMarkAtItsBeginning)
{
    const TestFolder folder;
    EXPECT_EQ(TextFile::read(folder.write(QStringLiteral("file"), "\xef\xbb\xbf"
                                                                  "a\n\xef\xbb\xbf"
                                                                  "b")),
              QStringLiteral("a\n\uFEFFb"));
}

TEST(TextFile, isReadThroughALink)
{
    const TestFolder folder;
    const auto link = folder.path(QStringLiteral("link"));
    ASSERT_TRUE(QFile::link(folder.write(QStringLiteral("file"), "text"), link));
    EXPECT_EQ(TextFile::read(link), QStringLiteral("text"));
}

TEST(TextFile, isUnreadableWhenItIsNotUtf8)
{
    const TestFolder folder;
    for (const auto* bytes : {"\xff", "caf\xe9 ", "\xc0\xaf", "\xed\xa0\x80", "cut \xe2\x82"})
        EXPECT_EQ(TextFile::read(folder.write(QStringLiteral("file"), bytes)), std::nullopt);
}

TEST(TextFile, isUnreadableBeyondItsLargestSize)
{
    const TestFolder folder;
    const auto file = folder.write(QStringLiteral("file"), QByteArray(TextFile::maximumSize, 'x'));
    ASSERT_TRUE(TextFile::read(file));
    EXPECT_EQ(TextFile::read(file)->size(), TextFile::maximumSize);
    folder.write(QStringLiteral("file"), QByteArray(TextFile::maximumSize + 1, 'x'));
    EXPECT_EQ(TextFile::read(file), std::nullopt);
}

TEST(TextFile, isUnreadableWhenItIsNoRegularFile)
{
    const TestFolder folder;
    EXPECT_EQ(TextFile::read(folder.path(QStringLiteral("none"))), std::nullopt);
    EXPECT_EQ(TextFile::read(folder.path()), std::nullopt);
    EXPECT_EQ(TextFile::read(QStringLiteral("/dev/zero")), std::nullopt);
    const auto pipe = folder.path(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_EQ(TextFile::read(pipe), std::nullopt);
}

TEST(TextFile, isTrimmedOfSpacesAndTabsOnly)
{
    EXPECT_EQ(TextFile::trimmedBlanks(u" \t a \t b\t "), QStringLiteral("a \t b"));
    EXPECT_EQ(TextFile::trimmedBlanks(u" a\r"), QStringLiteral("a\r"));
    EXPECT_EQ(TextFile::trimmedBlanks(u"\n a"), QStringLiteral("\n a"));
    EXPECT_TRUE(TextFile::trimmedBlanks(u" \t").isEmpty());
    EXPECT_TRUE(TextFile::trimmedBlanks({}).isEmpty());
}

} // namespace
