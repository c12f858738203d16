// SPDX-License-Identifier: MIT
#pragma once

#include <QThread>

/// A thread with an event loop that lives as long as the program: started on first use, ended with
/// the application object, or by exit() where that comes first. What has been handed to it by then
/// and not begun is dropped.
///
/// There are two. A child process that is to end with the launcher follows the thread that started
/// it, so that thread must not end earlier; and a network connection belongs to one thread.
class ServiceThread final : public QThread
{
public:
    ~ServiceThread() override;

    /// Serves the HTTP transfers.
    static ServiceThread& network();
    /// Starts and serves the child processes.
    static ServiceThread& children();

    /// Runs `work` on this thread, after what was handed to it before. Any thread.
    template<typename Work>
    void post(Work&& work)
    {
        QMetaObject::invokeMethod(&m_context, std::forward<Work>(work), Qt::QueuedConnection);
    }

private:
    explicit ServiceThread(const QString& name);

    void end();

    QObject m_context;
};
