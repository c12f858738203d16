// SPDX-License-Identifier: MIT
#include "Process/LineBuffer.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace {

QStringList strings(std::initializer_list<const char*> texts)
{
    QStringList result;
    for (const auto* text : texts)
        result.append(QString::fromUtf8(text));
    return result;
}

TEST(LineBuffer, givesALineOnceItsLineFeedHasCome)
{
    LineBuffer buffer;
    EXPECT_EQ(buffer.append("abc"), QStringList());
    EXPECT_EQ(buffer.append("def\nxy"), strings({"abcdef"}));
    EXPECT_EQ(buffer.flush(), QStringLiteral("xy"));
}

TEST(LineBuffer, keepsEmptyLines)
{
    LineBuffer buffer;
    EXPECT_EQ(buffer.append("a\n\nb\n"), strings({"a", "", "b"}));
    EXPECT_EQ(buffer.flush(), std::nullopt);
}

TEST(LineBuffer, keepsACarriageReturnOnItsLine)
{
    LineBuffer buffer;
    EXPECT_EQ(buffer.append("a\r\nb\rc\n"), strings({"a\r", "b\rc"}));
}

TEST(LineBuffer, readsACharacterSplitBetweenChunksWhole)
{
    LineBuffer buffer;
    EXPECT_EQ(buffer.append("\xe2"), QStringList());
    EXPECT_EQ(buffer.append("\x82"), QStringList());
    EXPECT_EQ(buffer.append("\xac!\n"), strings({"€!"}));
}

TEST(LineBuffer, replacesWhatIsNotUtf8)
{
    LineBuffer buffer;
    EXPECT_EQ(buffer.append("\xff"
                            "A\n"),
              QStringList{QStringLiteral("\uFFFDA")});
    buffer.append("\xff");
    EXPECT_EQ(buffer.flush(), QStringLiteral("\uFFFD"));
}

TEST(LineBuffer, keepsAZeroByteInItsLine)
{
    LineBuffer buffer;
    EXPECT_EQ(buffer.append(QByteArrayView("a\0b\n", 4)), QStringList{QStringLiteral("a\0b")});
}

TEST(LineBuffer, flushesNothingWhenItIsEmpty)
{
    LineBuffer buffer;
    EXPECT_EQ(buffer.flush(), std::nullopt);
    buffer.append("x");
    EXPECT_EQ(buffer.flush(), QStringLiteral("x"));
    EXPECT_EQ(buffer.flush(), std::nullopt);
}

TEST(LineBuffer, isAsNewAfterAFlush)
{
    LineBuffer buffer;
    buffer.append("old");
    buffer.flush();
    EXPECT_EQ(buffer.append("new\n"), strings({"new"}));
}

TEST(LineBuffer, takesAChunkOfNoBytesWithoutChange)
{
    LineBuffer buffer;
    buffer.append("a");
    EXPECT_EQ(buffer.append(QByteArrayView()), QStringList());
    EXPECT_EQ(buffer.append("\n"), strings({"a"}));
}

TEST(LineBuffer, keepsAByteOrderMarkWhereverItIsAndHoweverItIsCut)
{
    const QByteArray bytes("\xef\xbb\xbf"
                           "a\n\xef\xbb\xbf\xef\xbb\xbf\nb\xef\xbb\xbf\n");
    const QStringList expected{QStringLiteral("\uFEFFa"), QStringLiteral("\uFEFF\uFEFF"),
                               QStringLiteral("b\uFEFF")};
    for (qsizetype size = 1; size <= bytes.size(); ++size) {
        LineBuffer buffer;
        QStringList lines;
        for (qsizetype begin = 0; begin < bytes.size(); begin += size)
            lines += buffer.append(
                QByteArrayView(bytes).sliced(begin, std::min(size, bytes.size() - begin)));
        EXPECT_EQ(lines, expected) << "in chunks of " << size;
    }
}

TEST(LineBuffer, readsALineOfNothingButByteOrderMarks)
{
    LineBuffer buffer;
    const auto lines = buffer.append(QByteArray("\xef\xbb\xbf").repeated(1'000'000) + '\n');
    ASSERT_EQ(lines.size(), 1);
    EXPECT_EQ(lines[0], QString(1'000'000, QChar::ByteOrderMark));
}

TEST(LineBuffer, givesTheSameLinesHoweverTheBytesAreCut)
{
    const QByteArray bytes(
        "first\n\nthird with €😀 in it\r\n\xff\n\xe2\x82\n\xf0\x9f\x98z\xc0\xaf\nlast");
    const auto expected = QString::fromUtf8(bytes).split(u'\n');
    for (qsizetype size = 1; size <= bytes.size(); ++size) {
        LineBuffer buffer;
        QStringList lines;
        for (qsizetype begin = 0; begin < bytes.size(); begin += size)
            lines += buffer.append(
                QByteArrayView(bytes).sliced(begin, std::min(size, bytes.size() - begin)));
        lines.append(buffer.flush().value_or(QString()));
        EXPECT_EQ(lines, expected) << "in chunks of " << size;
    }
}

TEST(LineBuffer, replacesACharacterThatTheEndOfTheLineCutsOff)
{
    LineBuffer buffer;
    buffer.append("a\xe2\x82");
    EXPECT_EQ(buffer.append("\nb"), QStringList{QString::fromUtf8("a\xe2\x82")});
    buffer.append("\xe2");
    EXPECT_EQ(buffer.flush(), QString::fromUtf8("b\xe2"));
    EXPECT_EQ(buffer.append("\x82\xac\n"), QStringList{QString::fromUtf8("\x82\xac")});
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
        appended += buffer.append("ab\ncd").join(QString());
    done = true;
    flusher.join();
    flushed += buffer.flush().value_or(QString());
    EXPECT_EQ(appended.size() + flushed.size(), lineCount * 4);
    // A flush never sees half of an append: it takes all of a "cd" or nothing.
    EXPECT_EQ(flushed, QStringLiteral("cd").repeated(flushed.size() / 2));
}

} // namespace
