// SPDX-License-Identifier: MIT
#include "Support/ModelTest.h"

namespace {

using Maintenance = ModelTest;

TEST_F(Maintenance, copiesTheFailureReportWhenThereIsOne)
{
    startModel().copyFailure();
    EXPECT_TRUE(desktop.copied.isEmpty());
    enter(Phase::Kind::needs);
    model().copyFailure();
    EXPECT_EQ(desktop.copied, QStringList{*model().failureText()});
}

TEST_F(Maintenance, copiesTheNewestTwoThousandLogLinesAlsoBeforeTheyAreShown)
{
    startModel();
    for (int line = 1; line <= 2500; ++line)
        model().log().append(QString::number(line));
    model().copyLog();
    ASSERT_EQ(desktop.copied.size(), 1);
    EXPECT_TRUE(desktop.copied[0].startsWith(u"501\n502\n"));
    EXPECT_TRUE(desktop.copied[0].endsWith(u"\n2499\n2500"));
    EXPECT_EQ(desktop.copied[0].count(u'\n'), 1999);
}

TEST_F(Maintenance, copiesAnEmptyLogAsEmptyText)
{
    startModel().copyLog();
    EXPECT_EQ(desktop.copied, QStringList{QString()});
}

TEST_F(Maintenance, refusesEveryDestructiveActionWhileBusy)
{
    startModel();
    for (const auto phase :
         {Phase::Kind::downloading, Phase::Kind::settingUp, Phase::Kind::playing}) {
        enter(phase);
        model().updateGame();
        model().reinstall();
        model().removeEverything();
        EXPECT_TRUE(desktop.questions.isEmpty());
        EXPECT_EQ(model().phase(), phase);
    }
}

TEST_F(Maintenance, doesNothingWhenDeclined)
{
    installGame();
    startModel();
    desktop.answer = false;
    model().updateGame();
    model().reinstall();
    model().removeEverything();
    EXPECT_EQ(desktop.questions.size(), 3);
    EXPECT_FALSE(model().isBusy());
    EXPECT_TRUE(exists(u"Game"_s));
}

TEST_F(Maintenance, showsTheSavesOnlyOnceThereAreSome)
{
    installGame();
    startModel();
    EXPECT_FALSE(model().savesFolder());
    model().showSaves();
    EXPECT_TRUE(desktop.opened.isEmpty());
    const auto saves = home.makeFolder(u"data/godot/app_userdata/Tether"_s);
    EXPECT_EQ(model().savesFolder(), saves);
    model().showSaves();
    EXPECT_EQ(desktop.opened, QStringList{saves});
}

TEST_F(Maintenance, revealsTheRootOrElseItsParent)
{
    startModel().revealInFinder();
    EXPECT_EQ(desktop.revealed, QStringList{home.path(u"data"_s)});
    installGame();
    model().revealInFinder();
    EXPECT_EQ(desktop.revealed.last(), root());
}

} // namespace
