// SPDX-License-Identifier: MIT
#include "Controls/Dimmer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QMessageBox>
#include <QTest>

namespace {

/// A window and a sheet, each with a dimmer, and an alert.
class DimmerTest : public testing::Test
{
protected:
    DimmerTest()
    {
        new Dimmer(window);
        new Dimmer(sheet);
        sheet.setWindowModality(Qt::WindowModal);
        alert.setWindowModality(Qt::WindowModal);
        window.resize(600, 600);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }

    static int brightness(QWidget& widget, const QPoint& point = {2, 2})
    {
        QApplication::processEvents();
        return qGray(widget.grab().toImage().pixel(point));
    }

    /// Activates `blocked` as some window managers do, and checks that `front` gets the keyboard.
    static void expectHandedOn(QWidget& blocked, QWidget& front)
    {
        QWidget other;
        other.show();
        other.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
        QEvent activation(QEvent::WindowActivate);
        QApplication::sendEvent(&blocked, &activation);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&front));
    }

    QWidget window;
    QDialog sheet{&window};
    QMessageBox alert{&sheet};
};

TEST_F(DimmerTest, darkensTheWindowWhileASheetIsOpen)
{
    const auto plain = brightness(window);
    sheet.open();
    EXPECT_LT(brightness(window), plain - 30);
    EXPECT_EQ(brightness(sheet), plain);
    window.resize(800, 700);
    EXPECT_LT(brightness(window, {798, 698}), plain - 30) << "it grows with the window";
    sheet.hide();
    EXPECT_EQ(brightness(window), plain);
}

TEST_F(DimmerTest, darkensTheSheetWhileAnAlertIsOpen)
{
    sheet.open();
    const auto plain = brightness(sheet);
    alert.open();
    EXPECT_LT(brightness(sheet), plain - 30);
    alert.reject();
    EXPECT_EQ(brightness(sheet), plain);
}

TEST_F(DimmerTest, handsTheKeyboardOnToWhatIsInFront)
{
    sheet.open();
    expectHandedOn(window, sheet);
    alert.open();
    expectHandedOn(window, alert);
    expectHandedOn(sheet, alert);
}

} // namespace
