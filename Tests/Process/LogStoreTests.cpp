// SPDX-License-Identifier: MIT
#include "Process/LogStore.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSignalSpy>
#include <QThread>

#include <chrono>
#include <thread>
#include <vector>

using namespace std::chrono_literals;

namespace {

QStringList numbered(int first, int last)
{
    QStringList lines;
    for (int i = first; i <= last; ++i)
        lines.append(QString::number(i));
    return lines;
}

QByteArray block(const QStringList& lines)
{
    return lines.join(u'\n').toUtf8() + '\n';
}

class LogStoreTest : public testing::Test
{
protected:
    LogStore m_log{2000, 50ms};
    QSignalSpy m_changes{&m_log, &LogStore::linesChanged};
};

TEST_F(LogStoreTest, publishesABurstInOneChangeAfterTheDelay)
{
    m_log.append(QStringLiteral("one"));
    m_log.append(QStringLiteral("two"));
    EXPECT_EQ(m_log.lines(), QStringList());
    ASSERT_TRUE(m_changes.wait());
    EXPECT_EQ(m_log.lines(), (QStringList{QStringLiteral("one"), QStringLiteral("two")}));
    EXPECT_FALSE(m_changes.wait(200));
    EXPECT_EQ(m_changes.count(), 1);
}

TEST_F(LogStoreTest, publishesWhatComesAfterAPublication)
{
    m_log.append(QStringLiteral("one"));
    ASSERT_TRUE(m_changes.wait());
    m_log.append(QStringLiteral("two"));
    ASSERT_TRUE(m_changes.wait());
    EXPECT_EQ(m_log.lines(), (QStringList{QStringLiteral("one"), QStringLiteral("two")}));
}

TEST_F(LogStoreTest, keepsTheNewestLinesOfALongText)
{
    m_log.append(numbered(1, 2500).join(u'\n'));
    ASSERT_TRUE(m_changes.wait());
    EXPECT_EQ(m_log.lines(), numbered(501, 2500));
    EXPECT_EQ(m_log.firstLineNumber(), 500);
}

TEST_F(LogStoreTest, keepsTheNewestLinesOfManyAppends)
{
    for (const auto& line : numbered(1, 2500))
        m_log.append(line);
    EXPECT_EQ(m_log.newest(5000), numbered(501, 2500));
}

TEST_F(LogStoreTest, addsAnEmptyLineForAnEmptyText)
{
    m_log.append(QString());
    EXPECT_EQ(m_log.newest(10), QStringList{QString()});
}

TEST_F(LogStoreTest, splitsATextAtEveryLineFeed)
{
    m_log.append(QStringLiteral("x\n"));
    m_log.append(QStringLiteral("a\n\nb"));
    EXPECT_EQ(m_log.newest(10), (QStringList{QStringLiteral("x"), QString(), QStringLiteral("a"),
                                             QString(), QStringLiteral("b")}));
}

TEST_F(LogStoreTest, keepsACarriageReturnOnItsLine)
{
    m_log.append(QStringLiteral("a\r\nb\r"));
    EXPECT_EQ(m_log.newest(10), (QStringList{QStringLiteral("a\r"), QStringLiteral("b\r")}));
}

TEST_F(LogStoreTest, givesTheNewestLinesBeforeTheyArePublished)
{
    m_log.append(numbered(1, 10).join(u'\n'));
    EXPECT_EQ(m_log.newest(3), numbered(8, 10));
    EXPECT_EQ(m_log.newest(0), QStringList());
    EXPECT_EQ(m_log.lines(), QStringList());
}

TEST_F(LogStoreTest, publishesAClearAtOnceAndLaterWhatCameAfterIt)
{
    m_log.append(QStringLiteral("before"));
    m_log.clear();
    m_log.append(QStringLiteral("after"));
    QCoreApplication::sendPostedEvents(&m_log);
    // The line after the clear was there when the clear was published.
    EXPECT_EQ(m_changes.count(), 1);
    EXPECT_EQ(m_log.lines(), QStringList{QStringLiteral("after")});
    EXPECT_EQ(m_log.firstLineNumber(), 1);
    ASSERT_TRUE(m_changes.wait());
    EXPECT_EQ(m_log.lines(), QStringList{QStringLiteral("after")});
}

TEST_F(LogStoreTest, isEmptyAfterAClearWhileAPublicationIsPending)
{
    m_log.append(QStringLiteral("before"));
    m_log.clear();
    ASSERT_TRUE(m_changes.wait());
    EXPECT_EQ(m_log.lines(), QStringList());
    ASSERT_TRUE(m_changes.wait());
    EXPECT_EQ(m_log.lines(), QStringList());
}

TEST_F(LogStoreTest, clearsLinesThatWerePublished)
{
    m_log.append(QStringLiteral("before"));
    ASSERT_TRUE(m_changes.wait());
    m_log.clear();
    ASSERT_TRUE(m_changes.wait());
    EXPECT_EQ(m_log.lines(), QStringList());
    EXPECT_EQ(m_log.newest(10), QStringList());
}

TEST_F(LogStoreTest, publishesOnItsOwnThread)
{
    QThread* publisher = nullptr;
    QObject::connect(
        &m_log, &LogStore::linesChanged, &m_log, [&] { publisher = QThread::currentThread(); },
        Qt::DirectConnection);
    std::thread([this] { m_log.append(QStringLiteral("from elsewhere")); }).join();
    ASSERT_TRUE(m_changes.wait());
    EXPECT_EQ(publisher, QThread::currentThread());
}

TEST_F(LogStoreTest, takesABlockAsItsLines)
{
    m_log.append(QStringLiteral("first"));
    m_log.appendBlock("a\r\n\n\xff\xe2\x82\xac\n\xef\xbb\xbf\n");
    m_log.append(QStringLiteral("last"));
    EXPECT_EQ(m_log.newest(10), (QStringList{QStringLiteral("first"), QStringLiteral("a\r"),
                                             QString(), QStringLiteral("\uFFFD€"),
                                             QStringLiteral("\uFEFF"), QStringLiteral("last")}));
}

TEST_F(LogStoreTest, keepsTheNewestLinesOfLinesAndBlocks)
{
    m_log.append(numbered(1, 1500).join(u'\n'));
    m_log.appendBlock(block(numbered(1501, 1800)));
    m_log.appendBlock(block(numbered(1801, 2400)));
    EXPECT_EQ(m_log.newest(5000), numbered(401, 2400));
    ASSERT_TRUE(m_changes.wait());
    EXPECT_EQ(m_log.firstLineNumber(), 400);
}

TEST_F(LogStoreTest, keepsTheNewestLinesOfManyBlocks)
{
    m_log.append(QStringLiteral("gone"));
    for (int first = 1; first <= 9901; first += 100)
        m_log.appendBlock(block(numbered(first, first + 99)));
    m_log.appendBlock(block(numbered(10'001, 10'001)));
    ASSERT_TRUE(m_changes.wait());
    EXPECT_EQ(m_log.lines(), numbered(8002, 10'001));
    EXPECT_EQ(m_log.firstLineNumber(), 8002);
}

TEST_F(LogStoreTest, keepsTheNewestLinesOfOneBlockBeyondTheBound)
{
    m_log.appendBlock(block(numbered(1, 2500)));
    EXPECT_EQ(m_log.newest(5000), numbered(501, 2500));
}

TEST_F(LogStoreTest, clearsBlocksToo)
{
    m_log.appendBlock("a\n");
    m_log.clear();
    EXPECT_EQ(m_log.newest(10), QStringList());
}

TEST_F(LogStoreTest, isWrittenToByItsCallback)
{
    const auto callback = m_log.callback();
    callback(QStringLiteral("a sentence"));
    ASSERT_TRUE(callback.takesBlocks());
    callback.takeBlock("output\n");
    EXPECT_EQ(m_log.newest(10),
              (QStringList{QStringLiteral("a sentence"), QStringLiteral("output")}));
}

TEST(WritersOfTheLogStore, loseNoLine)
{
    LogStore log(2000, 50ms);
    std::vector<std::thread> writers;
    for (int writer = 0; writer < 4; ++writer)
        writers.emplace_back([&log, writer] {
            for (int i = 0; i < 400; ++i) {
                const auto line = QStringLiteral("%1 %2").arg(writer).arg(i);
                if (i % 2 == 0)
                    log.append(line);
                else
                    log.appendBlock(line.toUtf8() + '\n');
            }
        });
    for (auto& writer : writers)
        writer.join();
    const auto lines = log.newest(2000);
    ASSERT_EQ(lines.size(), 1600);
    for (int writer = 0; writer < 4; ++writer) {
        int next = 0;
        for (const auto& line : lines) {
            if (line == QStringLiteral("%1 %2").arg(writer).arg(next))
                ++next;
        }
        EXPECT_EQ(next, 400) << "of writer " << writer;
    }
}

TEST(LogStore, thatIsGoneBeforeAPublicationIsNotPublished)
{
    auto log = std::make_unique<LogStore>(2000, 1ms);
    int changes = 0;
    QObject::connect(log.get(), &LogStore::linesChanged, [&changes] { ++changes; });
    log->append(QStringLiteral("one"));
    QCoreApplication::processEvents(); // The delay begins.
    log->clear();
    log.reset();
    QThread::msleep(5);
    QCoreApplication::processEvents();
    EXPECT_EQ(changes, 0);
}

} // namespace
