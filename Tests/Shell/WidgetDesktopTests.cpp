// SPDX-License-Identifier: MIT
#include "Shell/WidgetDesktop.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLayout>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

class WidgetDesktopTest : public testing::Test
{
protected:
    WidgetDesktopTest() { window.show(); }

    /// Asks a question and calls `answer` with its alert. Returns whether the action was chosen.
    bool ask(const std::function<void(QMessageBox&)>& answer)
    {
        QTimer::singleShot(0, &window, [&] {
            auto* const alert = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!alert)
                qFatal("There is no alert.");
            answer(*alert);
            EXPECT_FALSE(alert->isVisible());
            alert->reject();
        });
        return desktop.confirm(u"Really?"_s, u"It is & stays <b>so</b>."_s, u"Do it"_s);
    }

    QWidget window;
    WidgetDesktop desktop;
};

TEST_F(WidgetDesktopTest, asksOverTheWindowInPlainTextWithTheActionBeforeCancel)
{
    ask([&](QMessageBox& alert) {
        EXPECT_EQ(alert.parentWidget(), &window);
        EXPECT_EQ(alert.text(), u"Really?"_s);
        EXPECT_EQ(alert.informativeText(), u"It is & stays <b>so</b>."_s);
        EXPECT_EQ(alert.textFormat(), Qt::PlainText);
        const auto buttons = alert.buttons();
        ASSERT_EQ(buttons.size(), 2);
        EXPECT_EQ(buttons.at(0)->text(), u"Do it"_s);
        EXPECT_EQ(buttons.at(1)->text(), u"Cancel"_s);
        EXPECT_LT(buttons.at(0)->x(), buttons.at(1)->x());
        alert.reject();
    });
}

TEST_F(WidgetDesktopTest, takesTheActionForReturnAndCancelForEscape)
{
    EXPECT_TRUE(ask([](QMessageBox& alert) { QTest::keyClick(&alert, Qt::Key_Return); }));
    EXPECT_FALSE(ask([](QMessageBox& alert) { QTest::keyClick(&alert, Qt::Key_Escape); }));
    EXPECT_TRUE(ask([](QMessageBox& alert) { alert.buttons().at(0)->click(); }));
    EXPECT_FALSE(ask([](QMessageBox& alert) { alert.buttons().at(1)->click(); }));
    EXPECT_FALSE(ask([](QMessageBox& alert) { alert.close(); }));
}

TEST_F(WidgetDesktopTest, asksOnWhenTheSheetUnderTheQuestionIsClosed)
{
    const QPointer<QDialog> sheet(new QDialog(&window));
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
    EXPECT_TRUE(ask([&](QMessageBox& alert) {
        EXPECT_EQ(alert.windowHandle()->transientParent(), sheet->windowHandle());
        sheet->accept();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        ASSERT_FALSE(sheet);
        EXPECT_TRUE(alert.isVisible());
        alert.buttons().at(0)->click();
    }));
}

TEST_F(WidgetDesktopTest, padsAnAlertBy20)
{
    ask([](QMessageBox& alert) {
        QRect content;
        for (const auto* const child : alert.findChildren<QWidget*>()) {
            const QRect place(child->mapTo(&alert, QPoint()), child->size());
            if (child->isVisible())
                content |= place;
        }
        EXPECT_EQ(content, alert.rect().adjusted(20, 20, -20, -20));
        alert.reject();
    });
}

TEST_F(WidgetDesktopTest, copiesTextsOfAnyLengthAsTheyAre)
{
    const auto text = u"one\ntwo \u2013 <b>three</b>\n"_s.repeated(10'000);
    desktop.copyText(text);
    EXPECT_EQ(QApplication::clipboard()->text(), text);
}

} // namespace
