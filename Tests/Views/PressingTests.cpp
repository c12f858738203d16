// SPDX-License-Identifier: MIT
// What a press of the mouse on each button of the window and its sheets does.

#include "Support/Await.h"
#include "Views/PlayPanelTest.h"

#include "Views/AboutView.h"
#include "Views/SettingsView.h"

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QTest>

#include <algorithm>

namespace {

class PressingTest : public PlayPanelTest
{
protected:
    static void press(QAbstractButton* target)
    {
        ASSERT_TRUE(target && target->isVisible());
        QTest::mouseClick(target, Qt::LeftButton);
        settle();
    }
    /// Puts a game and an engine on the disk; the engine is a script.
    void install(const QByteArray& engine)
    {
        installGame();
        installEngine(engine);
        writeMarker();
        model().refreshState();
        settle();
        ASSERT_EQ(model().phase(), Phase::ready());
    }
    bool waitForLine(const QString& line)
    {
        return waitUntil([&] { return logged().contains(line); });
    }
};

TEST_F(PressingTest, playsAndStops)
{
    install("echo up; exec sleep 60");
    press(&play());
    ASSERT_TRUE(waitForLine(QStringLiteral("up")));
    settle();
    press(&stop());
    waitForFlow();
    EXPECT_EQ(logged().constLast(), QStringLiteral("Game stopped by you."));
    EXPECT_EQ(model().phase(), Phase::ready());
}

TEST_F(PressingTest, cancelsTheSetup)
{
    install("echo up; exec sleep 60");
    ASSERT_TRUE(QFile::remove(root(QStringLiteral("Game/.setup-v2-3.5.3-stable"))));
    ASSERT_TRUE(QFile::remove(root(QStringLiteral("Game/tetherwalk-master/.import/a.stex"))));
    press(&play());
    ASSERT_TRUE(waitForLine(QStringLiteral("up")));
    settle();
    press(&cancel());
    waitForFlow();
    EXPECT_EQ(logged().constLast(), QStringLiteral("Cancelled."));
    EXPECT_FALSE(model().phase().isBusy());
}

TEST_F(PressingTest, copiesTheReportAndTheLog)
{
    AppModelAccess::setFailureText(model(), QStringLiteral("What happened"));
    model().log().append(QStringLiteral("a line"));
    enter(Phase::needs(QStringLiteral("It broke.")));
    press(&disclosure());
    ASSERT_TRUE(model().showLog());
    window().resize(window().width(), window().widget()->height());
    settle();
    press(button(QStringLiteral("Copy")));
    press(button(QStringLiteral("Copy log")));
    EXPECT_EQ(desktop.copied,
              (QStringList{QStringLiteral("What happened"), QStringLiteral("a line")}));
}

TEST_F(PressingTest, opensTheSheetsAndClosesThemWithDone)
{
    press(button(QStringLiteral("Settings\u2026")));
    press(button(only<SettingsView>(), QStringLiteral("Done")));
    EXPECT_FALSE(window().findChild<SettingsView*>());
    press(button(QStringLiteral("About")));
    press(button(only<AboutView>(), QStringLiteral("Done")));
    EXPECT_FALSE(window().findChild<AboutView*>());
}

TEST_F(PressingTest, asksBeforeItUpdatesReinstallsOrRemoves)
{
    install("exit 0");
    desktop.answer = false;
    const std::pair<QString, QString> actions[]{
        {QStringLiteral("Update the game"), QStringLiteral("Update the game?")},
        {QStringLiteral("Reinstall"), QStringLiteral("Reinstall everything?")},
    };
    for (const auto& [title, question] : actions) {
        auto& sheet = open<SettingsView>(QStringLiteral("Settings\u2026"));
        press(button(sheet, title));
        EXPECT_EQ(desktop.questions.constLast().title, question);
        EXPECT_FALSE(window().findChild<SettingsView*>()) << "the sheet closes";
    }
    EXPECT_TRUE(QFile::exists(root(QStringLiteral("Game/tetherwalk-master/project.godot"))));
    EXPECT_TRUE(QFile::exists(root(QStringLiteral("Engine/3.5.3-stable"))));
}

TEST_F(PressingTest, removesEverythingAndLeavesTheSheetOpen)
{
    install("exit 0");
    const QPointer<SettingsView> sheet(&open<SettingsView>(QStringLiteral("Settings\u2026")));
    const auto buttons = sheet->findChildren<QAbstractButton*>();
    const auto removal = std::find_if(buttons.begin(), buttons.end(), [](const auto* candidate) {
        return candidate->text().startsWith(QStringLiteral("Remove everything"));
    });
    ASSERT_NE(removal, buttons.end());
    press(*removal);
    EXPECT_TRUE(waitUntil([this] { return !QDir(root()).exists(); }));
    EXPECT_TRUE(waitUntil([this] { return model().phase() == Phase::Kind::notDownloaded; }));
    EXPECT_TRUE(sheet && sheet->isVisible());
}

TEST_F(PressingTest, revealsTheInstallFolderAndOpensTheSaves)
{
    install("exit 0");
    ASSERT_TRUE(QDir().mkpath(home.path(QStringLiteral("data/godot/app_userdata/Tether"))));
    auto& sheet = open<SettingsView>(QStringLiteral("Settings\u2026"));
    press(button(sheet, QStringLiteral("Reveal in Finder")));
    EXPECT_EQ(desktop.revealed, QStringList{root()});
    press(button(sheet, QStringLiteral("Show saves")));
    EXPECT_EQ(desktop.opened,
              QStringList{home.path(QStringLiteral("data/godot/app_userdata/Tether"))});
    EXPECT_TRUE(sheet.isVisible());
}

} // namespace
