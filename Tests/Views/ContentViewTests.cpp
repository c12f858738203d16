// SPDX-License-Identifier: MIT
#include "Support/AppModelAccess.h"
#include "Views/ViewTest.h"

#include "Views/AboutView.h"
#include "Views/HeaderArt.h"
#include "Views/PlayPanel.h"
#include "Views/SettingsView.h"

#include <QAccessible>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QWindow>

#include <algorithm>

namespace {

using ContentViewTest = ViewTest;

TEST_F(ContentViewTest, isNoSmallerThan620By760ButMayGrow)
{
    window().resize(100, 100);
    settle();
    EXPECT_EQ(window().size(), QSize(620, 760));
    window().resize(900, 1000);
    settle();
    EXPECT_EQ(window().size(), QSize(900, 1000));
    EXPECT_EQ(place(only<PlayPanel>()).width(), window().viewport()->width() - 40);
}

TEST_F(ContentViewTest, fitsWithItsFrameOnAScreenThatIsSmaller)
{
    const auto screens = QGuiApplication::screens();
    auto* const small = screens.constLast();
    ASSERT_EQ(small->availableSize(), QSize(800, 600));
    const auto frame = window().windowHandle()->frameMargins();
    ASSERT_GT(frame.top(), 0);
    const QSize least(620, 600 - frame.top() - frame.bottom());
    window().windowHandle()->setScreen(small);
    settle();
    EXPECT_EQ(window().minimumSize(), least);
    EXPECT_EQ(window().size(), least);
    window().resize(100, 100);
    settle();
    EXPECT_EQ(window().size(), least);
    EXPECT_GT(window().verticalScrollBar()->maximum(), 0);
}

TEST_F(ContentViewTest, fitsAnewWhenTheRoomOnItsScreenChanges)
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

TEST_F(ContentViewTest, scrollsWhatIsTallerThanTheWindow)
{
    auto& bar = *window().verticalScrollBar();
    AppModelAccess::setFailureText(model(), QStringLiteral("What happened"));
    AppModelAccess::setPhase(model(), Phase::needs(QStringLiteral("It broke.")));
    model().setShowLog(true);
    settle();
    ASSERT_GT(window().widget()->height(), window().viewport()->height());
    EXPECT_TRUE(bar.isVisible());
    bar.setValue(bar.maximum());
    settle();
    EXPECT_EQ(place(*button(QStringLiteral("About"))).bottom() + 1 + 20,
              window().viewport()->height());
    EXPECT_EQ(window().horizontalScrollBar()->maximum(), 0);
}

TEST_F(ContentViewTest, scrollsToTheLogWhenThatIsDisclosedBelow)
{
    AppModelAccess::fail(model(), QStringLiteral("It broke."));
    settle();
    const auto& bar = *window().verticalScrollBar();
    ASSERT_EQ(bar.value(), 0);
    button(QStringLiteral("Show log"))->click();
    settle();
    auto& copy = *button(QStringLiteral("Copy log"));
    EXPECT_EQ(place(copy).bottom() + 1 + 20, window().viewport()->height());
    const auto reached = bar.value();
    EXPECT_GT(reached, 0);
    model().log().append(QStringLiteral("one more"));
    settle();
    EXPECT_EQ(bar.value(), reached) << "from there on the window stays where it is";
}

TEST_F(ContentViewTest, wrapsNothingAnewWhenTheScrollBarComes)
{
    const auto& panel = only<PlayPanel>();
    const auto width = panel.width();
    EXPECT_EQ(width, window().width() - 40);
    model().setShowLog(true);
    settle();
    ASSERT_TRUE(window().verticalScrollBar()->isVisible());
    EXPECT_EQ(panel.width(), width);
    EXPECT_EQ(place(panel).left(), 20);
    model().setShowLog(false);
    settle();
    ASSERT_FALSE(window().verticalScrollBar()->isVisible());
    EXPECT_EQ(panel.width(), width);
}

TEST_F(ContentViewTest, hasTheNameOfTheProgramAsItsTitle)
{
    EXPECT_EQ(window().windowTitle(), QStringLiteral("Cavernyx Platformer"));
}

TEST_F(ContentViewTest, isAWindowToAssistiveTechnology)
{
    auto* const accessible = QAccessible::queryAccessibleInterface(&window());
    EXPECT_EQ(accessible->role(), QAccessible::Window);
    EXPECT_EQ(accessible->text(QAccessible::Name), window().windowTitle());
}

TEST_F(ContentViewTest, pads20AroundAColumnSpacedBy16)
{
    const auto banner = place(only<HeaderArt>());
    const auto panel = place(only<PlayPanel>());
    const auto settings = place(*button(QStringLiteral("Settings\u2026")));
    EXPECT_EQ(banner.topLeft(), QPoint(20, 20));
    EXPECT_EQ(banner.width(), window().viewport()->width() - 40);
    EXPECT_EQ(panel.left(), 20);
    EXPECT_EQ(panel.width(), banner.width());
    EXPECT_EQ(place(*label(model().facts().summary)).top() - banner.bottom() - 1, 16);
    EXPECT_EQ(settings.top() - panel.bottom() - 1, 16);
    EXPECT_EQ(settings.left(), 20);
}

TEST_F(ContentViewTest, showsTheFactsWithLicenceAndAuthor)
{
    EXPECT_TRUE(label(QStringLiteral("A short platform/adventure demo project to teach how to "
                                     "create similar 2D games, inspired by cavernyxes.")));
    EXPECT_TRUE(label(QStringLiteral("MIT License \u00b7 Quennet (Brindlework)")));

    AppModelAccess::setFacts(
        model(), {QStringLiteral("<b>S</b>"), QStringLiteral("L"), QStringLiteral("A")});
    settle();
    auto* const summary = label(QStringLiteral("<b>S</b>"));
    ASSERT_TRUE(summary);
    EXPECT_EQ(summary->textFormat(), Qt::PlainText) << "what a repository says is no markup";
    auto* const credits = label(QStringLiteral("L \u00b7 A"));
    ASSERT_TRUE(credits);
    EXPECT_EQ(place(*credits).top() - place(*summary).bottom() - 1, 6);
}

TEST_F(ContentViewTest, shortensAFactThatIsFarTooLong)
{
    const QString endless(4'000'000, u'x');
    AppModelAccess::setFacts(model(), {endless, QStringLiteral("L"), QStringLiteral("A")});
    settle();
    EXPECT_TRUE(label(endless.left(2000) + QChar(u'\u2026')));
}

TEST_F(ContentViewTest, showsALoneDotForEmptyFacts)
{
    auto* const summary = label(model().facts().summary);
    AppModelAccess::setFacts(model(), {QString(), QString(), QString()});
    settle();
    EXPECT_EQ(summary->text(), QString());
    EXPECT_TRUE(summary->isVisible());
    EXPECT_GE(summary->height(), summary->fontMetrics().height()) << "an empty line";
    auto* const credits = label(QStringLiteral(" \u00b7 "));
    ASSERT_TRUE(credits);
    EXPECT_EQ(place(*credits).top() - place(*summary).bottom() - 1, 6);
}

TEST_F(ContentViewTest, listsTheFiveControlsInOrder)
{
    const std::pair<QString, QString> controls[]{
        {QStringLiteral("Move"), QStringLiteral("A / D, or the left stick")},
        {QStringLiteral("Jump"), QStringLiteral("Space or W, or the A button")},
        {QStringLiteral("Grappling hook"),
         QStringLiteral("Left mouse button, or a shoulder button")},
        {QStringLiteral("Aim"), QStringLiteral("Hold F, or use the right stick")},
        {QStringLiteral("Restart"), QStringLiteral("Alt + R")},
    };
    auto above = place(*label(QStringLiteral("Controls")));
    for (const auto& [action, binding] : controls) {
        auto* const left = label(action);
        auto* const right = label(binding);
        ASSERT_TRUE(left && right) << action.toStdString();
        EXPECT_EQ(place(*left).width(), 120);
        EXPECT_EQ(place(*right).left() - place(*left).right() - 1, 8);
        EXPECT_EQ(place(*left).top(), place(*right).top());
        EXPECT_EQ(place(*left).top() - above.bottom() - 1, 4);
        EXPECT_EQ(left->font().weight(), QFont::Medium);
        above = place(*right);
    }
    EXPECT_TRUE(label(QStringLiteral("The README has no controls list (see README); these come "
                                     "from the game's input settings.")));
}

TEST_F(ContentViewTest, opensOneSheetAtATimeAndTakesItAwayWithEscape)
{
    auto& settings = open<SettingsView>(QStringLiteral("Settings\u2026"));
    EXPECT_TRUE(settings.isVisible());
    button(QStringLiteral("About"))->click();
    settle();
    EXPECT_FALSE(window().findChild<AboutView*>());
    QTest::keyClick(&settings, Qt::Key_Escape);
    settle();
    EXPECT_FALSE(window().findChild<SettingsView*>());
    EXPECT_TRUE(open<AboutView>(QStringLiteral("About")).isVisible());
}

TEST_F(ContentViewTest, leavesEscapeWithoutEffectInTheWindow)
{
    AppModelAccess::setPhase(model(), Phase::playing());
    QTest::keyClick(&window(), Qt::Key_Escape);
    EXPECT_TRUE(window().isVisible());
    EXPECT_TRUE(model().phase() == Phase::Kind::playing);
}

TEST_F(ContentViewTest, scrollsNoFurtherThanItsContent)
{
    AppModelAccess::setPhase(model(), Phase::needs(QStringLiteral("It broke. ").repeated(20)));
    AppModelAccess::setFailureText(model(), QStringLiteral("What happened"));
    model().setShowLog(true);
    settle();
    const auto last = place(*button(QStringLiteral("About")));
    const auto end = window().widget()->mapTo(&window(), QPoint(0, window().widget()->height()));
    const auto bottom = std::max(last.bottom() + 1 + 20, window().viewport()->height());
    EXPECT_EQ(end.y(), bottom);
}

TEST_F(ContentViewTest, growsItsTextsWithTheSystemsFont)
{
    auto* const title = label(QStringLiteral("Controls"));
    const auto before = title->font().pointSizeF();
    const auto system = QApplication::font();
    auto larger = system;
    larger.setPointSizeF(system.pointSizeF() * 4 / 3);
    QApplication::setFont(larger);
    settle();
    EXPECT_NEAR(title->font().pointSizeF(), before * 4 / 3, 0.01);
    QApplication::setFont(system);
}

} // namespace
