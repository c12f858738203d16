// SPDX-License-Identifier: MIT
#include "Process/ManagedProcess.h"

#include "Platform/FileDescriptor.h"
#include "Platform/PlatformError.h"
#include "Platform/ServiceThread.h"
#include "Process/LogStore.h"
#include "Support/Await.h"
#include "Support/CollectedLines.h"
#include "Support/ProcessState.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QThread>

#include <atomic>
#include <csignal>

#include <fcntl.h>

using namespace std::chrono_literals;

namespace {

using Lifetime = ManagedProcess::Lifetime;

QStringList shell(const char* script)
{
    return {QStringLiteral("-c"), QString::fromUtf8(script)};
}

class ManagedProcessTest : public testing::Test
{
protected:
    QFuture<int> startShell(const char* script)
    {
        return m_process.run(QStringLiteral("/bin/sh"), shell(script), m_output.callback());
    }

    int runShell(const char* script) { return await(startShell(script)); }

    QStringList lines() const { return m_output.lines(); }

    bool waitForLines(qsizetype count)
    {
        return waitUntil([this, count] { return lines().size() >= count; });
    }

    CollectedLines m_output;
    ManagedProcess m_process{Lifetime::EndsWithLauncher, 300ms};
};

TEST_F(ManagedProcessTest, deliversEachLineAndTheLastOneWithoutALineFeed)
{
    EXPECT_EQ(runShell("printf 'a\\nb'"), 0);
    EXPECT_EQ(lines(), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
}

TEST_F(ManagedProcessTest, deliversStandardErrorLikeStandardOutput)
{
    EXPECT_EQ(runShell("echo one >&2; echo two >&2"), 0);
    EXPECT_EQ(lines(), (QStringList{QStringLiteral("one"), QStringLiteral("two")}));
}

TEST_F(ManagedProcessTest, deliversBothStreamsInTheOrderTheyWereWritten)
{
    QStringList expected;
    for (int i = 0; i < 50; ++i)
        expected << QStringLiteral("out %1").arg(i) << QStringLiteral("err %1").arg(i);
    runShell("i=0; while [ $i -lt 50 ]; do echo out $i; echo err $i >&2; i=$((i+1)); done");
    EXPECT_EQ(lines(), expected);
}

TEST_F(ManagedProcessTest, givesAnExitStatusThatIsNotZero)
{
    EXPECT_EQ(runShell("exit 3"), 3);
    EXPECT_EQ(lines(), QStringList());
}

TEST_F(ManagedProcessTest, givesTheNumberOfTheSignalThatEndedTheChild)
{
    EXPECT_EQ(runShell("kill -USR1 $$"), SIGUSR1);
}

TEST_F(ManagedProcessTest, reportsAMissingProgramInASentence)
{
    try {
        await(m_process.run(QStringLiteral("/nowhere/program"), {}, m_output.callback()));
        FAIL() << "It started.";
    } catch (const PlatformError& error) {
        EXPECT_EQ(error.message().toStdString(),
                  "Could not start “/nowhere/program”: No such file or directory.");
    }
    EXPECT_EQ(lines(), QStringList());
    EXPECT_FALSE(m_process.isRunning());
}

TEST_F(ManagedProcessTest, reportsAFileThatIsNotAProgramInASentence)
{
    const TestFolder folder;
    const auto file = folder.write(QStringLiteral("data"), "no program");
    try {
        await(m_process.run(file, {}, m_output.callback()));
        FAIL() << "It started.";
    } catch (const PlatformError& error) {
        EXPECT_EQ(error.message(),
                  QStringLiteral("Could not start “%1”: Permission denied.").arg(file));
    }
}

TEST_F(ManagedProcessTest, deliversWhatIsStillInThePipeAtTheEnd)
{
    EXPECT_EQ(runShell("head -c 60000 /dev/zero | tr '\\0' x; echo; printf end"), 0);
    ASSERT_EQ(lines().size(), 2);
    EXPECT_EQ(lines().first().size(), 60'000);
    EXPECT_EQ(lines().last(), QStringLiteral("end"));
}

TEST_F(ManagedProcessTest, deliversAllOfAFullPipeAfterTheEnd)
{
    // The pipe is made larger than what is read at a time, and it is filled and the child gone
    // while the first line is being delivered.
    constexpr auto* program = "fcntl(STDOUT, 1031, 1 << 20) or exit 9; $| = 1; print qq(first\n); "
                              "print join(qq(\n), 1..100000);";
    const auto deliver = m_output.callback();
    const auto deliverSlowly = [deliver](const QString& line) {
        if (line == QLatin1String("first"))
            QThread::msleep(400);
        deliver(line);
    };
    EXPECT_EQ(
        await(m_process.run(QStringLiteral("/usr/bin/perl"),
                            {QStringLiteral("-e"), QString::fromUtf8(program)}, deliverSlowly)),
        0);
    ASSERT_EQ(lines().size(), 100'001);
    EXPECT_EQ(lines().last(), QStringLiteral("100000"));
}

TEST_F(ManagedProcessTest, deliversALargeOutputWhole)
{
    EXPECT_EQ(runShell("seq 1 200000"), 0);
    ASSERT_EQ(lines().size(), 200'000);
    EXPECT_EQ(lines().at(123'455), QStringLiteral("123456"));
    EXPECT_EQ(lines().last(), QStringLiteral("200000"));
}

TEST_F(ManagedProcessTest, keepsACarriageReturnOnItsLine)
{
    runShell("printf 'a\\r\\nb\\r\\n'");
    EXPECT_EQ(lines(), (QStringList{QStringLiteral("a\r"), QStringLiteral("b\r")}));
}

TEST_F(ManagedProcessTest, deliversLinesOnAnotherThread)
{
    std::atomic<QThread*> deliverer = nullptr;
    await(m_process.run(QStringLiteral("/bin/sh"), shell("echo x"),
                        [&](const QString&) { deliverer = QThread::currentThread(); }));
    EXPECT_EQ(deliverer, &ServiceThread::children());
}

TEST_F(ManagedProcessTest, handsItsOutputToALogInBlocksWithTheSameEffect)
{
    LogStore log;
    await(m_process.run(QStringLiteral("/bin/sh"), shell("printf 'a\\r\\n\\nb'"), log.callback()));
    EXPECT_EQ(log.newest(10), (QStringList{QStringLiteral("a\r"), QString(), QStringLiteral("b")}));
}

TEST_F(ManagedProcessTest, passesArgumentsUnchanged)
{
    const QStringList arguments{QStringLiteral("%s\\n"), QStringLiteral("two words"),
                                QStringLiteral("$HOME \"quoted\" 'x'"), QString(),
                                QStringLiteral("größe €")};
    await(m_process.run(QStringLiteral("/usr/bin/printf"), arguments, m_output.callback()));
    EXPECT_EQ(lines(), arguments.sliced(1));
}

TEST_F(ManagedProcessTest, startsAProgramWhoseNameIsNotAscii)
{
    const TestFolder folder;
    const auto script = folder.writeScript(QStringLiteral("Spiel „€“ ✓/läuft nicht?"), "echo $0");
    EXPECT_EQ(await(m_process.run(script, {}, m_output.callback())), 0);
    EXPECT_EQ(lines(), QStringList{script});
}

TEST_F(ManagedProcessTest, givesTheChildTheNullDeviceAsStandardInput)
{
    runShell("readlink /proc/$$/fd/0");
    EXPECT_EQ(lines(), QStringList{QStringLiteral("/dev/null")});
}

TEST_F(ManagedProcessTest, givesTheChildItsEnvironmentAndWorkingFolder)
{
    qputenv("CAVERNYX_TEST_VALUE", "inherited");
    runShell("echo $CAVERNYX_TEST_VALUE; pwd");
    qunsetenv("CAVERNYX_TEST_VALUE");
    EXPECT_EQ(lines(), (QStringList{QStringLiteral("inherited"), QDir::currentPath()}));
}

TEST_F(ManagedProcessTest, givesTheChildNoOtherDescriptor)
{
    const FileDescriptor leaking(::open("/dev/null", O_RDONLY)); // NOLINT: must not be marked
    ASSERT_TRUE(leaking.isOpen());
    // Far away from any descriptor that the child might open itself.
    const FileDescriptor distant(::fcntl(leaking.get(), F_DUPFD, 200));
    ASSERT_TRUE(distant.isOpen());
    runShell("ls -v /proc/$$/fd");
    EXPECT_EQ(lines(),
              (QStringList{QStringLiteral("0"), QStringLiteral("1"), QStringLiteral("2")}));
}

TEST_F(ManagedProcessTest, makesTheChildLeaderOfItsOwnGroup)
{
    runShell("echo $$; cut -d' ' -f5 /proc/$$/stat");
    ASSERT_EQ(lines().size(), 2);
    EXPECT_EQ(lines().first(), lines().last());
}

TEST_F(ManagedProcessTest, letsEverySignalThroughToTheChild)
{
    const auto setMask = [](int how) {
        const auto done = std::make_shared<QPromise<void>>();
        auto future = done->future();
        ServiceThread::children().post([how, done] {
            sigset_t set;
            sigemptyset(&set);
            sigaddset(&set, SIGTERM);
            pthread_sigmask(how, &set, nullptr);
            done->start();
            done->finish();
        });
        future.waitForFinished();
    };
    setMask(SIG_BLOCK);
    // Not by way of the shell, which lets every signal through itself.
    await(m_process.run(QStringLiteral("/bin/grep"),
                        {QStringLiteral("SigBlk"), QStringLiteral("/proc/self/status")},
                        m_output.callback()));
    setMask(SIG_UNBLOCK);
    EXPECT_EQ(lines(), QStringList{QStringLiteral("SigBlk:\t0000000000000000")});
}

constexpr qulonglong brokenPipeBit = 1ULL << (SIGPIPE - 1);

TEST_F(ManagedProcessTest, leavesBrokenPipesDeadlyToATool)
{
    runShell("grep SigIgn /proc/self/status");
    ASSERT_EQ(lines().size(), 1);
    EXPECT_EQ(lines().first().section(u'\t', 1).toULongLong(nullptr, 16) & brokenPipeBit, 0U);
}

TEST_F(ManagedProcessTest, sparesTheGameFromBrokenPipes)
{
    ManagedProcess game(Lifetime::MayOutliveLauncher);
    await(game.run(QStringLiteral("/bin/sh"), shell("grep SigIgn /proc/self/status"),
                   m_output.callback()));
    ASSERT_EQ(lines().size(), 1);
    EXPECT_NE(lines().first().section(u'\t', 1).toULongLong(nullptr, 16) & brokenPipeBit, 0U);
}

TEST_F(ManagedProcessTest, runsFromTheCallUntilTheEnd)
{
    EXPECT_FALSE(m_process.isRunning());
    auto run = startShell("echo ready; exec sleep 600");
    EXPECT_TRUE(m_process.isRunning());
    ASSERT_TRUE(waitForLines(1));
    EXPECT_TRUE(m_process.isRunning());
    m_process.terminate();
    EXPECT_EQ(await(run), SIGTERM);
    EXPECT_FALSE(m_process.isRunning());
}

TEST_F(ManagedProcessTest, remembersATerminateAskedForBeforeTheStart)
{
    m_process.terminate();
    EXPECT_EQ(runShell("exec sleep 600"), SIGTERM);
}

TEST_F(ManagedProcessTest, carriesOutATerminateAskedForDuringTheStart)
{
    auto run = startShell("exec sleep 600");
    m_process.terminate();
    EXPECT_EQ(await(run), SIGTERM);
}

TEST_F(ManagedProcessTest, isTerminatedHarmlesslyAfterItsEndAndMoreThanOnce)
{
    EXPECT_EQ(runShell("exit 0"), 0);
    m_process.terminate();
    m_process.terminate();
    // The thread has dealt with it once it has run another child.
    ManagedProcess next;
    EXPECT_EQ(await(next.run(QStringLiteral("/bin/true"), {}, m_output.callback())), 0);
}

TEST_F(ManagedProcessTest, letsTheChildEndItselfWhenAskedPolitely)
{
    auto run = startShell("trap 'echo bye; exit 7' TERM; echo ready; while :; do sleep 0.01; done");
    ASSERT_TRUE(waitForLines(1));
    m_process.terminate();
    EXPECT_EQ(await(run), 7);
    EXPECT_EQ(lines().last(), QStringLiteral("bye"));
}

TEST_F(ManagedProcessTest, killsAChildThatIgnoresThePoliteRequestWithItsWholeGroup)
{
    auto run = startShell("trap '' TERM; sleep 600 & echo $!; wait; while :; do sleep 600; done");
    ASSERT_TRUE(waitForLines(1));
    const auto grandchild = lines().first().toLongLong();
    m_process.terminate();
    EXPECT_EQ(await(run), SIGKILL);
    EXPECT_TRUE(waitUntil([&] { return !processRuns(grandchild); }));
}

TEST_F(ManagedProcessTest, endsWhatATerminatedChildLeavesBehind)
{
    auto run = startShell("(trap '' TERM; echo ready; while :; do sleep 0.1; done) & "
                          "echo $!; trap 'exit 5' TERM; while :; do sleep 0.01; done");
    ASSERT_TRUE(waitForLines(2));
    const auto output = lines();
    const auto grandchild =
        output.at(output.first() == QLatin1String("ready") ? 1 : 0).toLongLong();
    m_process.terminate();
    EXPECT_EQ(await(run), 5);
    EXPECT_TRUE(waitUntil([&] { return !processRuns(grandchild); }));
}

TEST_F(ManagedProcessTest, endsThoughAGrandchildHoldsThePipe)
{
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(runShell("sleep 30 & echo $!; printf unfinished"), 0);
    EXPECT_LT(clock.elapsed(), 15'000);
    ASSERT_EQ(lines().size(), 2);
    EXPECT_EQ(lines().last(), QStringLiteral("unfinished"));
    const auto grandchild = lines().first().toInt();
    EXPECT_TRUE(processRuns(grandchild)); // Nobody asked for its end.
    ::kill(grandchild, SIGKILL);
}

TEST_F(ManagedProcessTest, endsThoughAGrandchildFloodsThePipe)
{
    std::atomic<qint64> count = 0;
    EXPECT_EQ(await(m_process.run(QStringLiteral("/bin/sh"), shell("yes & sleep 0.1"),
                                  [&](const QString&) { ++count; })),
              0);
    EXPECT_GT(count, 0);
}

TEST_F(ManagedProcessTest, canBeTerminatedWhileItFloods)
{
    LogStore log;
    auto run = m_process.run(QStringLiteral("/usr/bin/yes"), {}, log.callback());
    ASSERT_TRUE(waitUntil([&log] { return log.newest(2000).size() == 2000; }));
    m_process.terminate();
    EXPECT_EQ(await(run), SIGTERM);
    EXPECT_EQ(log.newest(3000).size(), 2000);
}

TEST_F(ManagedProcessTest, servesSeveralChildrenAtOnce)
{
    LogStore log;
    auto flood = m_process.run(QStringLiteral("/usr/bin/yes"), {}, log.callback());
    ManagedProcess other;
    EXPECT_EQ(await(other.run(QStringLiteral("/bin/sh"), shell("echo other"), m_output.callback())),
              0);
    EXPECT_EQ(lines(), QStringList{QStringLiteral("other")});
    m_process.terminate();
    await(flood);
}

TEST_F(ManagedProcessTest, goesOnToItsEndWithoutItsOwner)
{
    auto owned = std::make_unique<ManagedProcess>();
    auto run = owned->run(QStringLiteral("/bin/sh"), shell("sleep 0.1; echo done; exit 4"),
                          m_output.callback());
    owned.reset();
    EXPECT_EQ(await(run), 4);
    EXPECT_EQ(lines(), QStringList{QStringLiteral("done")});
}

class ChildOfAKilledLauncher : public testing::Test
{
protected:
    /// Has a launcher of its own start a child that goes on for long; gives the child's id.
    qint64 startChild(const QString& lifetime)
    {
        m_launcher.start(QStringLiteral(CHILD_LAUNCHER),
                         QStringList{lifetime, QStringLiteral("/bin/sh")} +
                             shell("echo $$ >\"$0\"; exec sleep 600") +
                             QStringList{m_folder.path(QStringLiteral("id"))});
        EXPECT_TRUE(waitUntil([this] {
            return m_folder.exists(QStringLiteral("id")) &&
                   m_folder.read(QStringLiteral("id")).endsWith('\n');
        }));
        return m_folder.read(QStringLiteral("id")).trimmed().toLongLong();
    }

    void killLauncher()
    {
        m_launcher.kill();
        EXPECT_TRUE(waitUntil([this] { return m_launcher.state() == QProcess::NotRunning; }));
    }

    TestFolder m_folder;
    QProcess m_launcher;
};

TEST_F(ChildOfAKilledLauncher, endsWithIt)
{
    const auto child = startChild(QStringLiteral("ends"));
    ASSERT_TRUE(processRuns(child));
    killLauncher();
    EXPECT_TRUE(waitUntil([&] { return !processRuns(child); }));
}

TEST_F(ChildOfAKilledLauncher, goesOnWhenItIsTheGame)
{
    const auto child = startChild(QStringLiteral("outlives"));
    killLauncher();
    QThread::msleep(200);
    EXPECT_TRUE(processRuns(child));
    ::kill(static_cast<pid_t>(child), SIGKILL);
}

} // namespace
