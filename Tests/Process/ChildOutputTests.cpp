// SPDX-License-Identifier: MIT
#include "ChildTest.h"

#include "Platform/ServiceThread.h"
#include "Process/LogStore.h"
#include "Support/ProcessState.h"
#include "Support/TestFolder.h"

#include <QFile>
#include <QThread>

#include <atomic>
#include <csignal>
#include <utility>

namespace {

using OutputOfAChild = ChildTest;

TEST_F(OutputOfAChild, isDeliveredLineByLineAndTheLastOneWithoutALineFeed)
{
    EXPECT_EQ(runShell("printf 'a\\nb'"), 0);
    EXPECT_EQ(lines(), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
}

TEST_F(OutputOfAChild, isThatOfStandardErrorToo)
{
    EXPECT_EQ(runShell("echo one >&2; echo two >&2"), 0);
    EXPECT_EQ(lines(), (QStringList{QStringLiteral("one"), QStringLiteral("two")}));
}

TEST_F(OutputOfAChild, isDeliveredInTheOrderInWhichBothStreamsWereWritten)
{
    QStringList expected;
    for (int i = 0; i < 50; ++i)
        expected << QStringLiteral("out %1").arg(i) << QStringLiteral("err %1").arg(i);
    runShell("i=0; while [ $i -lt 50 ]; do echo out $i; echo err $i >&2; i=$((i+1)); done");
    EXPECT_EQ(lines(), expected);
}

TEST_F(OutputOfAChild, isDeliveredThoughStillInThePipeAtTheEnd)
{
    EXPECT_EQ(runShell("head -c 60000 /dev/zero | tr '\\0' x; echo; printf end"), 0);
    ASSERT_EQ(lines().size(), 2);
    EXPECT_EQ(lines().first().size(), 60'000);
    EXPECT_EQ(lines().last(), QStringLiteral("end"));
}

TEST_F(OutputOfAChild, isDeliveredThoughItFillsTheWholePipeAtTheEnd)
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

TEST_F(OutputOfAChild, isDeliveredWholeWhenItIsLarge)
{
    EXPECT_EQ(runShell("seq 1 200000"), 0);
    ASSERT_EQ(lines().size(), 200'000);
    EXPECT_EQ(lines().at(123'455), QStringLiteral("123456"));
    EXPECT_EQ(lines().last(), QStringLiteral("200000"));
}

TEST_F(OutputOfAChild, keepsACarriageReturnOnItsLine)
{
    runShell("printf 'a\\r\\nb\\r\\n'");
    EXPECT_EQ(lines(), (QStringList{QStringLiteral("a\r"), QStringLiteral("b\r")}));
}

TEST_F(OutputOfAChild, isDeliveredOnAnotherThread)
{
    std::atomic<QThread*> deliverer = nullptr;
    await(m_process.run(QStringLiteral("/bin/sh"), shell("echo x"),
                        [&](const QString&) { deliverer = QThread::currentThread(); }));
    EXPECT_EQ(deliverer, &ServiceThread::children());
}

TEST_F(OutputOfAChild, isHandedToALogInBlocksWithTheSameEffect)
{
    LogStore log;
    await(m_process.run(QStringLiteral("/bin/sh"), shell("printf 'a\\r\\n\\nb'"), log.callback()));
    EXPECT_EQ(log.newest(10), (QStringList{QStringLiteral("a\r"), QString(), QStringLiteral("b")}));
}

TEST_F(OutputOfAChild, isCompleteThoughAGrandchildHoldsThePipe)
{
    EXPECT_EQ(runShell("sleep 600 & echo $!; printf unfinished"), 0);
    ASSERT_EQ(lines().size(), 2);
    EXPECT_EQ(lines().last(), QStringLiteral("unfinished"));
    const auto grandchild = lines().first().toInt();
    EXPECT_TRUE(processRuns(grandchild)); // Nobody asked for its end.
    ::kill(grandchild, SIGKILL);
}

TEST_F(OutputOfAChild, isCompleteThoughAGrandchildFloodsThePipe)
{
    const TestFolder folder;
    const auto flooded = folder.path(QStringLiteral("flooded"));
    auto noteFlood = [flooded, isNoted = false](const QString&) mutable {
        if (!std::exchange(isNoted, true))
            QFile(flooded).open(QIODevice::WriteOnly);
    };
    EXPECT_EQ(await(m_process.run(QStringLiteral("/bin/sh"),
                                  shell("yes & while [ ! -e \"$0\" ]; do sleep 0.01; done") +
                                      QStringList{flooded},
                                  std::move(noteFlood))),
              0);
}

TEST_F(OutputOfAChild, doesNotKeepAFloodingChildFromBeingTerminated)
{
    LogStore log;
    auto run = m_process.run(QStringLiteral("/usr/bin/yes"), {}, log.callback());
    ASSERT_TRUE(waitUntil([&log] { return log.newest(2000).size() == 2000; }));
    m_process.terminate();
    EXPECT_EQ(await(run), SIGTERM);
    EXPECT_EQ(log.newest(3000).size(), 2000);
}

TEST_F(OutputOfAChild, doesNotKeepAnotherChildFromBeingServed)
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

} // namespace
