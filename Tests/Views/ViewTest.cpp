// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include <QTest>

namespace {

template<typename Widget>
Widget* withText(const QWidget& parent, QStringView text)
{
    const auto candidates = parent.findChildren<Widget*>();
    for (auto* const candidate : candidates) {
        if (candidate->text() == text)
            return candidate;
    }
    return nullptr;
}

} // namespace

ViewTest::ViewTest(std::chrono::milliseconds startupThreshold)
    : m_window(std::make_unique<ContentView>(startModelWith(startupThreshold)))
{
    m_window->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    settle();
}

ViewTest::~ViewTest()
{
    QApplication::setFont(m_font);
    QApplication::setPalette(Palettes::light());
}

AppModel& ViewTest::startModelWith(std::chrono::milliseconds startupThreshold)
{
    durations.startupThreshold = startupThreshold;
    return startModel();
}

void ViewTest::enter(Phase::Kind kind)
{
    ModelTest::enter(kind);
    if (durations.startupThreshold < std::chrono::seconds{1})
        waitUntil([this] { return !model().stillStarting(); });
    settle();
}

void ViewTest::install(const QByteArray& engine)
{
    enter(Phase::Kind::ready);
    installEngine(engine);
}

void ViewTest::showAllBlocks()
{
    model().setShowLog(true);
    enter(Phase::Kind::needs);
}

void ViewTest::enlargeFont(double factor)
{
    auto larger = QApplication::font();
    larger.setPointSizeF(larger.pointSizeF() * factor);
    QApplication::setFont(larger);
    settle();
}

QAbstractButton* ViewTest::button(const QWidget& parent, QStringView text)
{
    return withText<QAbstractButton>(parent, text);
}

QLabel* ViewTest::label(const QWidget& parent, QStringView text)
{
    return withText<QLabel>(parent, text);
}

void ViewTest::settle()
{
    // A changed text moves its label, and that the widgets around it.
    for (auto round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

QRect ViewTest::rectOf(const QWidget& widget)
{
    return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()};
}

int ViewTest::gapBelow(const QWidget& upper, const QWidget& lower)
{
    return rectOf(lower).top() - rectOf(upper).bottom() - 1;
}

int ViewTest::gapBeside(const QWidget& left, const QWidget& right)
{
    return rectOf(right).left() - rectOf(left).right() - 1;
}

void ViewTest::expectTexts(const QWidget& parent, std::initializer_list<ExpectedText> texts)
{
    auto bottom = 0;
    for (const auto& expected : texts) {
        SCOPED_TRACE(expected.text.toString());
        const auto* const found = label(parent, expected.text);
        ASSERT_TRUE(found && found->isVisible());
        EXPECT_NEAR(found->font().pointSizeF(),
                    QApplication::font().pointSizeF() * expected.size / 13, 0.01);
        EXPECT_EQ(found->font().weight(), expected.weight);
        EXPECT_EQ(found->foregroundRole(),
                  expected.isSecondary ? QPalette::PlaceholderText : QPalette::WindowText);
        EXPECT_GT(rectOf(*found).top(), bottom);
        EXPECT_GE(found->height(), found->heightForWidth(found->width())) << "nothing is cut";
        bottom = rectOf(*found).bottom();
    }
}
