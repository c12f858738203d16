// SPDX-License-Identifier: MIT
#pragma once

#include <QFuture>
#include <QPromise>
#include <QThreadPool>

#include <exception>
#include <memory>
#include <type_traits>
#include <utility>

/// Runs `work` on the thread pool, the program's own unless another one is given. The future
/// carries its result, or what it throws, unchanged; QtConcurrent::run would wrap any exception
/// that is not one of the library's own.
template<typename Work>
auto offThread(Work work, QThreadPool& pool = *QThreadPool::globalInstance())
    -> QFuture<std::invoke_result_t<Work&>>
{
    using Result = std::invoke_result_t<Work&>;
    const auto promise = std::make_shared<QPromise<Result>>();
    promise->start();
    pool.start([promise, work = std::move(work)]() mutable {
        try {
            if constexpr (std::is_void_v<Result>)
                work();
            else
                promise->addResult(work());
        } catch (...) {
            promise->setException(std::current_exception());
        }
        promise->finish();
    });
    return promise->future();
}
