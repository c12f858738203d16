// SPDX-License-Identifier: MIT
#include "Install/Finally.h"

#include "Platform/OffThread.h"

#include <QCoroFuture>

#include <exception>
#include <utility>

QCoro::Task<QString> finallyOffThread(QCoro::Task<QString> task, std::function<void()> cleanup)
{
    QString value;
    std::exception_ptr error;
    try {
        value = co_await task;
    } catch (...) {
        error = std::current_exception();
    }
    const auto cleaned = offThread(std::move(cleanup));
    co_await cleaned;
    if (error)
        std::rethrow_exception(error);
    co_return value;
}
