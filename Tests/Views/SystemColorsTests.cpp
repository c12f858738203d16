// SPDX-License-Identifier: MIT
#include "Views/LauncherStyle.h"
#include "Views/SystemColors.h"

#include <gtest/gtest.h>

namespace {

TEST(SystemColors, areThoseOfLightAndDark)
{
    const auto light = LauncherStyle::lightPalette();
    const auto dark = LauncherStyle::darkPalette();
    EXPECT_EQ(SystemColors::blue(light), QColor(0, 122, 255));
    EXPECT_EQ(SystemColors::blue(dark), QColor(10, 132, 255));
    EXPECT_EQ(SystemColors::green(light), QColor(40, 205, 65));
    EXPECT_EQ(SystemColors::green(dark), QColor(50, 215, 75));
    EXPECT_EQ(SystemColors::orange(light), QColor(255, 149, 0));
    EXPECT_EQ(SystemColors::orange(dark), QColor(255, 159, 10));
    EXPECT_EQ(SystemColors::red(light), QColor(255, 59, 48));
    EXPECT_EQ(SystemColors::red(dark), QColor(255, 69, 58));
    EXPECT_EQ(SystemColors::gray(light), QColor(142, 142, 147));
    EXPECT_EQ(SystemColors::gray(dark), QColor(152, 152, 157));
}

TEST(SystemColors, haveTheContrastThatTheGuidelinesDefine)
{
    EXPECT_NEAR(SystemColors::contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(SystemColors::contrast(QColor(119, 119, 119), Qt::white), 4.48, 0.01);
    EXPECT_NEAR(SystemColors::contrast(Qt::red, Qt::red), 1, 0.01);
}

TEST(SystemColors, makeSecondaryTextReadableOnTheWindowAndItsPanels)
{
    for (const auto& palette : {LauncherStyle::lightPalette(), LauncherStyle::darkPalette()}) {
        const auto window = palette.color(QPalette::Window);
        const auto secondary = SystemColors::secondaryText(palette);
        const auto tint = SystemColors::withOpacity(secondary, secondary.alphaF() * 0.08);
        const auto panel = SystemColors::blended(tint, window);
        EXPECT_GE(SystemColors::contrast(SystemColors::blended(secondary, window), window), 4.5);
        EXPECT_GE(SystemColors::contrast(SystemColors::blended(secondary, panel), panel), 4.5);
        EXPECT_NEAR(secondary.alphaF(), 0.55, 0.1) << "it stays secondary";
    }
}

TEST(SystemColors, changeAColorOnlyAsFarAsReadingRequires)
{
    const auto light = LauncherStyle::lightPalette();
    EXPECT_EQ(SystemColors::readable(QColor(90, 0, 0), Qt::white, light), QColor(90, 0, 0));
    const auto red = SystemColors::readable(SystemColors::red(light), Qt::white, light);
    EXPECT_GE(SystemColors::contrast(red, Qt::white), 4.5);
    EXPECT_GT(red.red(), 2 * red.green()) << "it is still red";
}

} // namespace
