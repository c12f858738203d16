// SPDX-License-Identifier: MIT
#include "Controls/LongTextEdit.h"
#include "Support/Await.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

class LongTextEditTest : public testing::Test
{
protected:
    LongTextEditTest()
    {
        edit.resize(500, 180);
        edit.show();
    }

    /// Appends lines and waits until all of them have been inserted.
    void append(const QStringList& lines)
    {
        expected += lines;
        edit.appendLines(lines);
        EXPECT_TRUE(waitUntil([this] { return edit.text() == expected.join(u'\n'); }))
            << edit.text().size() << " characters";
    }
    void removeFirst(qsizetype count)
    {
        expected.remove(0, count);
        edit.removeFirstLines(count);
    }
    qsizetype maxParagraphLength()
    {
        qsizetype longest = 0;
        for (auto block = edit.document()->firstBlock(); block.isValid(); block = block.next())
            longest = std::max(longest, block.text().size());
        return longest;
    }
    /// A line of different words.
    static QString longLine(int words)
    {
        QString line;
        for (auto i = 0; i < words; ++i)
            line += QString::number(i) + u' ';
        return line;
    }

    LongTextEdit edit;
    QStringList expected;
};

TEST_F(LongTextEditTest, splitsAVeryLongLineIntoParagraphs)
{
    append({u"before"_s, longLine(100'000), u"after"_s});
    EXPECT_LE(maxParagraphLength(), 4096);
    EXPECT_EQ(edit.lineCount(), 3);
}

TEST_F(LongTextEditTest, answersBetweenTheSlicesOfAVeryLongLine)
{
    const auto line = longLine(100'000);
    edit.appendLines({line});
    EXPECT_GT(edit.text().size(), 0);
    EXPECT_LT(edit.text().size(), line.size() / 2) << "the rest is inserted later";
    QCoreApplication::processEvents();
    EXPECT_LT(edit.text().size(), line.size());
    EXPECT_TRUE(waitUntil([&] { return edit.text() == line; }));
}

TEST_F(LongTextEditTest, cutsAVeryLongLineBetweenWords)
{
    append({longLine(10'000)});
    ASSERT_GT(edit.blockCount(), 2);
    for (auto block = edit.document()->firstBlock(); block.isValid(); block = block.next())
        EXPECT_TRUE(block.text().endsWith(u' ')) << block.text().right(20);
}

TEST_F(LongTextEditTest, cutsAVeryLongWordBetweenLetters)
{
    // A letter of two code units with two combining marks.
    const auto letter = u"\U0001D41A\u0301\u0323"_s;
    append({u"x"_s + letter.repeated(10'000)});
    ASSERT_GT(edit.blockCount(), 2);
    for (auto block = edit.document()->firstBlock().next(); block.isValid(); block = block.next())
        EXPECT_TRUE(block.text().startsWith(letter));
}

TEST_F(LongTextEditTest, copiesASelectionAsItIsInTheLines)
{
    append({u"one"_s, longLine(5'000), QString(), u"two\u00a0three"_s});
    edit.selectAll();
    edit.copy();
    EXPECT_EQ(QApplication::clipboard()->text(), expected.join(u'\n'));

    auto cursor = edit.textCursor();
    cursor.setPosition(2);
    cursor.setPosition(20, QTextCursor::KeepAnchor);
    edit.setTextCursor(cursor);
    edit.copy();
    EXPECT_EQ(QApplication::clipboard()->text(), expected.join(u'\n').mid(2, 18));
}

TEST_F(LongTextEditTest, copiesASelectionAcrossThePiecesOfALine)
{
    append({longLine(5'000)});
    const auto second = edit.document()->firstBlock().next();
    auto cursor = edit.textCursor();
    cursor.setPosition(second.position() - 5);
    cursor.setPosition(second.position() + 5, QTextCursor::KeepAnchor);
    edit.setTextCursor(cursor);
    edit.copy();
    // The end of a paragraph is a position too.
    EXPECT_EQ(QApplication::clipboard()->text(),
              expected.constFirst().mid(second.position() - 5, 9));
}

TEST_F(LongTextEditTest, removesWholeLinesHoweverLong)
{
    append({longLine(5'000), u"middle"_s, longLine(6'000), u"last"_s});
    removeFirst(1);
    EXPECT_EQ(edit.text(), expected.join(u'\n'));
    removeFirst(2);
    EXPECT_EQ(edit.text(), u"last"_s);
    append({u"more"_s});
    removeFirst(2);
    EXPECT_EQ(edit.text(), QString());
    append({longLine(5'000)});
}

TEST_F(LongTextEditTest, removesALineThatIsStillBeingInserted)
{
    edit.appendLines({u"before"_s, longLine(100'000), u"after"_s});
    ASSERT_FALSE(edit.text().contains(u"after"_s));
    edit.removeFirstLines(2);
    EXPECT_EQ(edit.lineCount(), 1);
    EXPECT_TRUE(waitUntil([&] { return edit.text() == u"after"_s; }));
}

TEST_F(LongTextEditTest, keepsTheReadersPlaceWhenAVeryLongLineGoes)
{
    QStringList lines{longLine(20'000)};
    for (auto i = 0; i < 500; ++i)
        lines.append(u"line %1"_s.arg(i));
    append(lines);
    const auto top = [this] { return edit.cursorForPosition({0, 8}).block().text(); };
    auto& bar = *edit.verticalScrollBar();
    bar.setValue(bar.maximum() - 100);
    const auto read = top();
    ASSERT_TRUE(read.startsWith(u"line"_s)) << read;
    removeFirst(10);
    EXPECT_EQ(top(), read);
    append({longLine(20'000)});
    EXPECT_EQ(top(), read);
}

} // namespace
