// SPDX-License-Identifier: MIT
// What a mouse press on each button of the window and its sheets does.

#include "Views/ViewTest.h"

#include <QDir>
#include <QFile>
#include <QPointer>
#include <QTest>

namespace {

class PressingTest : public ViewTest
{
protected:
    static void press(QAbstractButton* target)
    {
        ASSERT_TRUE(target && target->isVisible());
        QTest::mouseClick(target, Qt::LeftButton);
        settle();
    }
    void playUntilTheEngineRuns()
    {
        press(&play());
        ASSERT_TRUE(waitUntil([this] { return logged().contains(u"up"_s); }));
        settle();
    }
};

TEST_F(PressingTest, playsAndStops)
{
    install("echo up; exec sleep 60");
    playUntilTheEngineRuns();
    press(&stop());
    waitForFlow();
    EXPECT_EQ(logged().constLast(), u"Game stopped by you."_s);
    EXPECT_EQ(model().phase(), Phase::ready());
}

TEST_F(PressingTest, cancelsTheSetup)
{
    install("echo up; exec sleep 60");
    ASSERT_TRUE(QFile::remove(EngineManager().markerFile()));
    ASSERT_TRUE(QFile::remove(root(u"Game/tetherwalk-master/.import/a.stex"_s)));
    playUntilTheEngineRuns();
    press(&cancel());
    waitForFlow();
    EXPECT_EQ(logged().constLast(), u"Cancelled."_s);
    EXPECT_FALSE(model().phase().isBusy());
}

TEST_F(PressingTest, copiesTheReportAndTheLog)
{
    enter(Phase::Kind::needs);
    press(&disclosure());
    ASSERT_TRUE(model().showLog());
    window().resize(window().width(), window().widget()->height());
    settle();
    press(button(u"Copy"));
    press(button(u"Copy log"));
    EXPECT_EQ(desktop.copied, (QStringList{*model().failureText(), logged().join(u'\n')}));
}

TEST_F(PressingTest, opensTheSheetsAndClosesThemWithDone)
{
    press(button(u"Settings\u2026"));
    press(button(only<SettingsView>(), u"Done"));
    EXPECT_FALSE(window().findChild<SettingsView*>());
    press(button(u"About"));
    press(button(only<AboutView>(), u"Done"));
    EXPECT_FALSE(window().findChild<AboutView*>());
}

TEST_F(PressingTest, asksBeforeItUpdatesReinstallsOrRemoves)
{
    install("exit 0");
    desktop.answer = false;
    press(&only<DestructiveButton>(settings()));
    EXPECT_EQ(desktop.questions.constLast().title, u"Remove everything?"_s);
    ASSERT_TRUE(window().findChild<SettingsView*>()) << "the sheet stays open";
    for (const auto& [title, question] : {std::pair(u"Update the game", u"Update the game?"_s),
                                          std::pair(u"Reinstall", u"Reinstall everything?"_s)}) {
        press(button(settings(), title));
        EXPECT_EQ(desktop.questions.constLast().title, question);
        EXPECT_FALSE(window().findChild<SettingsView*>()) << "the sheet closes";
    }
    EXPECT_TRUE(exists(u"Game/tetherwalk-master/project.godot"_s));
    EXPECT_TRUE(EngineManager().executable());
}

TEST_F(PressingTest, removesEverythingAndLeavesTheSheetOpen)
{
    install("exit 0");
    const QPointer<SettingsView> sheet(&settings());
    press(&only<DestructiveButton>(*sheet));
    EXPECT_TRUE(waitUntil([this] { return !QDir(root()).exists(); }));
    EXPECT_TRUE(waitUntil([this] { return model().phase() == Phase::Kind::notDownloaded; }));
    EXPECT_TRUE(sheet && sheet->isVisible());
}

TEST_F(PressingTest, revealsTheInstallFolderAndOpensTheSaves)
{
    install("exit 0");
    const auto saves = home.makeFolder(u"data/godot/app_userdata/Tether"_s);
    press(button(settings(), u"Reveal in Finder"));
    EXPECT_EQ(desktop.revealed, QStringList{root()});
    press(button(settings(), u"Show saves"));
    EXPECT_EQ(desktop.opened, QStringList{saves});
    EXPECT_TRUE(settings().isVisible());
}

} // namespace
