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

/// Runs the engine on the game, for the first-time import or to play, and holds the child process,
/// so that it can be stopped. Main thread.
class GameRunner final
{
public:
    explicit GameRunner(const Durations& durations = {});

    /// The engine's arguments for a play run.
    static QStringList playArguments(const QString& project, bool fullscreen,
                                     ResolutionChoice resolution);

    /// Runs the first-time import and returns the engine's exit status. A watcher logs how many
    /// assets are still to import, and ends the run when no asset has been missing for a while or
    /// after `timeout`; neither is an error. Throws PlatformError if the engine cannot be started.
    /// The runner must outlive the task.
    QCoro::Task<int> runImport(QString engine, QString project, std::chrono::milliseconds timeout,
                               LogCallback log);

    /// Asks the current child, if any, to stop.
    void terminateCurrent();

    /// The child of the current run, or null.
    std::shared_ptr<ManagedProcess> process;

private:
    const Durations m_durations;
};
