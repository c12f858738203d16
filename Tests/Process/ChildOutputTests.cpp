// SPDX-License-Identifier: MIT
#include "ChildTest.h"

#include "Process/LogStore.h"
#include "Support/TestFolder.h"

#include <QFile>
#include <QThread>

#include <csignal>
#include <ctime>
#include <utility>

namespace {

using OutputOfAChild = ChildTest;

TEST_F(OutputOfAChild, isDeliveredLineByLineAndTheLastOneWithoutALineFeed)
{
    EXPECT_EQ(runShell("printf 'a\\nb'"), 0);
    EXPECT_EQ(lines(), (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(OutputOfAChild, isThatOfStandardErrorToo)
{
    EXPECT_EQ(runShell("echo one >&2; echo two >&2"), 0);
    EXPECT_EQ(lines(), (QStringList{u"one"_s, u"two"_s}));
}

TEST_F(OutputOfAChild, isDeliveredInTheOrderInWhichBothStreamsWereWritten)
{
    QStringList expected;
    for (int i = 0; i < 50; ++i)
        expected << u"out %1"_s.arg(i) << u"err %1"_s.arg(i);
    runShell("i=0; while [ $i -lt 50 ]; do echo out $i; echo err $i >&2; i=$((i+1)); done");
    EXPECT_EQ(lines(), expected);
}

TEST_F(OutputOfAChild, isDeliveredThoughStillInThePipeAtTheEnd)
{
    EXPECT_EQ(runShell("yes 123456789 | head -n 6000; printf end"), 0);
    ASSERT_EQ(lines().size(), 6001);
    EXPECT_EQ(lines().at(5999), u"123456789"_s);
    EXPECT_EQ(lines().last(), u"end"_s);
}

TEST_F(OutputOfAChild, isDeliveredThoughItFillsTheWholePipeAtTheEnd)
{
    // The pipe is made larger than what is read at a time, and it is filled and the child gone
    // while the first line is being delivered.
    constexpr auto* program = "fcntl(STDOUT, 1031, 1 << 20) or exit 9; $| = 1; print qq(first\n); "
                              "print join(qq(\n), 1..100000);";
    const auto deliver = m_output.callback();
    const auto deliverSlowly = [deliver](const QString& lines) {
        if (lines.startsWith("first"_L1))
            QThread::msleep(400);
        deliver(lines);
    };
    EXPECT_EQ(
        m_process->run(u"/usr/bin/perl"_s, {u"-e"_s, QString::fromUtf8(program)}, deliverSlowly),
        0);
    ASSERT_EQ(lines().size(), 100'001);
    EXPECT_EQ(lines().last(), u"100000"_s);
}

TEST_F(OutputOfAChild, isDeliveredWholeWhenItIsLarge)
{
    EXPECT_EQ(runShell("seq 1 200000"), 0);
    ASSERT_EQ(lines().size(), 200'000);
    EXPECT_EQ(lines().at(123'455), u"123456"_s);
    EXPECT_EQ(lines().last(), u"200000"_s);
}

TEST_F(OutputOfAChild, keepsACarriageReturnOnItsLine)
{
    runShell("printf 'a\\r\\nb\\r\\n'");
    EXPECT_EQ(lines(), (QStringList{u"a\r"_s, u"b\r"_s}));
}

TEST_F(OutputOfAChild, isDeliveredOnTheThreadThatRunsTheChild)
{
    QThread* deliverer = nullptr;
    m_process->run(u"/bin/sh"_s, shell("echo x"),
                   [&](const QString&) { deliverer = QThread::currentThread(); });
    EXPECT_EQ(deliverer, QThread::currentThread());
}

TEST_F(OutputOfAChild, comesInPiecesCutBetweenCharactersWhenALineDoesNotEnd)
{
    // 100,000 times a character of three bytes, one byte aside.
    EXPECT_EQ(run(u"/usr/bin/perl"_s, {u"-e"_s, u"print 'x', qq(\\xe2\\x82\\xac) x 100000"_s}), 0);
    EXPECT_GT(lines().size(), 1);
    EXPECT_EQ(lines().join(QString()), u'x' + QString(100'000, u'€'));
}

TEST_F(OutputOfAChild, isWholeWhenALineIsShorterThanThat)
{
    EXPECT_EQ(runShell("head -c 16000 /dev/zero | tr '\\0' x; sleep 0.05; echo end"), 0);
    ASSERT_EQ(lines().size(), 1);
    EXPECT_EQ(lines().first().size(), 16'003);
}

TEST_F(OutputOfAChild, isCompleteThoughAGrandchildHoldsThePipe)
{
    EXPECT_EQ(m_game->run(u"/bin/sh"_s, shell("sleep 600 & echo $!; printf unfinished"),
                          m_output.callback()),
              0);
    ASSERT_EQ(lines().size(), 2);
    EXPECT_EQ(lines().last(), u"unfinished"_s);
    ::kill(lines().first().toInt(), SIGKILL);
}

TEST_F(OutputOfAChild, isCompleteThoughAGrandchildFloodsThePipe)
{
    const TestFolder folder;
    const auto flooded = folder.path(u"flooded"_s);
    auto noteFlood = [flooded, isNoted = false](const QString&) mutable {
        if (!std::exchange(isNoted, true))
            QFile(flooded).open(QIODevice::WriteOnly);
    };
    EXPECT_EQ(m_process->run(u"/bin/sh"_s,
                             shell("yes & while [ ! -e \"$0\" ]; do sleep 0.01; done") +
                                 QStringList{flooded},
                             std::move(noteFlood)),
              0);
}

TEST_F(OutputOfAChild, mayEndBeforeTheChildDoes)
{
    const auto before = std::clock(); // The processor time of this process.
    EXPECT_EQ(runShell("echo last; exec >&- 2>&-; sleep 0.5; exit 6"), 6);
    EXPECT_EQ(lines(), QStringList{u"last"_s});
    EXPECT_LT(std::clock() - before, CLOCKS_PER_SEC / 5)
        << "It has used the processor while it waited.";
}

TEST_F(OutputOfAChild, doesNotKeepAFloodingChildFromBeingTerminated)
{
    LogStore log;
    auto run = start(m_process, u"/usr/bin/yes"_s, {}, log.callback());
    ASSERT_TRUE(waitUntil([&log] { return log.newest(2000).size() == 2000; }));
    m_process->terminate();
    EXPECT_EQ(await(run), SIGTERM);
    EXPECT_EQ(log.newest(3000).size(), 2000);
}

} // namespace
