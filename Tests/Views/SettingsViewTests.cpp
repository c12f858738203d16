// SPDX-License-Identifier: MIT
#include "Support/BusyPool.h"
#include "Views/ViewTest.h"

#include "Controls/SegmentedPicker.h"

#include <QAccessible>
#include <QComboBox>
#include <QDir>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>

namespace {

class SettingsViewTest : public ViewTest
{
protected:
    QAbstractButton& control(QStringView text) { return *button(settings(), text); }
    QComboBox& resolution() { return only<QComboBox>(settings()); }
    QAbstractButton& removal() { return only<DestructiveButton>(settings()); }
};

TEST_F(SettingsViewTest, is440WideAndPaddedBy20)
{
    EXPECT_EQ(settings().width(), 440);
    EXPECT_EQ(rectOf(*label(settings(), u"Settings")).topLeft(), QPoint(20, 20));
    EXPECT_EQ(gapBelow(*button(settings(), u"Reinstall"),
                       *label(settings(), u"Updating downloads the game again. Save files are "
                                          u"kept; they live in Godot's own folder.")),
              14);
    EXPECT_EQ(gapBelow(removal(), control(u"Done")), 14);
    EXPECT_EQ(rectOf(control(u"Done")).right(), 440 - 20 - 1);
    EXPECT_EQ(rectOf(control(u"Done")).bottom(), settings().height() - 20 - 1);
}

TEST_F(SettingsViewTest, hasItsTextsInOrder)
{
    expectTexts(settings(),
                {{u"Settings", 17, QFont::Bold},
                 {u"Window", 13},
                 {u"Resolution", 13},
                 {u"Applies the next time you press Play.", 10, QFont::Normal, true},
                 {u"Updating downloads the game again. Save files are kept; they live in "
                  u"Godot's own folder.",
                  10, QFont::Normal, true},
                 {u"No saves yet (Godot's user folder does not exist).", 10, QFont::Normal, true}});
}

TEST_F(SettingsViewTest, writesTheWindowModeAtOnce)
{
    control(u"Fullscreen").click();
    EXPECT_TRUE(model().fullscreen());
    control(u"Windowed").click();
    EXPECT_FALSE(model().fullscreen());
}

TEST_F(SettingsViewTest, writesWhatAssistiveTechnologyChooses)
{
    auto* const actions =
        QAccessible::queryAccessibleInterface(&control(u"Fullscreen"))->actionInterface();
    actions->doAction(actions->actionNames().constFirst());
    EXPECT_TRUE(model().fullscreen());
    resolution().setCurrentIndex(2);
    EXPECT_EQ(model().resolution(), ResolutionChoice::r900);
}

TEST_F(SettingsViewTest, offersTheResolutionsInOrderAndWritesTheChoiceAtOnce)
{
    QStringList labels;
    for (auto i = 0; i < resolution().count(); ++i)
        labels.append(resolution().itemText(i));
    EXPECT_EQ(labels, (QStringList{u"Game default"_s, u"1280 \u00d7 720"_s, u"1600 \u00d7 900"_s,
                                   u"1920 \u00d7 1080"_s, u"2560 \u00d7 1440"_s}));
    resolution().setFocus();
    QTest::keyClick(&resolution(), Qt::Key_Down);
    EXPECT_EQ(model().resolution(), ResolutionChoice::r720);
}

TEST_F(SettingsViewTest, leavesTheResolutionAloneWhenTheWheelTurnsOverIt)
{
    const auto turn = [this] {
        const auto position = resolution().rect().center();
        QWheelEvent event(position, resolution().mapToGlobal(position), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&resolution(), &event);
    };
    turn();
    resolution().setFocus();
    turn();
    EXPECT_EQ(model().resolution(), ResolutionChoice::gameDefault);
    EXPECT_EQ(resolution().focusPolicy(), Qt::StrongFocus) << "nor does the wheel move the focus";
}

TEST_F(SettingsViewTest, canBeClosedWhileAQuestionStands)
{
    desktop.answer = false;
    desktop.whileAsking = [this] {
        control(u"Done").click();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(window().findChild<SettingsView*>());
    };
    for (const auto* const title : {u"Update the game", u"Reinstall", u"Remove everything"})
        control(title).click();
    EXPECT_EQ(desktop.questions.size(), 3);
}

TEST_F(SettingsViewTest, closesWithTheShortcutThatClosesAWindow)
{
    const auto shortcuts = QKeySequence::keyBindings(QKeySequence::Close);
    ASSERT_FALSE(shortcuts.isEmpty());
    for (const auto& shortcut : shortcuts) {
        QTest::keySequence(&settings(), shortcut);
        settle();
        EXPECT_FALSE(window().findChild<SettingsView*>()) << qPrintable(shortcut.toString());
        EXPECT_TRUE(window().isVisible());
    }
}

TEST_F(SettingsViewTest, showsTheStoredSettings)
{
    model().setFullscreen(true);
    model().setResolution(ResolutionChoice::r1080);
    EXPECT_TRUE(control(u"Fullscreen").isChecked());
    EXPECT_EQ(resolution().currentText(), u"1920 \u00d7 1080"_s);
}

TEST_F(SettingsViewTest, doesNotStoreWhatItOnlyShows)
{
    home.write(u"config"_s); // No folder, so that every attempt to store is logged.
    settings();
    model().setFullscreen(true);
    model().setResolution(ResolutionChoice::r1080);
    EXPECT_EQ(logged().size(), 2);
}

TEST_F(SettingsViewTest, disablesMaintenanceWhileBusy)
{
    const auto maintenance = {&control(u"Update the game"), &control(u"Reinstall"), &removal()};
    for (const auto phase :
         {Phase::Kind::downloading, Phase::Kind::settingUp, Phase::Kind::playing}) {
        enter(phase);
        for (const auto* const action : maintenance)
            EXPECT_FALSE(action->isEnabled());
        for (const auto* const title : {u"Fullscreen", u"Reveal in Finder", u"Done"})
            EXPECT_TRUE(control(title).isEnabled());
        EXPECT_TRUE(resolution().isEnabled());
    }
    enter(Phase::Kind::ready);
    for (const auto* const action : maintenance)
        EXPECT_TRUE(action->isEnabled());
}

TEST_F(SettingsViewTest, disablesWhatAFlowRefusesAlreadyInItsSilentChecks)
{
    installGame();
    model().refreshState();
    const auto maintenance = {&control(u"Update the game"), &control(u"Reinstall"), &removal()};
    {
        const BusyPool busy;
        model().play();
        ASSERT_FALSE(model().phase().isBusy());
        for (const auto* const action : maintenance)
            EXPECT_FALSE(action->isEnabled());
        EXPECT_FALSE(play().isEnabled());
        model().cancelSetup();
    }
    waitForFlow();
    for (const auto* const action : maintenance)
        EXPECT_TRUE(action->isEnabled());
    EXPECT_TRUE(play().isEnabled());
}

TEST_F(SettingsViewTest, offersTheSavesOnceThereAreAny)
{
    auto& note = *label(settings(), u"No saves yet (Godot's user folder does not exist).");
    enter(Phase::Kind::ready);
    EXPECT_FALSE(control(u"Show saves").isEnabled());
    EXPECT_TRUE(note.isVisible());

    home.makeFolder(u"data/godot/app_userdata/Tether"_s);
    model().refreshState();
    EXPECT_TRUE(control(u"Show saves").isEnabled());
    EXPECT_FALSE(note.isVisible());
    control(u"Show saves").click();
    EXPECT_EQ(desktop.opened.size(), 1);
    EXPECT_TRUE(settings().isVisible());

    ASSERT_TRUE(QDir(home.path(u"data/godot/app_userdata/Tether"_s)).removeRecursively());
    control(u"Show saves").click();
    EXPECT_FALSE(control(u"Show saves").isEnabled());
    EXPECT_TRUE(note.isVisible());
}

TEST_F(SettingsViewTest, saysWhatRemovingFreesAsItIsMeasuredWhenItOpens)
{
    EXPECT_EQ(removal().text(), u"Remove everything"_s);
    settings().reject();
    settle();
    home.write(root(u"more"_s), QByteArray(3'000'000, 'x'));
    ASSERT_EQ(model().installedSize(), QString());
    settings();
    EXPECT_TRUE(waitUntil([this] {
        return removal().text() == u"Remove everything (frees 3 MB)"_s;
    })) << removal().text();
}

TEST_F(SettingsViewTest, keepsItsControlsInLineWhenTheFontGrows)
{
    const auto expectInLine = [this] {
        const auto& window = only<SegmentedPicker>(settings());
        EXPECT_EQ(rectOf(window).left(), rectOf(resolution()).left());
        EXPECT_EQ(rectOf(resolution()).right(), 440 - 20 - 1);
        EXPECT_EQ(gapBeside(*label(settings(), u"Resolution"), resolution()), 8);
        EXPECT_EQ(gapBelow(window, resolution()), 14);
    };
    expectInLine();
    enlargeFont();
    expectInLine();
}

TEST_F(SettingsViewTest, dividesTheSettingsFromTheMaintenance)
{
    const auto& divider = only<Divider>(settings());
    EXPECT_EQ(gapBelow(*label(settings(), u"Applies the next time you press Play."), divider), 14);
    EXPECT_EQ(gapBelow(divider, control(u"Update the game")), 14);
    EXPECT_EQ(divider.size(), QSize(400, 1));
}

TEST_F(SettingsViewTest, closesWithReturnFromAnywhereInIt)
{
    for (const auto* const title :
         {u"Windowed", u"Game default", u"Reinstall", u"Reveal in Finder", u"Done"}) {
        SCOPED_TRACE(QString::fromUtf16(title));
        const QPointer<SettingsView> open(&settings());
        auto* const focused = button(*open, title);
        auto& target = focused ? static_cast<QWidget&>(*focused) : resolution();
        target.setFocus();
        QTest::keyClick(&target, Qt::Key_Return);
        settle();
        EXPECT_FALSE(open);
        EXPECT_TRUE(desktop.questions.isEmpty());
    }
}

} // namespace
