// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QObject>

#include <memory>

class QSocketNotifier;

/// Turns the signals by which a system asks a program to leave (SIGTERM, SIGINT and SIGHUP) into a
/// Qt signal on the thread this lives on; while it lives, they have no other effect. One that was
/// ignored when the program started, as nohup does, stays ignored. At most one of these exists at a
/// time.
class TerminationSignals final : public QObject
{
    Q_OBJECT

public:
    TerminationSignals();
    ~TerminationSignals() override;

Q_SIGNALS:
    /// Once for all signals that have come since the last time.
    void received();

private:
    void drain();

    FileDescriptor m_readEnd;
    FileDescriptor m_writeEnd;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
