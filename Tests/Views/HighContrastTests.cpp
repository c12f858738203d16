// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include "Controls/SegmentedPicker.h"
#include "Controls/SystemColors.h"

#include <QComboBox>
#include <QImage>
#include <QTest>

#include <algorithm>

namespace {

class HighContrastTest : public ViewTest, public testing::WithParamInterface<QPalette (*)()>
{
protected:
    HighContrastTest() { QApplication::setPalette(palette); }

    /// Shows the whole window.
    QImage picture()
    {
        settle();
        window().resize(window().width(), window().columnHeight(window().width()));
        settle();
        return window().grab().toImage();
    }

    /// The highest contrast between what is drawn left of `widget` and its own left edge.
    static double edgeContrast(const QWidget& widget, const QImage& picture)
    {
        const auto rect = rectOf(widget);
        const auto outside = picture.pixelColor(rect.left() - 3, rect.center().y());
        auto highest = 0.0;
        for (auto x = rect.left(); x < rect.left() + 3; ++x) {
            const auto color = picture.pixelColor(x, rect.center().y());
            highest = std::max(highest, SystemColors::contrast(color, outside));
        }
        return highest;
    }

    const QPalette palette = GetParam()();
    const QColor background = palette.color(QPalette::Window);
};

TEST_P(HighContrastTest, givesEveryBoxOfTheWindowAnEdge)
{
    showAllBlocks();
    const auto failed = picture();
    for (const QWidget* const widget :
         {static_cast<QWidget*>(&panel()), static_cast<QWidget*>(&failure()),
          static_cast<QWidget*>(&logBox()), static_cast<QWidget*>(&play()),
          static_cast<QWidget*>(button(u"Copy")), static_cast<QWidget*>(button(u"About")),
          static_cast<QWidget*>(&only<StatusDot>())})
        EXPECT_GE(edgeContrast(*widget, failed), 3) << widget->metaObject()->className();

    enter(Phase::Kind::downloading);
    const auto downloading = picture();
    EXPECT_FALSE(play().isEnabled());
    EXPECT_GE(edgeContrast(play(), downloading), 3);
    EXPECT_GE(edgeContrast(progress(), downloading), 3);
}

TEST_P(HighContrastTest, givesEveryBoxOfASheetAnEdge)
{
    enter(Phase::Kind::playing);
    auto& sheet = settings();
    settle();
    const auto shown = sheet.grab().toImage();
    for (const auto* const title : {u"Update the game", u"Reveal in Finder", u"Done"})
        EXPECT_GE(edgeContrast(*button(sheet, title), shown), 3) << QString::fromUtf16(title);
    EXPECT_GE(edgeContrast(only<SegmentedPicker>(sheet), shown), 3);
    EXPECT_GE(edgeContrast(only<QComboBox>(sheet), shown), 3);
    EXPECT_GE(edgeContrast(only<Divider>(sheet), shown), 3);
    EXPECT_GE(SystemColors::contrast(shown.pixelColor(0, 100), background), 3);
}

TEST_P(HighContrastTest, hasAContrastOf7InEveryText)
{
    using namespace SystemColors;
    for (const auto& text :
         {palette.color(QPalette::WindowText), secondaryText(palette), disabledText(palette),
          palette.color(QPalette::Disabled, QPalette::ButtonText)}) {
        for (const auto& behind : {background, blended(SystemColors::panel(palette), background)})
            EXPECT_GE(contrast(blended(text, behind), behind), 7) << text.name();
    }
    // These stand on the window or a button only, which are of one colour.
    for (const auto& text :
         {palette.color(QPalette::Link), readable(red(palette), background, palette)})
        EXPECT_GE(contrast(text, background), 7) << text.name();
    EXPECT_GE(contrast(accentUnderText(palette), Qt::white), 7);
    EXPECT_GE(contrast(palette.color(QPalette::Highlight), Qt::white), 7);
}

TEST_P(HighContrastTest, drawsTheBannersTextOnADarkerGround)
{
    const auto& title = *label(u"Cavernyx Platformer");
    const auto shown = picture();
    const auto rect = rectOf(title);
    for (auto x = rect.left(); x < rect.right(); ++x)
        EXPECT_GE(SystemColors::contrast(shown.pixelColor(x, rect.top()), Qt::white), 7);
}

TEST_P(HighContrastTest, drawsFocusRingsOfAContrastOf3)
{
    EXPECT_GE(SystemColors::contrast(SystemColors::focusRing(palette), background), 3);
}

INSTANTIATE_TEST_SUITE_P(Themes, HighContrastTest,
                         testing::Values(Palettes::highContrastLight, Palettes::highContrastDark));

TEST(Appearances, areThePalettesThatWereAskedFor)
{
    using enum Appearance::Scheme;
    const auto window = [] { return QApplication::palette().color(QPalette::Window); };
    Palettes::apply({.scheme = dark});
    EXPECT_EQ(window(), Palettes::dark().color(QPalette::Window));
    Palettes::apply({.scheme = dark, .highContrast = true});
    EXPECT_EQ(window(), QColor(Qt::black));
    Palettes::apply({.scheme = light, .highContrast = true});
    EXPECT_EQ(window(), QColor(Qt::white));
    EXPECT_TRUE(SystemColors::isHighContrast(QApplication::palette()));
    Palettes::apply({.scheme = light});
    EXPECT_EQ(window(), Palettes::light().color(QPalette::Window));
    Palettes::apply({.highContrast = true});
    EXPECT_EQ(window(), QColor(Qt::white));
    Palettes::apply({});
    EXPECT_EQ(window(), Palettes::light().color(QPalette::Window));
    EXPECT_FALSE(SystemColors::isHighContrast(QApplication::palette()));
    QApplication::setPalette(Palettes::light());
}

} // namespace
