// SPDX-License-Identifier: MIT
#include "Process/LineBuffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

/// The lines of a text that the buffer returned.
QStringList linesOf(const std::optional<QString>& text)
{
    return text ? text->split(u'\n') : QStringList();
}

/// The lines of `bytes`, fed in chunks of `size`.
QStringList linesInChunks(LineBuffer& buffer, const QByteArray& bytes, qsizetype size)
{
    QStringList lines;
    for (qsizetype begin = 0; begin < bytes.size(); begin += size) {
        const auto chunk =
            QByteArrayView(bytes).sliced(begin, std::min(size, bytes.size() - begin));
        lines += linesOf(buffer.append(chunk));
    }
    return lines;
}

TEST(LineBuffer, returnsALineOnceItsLineFeedHasCome)
{
    LineBuffer buffer;
    EXPECT_EQ(buffer.append("abc"), std::nullopt);
    EXPECT_EQ(buffer.append("def\nxy"), u"abcdef");
    EXPECT_EQ(buffer.flush(), u"xy"_s);
}

TEST(LineBuffer, keepsEmptyLines)
{
    LineBuffer buffer;
    EXPECT_EQ(buffer.append("a\n\nb\n"), u"a\n\nb");
    EXPECT_EQ(buffer.flush(), std::nullopt);
}

TEST(LineBuffer, keepsACarriageReturnOnItsLine)
{
    LineBuffer buffer;
    EXPECT_EQ(buffer.append("a\r\nb\rc\n"), u"a\r\nb\rc");
}

TEST(LineBuffer, readsACharacterSplitBetweenChunksWhole)
{
    LineBuffer buffer;
    EXPECT_EQ(buffer.append("\xe2"), std::nullopt);
    EXPECT_EQ(buffer.append("\x82"), std::nullopt);
    EXPECT_EQ(buffer.append("\xac!\n"), u"€!");
}

TEST(LineBuffer, replacesWhatIsNotUtf8)
{
    LineBuffer buffer;
    EXPECT_EQ(buffer.append("\xff"
                            "A\n"),
              u"\uFFFDA");
    buffer.append("\xff");
    EXPECT_EQ(buffer.flush(), u"\uFFFD"_s);
}

TEST(LineBuffer, keepsAZeroByteInItsLine)
{
    LineBuffer buffer;
    EXPECT_EQ(buffer.append(QByteArrayView("a\0b\n", 4)), u"a\0b"_s);
}

TEST(LineBuffer, flushesNothingWhenItIsEmpty)
{
    LineBuffer buffer;
    EXPECT_EQ(buffer.flush(), std::nullopt);
    buffer.append("x");
    EXPECT_EQ(buffer.flush(), u"x"_s);
    EXPECT_EQ(buffer.flush(), std::nullopt);
}

TEST(LineBuffer, isAsNewAfterAFlush)
{
    LineBuffer buffer;
    buffer.append("old");
    buffer.flush();
    EXPECT_EQ(buffer.append("new\n"), u"new");
}

TEST(LineBuffer, takesAChunkOfNoBytesWithoutChange)
{
    LineBuffer buffer;
    buffer.append("a");
    EXPECT_EQ(buffer.append(QByteArrayView()), std::nullopt);
    EXPECT_EQ(buffer.append("\n"), u"a");
}

TEST(LineBuffer, keepsAByteOrderMarkWhereverItIsAndHoweverItIsCut)
{
    const QByteArray bytes("\xef\xbb\xbf"
                           "a\n\xef\xbb\xbf\xef\xbb\xbf\nb\xef\xbb\xbf\n");
    const QStringList expected{u"\uFEFFa"_s, u"\uFEFF\uFEFF"_s, u"b\uFEFF"_s};
    for (qsizetype size = 1; size <= bytes.size(); ++size) {
        LineBuffer buffer;
        EXPECT_EQ(linesInChunks(buffer, bytes, size), expected) << "in chunks of " << size;
    }
}

TEST(LineBuffer, readsALineOfNothingButByteOrderMarks)
{
    LineBuffer buffer;
    EXPECT_EQ(buffer.append(QByteArray("\xef\xbb\xbf").repeated(1'000'000) + '\n'),
              QString(1'000'000, QChar::ByteOrderMark));
}

TEST(LineBuffer, returnsTheSameLinesHoweverTheBytesAreCut)
{
    const QByteArray bytes(
        "first\n\nthird with €😀 in it\r\n\xff\n\xe2\x82\n\xf0\x9f\x98z\xc0\xaf\nlast");
    const auto expected = QString::fromUtf8(bytes).split(u'\n');
    for (qsizetype size = 1; size <= bytes.size(); ++size) {
        LineBuffer buffer;
        auto lines = linesInChunks(buffer, bytes, size);
        lines.append(buffer.flush().value_or(QString()));
        EXPECT_EQ(lines, expected) << "in chunks of " << size;
    }
}

TEST(LineBuffer, replacesACharacterThatTheEndOfTheLineCutsOff)
{
    LineBuffer buffer;
    buffer.append("a\xe2\x82");
    EXPECT_EQ(buffer.append("\nb"), QString::fromUtf8("a\xe2\x82"));
    buffer.append("\xe2");
    EXPECT_EQ(buffer.flush(), QString::fromUtf8("b\xe2"));
    EXPECT_EQ(buffer.append("\x82\xac\n"), QString::fromUtf8("\x82\xac"));
}

TEST(LineBuffer, flushesALineThatIsLongerThanALimitUpToItsLastWholeCharacter)
{
    LineBuffer buffer;
    buffer.append("12345\xe2\x82");
    EXPECT_EQ(buffer.flushIfLongerThan(7), std::nullopt);
    EXPECT_EQ(buffer.flushIfLongerThan(6), u"12345");
    EXPECT_EQ(buffer.append("\xac\n"), u"€");
    buffer.append("12345€");
    EXPECT_EQ(buffer.flushIfLongerThan(6), u"12345€");
    buffer.append("1234\xf0\x9f\x98");
    EXPECT_EQ(buffer.flushIfLongerThan(6), u"1234");
    EXPECT_EQ(buffer.append("\x80\n"), u"😀");
}

TEST(LineBuffer, flushesBytesThatAreNoCharacterToo)
{
    LineBuffer buffer;
    buffer.append(QByteArray(10, '\x80'));
    EXPECT_EQ(buffer.flushIfLongerThan(6), QString(10, QChar::ReplacementCharacter));
    EXPECT_EQ(buffer.flush(), std::nullopt);
}

TEST(LineBuffer, losesNothingBetweenAnAppendAndAFlushOnDifferentThreads)
{
    constexpr int lineCount = 20'000;
    LineBuffer buffer;
    std::atomic<bool> done = false;
    QString flushed;
    std::thread flusher([&] {
        while (!done)
            flushed += buffer.flush().value_or(QString());
    });
    QString appended;
    for (int i = 0; i < lineCount; ++i)
        appended += buffer.append("ab\ncd").value_or(QString());
    done = true;
    flusher.join();
    flushed += buffer.flush().value_or(QString());
    EXPECT_EQ(appended.size() + flushed.size(), lineCount * 4);
    // A flush never sees half of an append: it takes all of a "cd" or nothing.
    EXPECT_EQ(flushed, u"cd"_s.repeated(flushed.size() / 2));
}

} // namespace
