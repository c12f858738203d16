// SPDX-License-Identifier: MIT
#include "Support/Await.h"
#include "Views/PlayPanelTest.h"

#include "Views/AboutView.h"
#include "Views/LinkLabel.h"
#include "Views/LogView.h"
#include "Views/LongTextEdit.h"
#include "Views/SettingsView.h"
#include "Views/StatusDot.h"

#include <QAccessible>
#include <QComboBox>
#include <QTest>

namespace {

/// What an assistive technology reads off the window.
class AccessibilityTest : public PlayPanelTest
{
protected:
    static QAccessibleInterface& read(QWidget& widget)
    {
        return *QAccessible::queryAccessibleInterface(&widget);
    }
    static QString name(QWidget& widget) { return read(widget).text(QAccessible::Name); }
    static void expectButton(QWidget& widget, const QString& title, bool enabled = true)
    {
        SCOPED_TRACE(qPrintable(title));
        EXPECT_EQ(read(widget).role(), QAccessible::PushButton);
        EXPECT_EQ(name(widget), title);
        EXPECT_EQ(!read(widget).state().disabled, enabled);
    }
};

TEST_F(AccessibilityTest, saysWhatTheWindowShows)
{
    for (const auto& text :
         {QStringLiteral("Cavernyx Platformer"), QStringLiteral("A 2D grappling-hook adventure"),
          model().facts().summary, QStringLiteral("Controls"), QStringLiteral("Grappling hook"),
          QStringLiteral("Hold F, or use the right stick"), model().statusTitle(),
          model().statusDetail()}) {
        auto* const found = label(text);
        ASSERT_TRUE(found) << qPrintable(text);
        EXPECT_EQ(read(*found).role(), QAccessible::StaticText);
        EXPECT_EQ(name(*found), text);
    }
    for (const auto& title : {QStringLiteral("Settings\u2026"), QStringLiteral("About")})
        expectButton(*button(title), title);
}

TEST_F(AccessibilityTest, saysTheStatusInWords)
{
    auto& dot = only<StatusDot>();
    EXPECT_EQ(read(dot).role(), QAccessible::Notification);
    enter(Phase::ready());
    EXPECT_EQ(name(dot),
              QStringLiteral("Status: Ready \u2013 Everything is installed. Press Play."));
    enter(Phase::playing());
    EXPECT_EQ(name(dot),
              QStringLiteral("Status: Playing \u2013 The game is running in its own window."));
}

TEST_F(AccessibilityTest, saysWhatThePanelsButtonsDoAndWhetherTheyCan)
{
    expectButton(play(), QStringLiteral("Play"));
    EXPECT_TRUE(read(play()).state().defaultButton);
    EXPECT_TRUE(read(stop()).state().invisible);
    EXPECT_TRUE(read(cancel()).state().invisible);
    enter(Phase::playing());
    expectButton(play(), QStringLiteral("Play"), false);
    expectButton(stop(), QStringLiteral("Stop"));
    EXPECT_FALSE(read(stop()).state().invisible);
    enter(Phase::settingUp());
    expectButton(cancel(), QStringLiteral("Cancel"));
}

TEST_F(AccessibilityTest, saysHowFarTheWorkIs)
{
    enter(Phase::downloading());
    auto& bar = read(progress());
    EXPECT_EQ(bar.role(), QAccessible::ProgressBar);
    EXPECT_EQ(bar.text(QAccessible::Name), QStringLiteral("Progress"));
    ASSERT_TRUE(bar.valueInterface());
    AppModelAccess::applyProgress(model(), {250, 1000, 10});
    EXPECT_DOUBLE_EQ(bar.valueInterface()->currentValue().toDouble() /
                         bar.valueInterface()->maximumValue().toDouble(),
                     0.25);
    AppModelAccess::clearProgress(model());
    EXPECT_EQ(bar.valueInterface()->maximumValue(), bar.valueInterface()->minimumValue())
        << "nobody knows";
}

TEST_F(AccessibilityTest, saysWhetherTheLogIsShown)
{
    auto& interface = read(disclosure());
    EXPECT_EQ(interface.text(QAccessible::Name), QStringLiteral("Show log"));
    EXPECT_TRUE(interface.state().checkable);
    EXPECT_FALSE(interface.state().checked);
    interface.actionInterface()->doAction(interface.actionInterface()->actionNames().constFirst());
    settle();
    EXPECT_TRUE(model().showLog());
    EXPECT_TRUE(interface.state().checked);
}

TEST_F(AccessibilityTest, readsTheLogAndTheReportAsTexts)
{
    model().log().append(QStringLiteral("one\ntwo"));
    model().setShowLog(true);
    AppModelAccess::setFailureText(model(), QStringLiteral("What happened"));
    enter(Phase::needs(QStringLiteral("It broke.")));
    auto& log = only<TextBox>(only<LogView>()).edit();
    EXPECT_TRUE(waitUntil([&] { return log.text() == QStringLiteral("one\ntwo"); }));

    for (const auto& [edit, title, text] :
         {std::tuple(&log, QStringLiteral("Log"), QStringLiteral("one\ntwo")),
          std::tuple(&failure().edit(), QStringLiteral("Failure report"),
                     QStringLiteral("What happened"))}) {
        auto& interface = read(*edit);
        EXPECT_EQ(interface.role(), QAccessible::EditableText);
        EXPECT_EQ(interface.text(QAccessible::Name), title);
        EXPECT_TRUE(interface.state().readOnly);
        ASSERT_TRUE(interface.textInterface());
        const auto end = interface.textInterface()->characterCount();
        EXPECT_EQ(interface.textInterface()->text(0, end), text);
    }
    expectButton(*button(QStringLiteral("Copy")), QStringLiteral("Copy"));
    expectButton(*button(QStringLiteral("Copy log")), QStringLiteral("Copy log"));
}

TEST_F(AccessibilityTest, namesEveryControlOfTheSettingsWithItsChoice)
{
    model().setFullscreen(true);
    model().setResolution(ResolutionChoice::r1080);
    auto& sheet = open<SettingsView>(QStringLiteral("Settings\u2026"));
    EXPECT_EQ(read(sheet).role(), QAccessible::Dialog);
    EXPECT_EQ(name(sheet), QStringLiteral("Settings"));

    auto& windowed = *button(sheet, QStringLiteral("Windowed"));
    auto& fullscreen = *button(sheet, QStringLiteral("Fullscreen"));
    EXPECT_EQ(read(*windowed.parentWidget()).role(), QAccessible::Grouping);
    EXPECT_EQ(name(*windowed.parentWidget()), QStringLiteral("Window"));
    for (auto* const segment : {&windowed, &fullscreen}) {
        EXPECT_EQ(read(*segment).role(), QAccessible::RadioButton);
        EXPECT_EQ(name(*segment), segment->text());
        EXPECT_EQ(read(*segment).state().checked, segment == &fullscreen);
    }
    auto& resolution = only<QComboBox>(sheet);
    EXPECT_EQ(read(resolution).role(), QAccessible::ComboBox);
    // Its name is the label that stands before it; where names are told as relations, by one.
    auto* const before = label(sheet, QStringLiteral("Resolution"));
    const auto relations = read(resolution).relations(QAccessible::Label);
    ASSERT_EQ(relations.size(), 1);
    EXPECT_EQ(relations.constFirst().first->object(), before);
    EXPECT_EQ(read(resolution).text(QAccessible::Value), QStringLiteral("1920 \u00d7 1080"));

    enter(Phase::playing());
    for (const auto& title : {QStringLiteral("Update the game"), QStringLiteral("Reinstall"),
                              QStringLiteral("Remove everything"), QStringLiteral("Show saves")})
        expectButton(*button(sheet, title), title, false);
    for (const auto& title : {QStringLiteral("Reveal in Finder"), QStringLiteral("Done")})
        expectButton(*button(sheet, title), title);
    EXPECT_TRUE(read(*button(sheet, QStringLiteral("Done"))).state().defaultButton);
}

TEST_F(AccessibilityTest, readsTheAboutSheet)
{
    auto& sheet = open<AboutView>(QStringLiteral("About"));
    EXPECT_EQ(read(sheet).role(), QAccessible::Dialog);
    EXPECT_EQ(name(sheet), QStringLiteral("About"));
    auto& link = only<LinkLabel>(sheet);
    EXPECT_EQ(read(link).role(), QAccessible::Link);
    EXPECT_EQ(name(link), QStringLiteral("https://github.com/brindlework-demos/tetherwalk"));
    EXPECT_TRUE(read(link).state().focusable);
}

} // namespace
