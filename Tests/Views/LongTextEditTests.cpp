// SPDX-License-Identifier: MIT
#include "Support/Await.h"
#include "Views/LongTextEdit.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>

#include <algorithm>

namespace {

class LongTextEditTest : public testing::Test
{
protected:
    LongTextEditTest()
    {
        edit.resize(500, 180);
        edit.show();
    }

    /// Appends lines and waits until all that was appended has been taken over.
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
    qsizetype longestParagraph()
    {
        qsizetype longest = 0;
        for (auto block = edit.document()->firstBlock(); block.isValid(); block = block.next())
            longest = std::max(longest, block.text().size());
        return longest;
    }
    /// A line of words that are all different.
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

TEST_F(LongTextEditTest, neverLaysOutAllOfAVeryLongLineAtOnce)
{
    append({QStringLiteral("before"), longLine(100'000), QStringLiteral("after")});
    EXPECT_LE(longestParagraph(), 4096);
    EXPECT_EQ(edit.lineCount(), 3);
}

TEST_F(LongTextEditTest, answersBetweenTheSlicesOfAVeryLongLine)
{
    const auto line = longLine(100'000);
    edit.appendLines({line});
    EXPECT_GT(edit.text().size(), 0);
    EXPECT_LT(edit.text().size(), line.size() / 2) << "the rest waits for its turn";
    QCoreApplication::processEvents();
    EXPECT_LT(edit.text().size(), line.size());
    EXPECT_TRUE(waitUntil([&] { return edit.text() == line; }));
}

TEST_F(LongTextEditTest, cutsAVeryLongLineBetweenWords)
{
    append({longLine(10'000)});
    ASSERT_GT(edit.blockCount(), 2);
    for (auto block = edit.document()->firstBlock(); block.isValid(); block = block.next())
        EXPECT_TRUE(block.text().endsWith(u' ')) << block.text().right(20).toStdString();
}

TEST_F(LongTextEditTest, cutsAVeryLongWordBetweenLetters)
{
    // A letter of two code units and two marks on it.
    const auto letter = QStringLiteral("\U0001D41A\u0301\u0323");
    append({QStringLiteral("x") + letter.repeated(10'000)});
    ASSERT_GT(edit.blockCount(), 2);
    for (auto block = edit.document()->firstBlock().next(); block.isValid(); block = block.next())
        EXPECT_TRUE(block.text().startsWith(letter));
}

TEST_F(LongTextEditTest, copiesASelectionAsItIsInTheLines)
{
    append({QStringLiteral("one"), longLine(5'000), QString(), QStringLiteral("two\u00a0three")});
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
    append({longLine(5'000), QStringLiteral("middle"), longLine(6'000), QStringLiteral("last")});
    removeFirst(1);
    EXPECT_EQ(edit.text(), expected.join(u'\n'));
    removeFirst(2);
    EXPECT_EQ(edit.text(), QStringLiteral("last"));
    append({QStringLiteral("more")});
    removeFirst(2);
    EXPECT_EQ(edit.text(), QString());
    append({longLine(5'000)});
}

TEST_F(LongTextEditTest, removesALineThatIsStillBeingTakenOver)
{
    edit.appendLines({QStringLiteral("before"), longLine(100'000), QStringLiteral("after")});
    ASSERT_FALSE(edit.text().contains(QStringLiteral("after")));
    edit.removeFirstLines(2);
    EXPECT_EQ(edit.lineCount(), 1);
    EXPECT_TRUE(waitUntil([&] { return edit.text() == QStringLiteral("after"); }));
}

TEST_F(LongTextEditTest, keepsWhatIsReadInViewWhenAVeryLongLineGoes)
{
    QStringList lines{longLine(20'000)};
    for (auto i = 0; i < 500; ++i)
        lines.append(QStringLiteral("line %1").arg(i));
    append(lines);
    const auto top = [this] { return edit.cursorForPosition({0, 8}).block().text(); };
    auto& bar = *edit.verticalScrollBar();
    bar.setValue(bar.maximum() - 100);
    const auto read = top();
    ASSERT_TRUE(read.startsWith(QStringLiteral("line"))) << read.toStdString();
    removeFirst(10);
    EXPECT_EQ(top(), read);
    append({longLine(20'000)});
    EXPECT_EQ(top(), read);
}

} // namespace
