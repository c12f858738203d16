// SPDX-License-Identifier: MIT
#pragma once

#include <QFuture>
#include <QFutureWatcher>
#include <QPromise>
#include <QThreadPool>

#include <exception>
#include <memory>
#include <type_traits>
#include <utility>

/// The threads for work that blocks: file work, downloads, child programs. More of them than there
/// are processors, since most of their time is spent waiting. A program that ends by exit() does
/// not wait for them.
inline QThreadPool& workerPool()
{
    static auto& pool = [&]() -> QThreadPool& {
        constexpr int threadCount = 8;
        auto* const created = new QThreadPool;
        created->setMaxThreadCount(threadCount);
        return *created;
    }();
    return pool;
}

/// Runs `work` on the worker pool. The future carries its result, or what it throws, unchanged;
/// QtConcurrent::run would wrap any exception that is not one of the library's own.
template<typename Work>
auto offThread(Work work) -> QFuture<std::invoke_result_t<Work&>>
{
    using Result = std::invoke_result_t<Work&>;
    const auto promise = std::make_shared<QPromise<Result>>();
    promise->start();
    workerPool().start([promise, work = std::move(work)]() mutable {
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

/// Calls `done` with the result of `future` on the thread of `context`, which is the caller's, once
/// the future has finished; never, if `context` is destroyed first. The future must not carry an
/// exception.
///
/// It stands in for QFuture::then(context, …): that calls its continuation twice in Qt 6.4 when the
/// future finishes in the instant in which the continuation is attached.
template<typename Result, typename Done>
void whenFinished(const QFuture<Result>& future, QObject* context, Done done)
{
    auto* const watcher = new QFutureWatcher<Result>(context);
    QObject::connect(watcher, &QFutureWatcherBase::finished, context,
                     [watcher, done = std::move(done)] {
                         watcher->deleteLater();
                         done(watcher->result());
                     });
    watcher->setFuture(future);
}
