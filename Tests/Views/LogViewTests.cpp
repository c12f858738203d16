// SPDX-License-Identifier: MIT
#include "Support/Await.h"
#include "Views/ViewTest.h"

#include "Views/LogView.h"
#include "Views/LongTextEdit.h"
#include "Views/TextBox.h"

#include <QMenu>
#include <QScrollBar>
#include <QTest>
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

    TextBox& box() { return only<TextBox>(only<LogView>()); }
    QString text() { return box().edit().text(); }
    QScrollBar& bar() { return *box().edit().verticalScrollBar(); }

    /// Appends lines and waits until the window shows the log as it then is.
    void append(const QString& lines)
    {
        model().log().append(lines);
        waitUntilShown();
    }
    void waitUntilShown()
    {
        EXPECT_TRUE(waitUntil([this] {
            return model().log().lines() == model().log().newest(2000) &&
                   text() == model().log().lines().join(u'\n');
        }));
    }
    static QString numbered(int from, int count)
    {
        QStringList lines;
        for (auto i = from; i < from + count; ++i)
            lines.append(QStringLiteral("line %1").arg(i));
        return lines.join(u'\n');
    }
    /// The text at the top of the box.
    QString topLine() { return box().edit().cursorForPosition(QPoint(0, 2)).block().text(); }
};

TEST_F(LogViewTest, offersAMenuWithRoomForItsCommands)
{
    const std::unique_ptr<QMenu> menu(box().edit().createStandardContextMenu());
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
    EXPECT_EQ(text(), QString());
    EXPECT_EQ(box().edit().height(), 180);
    EXPECT_EQ(box().height(), 180 + 2 * 6);
    button(QStringLiteral("Copy log"))->click();
    EXPECT_EQ(desktop.copied, QStringList{QString()});
}

TEST_F(LogViewTest, joinsTheLinesAndCopiesThem)
{
    append(QStringLiteral("one\n\ntwo"));
    EXPECT_EQ(text(), QStringLiteral("one\n\ntwo"));
    button(QStringLiteral("Copy log"))->click();
    EXPECT_EQ(desktop.copied, QStringList{QStringLiteral("one\n\ntwo")});
}

TEST_F(LogViewTest, keepsOneParagraphForEachLine)
{
    model().log().append(QStringLiteral("10 %\r20 %\r\nnext"));
    EXPECT_TRUE(waitUntil([this] { return box().edit().blockCount() == 2; }));
    EXPECT_EQ(box().edit().document()->lastBlock().text(), QStringLiteral("next"));
}

TEST_F(LogViewTest, wrapsALongLine)
{
    append(QStringLiteral("long ").repeated(200));
    EXPECT_GT(box().edit().document()->firstBlock().layout()->lineCount(), 3);
    EXPECT_EQ(box().edit().horizontalScrollBar()->maximum(), 0);
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
    ASSERT_EQ(topLine(), QStringLiteral("line 1000"));
    append(numbered(2000, 500));
    EXPECT_EQ(text(), numbered(500, 2000));
    EXPECT_EQ(topLine(), QStringLiteral("line 1000"));
}

TEST_F(LogViewTest, keepsTheReadersSelection)
{
    append(numbered(0, 2000));
    auto cursor = box().edit().textCursor();
    cursor.setPosition(box().edit().document()->findBlockByNumber(1200).position());
    cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
    box().edit().setTextCursor(cursor);
    append(numbered(2000, 300));
    EXPECT_EQ(box().edit().textCursor().selectedText(), QStringLiteral("line 1200"));
}

TEST_F(LogViewTest, showsALogThatWasReplacedWhole)
{
    append(numbered(0, 2000));
    append(numbered(2000, 5000));
    EXPECT_EQ(text(), numbered(5000, 2000));
    model().log().clear();
    waitUntilShown();
    EXPECT_EQ(text(), QString());
    append(QStringLiteral("after"));
    EXPECT_EQ(text(), QStringLiteral("after"));
}

TEST_F(LogViewTest, isBuiltAnewFromTheLogWhenItIsShownAgain)
{
    append(numbered(0, 100));
    bar().setValue(20);
    model().setShowLog(false);
    settle();
    model().log().append(QStringLiteral("meanwhile"));
    model().setShowLog(true);
    waitUntilShown();
    EXPECT_EQ(bar().value(), 0);
    EXPECT_TRUE(text().endsWith(QStringLiteral("meanwhile")));
}

} // namespace
