// SPDX-License-Identifier: MIT
//
// Runs the game. A game that closes within the startup threshold has failed to start.
#include "Model/AppModel.h"

#include "Install/EngineManager.h"
#include "Model/PlayOutcome.h"
#include "System/Errors.h"
#include "System/InstallationLock.h"
#include "System/OffThread.h"

#include <QCoroFuture>
#include <QFile>
#include <QScopeGuard>
#include <QTimer>

#include <chrono>

using namespace Qt::StringLiterals;

QCoro::Task<> AppModel::launch(QString engine, QString project)
{
    const auto arguments = GameRunner::playArguments(project, m_fullscreen, m_resolution);
    m_log.append(u"Step 4 of 4 · Starting: Godot "_s + arguments.join(u' '));
    // The next launcher looks for the game's lock in the current file. On failure the game starts
    // without a lock.
    m_lock.tryAcquire();
    // Set before enter(), since a handler of changed() may call stopGame().
    m_runner.process = std::make_shared<ManagedProcess>(
        ManagedProcess::Lifetime::mayOutliveLauncher, m_durations.killTimeout, m_lock.descriptor());
    enter(Phase::playing(), tr("Step 4 of 4 · Play"));

    const auto start = std::chrono::steady_clock::now();
    const auto status = co_await runGame(engine, arguments);
    const auto elapsed = std::chrono::steady_clock::now() - start;

    concludePlay(PlayOutcome::judge(m_userStopped, elapsed, status, m_durations.startupThreshold));
}

QCoro::Task<int> AppModel::runGame(QString engine, QStringList arguments)
{
    const auto clear = qScopeGuard([this] { m_runner.process.reset(); });
    QTimer startupThreshold;
    startupThreshold.setSingleShot(true);
    startupThreshold.setTimerType(Qt::PreciseTimer);
    connect(&startupThreshold, &QTimer::timeout, this, &AppModel::markStarted);
    startupThreshold.start(m_durations.startupThreshold);

    const auto run = offThread([=, game = m_runner.process, log = m_log.callback()] {
        return game->run(engine, arguments, log);
    });
    co_return co_await run;
}

void AppModel::concludePlay(const PlayOutcome& outcome)
{
    switch (outcome.kind()) {
    case PlayOutcome::Kind::stoppedByPlayer:
    case PlayOutcome::Kind::closedNormally:
        m_log.append(outcome.sentence());
        refreshState();
        return;
    case PlayOutcome::Kind::closedTooSoon:
        // The next Play imports the assets again. Only in the standard edition: the marker of a C#
        // game stays.
        if (m_lock.isHeld())
            QFile::remove(EngineManager{.mono = false}.markerFile());
        throw AppError(outcome.sentence());
    case PlayOutcome::Kind::stoppedUnexpectedly:
        throw AppError(outcome.sentence());
    }
}

void AppModel::stopGame()
{
    m_userStopped = true;
    m_runner.terminateCurrent();
}
