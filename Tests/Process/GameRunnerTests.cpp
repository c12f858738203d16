// SPDX-License-Identifier: MIT
#include "Process/GameRunner.h"

#include "Support/Await.h"
#include "Support/CollectedLines.h"
#include "Support/Eventually.h"
#include "Support/ProcessState.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QCoroTask>

#include <csignal>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

TEST(GameRunner, playsInAWindowOfTheGamesOwnSize)
{
    EXPECT_EQ(GameRunner::playArguments(u"/the project"_s, false, ResolutionChoice::gameDefault),
              (QStringList{u"--path"_s, u"/the project"_s, u"--windowed"_s}));
}

TEST(GameRunner, playsFullScreenInAChosenSize)
{
    EXPECT_EQ(
        GameRunner::playArguments(u"/p"_s, true, ResolutionChoice::r1440),
        (QStringList{u"--path"_s, u"/p"_s, u"--fullscreen"_s, u"--resolution"_s, u"2560x1440"_s}));
}

Durations shortDurations()
{
    Durations durations;
    durations.importPollInterval = 30ms;
    durations.importSettleTime = 60ms;
    // Longer than any test: an engine that ends because it was killed fails it.
    durations.killTimeout = 10min;
    return durations;
}

/// With these the engine ends before anything is counted.
Durations durationsWithoutACount()
{
    auto durations = shortDurations();
    durations.importPollInterval = 1h;
    return durations;
}

Durations durationsWithAShortGrace()
{
    auto durations = shortDurations();
    durations.killTimeout = 100ms;
    return durations;
}

class ImportRunTest : public testing::Test
{
protected:
    /// Has the import run with other durations than the short ones.
    void use(const Durations& durations) { m_runner.emplace(durations); }

    /// Starts the import with the shell script `body` as the engine.
    void start(const QByteArray& body, std::chrono::milliseconds timeout = 60s)
    {
        startEngine(m_folder.writeScript(u"engine"_s, body), timeout);
    }

    void startEngine(const QString& engine, std::chrono::milliseconds timeout = 60s)
    {
        m_run.emplace(m_runner->runImport(engine, m_project, timeout, m_output.callback()));
    }

    /// Waits for the end of the import that was started.
    Outcome<int> finish() { return eventually(std::move(*m_run)); }

    void writeAsset() const { m_folder.write(u"project/a.png"_s); }

    TestFolder m_folder;
    QString m_project = m_folder.makeFolder(u"project"_s);
    CollectedLines m_output;
    std::optional<GameRunner> m_runner{std::in_place, shortDurations()};
    std::optional<QCoro::Task<int>> m_run;
};

TEST_F(ImportRunTest, startsTheEditorOnTheProjectWithoutAWindow)
{
    use(durationsWithoutACount());
    start("for a in \"$@\"; do echo \"$a\"; done; exit 3");
    EXPECT_EQ(finish().value, 3);
    EXPECT_EQ(m_output.lines(),
              (QStringList{u"--path"_s, m_project, u"--editor"_s, u"--no-window"_s}));
}

TEST_F(ImportRunTest, holdsItsChildUntilItEnds)
{
    EXPECT_EQ(m_runner->process, nullptr);
    start("exec sleep 600");
    ASSERT_NE(m_runner->process, nullptr);
    EXPECT_TRUE(waitUntil([this] { return m_runner->process->isRunning(); }));
    m_runner->terminateCurrent();
    EXPECT_EQ(finish().value, SIGTERM);
    EXPECT_EQ(m_runner->process, nullptr);
}

TEST_F(ImportRunTest, endsWithTheEngineAndWithoutAWordBeforeTheFirstCount)
{
    use(durationsWithoutACount());
    writeAsset();
    start("exit 0");
    EXPECT_EQ(finish().value, 0);
    EXPECT_EQ(m_output.lines(), QStringList());
}

TEST_F(ImportRunTest, endsWhatAnEngineThatEndsByItselfLeavesBehind)
{
    use(durationsWithoutACount());
    start("sleep 600 & echo $!");
    EXPECT_EQ(finish().value, 0);
    const auto left = m_output.lines().value(0).toLongLong();
    ASSERT_GT(left, 0);
    EXPECT_TRUE(waitUntil([&] { return !processRuns(left); }));
}

TEST_F(ImportRunTest, isClosedOnceEverythingIsImported)
{
    writeAsset();
    start("exec sleep 600");
    ASSERT_TRUE(waitUntil([this] { return !m_output.lines().isEmpty(); }));
    m_folder.write(u"project/a.png.import"_s);
    EXPECT_EQ(finish().value, SIGTERM);
    EXPECT_EQ(m_output.lines(), (QStringList{u"Import progress: 1 assets still to import"_s,
                                             u"Import progress: 0 assets still to import"_s,
                                             u"All assets imported, closing the setup run."_s}));
}

TEST_F(ImportRunTest, isStoppedWhenItTakesTooLong)
{
    writeAsset();
    start("exec sleep 600", 100ms);
    EXPECT_EQ(finish().value, SIGTERM);
    EXPECT_EQ(m_output.lines(), (QStringList{u"Import progress: 1 assets still to import"_s,
                                             u"Setup took too long, stopping it."_s}));
}

TEST_F(ImportRunTest, killsAnEngineThatIgnoresTheRequestToStop)
{
    use(durationsWithAShortGrace());
    writeAsset();
    // All is imported, and the run to be closed, only once the engine ignores requests.
    start("trap '' TERM; : >\"$2/a.png.import\"; while :; do sleep 0.05; done");
    EXPECT_EQ(finish().value, SIGKILL);
}

TEST_F(ImportRunTest, canBeStoppedFromOutside)
{
    writeAsset();
    start("exec sleep 600");
    m_runner->terminateCurrent();
    EXPECT_EQ(finish().value, SIGTERM);
    m_runner->terminateCurrent(); // There is nothing left to stop.
}

TEST_F(ImportRunTest, passesOnThatTheEngineCannotBeStarted)
{
    startEngine(u"/nowhere/engine"_s);
    EXPECT_TRUE(finish().isPlatformError);
    EXPECT_EQ(m_runner->process, nullptr);
    EXPECT_EQ(m_output.lines(), QStringList());
}

} // namespace
