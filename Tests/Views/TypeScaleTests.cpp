// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include "Support/AppModelAccess.h"
#include "Views/AboutView.h"
#include "Views/LinkLabel.h"
#include "Views/LogView.h"
#include "Views/LongTextEdit.h"
#include "Views/SettingsView.h"
#include "Views/TextBox.h"

#include <QFontInfo>

namespace {

enum class Tone { primary, secondary };

class TypeScaleTest : public ViewTest
{
protected:
    /// Checks how a text is set: its size to a body of 13, its weight and its tone.
    static void expectStyle(QLabel* text, double size, QFont::Weight weight, Tone tone)
    {
        ASSERT_TRUE(text);
        SCOPED_TRACE(qPrintable(text->text()));
        EXPECT_NEAR(text->font().pointSizeF(), QApplication::font().pointSizeF() * size / 13, 0.01);
        EXPECT_EQ(text->font().weight(), weight);
        EXPECT_EQ(text->foregroundRole(),
                  tone == Tone::secondary ? QPalette::PlaceholderText : QPalette::WindowText);
    }
    void expectStyle(const QWidget& parent, const char16_t* text, double size, QFont::Weight weight,
                     Tone tone)
    {
        expectStyle(label(parent, QString::fromUtf16(text)), size, weight, tone);
    }
    static void expectFixedWidthCaption(TextBox& box)
    {
        const auto font = box.edit().font();
        EXPECT_TRUE(QFontInfo(font).fixedPitch()) << qPrintable(font.family());
        EXPECT_NEAR(font.pointSizeF(), QApplication::font().pointSizeF() * 10 / 13, 0.01);
    }
};

TEST_F(TypeScaleTest, holdsInTheWindow)
{
    expectStyle(label(model().facts().summary), 13, QFont::Normal, Tone::primary);
    expectStyle(window(), u"MIT License \u00b7 Quennet (Brindlework)", 10, QFont::Normal,
                Tone::secondary);
    expectStyle(window(), u"Controls", 13, QFont::Bold, Tone::primary);
    for (const auto* const action : {u"Move", u"Jump", u"Grappling hook", u"Aim", u"Restart"})
        expectStyle(window(), action, 13, QFont::Medium, Tone::primary);
    for (const auto* const binding : {u"A / D, or the left stick", u"Space or W, or the A button",
                                      u"Left mouse button, or a shoulder button",
                                      u"Hold F, or use the right stick", u"Alt + R"})
        expectStyle(window(), binding, 13, QFont::Normal, Tone::secondary);
    expectStyle(window(),
                u"The README has no controls list (see README); these come from the game's input "
                u"settings.",
                10, QFont::Normal, Tone::secondary);
}

TEST_F(TypeScaleTest, holdsInThePlayPanel)
{
    AppModelAccess::setPhase(model(), Phase::downloading());
    AppModelAccess::setStep(model(), QStringLiteral("Step 1"));
    AppModelAccess::applyProgress(model(), {250, 1000, 10});
    settle();
    expectStyle(window(), u"Downloading", 13, QFont::Bold, Tone::primary);
    expectStyle(window(), u"Step 1", 12, QFont::Normal, Tone::secondary);
    expectStyle(label(model().progressText()), 10, QFont::Normal, Tone::secondary);
}

TEST_F(TypeScaleTest, holdsInTheReportAndTheLog)
{
    AppModelAccess::fail(model(), QStringLiteral("It broke."));
    model().setShowLog(true);
    settle();
    expectFixedWidthCaption(only<TextBox>());
    expectFixedWidthCaption(only<TextBox>(only<LogView>()));
}

TEST_F(TypeScaleTest, holdsInTheSettings)
{
    const auto& sheet = open<SettingsView>(QStringLiteral("Settings\u2026"));
    expectStyle(sheet, u"Settings", 17, QFont::Bold, Tone::primary);
    expectStyle(sheet, u"Window", 13, QFont::Normal, Tone::primary);
    expectStyle(sheet, u"Resolution", 13, QFont::Normal, Tone::primary);
    for (const auto* const note :
         {u"Applies the next time you press Play.",
          u"Updating downloads the game again. Save files are kept; they live in Godot's own "
          u"folder.",
          u"No saves yet (Godot's user folder does not exist)."})
        expectStyle(sheet, note, 10, QFont::Normal, Tone::secondary);
}

TEST_F(TypeScaleTest, holdsInTheAboutSheet)
{
    const auto& sheet = open<AboutView>(QStringLiteral("About"));
    expectStyle(sheet, u"About", 17, QFont::Bold, Tone::primary);
    expectStyle(sheet,
                u"The game \"Snaglet!\" is made by Quennet and the Brindlework team, 2019, and is "
                u"released under the MIT License. The game belongs to its author; this app is only "
                u"a launcher that downloads it.",
                13, QFont::Normal, Tone::primary);
    expectStyle(sheet, u"Based on brindlework-demos/tetherwalk, MIT License.", 12, QFont::Normal,
                Tone::primary);
    expectStyle(&only<LinkLabel>(sheet), 13, QFont::Normal, Tone::primary);
    expectStyle(sheet,
                u"The Godot engine is free software under the MIT License (godotengine.org). It is "
                u"downloaded from the official godotengine/godot releases and checked against the "
                u"published SHA-512 checksum.",
                13, QFont::Normal, Tone::primary);
    expectStyle(sheet,
                u"Nothing is sent anywhere except the two downloads (the game from GitHub and the "
                u"engine from GitHub releases).",
                12, QFont::Normal, Tone::secondary);
}

} // namespace
