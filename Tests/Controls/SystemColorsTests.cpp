// SPDX-License-Identifier: MIT
#include "Controls/Palettes.h"
#include "Controls/SystemColors.h"

#include <gtest/gtest.h>

namespace {

TEST(SystemColors, areThoseOfLightAndDark)
{
    const auto expect = [](QColor (*color)(const QPalette&), QColor light, QColor dark) {
        EXPECT_EQ(color(Palettes::light()), light);
        EXPECT_EQ(color(Palettes::dark()), dark);
    };
    expect(SystemColors::blue, {0, 122, 255}, {10, 132, 255});
    expect(SystemColors::green, {40, 205, 65}, {50, 215, 75});
    expect(SystemColors::orange, {255, 149, 0}, {255, 159, 10});
    expect(SystemColors::red, {255, 59, 48}, {255, 69, 58});
    expect(SystemColors::gray, {142, 142, 147}, {152, 152, 157});
}

TEST(SystemColors, haveTheContrastThatTheGuidelinesDefine)
{
    EXPECT_NEAR(SystemColors::contrast(Qt::black, Qt::white), 21, 0.01);
    EXPECT_NEAR(SystemColors::contrast(QColor(119, 119, 119), Qt::white), 4.48, 0.01);
    EXPECT_NEAR(SystemColors::contrast(Qt::red, Qt::red), 1, 0.01);
}

TEST(SystemColors, makeSecondaryTextReadableOnTheWindowAndItsPanels)
{
    for (const auto& palette : {Palettes::light(), Palettes::dark()}) {
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
    const auto light = Palettes::light();
    EXPECT_EQ(SystemColors::readable(QColor(90, 0, 0), Qt::white, light), QColor(90, 0, 0));
    const auto red = SystemColors::readable(SystemColors::red(light), Qt::white, light);
    EXPECT_GE(SystemColors::contrast(red, Qt::white), 4.5);
    EXPECT_GT(red.red(), 2 * red.green()) << "it is still red";
}

} // namespace
