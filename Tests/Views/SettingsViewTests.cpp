// SPDX-License-Identifier: MIT
#include "Support/AppModelAccess.h"
#include "Support/Await.h"
#include "Views/ViewTest.h"

#include "Views/Divider.h"
#include "Views/SegmentedPicker.h"
#include "Views/SettingsView.h"

#include <QAccessible>
#include <QComboBox>
#include <QDir>
#include <QLayout>
#include <QPointer>
#include <QTest>

namespace {

class SettingsViewTest : public ViewTest
{
protected:
    SettingsView& sheet()
    {
        auto* const open = window().findChild<SettingsView*>();
        return open ? *open : this->open<SettingsView>(QStringLiteral("Settings\u2026"));
    }
    QAbstractButton& control(const QString& text) { return *button(sheet(), text); }
    QComboBox& resolution() { return only<QComboBox>(sheet()); }
    /// The remove button, whatever its title.
    QAbstractButton& removal()
    {
        const auto buttons = sheet().findChildren<QAbstractButton*>();
        for (auto* const candidate : buttons) {
            if (candidate->text().startsWith(QStringLiteral("Remove everything")))
                return *candidate;
        }
        qFatal("There is no remove button.");
    }
};

TEST_F(SettingsViewTest, is440WideAndPaddedBy20)
{
    EXPECT_EQ(sheet().width(), 440);
    EXPECT_EQ(sheet().layout()->contentsMargins(), QMargins(20, 20, 20, 20));
    EXPECT_EQ(sheet().layout()->spacing(), 14);
    EXPECT_EQ(place(control(QStringLiteral("Done"))).right(), 440 - 20 - 1);
    EXPECT_EQ(place(control(QStringLiteral("Done"))).bottom(), sheet().height() - 20 - 1);
}

TEST_F(SettingsViewTest, hasItsTextsInOrder)
{
    auto bottom = 0;
    for (const auto& text :
         {QStringLiteral("Settings"), QStringLiteral("Window"), QStringLiteral("Resolution"),
          QStringLiteral("Applies the next time you press Play."),
          QStringLiteral("Updating downloads the game again. Save files are kept; they live in "
                         "Godot's own folder."),
          QStringLiteral("No saves yet (Godot's user folder does not exist).")}) {
        auto* const found = label(sheet(), text);
        ASSERT_TRUE(found) << text.toStdString();
        EXPECT_TRUE(found->isVisible());
        EXPECT_GT(place(*found).top(), bottom);
        bottom = place(*found).bottom();
    }
}

TEST_F(SettingsViewTest, writesTheWindowModeAtOnce)
{
    control(QStringLiteral("Fullscreen")).click();
    EXPECT_TRUE(model().fullscreen());
    control(QStringLiteral("Windowed")).click();
    EXPECT_FALSE(model().fullscreen());
}

TEST_F(SettingsViewTest, writesWhatAnAssistiveTechnologyChooses)
{
    auto* const segment =
        QAccessible::queryAccessibleInterface(&control(QStringLiteral("Fullscreen")));
    segment->actionInterface()->doAction(segment->actionInterface()->actionNames().constFirst());
    EXPECT_TRUE(model().fullscreen());
    resolution().setCurrentIndex(2);
    EXPECT_EQ(model().resolution(), ResolutionChoice::r900);
}

TEST_F(SettingsViewTest, offersTheResolutionsInOrderAndWritesTheChoiceAtOnce)
{
    QStringList labels;
    for (auto i = 0; i < resolution().count(); ++i)
        labels.append(resolution().itemText(i));
    EXPECT_EQ(labels,
              (QStringList{QStringLiteral("Game default"), QStringLiteral("1280 \u00d7 720"),
                           QStringLiteral("1600 \u00d7 900"), QStringLiteral("1920 \u00d7 1080"),
                           QStringLiteral("2560 \u00d7 1440")}));
    resolution().setFocus();
    QTest::keyClick(&resolution(), Qt::Key_Down);
    EXPECT_EQ(model().resolution(), ResolutionChoice::r720);
}

TEST_F(SettingsViewTest, showsTheStoredSettings)
{
    model().setFullscreen(true);
    model().setResolution(ResolutionChoice::r1080);
    EXPECT_EQ(only<SegmentedPicker>(sheet()).current(), 1);
    EXPECT_EQ(resolution().currentText(), QStringLiteral("1920 \u00d7 1080"));
}

TEST_F(SettingsViewTest, disablesWhatWouldDisturbWhileBusy)
{
    for (const auto& phase : {Phase::downloading(), Phase::settingUp(), Phase::playing()}) {
        AppModelAccess::setPhase(model(), phase);
        EXPECT_FALSE(control(QStringLiteral("Update the game")).isEnabled());
        EXPECT_FALSE(control(QStringLiteral("Reinstall")).isEnabled());
        EXPECT_FALSE(removal().isEnabled());
        EXPECT_TRUE(control(QStringLiteral("Fullscreen")).isEnabled());
        EXPECT_TRUE(resolution().isEnabled());
        EXPECT_TRUE(control(QStringLiteral("Reveal in Finder")).isEnabled());
        EXPECT_TRUE(control(QStringLiteral("Done")).isEnabled());
    }
    AppModelAccess::setPhase(model(), Phase::ready());
    EXPECT_TRUE(control(QStringLiteral("Update the game")).isEnabled());
    EXPECT_TRUE(control(QStringLiteral("Reinstall")).isEnabled());
    EXPECT_TRUE(removal().isEnabled());
}

TEST_F(SettingsViewTest, offersTheSavesOnceThereAreAny)
{
    ProjectInfo info;
    info.name = QStringLiteral("Swing");
    AppModelAccess::setInfo(model(), info);
    EXPECT_FALSE(control(QStringLiteral("Show saves")).isEnabled());
    EXPECT_TRUE(label(sheet(), QStringLiteral("No saves yet (Godot's user folder does not exist)."))
                    ->isVisible());

    ASSERT_TRUE(QDir().mkpath(home.path(QStringLiteral("data/godot/app_userdata/Swing"))));
    AppModelAccess::setInfo(model(), info);
    EXPECT_TRUE(control(QStringLiteral("Show saves")).isEnabled());
    EXPECT_FALSE(
        label(sheet(), QStringLiteral("No saves yet (Godot's user folder does not exist)."))
            ->isVisible());
    control(QStringLiteral("Show saves")).click();
    EXPECT_EQ(desktop.opened.size(), 1);
    EXPECT_TRUE(sheet().isVisible());
}

TEST_F(SettingsViewTest, measuresAnewWhenItOpens)
{
    ASSERT_TRUE(QDir().mkpath(root()));
    QFile file(root(QStringLiteral("more")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(3'000'000, 'x'));
    file.close();
    ASSERT_EQ(model().installedSize(), QString());
    sheet();
    EXPECT_TRUE(waitUntil([this] {
        return removal().text() == QStringLiteral("Remove everything (frees 3 MB)");
    })) << qPrintable(removal().text());
}

TEST_F(SettingsViewTest, keepsItsControlsInLineWhenTheFontGrows)
{
    const auto font = QApplication::font();
    const auto expectInLine = [this] {
        EXPECT_EQ(place(only<SegmentedPicker>(sheet())).left(), place(resolution()).left());
        EXPECT_EQ(place(resolution()).right(), 440 - 20 - 1);
        EXPECT_EQ(place(resolution()).left() -
                      place(*label(sheet(), QStringLiteral("Resolution"))).right() - 1,
                  8);
        EXPECT_EQ(place(resolution()).top() - place(only<SegmentedPicker>(sheet())).bottom() - 1,
                  14);
    };
    expectInLine();
    auto larger = font;
    larger.setPointSizeF(font.pointSizeF() * 4 / 3);
    QApplication::setFont(larger);
    settle();
    expectInLine();
    QApplication::setFont(font);
}

TEST_F(SettingsViewTest, setsTheMaintenanceOffWithALine)
{
    const auto divider = place(only<Divider>(sheet()));
    const auto* const above =
        label(sheet(), QStringLiteral("Applies the next time you press Play."));
    EXPECT_EQ(divider.top() - place(*above).bottom() - 1, 14);
    EXPECT_EQ(place(control(QStringLiteral("Update the game"))).top() - divider.bottom() - 1, 14);
    EXPECT_EQ(divider.size(), QSize(400, 1));
}

TEST_F(SettingsViewTest, namesWhatRemovingFrees)
{
    AppModelAccess::setInstalledSize(model(), {});
    EXPECT_EQ(removal().text(), QStringLiteral("Remove everything"));
    AppModelAccess::setInstalledSize(model(), QStringLiteral("312.4 MB"));
    EXPECT_EQ(removal().text(), QStringLiteral("Remove everything (frees 312.4 MB)"));
}

TEST_F(SettingsViewTest, staysOpenAfterRemovingButClosesAfterUpdating)
{
    desktop.answer = false;
    const QPointer<SettingsView> open(&sheet());
    removal().click();
    settle();
    EXPECT_EQ(desktop.questions.constLast().title, QStringLiteral("Remove everything?"));
    ASSERT_TRUE(open && open->isVisible());
    control(QStringLiteral("Update the game")).click();
    settle();
    EXPECT_EQ(desktop.questions.constLast().title, QStringLiteral("Update the game?"));
    EXPECT_FALSE(open);
}

TEST_F(SettingsViewTest, closesWithReturnFromAnywhereInIt)
{
    for (const auto& text : {QStringLiteral("Windowed"), QStringLiteral("Reinstall"),
                             QStringLiteral("Reveal in Finder"), QStringLiteral("Done")}) {
        const QPointer<SettingsView> open(&sheet());
        control(text).setFocus();
        QTest::keyClick(&control(text), Qt::Key_Return);
        settle();
        EXPECT_FALSE(open) << text.toStdString();
        EXPECT_TRUE(desktop.questions.isEmpty());
    }
    const QPointer<SettingsView> open(&sheet());
    resolution().setFocus();
    QTest::keyClick(&resolution(), Qt::Key_Return);
    settle();
    EXPECT_FALSE(open);
}

} // namespace
