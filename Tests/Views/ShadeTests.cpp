// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include "Views/AboutView.h"
#include "Views/SettingsView.h"

#include <QImage>
#include <QMessageBox>
#include <QTest>

namespace {

class Shade : public ViewTest
{
protected:
    /// How bright the middle of the left edge is, where nothing but the window itself is.
    static int brightness(QWidget& window)
    {
        settle();
        const auto picture = window.grab().toImage();
        return qGray(picture.pixel(2, picture.height() / 2));
    }

    /// Tells `blocked` that it has the keyboard now, as a window manager might that knows no
    /// better.
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
};

TEST_F(Shade, liesOverTheWindowWhileASheetIsOpen)
{
    const auto plain = brightness(window());
    auto& sheet = open<AboutView>(QStringLiteral("About"));
    EXPECT_LT(brightness(window()), plain - 30);
    EXPECT_EQ(brightness(sheet), plain);
    sheet.reject();
    EXPECT_EQ(brightness(window()), plain);
}

TEST_F(Shade, liesOverTheSheetWhileAnAlertIsOpen)
{
    auto& sheet = open<SettingsView>(QStringLiteral("Settings\u2026"));
    const auto plain = brightness(sheet);
    QMessageBox alert(&sheet);
    alert.setWindowModality(Qt::WindowModal);
    alert.open();
    EXPECT_LT(brightness(sheet), plain - 30);
    alert.reject();
    EXPECT_EQ(brightness(sheet), plain);
}

TEST_F(Shade, growsWithTheWindow)
{
    const auto plain = brightness(window());
    auto& sheet = open<AboutView>(QStringLiteral("About"));
    window().resize(window().width() + 200, window().height() + 200);
    settle();
    const auto picture = window().grab().toImage();
    const auto corner = picture.pixel(picture.width() - 2, picture.height() - 2);
    EXPECT_LT(qGray(corner), plain - 30);
    sheet.reject();
}

TEST_F(Shade, handsTheKeyboardOnToTheSheetInFront)
{
    auto& sheet = open<AboutView>(QStringLiteral("About"));
    expectHandedOn(window(), sheet);
    sheet.reject();
}

TEST_F(Shade, handsTheKeyboardOnToTheAlertInFront)
{
    auto& sheet = open<SettingsView>(QStringLiteral("Settings\u2026"));
    QMessageBox alert(&sheet);
    alert.setWindowModality(Qt::WindowModal);
    alert.open();
    expectHandedOn(window(), alert);
    expectHandedOn(sheet, alert);
    alert.reject();
}

} // namespace
