// SPDX-License-Identifier: MIT
#pragma once

#include "Process/LogStore.h"
#include "Process/ManagedProcess.h"
#include "Process/ResolutionChoice.h"
#include "System/Durations.h"

#include <QCoroTask>
#include <QString>
#include <QStringList>

#include <chrono>
#include <memory>

/// Runs the engine for the first-time import, and holds the child process of the current run, so
/// that it can be stopped. Main thread.
class GameRunner final
{
public:
    explicit GameRunner(const Durations& durations = {});

    /// Returns the engine's arguments for a play run.
    static QStringList playArguments(const QString& project, bool fullscreen,
                                     ResolutionChoice resolution);

    /// Runs the first-time import and returns the engine's exit status. Logs the number of assets
    /// still to import, and ends the run when all are imported or after `timeout`; neither is an
    /// error. Throws PlatformError if the engine cannot be started. The runner must outlive the
    /// task.
    QCoro::Task<int> runImport(QString engine, QString project, std::chrono::milliseconds timeout,
                               LogCallback log);

    /// Asks the current child, if any, to stop.
    void terminateCurrent();

    /// The child of the current run, or null.
    std::shared_ptr<ManagedProcess> process;

private:
    const Durations m_durations;
};
