// SPDX-License-Identifier: MIT
#include "Platform/ServiceThread.h"

#include <QCoreApplication>

ServiceThread::ServiceThread(const QString& name)
{
    setObjectName(name);
    m_context.moveToThread(this);
    start();
}

ServiceThread::~ServiceThread()
{
    // Otherwise a program that ends by exit(), as Qt has it do when the display is lost, would be
    // aborted here: nobody has destroyed the application then, and so ended the thread.
    end();
}

ServiceThread& ServiceThread::network()
{
    static ServiceThread thread(QStringLiteral("network"));
    static const bool registered = (qAddPostRoutine([] { network().end(); }), true);
    Q_UNUSED(registered)
    return thread;
}

ServiceThread& ServiceThread::children()
{
    static ServiceThread thread(QStringLiteral("children"));
    static const bool registered = (qAddPostRoutine([] { children().end(); }), true);
    Q_UNUSED(registered)
    return thread;
}

void ServiceThread::end()
{
    quit();
    wait();
}
