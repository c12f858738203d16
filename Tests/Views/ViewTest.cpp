// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include <QTest>

namespace {

template<typename Widget>
Widget* withText(const QWidget& parent, const QString& text)
{
    const auto candidates = parent.findChildren<Widget*>();
    for (auto* const candidate : candidates) {
        if (candidate->text() == text)
            return candidate;
    }
    return nullptr;
}

} // namespace

ViewTest::ViewTest()
    : m_window(std::make_unique<ContentView>(startModel()))
{
    m_window->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    settle();
}

QAbstractButton* ViewTest::button(const QWidget& parent, const QString& text)
{
    return withText<QAbstractButton>(parent, text);
}

QLabel* ViewTest::label(const QWidget& parent, const QString& text)
{
    return withText<QLabel>(parent, text);
}

void ViewTest::settle()
{
    // A change of a text is followed by that of its place, and that by those around it.
    for (auto round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
}

QRect ViewTest::place(const QWidget& widget)
{
    return {widget.mapTo(widget.window(), QPoint(0, 0)), widget.size()};
}
