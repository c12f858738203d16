// SPDX-License-Identifier: MIT
#pragma once

#include "AppError.h"
#include "Platform/Cancelled.h"
#include "Platform/PlatformError.h"
#include "Support/Await.h"

#include <QCoroTask>
#include <QFuture>
#include <QPromise>
#include <QString>

#include <memory>
#include <optional>

/// How an asynchronous operation ended: with a value, or with one of the three kinds of error.
template<typename Value>
struct Outcome
{
    std::optional<Value> value;
    /// The sentence of an AppError or a PlatformError.
    QString sentence;
    bool isAppError = false;
    bool isPlatformError = false;
    bool isCancelled = false;
};

/// Runs the event loop until `future` has ended; a test failure when that takes over 20 s.
template<typename Value>
Outcome<Value> eventually(QFuture<Value> future)
{
    Outcome<Value> outcome;
    if (!waitUntil([&future] { return future.isFinished(); }))
        return outcome;
    try {
        outcome.value = future.result();
    } catch (const AppError& error) {
        outcome.isAppError = true;
        outcome.sentence = error.message();
    } catch (const PlatformError& error) {
        outcome.isPlatformError = true;
        outcome.sentence = error.message();
    } catch (const Cancelled&) {
        outcome.isCancelled = true;
    }
    return outcome;
}

namespace Detail {

template<typename Value>
QCoro::Task<> settle(QCoro::Task<Value> task, std::shared_ptr<QPromise<Value>> promise)
{
    try {
        promise->addResult(co_await task);
    } catch (...) {
        promise->setException(std::current_exception());
    }
    promise->finish();
}

inline QCoro::Task<> settle(QCoro::Task<> task, std::shared_ptr<QPromise<bool>> promise)
{
    try {
        co_await task;
        promise->addResult(true);
    } catch (...) {
        promise->setException(std::current_exception());
    }
    promise->finish();
}

} // namespace Detail

/// The same for a coroutine.
template<typename Value>
Outcome<Value> eventually(QCoro::Task<Value> task)
{
    auto promise = std::make_shared<QPromise<Value>>();
    promise->start();
    const auto future = promise->future();
    auto settled = Detail::settle(std::move(task), promise);
    return eventually(future);
}

/// The same for a coroutine without a value, which then is "true".
inline Outcome<bool> eventually(QCoro::Task<> task)
{
    auto promise = std::make_shared<QPromise<bool>>();
    promise->start();
    const auto future = promise->future();
    auto settled = Detail::settle(std::move(task), promise);
    return eventually(future);
}
