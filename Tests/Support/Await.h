// SPDX-License-Identifier: MIT
#pragma once

#include "Support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QFuture>
#include <QTest>

#include <chrono>
#include <functional>

/// Runs the event loop until `condition` is true. Returns false and fails the test on timeout. The
/// default is long, since other programs may keep the processors or the disk busy.
inline bool waitUntil(const std::function<bool()>& condition,
                      std::chrono::milliseconds timeout = std::chrono::seconds{60})
{
    const auto held = QTest::qWaitFor(condition, static_cast<int>(timeout.count()));
    EXPECT_TRUE(held) << "Timed out.";
    return held;
}

/// Runs the event loop until `future` has finished. Returns its result or throws its exception.
template<typename Result>
Result await(QFuture<Result> future)
{
    if (!waitUntil([&future] { return future.isFinished(); }))
        throw std::runtime_error("The future never finished.");
    return future.result();
}
