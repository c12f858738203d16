// SPDX-License-Identifier: MIT
#pragma once

#include <QCoroTask>
#include <QString>

#include <functional>

/// Waits for `task`, then, whether it gave a value or threw, runs `cleanup` on the thread pool, and
/// only after that gives the value or throws the error on. What a destructor would do for a
/// coroutine, but without blocking the thread that it happens to end on. `cleanup` must not throw.
QCoro::Task<QString> finallyOffThread(QCoro::Task<QString> task, std::function<void()> cleanup);
