// SPDX-License-Identifier: MIT
#include "Platform/ServiceThread.h"

#include <QCoreApplication>

namespace {

void endThread(ServiceThread& thread)
{
    thread.quit();
    thread.wait();
}

} // namespace

ServiceThread::ServiceThread(const QString& name)
{
    setObjectName(name);
    m_context.moveToThread(this);
    start();
}

ServiceThread& ServiceThread::network()
{
    static ServiceThread thread(QStringLiteral("network"));
    static const bool registered = (qAddPostRoutine([] { endThread(network()); }), true);
    Q_UNUSED(registered)
    return thread;
}

ServiceThread& ServiceThread::children()
{
    static ServiceThread thread(QStringLiteral("children"));
    static const bool registered = (qAddPostRoutine([] { endThread(children()); }), true);
    Q_UNUSED(registered)
    return thread;
}
