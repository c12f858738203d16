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

/// The thread pool for work that blocks: files, downloads, child processes. It has more threads
/// than processors, since they mostly wait. exit() does not wait for them.
inline QThreadPool& workerPool()
{
    static auto* const pool = [] {
        constexpr int threadCount = 8;
        auto* const created = new QThreadPool;
        created->setMaxThreadCount(threadCount);
        return created;
    }();
    return *pool;
}

/// Runs `work` on the worker pool. The future carries its result or its exception.
/// QtConcurrent::run would wrap an exception that is not a QException.
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

/// Calls `done` with the result of `future` on this thread, which must be the thread of `context`.
/// Does not call it if `context` is destroyed first. The future must not carry an exception.
///
/// Replaces QFuture::then(context, …), which in Qt 6.4 can call its continuation twice if the
/// future finishes while the continuation is attached.
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
