// SPDX-License-Identifier: MIT
#include "Support/AppModelAccess.h"
#include "Support/Await.h"
#include "Support/ModelTest.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

class State : public ModelTest
{
protected:
    void waitForSize(bool empty)
    {
        EXPECT_TRUE(waitUntil([&] { return model().installedSize().isEmpty() == empty; }));
    }
};

TEST_F(State, isNotDownloadedWithNothingOnDisk)
{
    startModel();
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
    EXPECT_EQ(model().statusTitle(), u"Not downloaded");
    EXPECT_EQ(model().statusDetail(),
              u"Downloads the game and the Godot engine once, about 70 MB for the engine plus the "
              u"game's files. Nothing to type.");
    EXPECT_EQ(model().facts(), RepoFacts());
    EXPECT_FALSE(model().info());
    EXPECT_FALSE(model().failureText());
    EXPECT_FALSE(model().showLog());
    EXPECT_FALSE(model().stillStarting());
    EXPECT_FALSE(model().progress());
    AppModelAccess::finishMeasuring();
    EXPECT_TRUE(model().installedSize().isEmpty());
    EXPECT_FALSE(home.exists(u"data/Cavernyx Platformer"_s));
}

TEST_F(State, describesAGameWhoseEngineIsMissing)
{
    installGame();
    home.write(u"data/Cavernyx Platformer/Game/README.org"_s, "#+DESCRIPTION: A tiny game.\n");
    startModel();
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
    ASSERT_TRUE(model().info());
    EXPECT_EQ(model().info()->name, u"Tether");
    EXPECT_EQ(model().facts().summary, u"A tiny game.");
}

TEST_F(State, isNotDownloadedWithoutTheSetupMarker)
{
    installGame();
    installEngine("exit 0");
    startModel();
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
    EXPECT_TRUE(model().info());
}

TEST_F(State, isReadyWithGameEngineAndMarker)
{
    installGame();
    installEngine("exit 0");
    writeMarker();
    startModel();
    EXPECT_EQ(model().phase(), Phase::ready());
    EXPECT_EQ(model().statusTitle(), u"Ready");
    EXPECT_EQ(model().statusDetail(), u"Everything is installed. Press Play.");
}

TEST_F(State, wantsTheOtherEngineAndMarkerForACSharpGame)
{
    installGame("config/features=PoolStringArray(\"C#\")\n");
    installEngine("exit 0");
    writeMarker();
    EXPECT_EQ(startModel().phase(), Phase::notDownloaded());
    installEngine("exit 0", u"3.5.3-stable-mono"_s);
    home.write(u"data/Cavernyx Platformer/Game/.setup-v2-3.5.3-stable-mono"_s);
    EXPECT_EQ(startModel().phase(), Phase::ready());
}

TEST_F(State, forgetsAGameThatIsNotReadableAnyMore)
{
    installGame();
    startModel();
    ASSERT_TRUE(model().info());
    home.write(u"data/Cavernyx Platformer/Game/tetherwalk-master/project.godot"_s, "nothing");
    model().refreshState();
    EXPECT_FALSE(model().info());
    EXPECT_EQ(model().facts(), RepoFacts());
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
}

TEST_F(State, measuresWhatIsInstalledAndIsEmptyAgainWhenNothingIs)
{
    home.write(u"data/Cavernyx Platformer/Game/big"_s, QByteArray(300'000, 'x'));
    startModel();
    waitForSize(false);
    EXPECT_TRUE(model().installedSize().endsWith(u"KB")) << model().installedSize().toStdString();
    ASSERT_TRUE(QFile::remove(root(u"Game/big"_s)));
    model().updateSize();
    waitForSize(true);
}

TEST_F(State, neverLetsAnOlderMeasurementOverwriteANewerOne)
{
    startModel();
    AppModelAccess::applySize(model(), 1002, 2'000'000);
    AppModelAccess::applySize(model(), 1001, 9'000'000);
    EXPECT_EQ(model().installedSize(), u"2 MB");
}

TEST_F(State, showsADownloadOfUnknownSizeAsIndeterminateButWithItsAmount)
{
    startModel();
    for (const qint64 total : {0, -1}) {
        AppModelAccess::applyProgress(
            model(), {.received = 7'300'000, .total = total, .bytesPerSecond = 2'400'000});
        EXPECT_FALSE(model().progress());
        EXPECT_EQ(model().progressText(), u"7.3 MB · 2.4 MB/s");
    }
}

TEST_F(State, showsAtMostAWholeDownload)
{
    startModel();
    AppModelAccess::applyProgress(model(), {.received = 50, .total = 200, .bytesPerSecond = 1});
    EXPECT_EQ(model().progress(), 0.25);
    AppModelAccess::applyProgress(model(), {.received = 300, .total = 200, .bytesPerSecond = 1});
    EXPECT_EQ(model().progress(), 1.0);
}

TEST_F(State, keepsAFailureUntilTheNextRefresh)
{
    startModel();
    model().log().append(u"a line"_s);
    AppModelAccess::fail(model(), u"Something is wrong."_s);
    EXPECT_EQ(model().phase(), Phase::needs(u"Something is wrong."_s));
    EXPECT_EQ(model().statusTitle(), u"Needs something");
    EXPECT_EQ(model().statusDetail(), u"Something is wrong.");
    EXPECT_EQ(model().failureText(),
              u"What happened: Something is wrong.\n\nLast log lines:\na line");
    model().refreshState();
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
    EXPECT_TRUE(model().failureText());
}

TEST_F(State, quotesAtMostThirtyLogLinesInAFailureReport)
{
    startModel();
    AppModelAccess::fail(model(), u"No."_s);
    EXPECT_EQ(model().failureText(), u"What happened: No.\n\nLast log lines:\n");
    for (int line = 1; line <= 31; ++line)
        model().log().append(QString::number(line));
    AppModelAccess::fail(model(), u"No."_s);
    EXPECT_TRUE(model().failureText()->contains(u"Last log lines:\n2\n3\n"));
    EXPECT_TRUE(model().failureText()->endsWith(u"\n30\n31"));
}

TEST_F(State, namesEachPhaseInItsOwnWords)
{
    durations = {};
    startModel();
    AppModelAccess::setStep(model(), u"the step"_s);
    AppModelAccess::setPhase(model(), Phase::downloading());
    EXPECT_EQ(model().statusTitle(), u"Downloading");
    EXPECT_EQ(model().statusDetail(), u"the step");
    AppModelAccess::setPhase(model(), Phase::settingUp());
    EXPECT_EQ(model().statusTitle(), u"Setting up");
    EXPECT_EQ(model().statusDetail(), u"the step");
    AppModelAccess::setPhase(model(), Phase::playing());
    AppModelAccess::setStillStarting(model(), true);
    EXPECT_EQ(model().statusTitle(), u"Starting…");
    EXPECT_EQ(model().statusDetail(),
              u"The game was launched. Waiting 10 seconds to make sure it stays open.");
    AppModelAccess::setStillStarting(model(), false);
    EXPECT_EQ(model().statusTitle(), u"Playing");
    EXPECT_EQ(model().statusDetail(), u"The game is running in its own window.");
    AppModelAccess::setPhase(model(), Phase::notDownloaded());
}

TEST_F(State, ignoresARelativeDataFolder)
{
    const EnvironmentScope data("XDG_DATA_HOME", "relative/path");
    const EnvironmentScope user("HOME", home.path().toUtf8());
    home.write(u".local/share/Cavernyx Platformer/Game/project.godot"_s, "config_version=4\n");
    EXPECT_TRUE(startModel().info());
}

TEST_F(State, announcesEachChangeOfAPropertyAfterIt)
{
    startModel();
    QStringList titles;
    const auto connection = QObject::connect(&model(), &AppModel::changed, &model(),
                                             [&] { titles.append(model().statusTitle()); });
    AppModelAccess::fail(model(), u"No."_s);
    EXPECT_EQ(titles.last(), u"Needs something");
    model().setShowLog(true);
    EXPECT_EQ(titles.size(), 2);
    model().setShowLog(true);
    EXPECT_EQ(titles.size(), 2);
    QObject::disconnect(connection);
}

} // namespace
