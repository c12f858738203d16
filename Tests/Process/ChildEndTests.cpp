// SPDX-License-Identifier: MIT
#include "ChildTest.h"

#include "Support/ProcessState.h"

#include <csignal>
#include <memory>

using namespace std::chrono_literals;

namespace {

using EndOfAChild = ChildTest;

TEST_F(EndOfAChild, returnsAnExitStatusThatIsNotZero)
{
    EXPECT_EQ(runShell("exit 3"), 3);
    EXPECT_EQ(lines(), QStringList());
}

TEST_F(EndOfAChild, returnsTheNumberOfTheSignalThatCausedIt)
{
    EXPECT_EQ(runShell("kill -USR1 $$"), SIGUSR1);
}

TEST_F(EndOfAChild, makesItCountAsNotRunning)
{
    EXPECT_FALSE(m_process->isRunning());
    EXPECT_FALSE(m_process->isRunning());
    auto run = startShell("echo ready; exec sleep 600");
    ASSERT_TRUE(waitForLines(1));
    EXPECT_TRUE(m_process->isRunning());
    m_process->terminate();
    EXPECT_EQ(await(run), SIGTERM);
    EXPECT_FALSE(m_process->isRunning());
}

TEST_F(EndOfAChild, isRememberedWhenAskedForBeforeTheStart)
{
    m_process->terminate();
    EXPECT_EQ(runShell("exec sleep 600"), SIGTERM);
}

TEST_F(EndOfAChild, comesWhenAskedForDuringTheStart)
{
    auto run = startShell("exec sleep 600");
    m_process->terminate();
    EXPECT_EQ(await(run), SIGTERM);
}

TEST_F(EndOfAChild, isAskedForHarmlesslyAfterItAndMoreThanOnce)
{
    EXPECT_EQ(runShell("exit 0"), 0);
    m_process->terminate();
    m_process->terminate();
}

TEST_F(EndOfAChild, isLeftToTheChildItselfAtFirst)
{
    auto run = startShell("trap 'echo bye; exit 7' TERM; echo ready; while :; do sleep 0.01; done");
    ASSERT_TRUE(waitForLines(1));
    m_process->terminate();
    EXPECT_EQ(await(run), 7);
    EXPECT_EQ(lines().last(), u"bye"_s);
}

TEST_F(EndOfAChild, isForcedOnOneThatIgnoresThePoliteRequestAndOnItsWholeGroup)
{
    const auto stubborn =
        std::make_shared<ManagedProcess>(ManagedProcess::Lifetime::endsWithLauncher, 100ms);
    auto run = start(stubborn, u"/bin/sh"_s,
                     shell("trap '' TERM; sleep 600 & echo $!; wait; while :; do sleep 600; done"),
                     m_output.callback());
    ASSERT_TRUE(waitForLines(1));
    const auto grandchild = lines().first().toLongLong();
    stubborn->terminate();
    EXPECT_EQ(await(run), SIGKILL);
    EXPECT_TRUE(waitUntil([&] { return !processRuns(grandchild); }));
}

TEST_F(EndOfAChild, alsoEndsWhatTheChildLeavesBehindWhenItWasAskedFor)
{
    auto run = startShell("(trap '' TERM; echo ready; while :; do sleep 0.1; done) & "
                          "echo $!; trap 'exit 5' TERM; while :; do sleep 0.01; done");
    ASSERT_TRUE(waitForLines(2));
    const auto output = lines();
    const auto grandchild = output.at(output.first() == "ready"_L1 ? 1 : 0).toLongLong();
    m_process->terminate();
    EXPECT_EQ(await(run), 5);
    EXPECT_TRUE(waitUntil([&] { return !processRuns(grandchild); }));
}

TEST_F(EndOfAChild, isAlsoThatOfWhatAToolLeavesBehind)
{
    EXPECT_EQ(runShell("sleep 600 & echo $!"), 0);
    const auto grandchild = lines().value(0).toLongLong();
    ASSERT_GT(grandchild, 0);
    EXPECT_TRUE(waitUntil([&] { return !processRuns(grandchild); }));
}

TEST_F(EndOfAChild, letsWhatTheGameLeavesBehindGoOn)
{
    EXPECT_EQ(m_game->run(u"/bin/sh"_s, shell("sleep 600 & echo $!"), m_output.callback()), 0);
    const auto grandchild = lines().value(0).toInt();
    ASSERT_GT(grandchild, 0);
    EXPECT_TRUE(processRuns(grandchild)); // It was not asked to end.
    ::kill(grandchild, SIGKILL);
}

} // namespace
