// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include "Views/AboutView.h"
#include "Views/SettingsView.h"

#include <QImage>
#include <QMessageBox>

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

} // namespace
