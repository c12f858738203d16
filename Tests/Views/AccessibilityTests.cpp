// SPDX-License-Identifier: MIT
#include "Views/ViewTest.h"

#include "Controls/LinkLabel.h"

#include <QAccessible>
#include <QComboBox>

namespace {

/// What assistive technology reads off the window.
class AccessibilityTest : public ViewTest
{
protected:
    static QAccessibleInterface& read(QWidget& widget)
    {
        return *QAccessible::queryAccessibleInterface(&widget);
    }
    static void expect(QWidget& widget, QAccessible::Role role, const QString& name)
    {
        SCOPED_TRACE(name);
        EXPECT_EQ(read(widget).role(), role);
        EXPECT_EQ(read(widget).text(QAccessible::Name), name);
    }
    static void expectButton(const QWidget& parent, const QString& title, bool isEnabled = true)
    {
        auto& found = *button(parent, title);
        expect(found, QAccessible::PushButton, title);
        EXPECT_EQ(!read(found).state().disabled, isEnabled);
    }
};

TEST_F(AccessibilityTest, readsTheWindow)
{
    EXPECT_EQ(window().windowTitle(), u"Cavernyx Platformer"_s);
    expect(window(), QAccessible::Window, window().windowTitle());
    for (const auto& text :
         {u"Cavernyx Platformer"_s, u"A 2D grappling-hook adventure"_s, model().facts().summary,
          u"Controls"_s, u"Grappling hook"_s, u"Hold F, or use the right stick"_s,
          model().statusTitle(), model().statusDetail()}) {
        ASSERT_TRUE(label(text)) << text;
        expect(*label(text), QAccessible::StaticText, text);
    }
    for (const auto& title : {u"Settings\u2026"_s, u"About"_s})
        expectButton(window(), title);
}

TEST_F(AccessibilityTest, readsTheStatusInWords)
{
    auto& dot = only<StatusDot>();
    enter(Phase::Kind::ready);
    expect(dot, QAccessible::Notification,
           u"Status: Ready \u2013 Everything is installed. Press Play."_s);
    enter(Phase::Kind::playing);
    expect(dot, QAccessible::Notification,
           u"Status: Playing \u2013 The game is running in its own window."_s);
}

TEST_F(AccessibilityTest, readsWhichButtonsOfThePanelCanBePressed)
{
    expectButton(panel(), u"Play"_s);
    EXPECT_TRUE(read(play()).state().defaultButton);
    EXPECT_TRUE(read(stop()).state().invisible);
    EXPECT_TRUE(read(cancel()).state().invisible);
    enter(Phase::Kind::playing);
    expectButton(panel(), u"Play"_s, false);
    expectButton(panel(), u"Stop"_s);
    EXPECT_FALSE(read(stop()).state().invisible);
    enter(Phase::Kind::settingUp);
    expectButton(panel(), u"Cancel"_s);
}

TEST_F(AccessibilityTest, readsTheProgress)
{
    enter(Phase::Kind::downloading);
    expect(progress(), QAccessible::ProgressBar, u"Progress"_s);
    auto* const bar = read(progress()).valueInterface();
    ASSERT_TRUE(bar);
    EXPECT_EQ(bar->maximumValue(), bar->minimumValue()) << "indeterminate";
    enterDownload(250, 1000);
    EXPECT_DOUBLE_EQ(bar->currentValue().toDouble() / bar->maximumValue().toDouble(), 0.2)
        << "it is read out at each tenth";
}

TEST_F(AccessibilityTest, readsAndPressesTheLogDisclosure)
{
    auto& interface = read(disclosure());
    expect(disclosure(), QAccessible::CheckBox, u"Show log"_s);
    EXPECT_TRUE(interface.state().checkable);
    EXPECT_FALSE(interface.state().checked);
    auto& actions = *interface.actionInterface();
    EXPECT_EQ(actions.actionNames().constFirst(), QAccessibleActionInterface::toggleAction());
    actions.doAction(QAccessibleActionInterface::toggleAction());
    QCoreApplication::processEvents();
    EXPECT_TRUE(model().showLog()) << "at once";
    EXPECT_TRUE(interface.state().checked);
}

TEST_F(AccessibilityTest, pressesAButtonAtOnceOrNotAtAll)
{
    enter(Phase::Kind::settingUp);
    play().setFocus();
    EXPECT_FALSE(read(play()).actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));

    auto presses = 0;
    QObject::connect(&cancel(), &QAbstractButton::clicked, &cancel(), [&] { ++presses; });
    auto& actions = *read(cancel()).actionInterface();
    EXPECT_EQ(actions.actionNames().constFirst(), QAccessibleActionInterface::pressAction());
    actions.doAction(QAccessibleActionInterface::pressAction());
    cancel().hide();
    settle();
    EXPECT_EQ(presses, 0) << "the button has gone";

    cancel().show();
    actions.doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(presses, 0) << "the caller does not wait for what the press does";
    settle();
    EXPECT_EQ(presses, 1);
}

TEST_F(AccessibilityTest, readsTheLogAndTheReportAsTexts)
{
    showAllBlocks();
    auto& log = logBox().edit();
    const auto lines = logged().join(u'\n');
    EXPECT_TRUE(waitUntil([&] { return log.text() == lines; }));

    for (const auto& [edit, title, text] :
         {std::tuple(&log, u"Log"_s, lines),
          std::tuple(&failure().edit(), u"Failure report"_s, *model().failureText())}) {
        expect(*edit, QAccessible::EditableText, title);
        EXPECT_TRUE(read(*edit).state().readOnly);
        auto* const content = read(*edit).textInterface();
        ASSERT_TRUE(content);
        EXPECT_EQ(content->text(0, content->characterCount()), text);
    }
    for (const auto& title : {u"Copy"_s, u"Copy log"_s})
        expectButton(window(), title);
}

TEST_F(AccessibilityTest, readsEveryControlOfTheSettingsWithItsChoice)
{
    model().setFullscreen(true);
    model().setResolution(ResolutionChoice::r1080);
    expect(settings(), QAccessible::Dialog, u"Settings"_s);

    auto& windowed = *button(settings(), u"Windowed");
    auto& fullscreen = *button(settings(), u"Fullscreen");
    expect(*windowed.parentWidget(), QAccessible::Grouping, u"Window"_s);
    for (auto* const segment : {&windowed, &fullscreen}) {
        expect(*segment, QAccessible::RadioButton, segment->text());
        EXPECT_EQ(read(*segment).state().checked, segment == &fullscreen);
    }
    auto& resolution = only<QComboBox>(settings());
    EXPECT_EQ(read(resolution).role(), QAccessible::ComboBox);
    EXPECT_EQ(read(resolution).text(QAccessible::Value), u"1920 \u00d7 1080"_s);
    // On the accessibility bus the label before it is its name.
    const auto relations = read(resolution).relations(QAccessible::Label);
    ASSERT_EQ(relations.size(), 1);
    EXPECT_EQ(relations.constFirst().first->object(), label(settings(), u"Resolution"));

    enter(Phase::Kind::playing);
    for (const auto& title : {u"Update the game"_s, u"Reinstall"_s,
                              only<DestructiveButton>(settings()).text(), u"Show saves"_s})
        expectButton(settings(), title, false);
    for (const auto& title : {u"Reveal in Finder"_s, u"Done"_s})
        expectButton(settings(), title);
    EXPECT_TRUE(read(*button(settings(), u"Done")).state().defaultButton);
}

TEST_F(AccessibilityTest, readsTheAboutSheet)
{
    expect(about(), QAccessible::Dialog, u"About"_s);
    auto& link = only<LinkLabel>(about());
    expect(link, QAccessible::Link, u"https://github.com/brindlework-demos/tetherwalk"_s);
    EXPECT_TRUE(read(link).state().focusable);
}

} // namespace
