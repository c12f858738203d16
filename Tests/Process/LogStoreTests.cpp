// SPDX-License-Identifier: MIT
#include "Process/LogStore.h"

#include "Support/Await.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QSignalSpy>
#include <QThread>

#include <chrono>
#include <thread>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

QStringList numbered(int first, int last)
{
    QStringList lines;
    for (int i = first; i <= last; ++i)
        lines.append(QString::number(i));
    return lines;
}

class LogStoreTest : public testing::Test
{
protected:
    LogStore m_log{2000, 50ms};
    QSignalSpy m_changes{&m_log, &LogStore::linesChanged};
};

TEST_F(LogStoreTest, publishesABurstInOneChangeAfterTheDelay)
{
    m_log.append(u"one"_s);
    m_log.append(u"two"_s);
    EXPECT_EQ(m_log.lines(), QStringList());
    ASSERT_TRUE(m_changes.wait());
    EXPECT_EQ(m_log.lines(), (QStringList{u"one"_s, u"two"_s}));
    EXPECT_FALSE(m_changes.wait(200));
    EXPECT_EQ(m_changes.count(), 1);
}

TEST_F(LogStoreTest, publishesWhatComesAfterAPublication)
{
    m_log.append(u"one"_s);
    ASSERT_TRUE(m_changes.wait());
    m_log.append(u"two"_s);
    ASSERT_TRUE(m_changes.wait());
    EXPECT_EQ(m_log.lines(), (QStringList{u"one"_s, u"two"_s}));
}

TEST_F(LogStoreTest, keepsTheNewestLinesOfALongText)
{
    m_log.append(numbered(1, 2500).join(u'\n'));
    ASSERT_TRUE(m_changes.wait());
    EXPECT_EQ(m_log.lines(), numbered(501, 2500));
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
    m_log.append(u"x\n"_s);
    m_log.append(u"a\n\nb"_s);
    EXPECT_EQ(m_log.newest(10), (QStringList{u"x"_s, QString(), u"a"_s, QString(), u"b"_s}));
}

TEST_F(LogStoreTest, keepsACarriageReturnOnItsLine)
{
    m_log.append(u"a\r\nb\r"_s);
    EXPECT_EQ(m_log.newest(10), (QStringList{u"a\r"_s, u"b\r"_s}));
}

TEST_F(LogStoreTest, returnsTheNewestLinesBeforeTheyArePublished)
{
    m_log.append(numbered(1, 10).join(u'\n'));
    EXPECT_EQ(m_log.newest(3), numbered(8, 10));
    EXPECT_EQ(m_log.newest(0), QStringList());
    EXPECT_EQ(m_log.lines(), QStringList());
}

TEST_F(LogStoreTest, publishesAClearAtOnceAndLaterWhatCameAfterIt)
{
    m_log.append(u"before"_s);
    m_log.clear();
    m_log.append(u"after"_s);
    QCoreApplication::sendPostedEvents(&m_log);
    // The line after the clear was there when the clear was published.
    EXPECT_EQ(m_changes.count(), 1);
    EXPECT_EQ(m_log.lines(), QStringList{u"after"_s});
    ASSERT_TRUE(m_changes.wait());
    EXPECT_EQ(m_log.lines(), QStringList{u"after"_s});
}

TEST_F(LogStoreTest, isEmptyAfterAClearWhileAPublicationIsPending)
{
    m_log.append(u"before"_s);
    m_log.clear();
    ASSERT_TRUE(waitUntil([this] { return m_changes.count() >= 1; }));
    EXPECT_EQ(m_log.lines(), QStringList());
    ASSERT_TRUE(waitUntil([this] { return m_changes.count() == 2; }));
    EXPECT_EQ(m_log.lines(), QStringList());
}

TEST_F(LogStoreTest, clearsLinesThatWerePublished)
{
    m_log.append(u"before"_s);
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
    std::thread([this] { m_log.append(u"from elsewhere"_s); }).join();
    ASSERT_TRUE(m_changes.wait());
    EXPECT_EQ(publisher, QThread::currentThread());
}

/// What the log shows, put together from nothing but the changes that it announces.
class ShownLines final
{
public:
    explicit ShownLines(const LogStore& log)
    {
        QObject::connect(&log, &LogStore::linesChanged,
                         [this](qsizetype dropped, const QStringList& added) {
                             m_lines = m_lines.sliced(dropped) + added;
                             m_addedCount += added.size();
                         });
    }

    [[nodiscard]] const QStringList& lines() const { return m_lines; }
    /// How many lines were added in all.
    [[nodiscard]] qsizetype addedCount() const { return m_addedCount; }

private:
    QStringList m_lines;
    qsizetype m_addedCount = 0;
};

TEST_F(LogStoreTest, announcesWhatWasDroppedAndWhatWasAdded)
{
    const ShownLines shown(m_log);
    for (const auto& [first, last] :
         {std::pair(1, 1500), {1501, 1900}, {1901, 2400}, {2401, 9000}}) {
        m_log.append(numbered(first, last).join(u'\n'));
        ASSERT_TRUE(m_changes.wait());
        EXPECT_EQ(shown.lines(), m_log.lines());
    }
    // Of the last 6,600 lines 2,000 were kept; no line was added twice.
    EXPECT_EQ(shown.addedCount(), 2400 + 2000);
}

TEST_F(LogStoreTest, announcesAClearAndWhatFollows)
{
    const ShownLines shown(m_log);
    m_log.append(u"before"_s);
    ASSERT_TRUE(m_changes.wait());
    m_log.append(u"gone"_s);
    m_log.clear();
    m_log.append(u"after"_s);
    ASSERT_TRUE(waitUntil([this] { return m_changes.count() >= 2; }));
    EXPECT_EQ(shown.lines(), QStringList{u"after"_s});
    ASSERT_TRUE(waitUntil([this] { return m_changes.count() == 3; }));
    EXPECT_EQ(shown.lines(), QStringList{u"after"_s});
    EXPECT_EQ(shown.addedCount(), 2);
}

TEST_F(LogStoreTest, isWrittenToByItsCallback)
{
    const auto callback = m_log.callback();
    callback(u"a sentence"_s);
    callback(u"two\nlines"_s);
    EXPECT_EQ(m_log.newest(10), (QStringList{u"a sentence"_s, u"two"_s, u"lines"_s}));
}

TEST(WritersOfTheLogStore, loseNoLine)
{
    LogStore log(2000, 50ms);
    std::vector<std::thread> writers;
    for (int writer = 0; writer < 4; ++writer)
        writers.emplace_back([&log, writer] {
            for (int i = 0; i < 400; ++i)
                log.append(u"%1 %2"_s.arg(writer).arg(i));
        });
    for (auto& writer : writers)
        writer.join();
    const auto lines = log.newest(2000);
    ASSERT_EQ(lines.size(), 1600);
    for (int writer = 0; writer < 4; ++writer) {
        int next = 0;
        for (const auto& line : lines) {
            if (line == u"%1 %2"_s.arg(writer).arg(next))
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
    log->append(u"one"_s);
    QCoreApplication::processEvents(); // The delay begins.
    log->clear();
    log.reset();
    QThread::msleep(5);
    QCoreApplication::processEvents();
    EXPECT_EQ(changes, 0);
}

} // namespace
