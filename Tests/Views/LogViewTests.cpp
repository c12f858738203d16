// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include <QFontInfo>
#include <QMenu>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>

namespace {

class LogViewTest : public ViewTest
{
protected:
    LogViewTest()
    {
        model().setShowLog(true);
        settle();
    }

    LongTextEdit& edit() { return logBox().edit(); }
    QScrollBar& bar() { return *edit().verticalScrollBar(); }

    /// Appends lines and waits until the window shows the log as it then is.
    void append(const QString& lines)
    {
        model().log().append(lines);
        waitUntilShown();
    }
    void waitUntilShown()
    {
        EXPECT_TRUE(waitUntil([this] {
            return model().log().lines() == model().log().newest() &&
                   edit().text() == model().log().lines().join(u'\n');
        }));
    }
    static QString numbered(int from, int count)
    {
        QStringList lines;
        for (auto i = from; i < from + count; ++i)
            lines.append(u"line %1"_s.arg(i));
        return lines.join(u'\n');
    }
    /// The text at the top of the box.
    QString topLine() { return edit().cursorForPosition(QPoint(0, 2)).block().text(); }
};

TEST_F(LogViewTest, offersAMenuWithRoomForItsCommands)
{
    const std::unique_ptr<QMenu> menu(edit().createStandardContextMenu());
    const auto actions = menu->actions();
    ASSERT_FALSE(actions.isEmpty());
    for (auto* const action : actions) {
        const auto row = menu->actionGeometry(action);
        if (action->isSeparator())
            EXPECT_LT(row.height(), menu->fontMetrics().height());
        else
            EXPECT_GT(row.width(),
                      menu->fontMetrics().size(Qt::TextShowMnemonic, action->text()).width() + 40);
    }
}

TEST_F(LogViewTest, showsAnEmptyLogInABoxOfTheFullHeight)
{
    EXPECT_EQ(edit().text(), QString());
    EXPECT_EQ(edit().height(), 180);
    EXPECT_EQ(logBox().height(), 180 + 2 * 6);
    button(u"Copy log")->click();
    EXPECT_EQ(desktop.copied, QStringList{QString()});
}

TEST_F(LogViewTest, joinsTheLinesAndCopiesThem)
{
    append(u"one\n\ntwo"_s);
    EXPECT_EQ(edit().text(), u"one\n\ntwo"_s);
    button(u"Copy log")->click();
    EXPECT_EQ(desktop.copied, QStringList{u"one\n\ntwo"_s});
}

TEST_F(LogViewTest, keepsOneParagraphForEachLine)
{
    model().log().append(u"10 %\r20 %\r\nnext"_s);
    EXPECT_TRUE(waitUntil([this] { return edit().blockCount() == 2; }));
    EXPECT_EQ(edit().document()->lastBlock().text(), u"next"_s);
}

TEST_F(LogViewTest, wrapsALongLine)
{
    append(u"long "_s.repeated(200));
    EXPECT_GT(edit().document()->firstBlock().layout()->lineCount(), 3);
    EXPECT_EQ(edit().horizontalScrollBar()->maximum(), 0);
}

TEST_F(LogViewTest, startsAtTheTopAndStaysThere)
{
    append(numbered(0, 500));
    EXPECT_EQ(bar().value(), 0);
    append(numbered(500, 500));
    EXPECT_EQ(bar().value(), 0);
}

TEST_F(LogViewTest, staysWhereTheReaderIsWhileLinesComeAndGo)
{
    append(numbered(0, 2000));
    bar().setValue(1000);
    ASSERT_EQ(topLine(), u"line 1000"_s);
    append(numbered(2000, 500));
    EXPECT_EQ(edit().text(), numbered(500, 2000));
    EXPECT_EQ(topLine(), u"line 1000"_s);
}

TEST_F(LogViewTest, keepsTheReadersSelection)
{
    append(numbered(0, 2000));
    auto cursor = edit().textCursor();
    cursor.setPosition(edit().document()->findBlockByNumber(1200).position());
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    edit().setTextCursor(cursor);
    append(numbered(2000, 300));
    EXPECT_EQ(edit().textCursor().selectedText(), u"line 1200"_s);
}

TEST_F(LogViewTest, showsALogThatWasReplacedWhole)
{
    append(numbered(0, 2000));
    append(numbered(2000, 5000));
    EXPECT_EQ(edit().text(), numbered(5000, 2000));
    model().log().clear();
    waitUntilShown();
    EXPECT_EQ(edit().text(), QString());
    append(u"after"_s);
    EXPECT_EQ(edit().text(), u"after"_s);
}

TEST_F(LogViewTest, isRebuiltFromTheLogWhenItIsShownAgain)
{
    append(numbered(0, 100));
    bar().setValue(20);
    model().setShowLog(false);
    settle();
    model().log().append(u"meanwhile"_s);
    model().setShowLog(true);
    waitUntilShown();
    EXPECT_EQ(bar().value(), 0);
    EXPECT_TRUE(edit().text().endsWith(u"meanwhile"_s));
}

TEST_F(LogViewTest, isSetInAFixedWidthCaptionAsTheReportIs)
{
    showAllBlocks();
    for (auto* const box : {&failure(), &logBox()}) {
        const auto font = box->edit().font();
        EXPECT_TRUE(QFontInfo(font).fixedPitch()) << font.family();
        EXPECT_NEAR(font.pointSizeF(), QApplication::font().pointSizeF() * 10 / 13, 0.01);
    }
}

} // namespace
