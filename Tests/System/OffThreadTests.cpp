// SPDX-License-Identifier: MIT
#include "System/OffThread.h"

#include "Support/Await.h"

#include <gtest/gtest.h>

#include <QPromise>

#include <atomic>
#include <memory>
#include <stdexcept>
#include <thread>
#include <utility>

namespace {

TEST(OffThread, deliversTheResultOfTheWork)
{
    EXPECT_EQ(await(offThread([] { return 42; })), 42);
}

TEST(OffThread, deliversWhatTheWorkThrowsUnchanged)
{
    const auto future = offThread([]() -> int { throw std::out_of_range("too far"); });
    EXPECT_THROW(await(future), std::out_of_range);
}

/// Finishes promises on a thread of its own, each in the instant in which it is handed over.
class Finisher final
{
public:
    ~Finisher() { finish({}); }

    void finish(std::shared_ptr<QPromise<int>> promise)
    {
        while (m_isFull)
            std::this_thread::yield();
        m_promise = std::move(promise);
        m_isFull = true;
    }

private:
    void run()
    {
        while (true) {
            // It polls for some microseconds, so as to finish in the same instant, and then lets a
            // thread of a busy machine work.
            for (int polls = 0; !m_isFull; ++polls) {
                if (polls > 10'000)
                    std::this_thread::yield();
            }
            const auto promise = std::exchange(m_promise, nullptr);
            m_isFull = false;
            if (!promise)
                return;
            promise->addResult(1);
            promise->finish();
        }
    }

    std::shared_ptr<QPromise<int>> m_promise;
    std::atomic<bool> m_isFull = false;
    std::jthread m_thread{[this] { run(); }};
};

TEST(WhenFinished, callsItsContinuationOnceWhenTheFutureFinishesInTheSameInstant)
{
    constexpr int rounds = 2'000;
    Finisher finisher;
    QObject context;
    int calls = 0;
    for (int round = 0; round < rounds; ++round) {
        const auto promise = std::make_shared<QPromise<int>>();
        promise->start();
        const auto future = promise->future();
        finisher.finish(promise);
        whenFinished(future, &context, [&calls](int one) { calls += one; });
    }
    ASSERT_TRUE(waitUntil([&calls] { return calls >= rounds; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(calls, rounds);
}

TEST(WhenFinished, callsNothingWhenItsContextIsGone)
{
    QPromise<int> promise;
    promise.start();
    int calls = 0;
    {
        QObject context;
        whenFinished(promise.future(), &context, [&calls](int) { ++calls; });
    }
    promise.addResult(1);
    promise.finish();
    QCoreApplication::processEvents();
    EXPECT_EQ(calls, 0);
}

} // namespace
