// SPDX-License-Identifier: MIT
#include "Model/ProgressRelay.h"
#include "Support/Await.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include <memory>
#include <thread>

namespace {

class ProgressRelayTest : public testing::Test
{
protected:
    ProgressRelayTest()
    {
        QObject::connect(
            relay.get(), &ProgressRelay::progressed, relay.get(),
            [this](const DownloadProgress& progress) { received.append(progress.received); });
    }

    void reportFromAnotherThread(qint64 first, qint64 last)
    {
        std::thread([this, first, last] {
            for (auto bytes = first; bytes <= last; ++bytes)
                relay->report({.received = bytes, .total = last, .bytesPerSecond = 1});
        }).join();
    }

    std::unique_ptr<ProgressRelay> relay = std::make_unique<ProgressRelay>();
    QList<qint64> received;
};

TEST_F(ProgressRelayTest, passesOnOnlyTheNewestOfManyReports)
{
    reportFromAnotherThread(1, 10'000);
    EXPECT_TRUE(received.isEmpty());
    ASSERT_TRUE(waitUntil([this] { return !received.isEmpty(); }));
    EXPECT_EQ(received, QList<qint64>{10'000});
}

TEST_F(ProgressRelayTest, passesOnWhatIsReportedAfterADelivery)
{
    reportFromAnotherThread(1, 1);
    ASSERT_TRUE(waitUntil([this] { return received.size() == 1; }));
    reportFromAnotherThread(2, 2);
    ASSERT_TRUE(waitUntil([this] { return received.size() == 2; }));
    EXPECT_EQ(received.last(), 2);
}

TEST_F(ProgressRelayTest, dropsWhatIsWaitingWhenItIsDeleted)
{
    reportFromAnotherThread(1, 1);
    relay.reset();
    ProgressRelay next;
    const QSignalSpy delivered(&next, &ProgressRelay::progressed);
    next.report({.received = 2, .total = 2, .bytesPerSecond = 1});
    ASSERT_TRUE(waitUntil([&] { return delivered.size() == 1; }));
    EXPECT_TRUE(received.isEmpty()) << "it would have come before the next one's";
}

} // namespace
