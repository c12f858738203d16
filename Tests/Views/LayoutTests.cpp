// SPDX-License-Identifier: MIT
// The window and its sheets at larger fonts and on small screens.

#include "Views/TextFit.h"
#include "Views/ViewTest.h"

#include "Controls/LinkLabel.h"
#include "Controls/TextLabel.h"

#include <QComboBox>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QWindow>

namespace {

class LayoutTest : public ViewTest
{
protected:
    /// Moves the window to the screen of 800 by 600.
    void goToTheSmallScreen()
    {
        window().windowHandle()->setScreen(QGuiApplication::screens().constLast());
        settle();
    }

    /// The part of a sheet that scrolls.
    static QScrollArea& content(const QWidget& sheet) { return only<QScrollArea>(sheet); }

    bool isInView(const QWidget& widget)
    {
        return QRect(QPoint(0, 0), window().viewport()->size()).contains(rectOf(widget));
    }
};

class FontSize : public LayoutTest, public testing::WithParamInterface<double>
{
protected:
    FontSize()
    {
        enlargeFont(GetParam());
        home.write(root(u"more"_s), QByteArray(312'400'000, 'x'));
    }
};

TEST_P(FontSize, cutsNothingInTheWindow)
{
    using enum Phase::Kind;
    for (const auto phase : {notDownloaded, downloading, settingUp, ready, playing, needs}) {
        for (const auto showsLog : {false, true}) {
            model().setShowLog(showsLog);
            enter(phase);
            EXPECT_EQ(layoutFaults(window()), QStringList()) << "phase " << int(phase);
        }
    }
    EXPECT_EQ(window().width(), 620);
}

TEST_P(FontSize, cutsNothingInTheSheets)
{
    settings();
    ASSERT_TRUE(waitUntil([this] { return model().installedSize() == u"312.4 MB"_s; }));
    settle();
    EXPECT_EQ(layoutFaults(settings()), QStringList());
    EXPECT_EQ(settings().width(), 440);
    EXPECT_EQ(content(settings()).verticalScrollBar()->maximum(), 0) << "there is room for all";
    settings().reject();
    settle();
    EXPECT_EQ(layoutFaults(about()), QStringList());
    EXPECT_EQ(about().width(), 440);
    EXPECT_EQ(content(about()).verticalScrollBar()->maximum(), 0);
}

INSTANTIATE_TEST_SUITE_P(Times, FontSize, testing::Values(1, 1.25, 1.5, 1.75, 2));

TEST_F(LayoutTest, scrollsASheetThatIsHigherThanItsScreenAndKeepsDoneInReach)
{
    enlargeFont(2.5);
    goToTheSmallScreen();
    auto& done = *button(about(), u"Done");
    const auto frame = about().windowHandle()->frameMargins();
    EXPECT_EQ(about().height(), 600 - frame.top() - frame.bottom());
    EXPECT_EQ(rectOf(done).bottom() + 1 + 20, about().height());
    EXPECT_EQ(layoutFaults(about()), QStringList());

    auto& bar = *content(about()).verticalScrollBar();
    EXPECT_GT(bar.maximum(), 0);
    EXPECT_EQ(bar.value(), 0);
    ASSERT_TRUE(done.hasFocus());
    QTest::keyClick(&done, Qt::Key_PageDown);
    EXPECT_GT(bar.value(), 0);
    QTest::keyClick(&done, Qt::Key_End);
    EXPECT_EQ(bar.value(), bar.maximum());
    QTest::keyClick(&done, Qt::Key_Home);
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(LayoutTest, scrollsASheetToWhatTabReaches)
{
    enlargeFont(2.5);
    goToTheSmallScreen();
    auto& shown = *content(settings()).viewport();
    ASSERT_GT(content(settings()).verticalScrollBar()->maximum(), 0);
    auto stops = 0;
    do {
        QTest::keyClick(settings().focusWidget(), Qt::Key_Tab);
        settle();
        const auto& focused = *settings().focusWidget();
        EXPECT_TRUE(!shown.isAncestorOf(&focused) || rectOf(shown).contains(rectOf(focused)))
            << "stop " << stops;
    } while (settings().focusWidget() != button(settings(), u"Done") && ++stops < 20);
    EXPECT_EQ(stops, 6);
}

TEST_F(LayoutTest, hasPlayInViewAtTheStart)
{
    EXPECT_EQ(window().verticalScrollBar()->value(), 0);
    goToTheSmallScreen();
    EXPECT_TRUE(isInView(play()));
    EXPECT_GT(window().verticalScrollBar()->maximum(), 0);
    enlargeFont(2);
    EXPECT_TRUE(isInView(play()));
    EXPECT_EQ(rectOf(play()).bottom() + 1 + 20, window().viewport()->height())
        << "it scrolls no further than needed";
    enter(Phase::Kind::downloading);
    EXPECT_TRUE(isInView(play()));
}

TEST_F(LayoutTest, opensOnASmallScreenWithPlayInView)
{
    enlargeFont(2);
    ContentView opened(model());
    opened.winId();
    opened.windowHandle()->setScreen(QGuiApplication::screens().constLast());
    opened.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&opened));
    const auto bottom = rectOf(only<PlayButton>(opened)).bottom() + 1 + 20;
    EXPECT_EQ(bottom, opened.viewport()->height()) << "it has scrolled no further than needed";
    EXPECT_GT(opened.verticalScrollBar()->value(), 0);
}

TEST_F(LayoutTest, leavesThePositionThatThePlayerHasScrolledTo)
{
    goToTheSmallScreen();
    enlargeFont(2);
    ASSERT_TRUE(isInView(play()));
    auto& bar = *window().verticalScrollBar();
    bar.triggerAction(QScrollBar::SliderSingleStepSub);
    const auto chosen = bar.value();
    model().setShowLog(true);
    model().setShowLog(false);
    settle();
    bar.setValue(chosen);
    enter(Phase::Kind::downloading);
    EXPECT_EQ(bar.value(), chosen);
}

TEST_F(LayoutTest, wrapsInsideAWordThatIsWiderThanItsLabel)
{
    const WebHostScope host(u"http://127.0.0.1:1/"_s + QString(200, u'x'));
    model().play();
    waitForPhase(Phase::Kind::needs);
    waitForFlow();
    settle();
    const auto& detail = *label(model().statusDetail());
    EXPECT_GT(detail.height(), 2 * detail.fontMetrics().height());
    EXPECT_EQ(layoutFaults(window()), QStringList());
}

/// What the other tests stand on.
class LayoutFaults : public testing::Test
{
protected:
    /// A window with one child.
    static QStringList faultsWith(QWidget* child, const QSize& size)
    {
        QWidget window;
        child->setParent(&window);
        child->setGeometry({QPoint(10, 10), size});
        window.resize(400, 200);
        window.show();
        return layoutFaults(window);
    }
};

TEST_F(LayoutFaults, areTextsThatAreCut)
{
    for (const auto wraps : {false, true}) {
        const auto makeLabel = [wraps] {
            auto* const label = new QLabel(u"A few words that need some room"_s);
            label->setWordWrap(wraps);
            return label;
        };
        EXPECT_EQ(faultsWith(makeLabel(), {300, 60}).size(), 0);
        EXPECT_EQ(faultsWith(makeLabel(), {60, 15}).size(), 1);
    }
    EXPECT_EQ(faultsWith(new BorderedButton(u"Two words"_s), {150, 30}).size(), 0);
    EXPECT_EQ(faultsWith(new BorderedButton(u"Two words"_s), {60, 30}).size(), 1) << "too low";
    EXPECT_EQ(faultsWith(new BorderedButton(u"Two words"_s), {30, 100}).size(), 1) << "too narrow";
    EXPECT_EQ(faultsWith(new DisclosureButton(u"Show log"_s), {40, 30}).size(), 1);
    for (const auto& [width, faults] : {std::pair(300, 0), std::pair(90, 1)}) {
        auto* const list = new QComboBox;
        list->addItems({u"One"_s, u"One that needs some room"_s});
        EXPECT_EQ(faultsWith(list, {width, 30}).size(), faults);
    }
}

TEST_F(LayoutFaults, areWidgetsBeyondTheirParentOrOverEachOther)
{
    EXPECT_EQ(faultsWith(new QWidget, {390, 10}).size(), 0);
    EXPECT_EQ(faultsWith(new QWidget, {391, 10}).size(), 1);
    QWidget window;
    auto* const one = new QWidget(&window);
    auto* const other = new QWidget(&window);
    one->setGeometry(0, 0, 50, 50);
    other->setGeometry(50, 0, 50, 50);
    window.show();
    EXPECT_EQ(layoutFaults(window).size(), 0);
    other->move(49, 0);
    EXPECT_EQ(layoutFaults(window).size(), 1);
}

} // namespace
