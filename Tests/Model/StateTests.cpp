// SPDX-License-Identifier: MIT
#include "Support/Await.h"
#include "Support/ModelTest.h"

#include <QDir>
#include <QSignalSpy>

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
    waitForDeletion();
    EXPECT_TRUE(model().installedSize().isEmpty());
    EXPECT_FALSE(exists({}));
}

TEST_F(State, describesAGameWhoseEngineIsMissing)
{
    installGame();
    home.write(root(u"Game/README.org"_s), "#+DESCRIPTION: A tiny game.\n");
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
    const EngineManager mono{.mono = true};
    installGame("config/features=PoolStringArray(\"C#\")\n");
    installEngine("exit 0");
    writeMarker();
    EXPECT_EQ(startModel().phase(), Phase::notDownloaded());
    installEngine("exit 0", mono);
    writeMarker(mono);
    EXPECT_EQ(startModel().phase(), Phase::ready());
}

TEST_F(State, forgetsAGameThatIsNotReadableAnyMore)
{
    installGame();
    startModel();
    ASSERT_TRUE(model().info());
    home.write(root(u"Game/tetherwalk-master/project.godot"_s), "nothing");
    model().refreshState();
    EXPECT_FALSE(model().info());
    EXPECT_EQ(model().facts(), RepoFacts());
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
}

TEST_F(State, measuresWhatIsInstalledAndIsEmptyAgainWhenNothingIs)
{
    home.write(root(u"Game/big"_s), QByteArray(300'000, 'x'));
    startModel();
    waitForSize(false);
    EXPECT_TRUE(model().installedSize().endsWith(u"KB")) << model().installedSize();
    ASSERT_TRUE(QFile::remove(root(u"Game/big"_s)));
    model().updateSize();
    waitForSize(true);
}

TEST_F(State, neverLetsAnOlderMeasurementOverwriteANewerOne)
{
    installManyFiles();
    startModel(); // The measurement of many files begins, and is overtaken by one of a single file.
    ASSERT_TRUE(QDir().rename(root(), home.path(u"elsewhere"_s)));
    home.write(root(u"Game/big"_s), QByteArray(3'000'000, 'x'));
    model().updateSize();
    waitForDeletion();
    EXPECT_EQ(model().installedSize(), u"3 MB");
}

TEST_F(State, showsHowMuchOfADownloadHasCome)
{
    startModel();
    enterDownload(50, 200);
    EXPECT_EQ(model().progress(), 0.25);
    EXPECT_TRUE(model().progressText().startsWith(u"50 bytes of 200 bytes · "));
}

TEST_F(State, showsADownloadOfUnknownSizeAsIndeterminateButWithItsAmount)
{
    server.on(gamePath(), [](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(200, {}) + "some");
        connection.waitForHangUp();
    });
    startModel().play();
    ASSERT_TRUE(waitUntil([this] { return !model().progressText().isEmpty(); }));
    EXPECT_FALSE(model().progress());
    EXPECT_TRUE(model().progressText().startsWith(u"4 bytes · "));
}

TEST_F(State, keepsAFailureUntilTheNextPlay)
{
    startModel();
    enter(Phase::Kind::needs);
    EXPECT_EQ(model().statusTitle(), u"Needs something");
    EXPECT_EQ(model().statusDetail(), model().phase().message());
    EXPECT_EQ(*model().failureText(), u"What happened: %1\n\nLast log lines:\n%2"_s.arg(
                                          model().phase().message(), logged().join(u'\n')));
    model().refreshState();
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
    EXPECT_TRUE(model().failureText());
    enter(Phase::Kind::playing);
    EXPECT_FALSE(model().failureText());
}

TEST_F(State, quotesAtMostThirtyLogLinesInAFailureReport)
{
    startModel();
    for (int line = 1; line <= 40; ++line)
        model().log().append(QString::number(line));
    enter(Phase::Kind::needs);
    const auto all = logged();
    EXPECT_TRUE(model().failureText()->endsWith(u"\n\nLast log lines:\n"_s +
                                                all.sliced(all.size() - 30).join(u'\n')));
}

TEST_F(State, namesEachPhaseInItsOwnWords)
{
    startModel();
    enter(Phase::Kind::downloading);
    EXPECT_EQ(model().statusTitle(), u"Downloading");
    EXPECT_EQ(model().statusDetail(), model().stepText());
    enter(Phase::Kind::settingUp);
    EXPECT_EQ(model().statusTitle(), u"Setting up");
    EXPECT_EQ(model().statusDetail(), model().stepText());
    enter(Phase::Kind::playing);
    ASSERT_TRUE(waitUntil([this] { return !model().stillStarting(); }));
    EXPECT_EQ(model().statusTitle(), u"Playing");
    EXPECT_EQ(model().statusDetail(), u"The game is running in its own window.");
}

TEST_F(State, saysThatAGameIsStillStarting)
{
    durations.startupThreshold = std::chrono::seconds{10};
    startModel();
    enter(Phase::Kind::playing);
    EXPECT_EQ(model().statusTitle(), u"Starting…");
    EXPECT_EQ(model().statusDetail(),
              u"The game was launched. Waiting 10 seconds to make sure it stays open.");
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
    enter(Phase::Kind::needs);
    EXPECT_EQ(titles.last(), u"Needs something");
    const auto count = titles.size();
    model().setShowLog(true);
    EXPECT_EQ(titles.size(), count + 1);
    model().setShowLog(true);
    EXPECT_EQ(titles.size(), count + 1);
    QObject::disconnect(connection);
}

} // namespace
