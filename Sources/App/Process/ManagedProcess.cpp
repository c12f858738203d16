// SPDX-License-Identifier: MIT
#include "Process/ManagedProcess.h"

#include "Process/ChildProcess.h"

ManagedProcess::ManagedProcess(Lifetime lifetime, std::chrono::milliseconds killGrace,
                               int sessionLock)
    : m_child(ChildProcess::create(lifetime, killGrace, sessionLock))
{
}

ManagedProcess::~ManagedProcess() = default;

QFuture<int> ManagedProcess::run(const QString& executable, const QStringList& arguments,
                                 LogCallback onLine)
{
    return m_child->run(executable, arguments, std::move(onLine));
}

bool ManagedProcess::isRunning() const
{
    return m_child->isRunning();
}

void ManagedProcess::terminate()
{
    m_child->terminate();
}
