// SPDX-License-Identifier: MIT
#pragma once

#include "Support/Await.h"
#include "System/Errors.h"

#include <QCoroTask>
#include <QFuture>
#include <QPromise>
#include <QString>

#include <memory>
#include <optional>
#include <type_traits>

/// The result of an operation: a value, or one of the three kinds of error.
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

/// Runs `work` and returns its outcome. A void result becomes the value `true`.
template<typename Work>
auto outcomeOf(const Work& work)
{
    using Result = std::invoke_result_t<Work>;
    using Value = std::conditional_t<std::is_void_v<Result>, bool, Result>;
    Outcome<Value> outcome;
    try {
        if constexpr (std::is_void_v<Result>) {
            work();
            outcome.value = true;
        } else {
            outcome.value = work();
        }
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

/// Runs the event loop until `future` has finished. Fails the test on timeout.
template<typename Value>
Outcome<Value> eventually(QFuture<Value> future)
{
    if (!waitUntil([&future] { return future.isFinished(); }))
        return {};
    return outcomeOf([&future] { return future.result(); });
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

} // namespace Detail

/// Like eventually() for a future, for a coroutine.
template<typename Value>
Outcome<Value> eventually(QCoro::Task<Value> task)
{
    auto promise = std::make_shared<QPromise<Value>>();
    promise->start();
    const auto future = promise->future();
    auto settled = Detail::settle(std::move(task), promise);
    return eventually(future);
}
