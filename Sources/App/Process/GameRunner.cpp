// SPDX-License-Identifier: MIT
#include "Process/GameRunner.h"

#include "Platform/OffThread.h"
#include "Process/ImportWatcher.h"
#include "Project/ImportChecker.h"

#include <QCoroFuture>
#include <QCoroTimer>

#include <QElapsedTimer>
#include <QTimer>

#include <exception>
#include <stop_token>
#include <utility>

using std::chrono::milliseconds;

namespace {

/// Ends after `duration`, or as soon as `stop` is requested. Both happen on this thread.
QCoro::Task<> sleep(milliseconds duration, std::stop_token stop)
{
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    timer.start(duration);
    const std::stop_callback fireAtOnce(stop, [&timer] { timer.start(0); });
    co_await timer;
}

/// Counts, every `poll`, what is still to import, and asks `child` to end when `watcher` says so.
QCoro::Task<> watchImport(QString project, LogCallback log, std::shared_ptr<ManagedProcess> child,
                          ImportWatcher watcher, milliseconds poll, std::stop_token stop)
{
    QElapsedTimer clock;
    clock.start();
    while (!stop.stop_requested()) {
        co_await sleep(poll, stop);
        if (stop.stop_requested())
            break;
        auto counting =
            offThread([project, stop] { return ImportChecker::missingCount(project, stop); });
        const auto count = co_await counting;
        if (stop.stop_requested())
            break;
        const auto step = watcher.next(count, milliseconds(clock.elapsed()));
        for (const auto& line : step.log)
            log(line);
        if (step.verdict == ImportWatcher::Verdict::end) {
            child->terminate();
            break;
        }
    }
}

} // namespace

GameRunner::GameRunner(const Durations& durations)
    : m_durations(durations)
{
}

QStringList GameRunner::playArguments(const QString& project, bool fullscreen,
                                      ResolutionChoice resolution)
{
    QStringList arguments{QStringLiteral("--path"), project,
                          fullscreen ? QStringLiteral("--fullscreen")
                                     : QStringLiteral("--windowed")};
    if (resolution != ResolutionChoice::gameDefault)
        arguments << QStringLiteral("--resolution") << rawValue(resolution);
    return arguments;
}

QCoro::Task<int> GameRunner::runImport(QString engine, QString project, milliseconds timeout,
                                       LogCallback log)
{
    const auto child = std::make_shared<ManagedProcess>(ManagedProcess::Lifetime::endsWithLauncher,
                                                        m_durations.killGrace);
    process = child;
    // No argument tells the engine to quit: it ends by itself or because the watcher says so.
    const QStringList arguments{QStringLiteral("--path"), project, QStringLiteral("--editor"),
                                QStringLiteral("--no-window")};
    auto run = child->run(engine, arguments, log);

    std::stop_source runHasEnded;
    const ImportWatcher watcher(m_durations.importSettled, timeout);
    auto watching =
        watchImport(project, log, child, watcher, m_durations.importPoll, runHasEnded.get_token());

    int status = 0;
    std::exception_ptr failure;
    try {
        status = co_await run;
    } catch (...) {
        failure = std::current_exception();
    }
    runHasEnded.request_stop();
    co_await watching;
    process.reset();
    if (failure)
        std::rethrow_exception(failure);
    co_return status;
}

void GameRunner::terminateCurrent()
{
    if (process)
        process->terminate();
}
