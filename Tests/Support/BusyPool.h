// SPDX-License-Identifier: MIT
#pragma once

#include "System/OffThread.h"

#include <QSemaphore>

/// Keeps every thread of the worker pool busy until its destructor, so that other work has to wait.
class BusyPool final
{
public:
    BusyPool()
    {
        for (int i = 0; i < m_threads; ++i)
            workerPool().start([this] { m_end.acquire(); });
    }
    ~BusyPool()
    {
        m_end.release(m_threads);
        workerPool().waitForDone();
    }

    BusyPool(const BusyPool&) = delete;
    BusyPool& operator=(const BusyPool&) = delete;

private:
    const int m_threads = workerPool().maxThreadCount();
    QSemaphore m_end;
};
