// SPDX-License-Identifier: MIT
#pragma once

#include "Support/QtPrinters.h"

#include <gtest/gtest.h>

#include <QFuture>
#include <QTest>

#include <chrono>
#include <functional>

/// Runs the event loop until `condition` holds; a test failure and false when it never does.
inline bool waitUntil(const std::function<bool()>& condition,
                      std::chrono::milliseconds limit = std::chrono::seconds{20})
{
    const auto held = QTest::qWaitFor(condition, static_cast<int>(limit.count()));
    EXPECT_TRUE(held) << "Timed out.";
    return held;
}

/// The result of `future`, with the event loop running meanwhile. Throws what the future does.
template<typename Result>
Result await(QFuture<Result> future)
{
    if (!waitUntil([&future] { return future.isFinished(); }))
        throw std::runtime_error("The future never finished.");
    return future.result();
}
