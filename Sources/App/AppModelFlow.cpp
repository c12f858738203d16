// SPDX-License-Identifier: MIT
//
// What every flow has in common, be it a press of Play or a housekeeping action: that there is one
// at a time, how it is ended, and how its end is told.
#include "AppModel.h"

#include "Install/FileDownloader.h"
#include "Platform/Cancelled.h"
#include "Platform/SessionLock.h"

namespace {

constexpr int reportedLogLines = 30;

} // namespace

bool AppModel::refuseWhileGameStillRuns()
{
    // It was left running by a launcher that was killed. Its files must not change under it, and a
    // second one would write to the same saves.
    if (!m_session.isGameRunning())
        return false;
    concludeFailed(tr("The game is still running from an earlier start. Close it first."));
    return true;
}

void AppModel::startFlow(Flow flow)
{
    m_userStopped = false;
    m_cancelled = false;
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
        if (m_cancelled)
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
    // First of all, so that whatever error the interrupted step throws is known for a cancel.
    m_cancelled = true;
    m_flowStop.request_stop();
    if (m_downloader)
        m_downloader->cancel();
    m_runner.terminateCurrent();
}

void AppModel::concludeCancelled()
{
    m_log.append(QStringLiteral("Cancelled."));
    refreshState();
}

void AppModel::concludeFailed(const QString& description)
{
    m_log.append(QStringLiteral("Error: ") + description);
    fail(description);
    updateSize();
}

void AppModel::fail(const QString& message)
{
    m_failureText = tr("What happened: %1\n\nLast log lines:\n%2")
                        .arg(message, m_log.newest(reportedLogLines).join(u'\n'));
    clearProgress();
    m_stillStarting = false;
    m_phase = Phase::needs(message);
    Q_EMIT changed();
}
