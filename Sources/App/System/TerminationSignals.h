// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QObject>

#include <memory>

class QSocketNotifier;

/// Turns SIGTERM, SIGINT and SIGHUP into a Qt signal on the object's thread. A signal that was
/// ignored at the start of the program, as with nohup, stays ignored. Only one object may exist at
/// a time.
class TerminationSignals final : public QObject
{
    Q_OBJECT

public:
    TerminationSignals();
    ~TerminationSignals() override;

Q_SIGNALS:
    /// Emitted once for all signals since the last time.
    void received();

private:
    void drain();

    FileDescriptor m_readEnd;
    FileDescriptor m_writeEnd;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
