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

/// Knows the two ways in which the engine is run on the game, the first-time import and the play
/// run, and holds the child of whichever is under way, so that it can be stopped. Main thread.
class GameRunner final
{
public:
    explicit GameRunner(const Durations& durations = {});

    /// The engine's arguments for a play run.
    static QStringList playArguments(const QString& project, bool fullscreen,
                                     ResolutionChoice resolution);

    /// Runs the first-time import and gives the engine's exit status. A watcher logs how many
    /// assets are still to import and ends the run when nothing has been missing for a while or
    /// when more than `timeout` has passed; neither is an error here. Throws PlatformError when the
    /// engine cannot be started. The runner must outlive the task.
    QCoro::Task<int> runImport(QString engine, QString project, std::chrono::milliseconds timeout,
                               LogCallback log);

    /// Asks the current child, if any, to stop.
    void terminateCurrent();

    /// The child of the run that is going on, or nothing.
    std::shared_ptr<ManagedProcess> process;

private:
    const Durations m_durations;
};
