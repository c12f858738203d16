// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include "Views/HeaderArt.h"

#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QWindow>

namespace {

class ContentViewTest : public ViewTest
{
protected:
    void showGameWith(const QByteArray& readme, const QByteArray& license)
    {
        installGame();
        home.write(root(u"Game/README.org"_s), readme);
        home.write(root(u"Game/LICENSE"_s), license);
        model().refreshState();
        settle();
    }
};

TEST_F(ContentViewTest, isNoSmallerThan620By760ButMayGrow)
{
    window().resize(100, 100);
    settle();
    EXPECT_EQ(window().size(), QSize(620, 760));
    window().resize(900, 1000);
    settle();
    EXPECT_EQ(window().size(), QSize(900, 1000));
    EXPECT_EQ(panel().width(), window().viewport()->width() - 40);
}

TEST_F(ContentViewTest, fitsWithItsFrameOnASmallerScreen)
{
    auto* const small = QGuiApplication::screens().constLast();
    ASSERT_EQ(small->availableSize(), QSize(800, 600));
    const auto frame = window().windowHandle()->frameMargins();
    ASSERT_GT(frame.top(), 0);
    const QSize fitting(620, 600 - frame.top() - frame.bottom());
    window().windowHandle()->setScreen(small);
    settle();
    EXPECT_EQ(window().minimumSize(), fitting);
    EXPECT_EQ(window().size(), fitting);
    window().resize(100, 100);
    settle();
    EXPECT_EQ(window().size(), fitting);
    EXPECT_GT(window().verticalScrollBar()->maximum(), 0);
}

TEST_F(ContentViewTest, fitsAgainWhenTheRoomOnItsScreenChanges)
{
    auto& screen = *window().screen();
    window().setMinimumSize(100, 100);
    Q_EMIT screen.availableGeometryChanged(screen.availableGeometry());
    EXPECT_EQ(window().minimumSize(), QSize(620, 760));

    window().windowHandle()->setScreen(QGuiApplication::screens().constLast());
    settle();
    window().setMinimumSize(100, 100);
    Q_EMIT screen.availableGeometryChanged(screen.availableGeometry());
    EXPECT_EQ(window().minimumSize(), QSize(100, 100)) << "it is on another screen now";
}

TEST_F(ContentViewTest, scrollsWhatIsTallerThanTheWindowAndNoFurther)
{
    auto& bar = *window().verticalScrollBar();
    showAllBlocks();
    ASSERT_GT(window().widget()->height(), window().viewport()->height());
    EXPECT_TRUE(bar.isVisible());
    bar.setValue(bar.maximum());
    settle();
    EXPECT_EQ(rectOf(*button(u"About")).bottom() + 1 + 20, window().viewport()->height());
    EXPECT_EQ(rectOf(*window().widget()).bottom() + 1, window().viewport()->height());
    EXPECT_EQ(window().horizontalScrollBar()->maximum(), 0);
}

TEST_F(ContentViewTest, scrollsToTheLogWhenThatIsDisclosedBelow)
{
    enter(Phase::Kind::needs);
    const auto& bar = *window().verticalScrollBar();
    ASSERT_EQ(bar.value(), 0);
    disclosure().click();
    settle();
    EXPECT_EQ(rectOf(*button(u"Copy log")).bottom() + 1 + 20, window().viewport()->height());
    const auto reached = bar.value();
    EXPECT_GT(reached, 0);
    model().log().append(u"one more"_s);
    settle();
    EXPECT_EQ(bar.value(), reached) << "from now on the window does not scroll by itself";
}

TEST_F(ContentViewTest, wrapsItsTextsAsBeforeWhenTheScrollBarComes)
{
    const auto width = panel().width();
    EXPECT_EQ(width, window().width() - 40);
    model().setShowLog(true);
    settle();
    ASSERT_TRUE(window().verticalScrollBar()->isVisible());
    EXPECT_EQ(panel().width(), width);
    EXPECT_EQ(rectOf(panel()).left(), 20);
    model().setShowLog(false);
    settle();
    ASSERT_FALSE(window().verticalScrollBar()->isVisible());
    EXPECT_EQ(panel().width(), width);
}

TEST_F(ContentViewTest, pads20AroundAColumnSpacedBy16)
{
    const auto& banner = only<HeaderArt>();
    const auto& first = *button(u"Settings\u2026");
    EXPECT_EQ(rectOf(banner).topLeft(), QPoint(20, 20));
    EXPECT_EQ(banner.width(), window().viewport()->width() - 40);
    EXPECT_EQ(rectOf(panel()).left(), 20);
    EXPECT_EQ(panel().width(), banner.width());
    EXPECT_EQ(gapBelow(banner, *label(model().facts().summary)), 16);
    EXPECT_EQ(gapBelow(panel(), first), 16);
    EXPECT_EQ(rectOf(first).left(), 20);
}

TEST_F(ContentViewTest, showsTheFactsWithLicenceAndAuthor)
{
    expectTexts(window(), {{u"A short platform/adventure demo project to teach how to create "
                            u"similar 2D games, inspired by cavernyxes.",
                            13},
                           {u"MIT License \u00b7 Quennet (Brindlework)", 10, QFont::Normal, true}});

    showGameWith("#+DESCRIPTION: <b>S</b>\n", "L\nCopyright A\n");
    auto* const summary = label(u"<b>S</b>");
    ASSERT_TRUE(summary);
    EXPECT_EQ(summary->textFormat(), Qt::PlainText) << "what a repository says is no markup";
    auto* const credits = label(u"L \u00b7 Copyright A");
    ASSERT_TRUE(credits);
    EXPECT_EQ(gapBelow(*summary, *credits), 6);
}

TEST_F(ContentViewTest, shortensAFactThatIsFarTooLong)
{
    showGameWith("#+DESCRIPTION: " + QByteArray(4'000'000, 'x'), {});
    EXPECT_TRUE(label(QString(2000, u'x') + u'\u2026'));
}

TEST_F(ContentViewTest, cutsAFactBetweenCharactersOnly)
{
    const QString before(1999, u'x');
    for (const auto& character : {u"e\u0301\u0323"_s, u"\U0001F409"_s, u"\u0915\u093F"_s}) {
        showGameWith("#+DESCRIPTION: " + (before + character + u"the rest"_s).toUtf8(), {});
        EXPECT_TRUE(label(before + u'\u2026')) << character;
    }
}

TEST_F(ContentViewTest, listsTheFiveControlsInOrder)
{
    expectTexts(window(), {{u"Controls", 13, QFont::Bold}});
    const QWidget* above = label(u"Controls");
    for (const auto& [action, binding] :
         {std::pair(u"Move", u"A / D, or the left stick"),
          std::pair(u"Jump", u"Space or W, or the A button"),
          std::pair(u"Grappling hook", u"Left mouse button, or a shoulder button"),
          std::pair(u"Aim", u"Hold F, or use the right stick"),
          std::pair(u"Restart", u"Alt + R")}) {
        expectTexts(window(), {{action, 13, QFont::Medium}});
        expectTexts(window(), {{binding, 13, QFont::Normal, true}});
        const auto* const left = label(action);
        const auto* const right = label(binding);
        ASSERT_TRUE(left && right);
        EXPECT_EQ(left->width(), 120);
        EXPECT_EQ(gapBeside(*left, *right), 8);
        EXPECT_EQ(rectOf(*left).top(), rectOf(*right).top());
        EXPECT_EQ(gapBelow(*above, *left), 4);
        above = right;
    }
    expectTexts(window(), {{u"The README has no controls list (see README); these come from the "
                            u"game's input settings.",
                            10, QFont::Normal, true}});
}

TEST_F(ContentViewTest, opensOneSheetAtATimeAndClosesItWithEscape)
{
    EXPECT_TRUE(settings().isVisible());
    button(u"About")->click();
    settle();
    EXPECT_FALSE(window().findChild<AboutView*>());
    QTest::keyClick(&settings(), Qt::Key_Escape);
    settle();
    EXPECT_FALSE(window().findChild<SettingsView*>());
    EXPECT_TRUE(about().isVisible());
}

TEST_F(ContentViewTest, ignoresEscape)
{
    enter(Phase::Kind::playing);
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_TRUE(window().isVisible());
    EXPECT_TRUE(model().phase() == Phase::Kind::playing);
}

TEST_F(ContentViewTest, growsItsTextsWithTheSystemsFont)
{
    auto* const title = label(u"Controls");
    const auto before = title->font().pointSizeF();
    enlargeFont();
    EXPECT_NEAR(title->font().pointSizeF(), before * 4 / 3, 0.01);
}

} // namespace
