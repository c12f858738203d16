// SPDX-License-Identifier: MIT
#include "Views/PlayPanelTest.h"

#include "Views/LauncherStyle.h"
#include "Views/LogView.h"
#include "Views/SettingsView.h"
#include "Views/StatusDot.h"
#include "Views/SystemColors.h"

#include <QImage>

namespace {

/// A window that is open while the system changes between light and dark.
class PaletteTest : public PlayPanelTest
{
protected:
    PaletteTest()
    {
        AppModelAccess::fail(model(), QStringLiteral("It broke."));
        model().setShowLog(true);
        settle();
    }
    ~PaletteTest() override { QApplication::setPalette(LauncherStyle::lightPalette()); }

    void change(const QPalette& palette)
    {
        QApplication::setPalette(palette);
        settle();
        window().resize(window().width(), window().widget()->height());
        settle();
        picture = window().grab().toImage();
        background = palette.color(QPalette::Window);
        const auto secondary = SystemColors::secondaryText(palette);
        panelColor = SystemColors::blended(
            SystemColors::withOpacity(secondary, secondary.alphaF() * 0.08), background);
    }
    /// Checks what a widget's picture shows at a point of the widget's own.
    void expectColor(const QWidget& widget, const QPoint& point, const QColor& wanted)
    {
        const auto found = picture.pixelColor(place(widget).topLeft() + point);
        SCOPED_TRACE(qPrintable(found.name() + u' ' + wanted.name()));
        EXPECT_NEAR(found.red(), wanted.red(), 1);
        EXPECT_NEAR(found.green(), wanted.green(), 1);
        EXPECT_NEAR(found.blue(), wanted.blue(), 1);
    }

    QImage picture;
    QColor background;
    QColor panelColor;
};

TEST_F(PaletteTest, tintsThePanelAnewWithItsCornersOfRadius12)
{
    for (const auto& palette : {LauncherStyle::lightPalette(), LauncherStyle::darkPalette()}) {
        change(palette);
        expectColor(panel(), {40, 5}, panelColor);
        expectColor(panel(), {5, 5}, panelColor);
        expectColor(panel(), {2, 2}, background);
        expectColor(panel(), {panel().width() - 3, panel().height() - 3}, background);
        EXPECT_NE(panelColor, background);
    }
}

TEST_F(PaletteTest, tintsTheReportRedAndTheLogDarkWithCornersOfRadius6)
{
    for (const auto& palette : {LauncherStyle::lightPalette(), LauncherStyle::darkPalette()}) {
        change(palette);
        auto& log = only<TextBox>(only<LogView>());
        const auto red = SystemColors::withOpacity(SystemColors::red(palette), 0.08);
        const auto black = SystemColors::withOpacity(Qt::black, 0.06);
        for (const auto& [box, tint] : {std::pair(&failure(), red), std::pair(&log, black)}) {
            expectColor(*box, {3, 40}, SystemColors::blended(tint, panelColor));
            expectColor(*box, {3, 3}, SystemColors::blended(tint, panelColor));
            expectColor(*box, {0, 0}, panelColor);
            if (!SystemColors::isDark(palette))
                expectColor(*box, {0, 40}, SystemColors::blended(tint, panelColor));
        }
    }
}

TEST_F(PaletteTest, colorsTheDotAnew)
{
    for (const auto& palette : {LauncherStyle::lightPalette(), LauncherStyle::darkPalette()}) {
        change(palette);
        expectColor(only<StatusDot>(), {5, 5}, SystemColors::red(palette));
        expectColor(only<StatusDot>(), {0, 0}, panelColor);
    }
}

TEST_F(PaletteTest, colorsAnOpenSheetAnew)
{
    auto& sheet = open<SettingsView>(QStringLiteral("Settings\u2026"));
    for (const auto& palette : {LauncherStyle::lightPalette(), LauncherStyle::darkPalette()}) {
        QApplication::setPalette(palette);
        settle();
        EXPECT_EQ(sheet.grab().toImage().pixelColor(2, 2), palette.color(QPalette::Window));
    }
}

TEST_F(PaletteTest, letsWhiteWordsBeReadOnTheAccentColor)
{
    auto& sheet = open<SettingsView>(QStringLiteral("Settings\u2026"));
    for (const auto& palette : {LauncherStyle::lightPalette(), LauncherStyle::darkPalette()}) {
        QApplication::setPalette(palette);
        settle();
        for (const auto* const title : {"Done", "Windowed"}) {
            SCOPED_TRACE(title);
            auto& filled = *button(sheet, QString::fromLatin1(title));
            const auto color = filled.grab().toImage().pixelColor(6, filled.height() / 2);
            EXPECT_GE(SystemColors::contrast(color, Qt::white), 4.5);
            EXPECT_LT(SystemColors::contrast(color, SystemColors::blue(palette)), 1.3)
                << "it is still the accent colour";
        }
        EXPECT_EQ(play().grab().toImage().pixelColor(20, play().height() / 2),
                  SystemColors::blue(palette));
    }
}

} // namespace
