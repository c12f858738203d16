// SPDX-License-Identifier: MIT
//
// The start, the cancellation and the end of a flow.
#include "Model/AppModel.h"

#include "Install/Paths.h"
#include "System/DiskSpace.h"
#include "System/Errors.h"
#include "System/InstallationLock.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int reportedLogLines = 30;

} // namespace

bool AppModel::failIfGameRuns()
{
    // A killed launcher has left it running. Its files must not change, and a second game would
    // write to the same saves.
    if (!m_lock.isGameRunning())
        return false;
    concludeFailed(tr("The game is still running from an earlier start. Close it first."));
    return true;
}

bool AppModel::failIfNotOwner()
{
    try {
        ensureOwner();
        return false;
    } catch (const std::exception& error) {
        concludeFailed(QString::fromUtf8(error.what()));
        return true;
    }
}

/// Acquires the lock before anything is installed or removed. Throws AppError if the storage root
/// is on another disk than before, and PlatformError if the lock cannot be acquired.
void AppModel::ensureOwner()
{
    const auto root = Paths::root();
    const auto device = deviceOf(root);
    if (std::exchange(m_device, device) != device)
        throw AppError(tr("The folder “%1” is on another disk than before. Connect that disk "
                          "again, or try once more to use this one.")
                           .arg(root));
    m_lock.acquire();
}

void AppModel::startFlow(Flow flow)
{
    m_userStopped = false;
    m_flowStop = std::stop_source();
    m_flowRunning = true;
    Q_EMIT changed();
    m_flowTask = runFlow(flow, m_flowStop.get_token());
}

QCoro::Task<> AppModel::runFlow(Flow flow, std::stop_token stop)
{
    try {
        co_await (this->*flow)(stop);
    } catch (const Cancelled&) {
        concludeCancelled();
    } catch (const std::exception& error) {
        if (stop.stop_requested())
            concludeCancelled();
        else
            concludeFailed(QString::fromUtf8(error.what()));
    }
    m_flowRunning = false;
    Q_EMIT changed();
    Q_EMIT flowEnded();
}

void AppModel::cancelSetup()
{
    // First, so that runFlow() treats an error of the interrupted step as a cancellation.
    m_flowStop.request_stop();
    m_backgroundStop.request_stop(); // The flow may be waiting for a deletion.
    m_runner.terminateCurrent();
}

void AppModel::concludeCancelled()
{
    m_log.append(u"Cancelled."_s);
    if (!m_quitting) { // Otherwise the next start clears them.
        m_backgroundStop = std::stop_source();
        clearStaleFolders();
    }
    refreshState();
}

void AppModel::concludeFailed(const QString& description)
{
    m_log.append(u"Error: "_s + description);
    fail(description);
    updateSize();
}

void AppModel::fail(const QString& message)
{
    //: %1 is a whole sentence, and %2 are lines of the log, most of them in English.
    m_failureText = tr("What happened: %1\n\nLast log lines:\n%2")
                        .arg(message, m_log.newest(reportedLogLines).join(u'\n'));
    clearProgress();
    m_stillStarting = false;
    m_phase = Phase::needs(message);
    Q_EMIT changed();
}
