// SPDX-License-Identifier: MIT
#include "Support/Await.h"
#include "Support/ModelTest.h"

#include <gmock/gmock.h>

#include <QSignalSpy>
#include <QTest>

using namespace std::chrono_literals;

namespace {

/// Everything is installed; the engine is a script.
class Launch : public ModelTest
{
protected:
    /// Keeps the titles shown while the model changes.
    void watchTitles()
    {
        QObject::connect(&model(), &AppModel::changed, &model(), [this] {
            const auto title = model().statusTitle();
            if (titles.isEmpty() || titles.last() != title)
                titles.append(title);
        });
    }

    /// Waits for the word of an engine that says so.
    void waitUntilItIsUp()
    {
        ASSERT_TRUE(waitUntil([this] { return logged().contains(u"up"_s); }));
    }

    QStringList titles;
};

TEST_F(Launch, skipsWhatIsDoneAndStartsTheGameAtOnce)
{
    startReady("sleep 1; exit 0");
    watchTitles();
    model().play();
    waitForFlow();
    const auto project = root(u"Game/tetherwalk-master"_s);
    EXPECT_EQ(logged(),
              (QStringList{u"Step 1 of 4 · Game already downloaded, skipping."_s,
                           u"project.godot: config_version=4 → Godot 3.x, C#: no, main scene: "
                           "res://main.tscn"_s,
                           u"Step 2 of 4 · Engine already installed, skipping."_s,
                           u"Step 3 of 4 · Already set up, skipping."_s,
                           u"Step 4 of 4 · Starting: Godot --path %1 --windowed"_s.arg(project),
                           u"Game closed normally."_s}));
    EXPECT_EQ(titles, (QStringList{u"Ready"_s, u"Starting…"_s, u"Playing"_s, u"Ready"_s}));
    EXPECT_TRUE(hasMarker());
    EXPECT_TRUE(model().stepText().isEmpty());
}

TEST_F(Launch, startsTheGameWithTheChosenSettings)
{
    startReady("echo \"$@\"; sleep 0.4");
    model().setFullscreen(true);
    model().setResolution(ResolutionChoice::r1440);
    model().play();
    waitForFlow();
    const auto line =
        u"--path %1 --fullscreen --resolution 2560x1440"_s.arg(root(u"Game/tetherwalk-master"_s));
    EXPECT_TRUE(logged().contains(line)) << logged().join(u'\n');
    EXPECT_TRUE(logged().contains(u"Step 4 of 4 · Starting: Godot "_s + line));
}

TEST_F(Launch, reportsAGameThatClosesAtOnceAndImportsAgainNextTime)
{
    durations.startupThreshold = 1h;
    startReady("echo failing; exit 7").play();
    waitForFlow();
    EXPECT_EQ(model().phase(), Phase::Kind::needs);
    const auto sentence = model().phase().message();
    EXPECT_THAT(sentence.toStdString(),
                testing::MatchesRegex("The game closed after .* seconds? .exit code 7., so it did "
                                      "not start properly."));
    EXPECT_TRUE(model().failureText()->startsWith(u"What happened: "_s + sentence));
    EXPECT_TRUE(model().failureText()->endsWith(u"failing\nError: "_s + sentence));
    EXPECT_EQ(model().stepText(), u"Step 4 of 4 · Play");
    EXPECT_FALSE(model().stillStarting());
    EXPECT_FALSE(hasMarker());
}

TEST_F(Launch, keepsTheMarkerOfACSharpGameThatClosesAtOnce)
{
    const EngineManager mono{.mono = true};
    installGame("config/features=PoolStringArray(\"C#\")\n");
    installEngine("exit 0", mono);
    writeMarker(mono);
    durations.startupThreshold = 1h;
    startModel().play();
    waitForFlow();
    EXPECT_EQ(model().phase(), Phase::Kind::needs);
    EXPECT_TRUE(hasMarker(mono));
}

TEST_F(Launch, reportsACrashOfARunningGameAndKeepsTheMarker)
{
    startReady("sleep 0.5; exit 1").play();
    waitForFlow();
    EXPECT_EQ(model().phase(), Phase::needs(u"The game stopped unexpectedly (exit code 1)."_s));
    EXPECT_TRUE(hasMarker());
}

TEST_F(Launch, tellsAStopByThePlayerFromACrash)
{
    startReady("echo up; exec sleep 60").play();
    waitUntilItIsUp();
    model().stopGame();
    waitForFlow();
    EXPECT_EQ(model().phase(), Phase::ready());
    EXPECT_EQ(logged().last(), u"Game stopped by you.");
    EXPECT_TRUE(hasMarker());
    EXPECT_FALSE(model().failureText());
}

TEST_F(Launch, tellsACrashFromAnEarlierStopByThePlayer)
{
    startReady("echo up; exec sleep 60");
    model().play();
    waitUntilItIsUp();
    model().stopGame();
    waitForFlow();
    installEngine("sleep 0.5; exit 1");
    model().play();
    waitForFlow();
    EXPECT_EQ(model().phase(), Phase::needs(u"The game stopped unexpectedly (exit code 1)."_s));
}

TEST_F(Launch, carriesOutAStopThatIsAskedForWhilePlayingIsAnnounced)
{
    for (const auto connection : {Qt::DirectConnection, Qt::QueuedConnection}) {
        startReady("exec sleep 60");
        bool stopped = false;
        QObject::connect(&model(), &AppModel::changed, &model(), [&] {
            if (model().phase() == Phase::Kind::playing && !stopped) {
                stopped = true;
                QMetaObject::invokeMethod(&model(), &AppModel::stopGame, connection);
            }
        });
        model().play();
        waitForFlow();
        EXPECT_EQ(logged().last(), u"Game stopped by you.");
    }
}

TEST_F(Launch, killsAGameThatIgnoresTheRequestToStop)
{
    startReady("trap '' TERM; echo up; while :; do sleep 0.05; done").play();
    waitUntilItIsUp();
    model().stopGame();
    waitForFlow();
    EXPECT_EQ(logged().last(), u"Game stopped by you.");
}

TEST_F(Launch, reportsAnEngineThatCannotBeStarted)
{
    startReady("exit 0");
    home.write(*EngineManager().executable(), "\x7f"
                                              "ELF is not what this is");
    model().play();
    waitForFlow();
    EXPECT_EQ(model().phase(), Phase::Kind::needs);
    EXPECT_TRUE(model().phase().message().startsWith(u"Could not start "))
        << model().phase().message();
    EXPECT_EQ(logged().last(), u"Error: "_s + model().phase().message());
    EXPECT_FALSE(model().stillStarting());
}

TEST_F(Launch, ignoresAPressOfPlayWhileTheGameRuns)
{
    startReady("sleep 0.5").play();
    model().play(); // The silent checks are still going on.
    waitForPhase(Phase::Kind::playing);
    const auto before = logged();
    model().play();
    EXPECT_EQ(logged(), before);
    waitForFlow();
    EXPECT_EQ(logged().filter(u"Step 4 of 4"_s).size(), 1);
}

TEST_F(Launch, judgesACancelDuringPlayByTheOutcomeAndSaysCancelled)
{
    startReady("echo up; exec sleep 60").play();
    waitUntilItIsUp();
    model().cancelSetup();
    waitForFlow();
    EXPECT_EQ(logged().last(), u"Cancelled.");
    EXPECT_NE(model().phase(), Phase::Kind::needs);
}

TEST_F(Launch, asksBeforeQuittingAndStaysWhenDeclined)
{
    startReady("echo up; exec sleep 60").play();
    waitUntilItIsUp();
    desktop.answer = false;
    EXPECT_FALSE(model().confirmQuit());
    ASSERT_EQ(desktop.questions.size(), 1);
    EXPECT_EQ(desktop.questions[0].title, u"Quit and close the game?");
    EXPECT_EQ(desktop.questions[0].message, u"The game is still running. Quitting will close it.");
    EXPECT_EQ(desktop.questions[0].button, u"Quit");
    EXPECT_EQ(model().phase(), Phase::playing());

    desktop.answer = true;
    EXPECT_TRUE(model().confirmQuit());
    waitForFlow();
    EXPECT_EQ(logged().last(), u"Game stopped by you.");
}

TEST_F(Launch, quitsOrStaysAsAnsweredWhenTheGameEndsWhileTheQuestionStands)
{
    startReady("sleep 0.5");
    desktop.whileAsking = [this] { waitForFlow(); };
    for (const auto answer : {false, true}) {
        model().play();
        waitForPhase(Phase::Kind::playing);
        desktop.answer = answer;
        EXPECT_EQ(model().confirmQuit(), answer);
        EXPECT_EQ(model().phase(), Phase::ready());
        EXPECT_EQ(logged().last(), u"Game closed normally.");
    }
    EXPECT_EQ(desktop.questions.size(), 2);
    EXPECT_FALSE(model().isFlowRunning());
}

TEST_F(Launch, quitsWithoutAQuestionWhenNothingRuns)
{
    startReady("exit 0");
    EXPECT_TRUE(model().confirmQuit());
    EXPECT_TRUE(desktop.questions.isEmpty());
}

TEST_F(Launch, announcesTheEndOfTheFlowOnce)
{
    startReady("sleep 0.4");
    const QSignalSpy ended(&model(), &AppModel::flowEnded);
    model().play();
    EXPECT_TRUE(model().isBusy());
    waitForFlow();
    EXPECT_EQ(ended.size(), 1);
    EXPECT_FALSE(model().isBusy());
}

} // namespace
