// SPDX-License-Identifier: MIT
#include "Process/GameRunner.h"

#include "Support/Await.h"
#include "Support/CollectedLines.h"
#include "Support/Eventually.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QCoroTask>

#include <csignal>
#include <optional>
#include <utility>

using namespace std::chrono_literals;

namespace {

TEST(GameRunner, playsInAWindowOfTheGamesOwnSize)
{
    EXPECT_EQ(GameRunner::playArguments(QStringLiteral("/the project"), false,
                                        ResolutionChoice::gameDefault),
              (QStringList{QStringLiteral("--path"), QStringLiteral("/the project"),
                           QStringLiteral("--windowed")}));
}

TEST(GameRunner, playsFullScreenInAChosenSize)
{
    EXPECT_EQ(
        GameRunner::playArguments(QStringLiteral("/p"), true, ResolutionChoice::r1440),
        (QStringList{QStringLiteral("--path"), QStringLiteral("/p"), QStringLiteral("--fullscreen"),
                     QStringLiteral("--resolution"), QStringLiteral("2560x1440")}));
}

Durations shortDurations()
{
    Durations durations;
    durations.importPoll = 30ms;
    durations.importSettled = 60ms;
    // Longer than any test: an engine that ends because it was killed fails it.
    durations.killGrace = 10min;
    return durations;
}

/// With these the engine ends before anything is counted.
Durations durationsWithoutACount()
{
    auto durations = shortDurations();
    durations.importPoll = 1h;
    return durations;
}

Durations durationsWithAShortGrace()
{
    auto durations = shortDurations();
    durations.killGrace = 100ms;
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
        startEngine(m_folder.writeScript(QStringLiteral("engine"), body), timeout);
    }

    void startEngine(const QString& engine, std::chrono::milliseconds timeout = 60s)
    {
        m_run.emplace(m_runner->runImport(engine, m_project, timeout, m_output.callback()));
    }

    /// Waits for the end of the import that was started.
    Outcome<int> finish() { return eventually(std::move(*m_run)); }

    void writeAsset() const { m_folder.write(QStringLiteral("project/a.png")); }

    TestFolder m_folder;
    QString m_project = m_folder.makeFolder(QStringLiteral("project"));
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
              (QStringList{QStringLiteral("--path"), m_project, QStringLiteral("--editor"),
                           QStringLiteral("--no-window")}));
}

TEST_F(ImportRunTest, holdsItsChildUntilItEnds)
{
    EXPECT_EQ(m_runner->process, nullptr);
    start("exec sleep 600");
    ASSERT_NE(m_runner->process, nullptr);
    EXPECT_TRUE(m_runner->process->isRunning());
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

TEST_F(ImportRunTest, isClosedOnceEverythingIsImported)
{
    writeAsset();
    start("exec sleep 600");
    ASSERT_TRUE(waitUntil([this] { return !m_output.lines().isEmpty(); }));
    m_folder.write(QStringLiteral("project/a.png.import"));
    EXPECT_EQ(finish().value, SIGTERM);
    EXPECT_EQ(m_output.lines(),
              (QStringList{QStringLiteral("Import progress: 1 assets still to import"),
                           QStringLiteral("Import progress: 0 assets still to import"),
                           QStringLiteral("All assets imported, closing the setup run.")}));
}

TEST_F(ImportRunTest, isStoppedWhenItTakesTooLong)
{
    writeAsset();
    start("exec sleep 600", 100ms);
    EXPECT_EQ(finish().value, SIGTERM);
    EXPECT_EQ(m_output.lines(),
              (QStringList{QStringLiteral("Import progress: 1 assets still to import"),
                           QStringLiteral("Setup took too long, stopping it.")}));
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
    startEngine(QStringLiteral("/nowhere/engine"));
    EXPECT_TRUE(finish().isPlatformError);
    EXPECT_EQ(m_runner->process, nullptr);
    EXPECT_EQ(m_output.lines(), QStringList());
}

} // namespace
