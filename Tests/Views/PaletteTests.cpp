// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include "Controls/SystemColors.h"

#include <QImage>

namespace {

/// A window that is open while the system changes between light and dark.
class PaletteTest : public ViewTest, public testing::WithParamInterface<QPalette (*)()>
{
protected:
    PaletteTest()
    {
        showAllBlocks();
        QApplication::setPalette(palette);
        settle();
        window().resize(window().width(), window().widget()->height());
        settle();
        picture = window().grab().toImage();
    }

    /// Checks the colour of the window's picture at a point of `widget`.
    void expectColor(const QWidget& widget, const QPoint& point, const QColor& wanted)
    {
        const auto found = picture.pixelColor(rectOf(widget).topLeft() + point);
        SCOPED_TRACE(found.name() + u' ' + wanted.name());
        EXPECT_NEAR(found.red(), wanted.red(), 1);
        EXPECT_NEAR(found.green(), wanted.green(), 1);
        EXPECT_NEAR(found.blue(), wanted.blue(), 1);
    }

    const QPalette palette = GetParam()();
    const QColor background = palette.color(QPalette::Window);
    const QColor secondary = SystemColors::secondaryText(palette);
    const QColor panelColor = SystemColors::blended(
        SystemColors::withOpacity(secondary, secondary.alphaF() * 0.08), background);
    QImage picture;
};

TEST_P(PaletteTest, tintsThePanelWithItsCornersOfRadius12)
{
    expectColor(panel(), {40, 5}, panelColor);
    expectColor(panel(), {5, 5}, panelColor);
    expectColor(panel(), {2, 2}, background);
    expectColor(panel(), {panel().width() - 3, panel().height() - 3}, background);
    EXPECT_NE(panelColor, background);
}

TEST_P(PaletteTest, tintsTheReportRedAndTheLogDarkWithCornersOfRadius6)
{
    const auto red = SystemColors::withOpacity(SystemColors::red(palette), 0.08);
    const auto black = SystemColors::withOpacity(Qt::black, 0.06);
    for (const auto& [box, tint] : {std::pair(&failure(), red), std::pair(&logBox(), black)}) {
        expectColor(*box, {3, 40}, SystemColors::blended(tint, panelColor));
        expectColor(*box, {3, 3}, SystemColors::blended(tint, panelColor));
        expectColor(*box, {0, 0}, panelColor);
        if (!SystemColors::isDark(palette))
            expectColor(*box, {0, 40}, SystemColors::blended(tint, panelColor));
    }
}

TEST_P(PaletteTest, colorsTheDot)
{
    EXPECT_EQ(only<StatusDot>().color(), SystemColors::red(palette));
    expectColor(only<StatusDot>(), {5, 5}, SystemColors::red(palette));
    expectColor(only<StatusDot>(), {0, 0}, panelColor);
}

TEST_P(PaletteTest, colorsAnOpenSheet)
{
    QApplication::setPalette(Palettes::light());
    auto& sheet = settings();
    QApplication::setPalette(palette);
    settle();
    EXPECT_EQ(sheet.grab().toImage().pixelColor(2, 2), background);
}

TEST_P(PaletteTest, makesWhiteTextReadableOnTheAccentColor)
{
    for (const auto* const title : {u"Done", u"Windowed"}) {
        auto& filled = *button(settings(), title);
        const auto color = filled.grab().toImage().pixelColor(6, filled.height() / 2);
        EXPECT_GE(SystemColors::contrast(color, Qt::white), 4.5);
        EXPECT_LT(SystemColors::contrast(color, SystemColors::blue(palette)), 1.3)
            << "it is still the accent colour";
    }
    EXPECT_EQ(play().grab().toImage().pixelColor(20, play().height() / 2),
              SystemColors::blue(palette));
}

INSTANTIATE_TEST_SUITE_P(Themes, PaletteTest, testing::Values(Palettes::light, Palettes::dark));

} // namespace
