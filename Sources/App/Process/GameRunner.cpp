// SPDX-License-Identifier: MIT
#include "Process/GameRunner.h"

#include "Process/ImportWatcher.h"
#include "Project/ImportChecker.h"
#include "System/OffThread.h"

#include <QCoroFuture>
#include <QScopeGuard>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <stop_token>
#include <thread>

using namespace Qt::StringLiterals;

using std::chrono::milliseconds;

namespace {

/// Blocks for `duration`, or until `stop` is requested.
void sleep(milliseconds duration, const std::stop_token& stop)
{
    std::mutex mutex;
    std::unique_lock lock(mutex);
    std::condition_variable_any().wait_for(lock, stop, duration, [] { return false; });
}

/// Counts the assets still to import every `poll`, until `watcher` decides to end the run, which
/// terminates `child`, or `stop` is requested. Blocks.
void watchImport(const QString& project, const LogCallback& log, ManagedProcess& child,
                 ImportWatcher watcher, milliseconds poll, const std::stop_token& stop)
{
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    while (true) {
        sleep(poll, stop);
        const auto count = ImportChecker::missingCount(project, stop);
        if (stop.stop_requested())
            return;
        const auto step =
            watcher.next(count, std::chrono::duration_cast<milliseconds>(Clock::now() - start));
        for (const auto& line : step.log)
            log(line);
        if (step.verdict == ImportWatcher::Verdict::end) {
            child.terminate();
            return;
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
    QStringList arguments{u"--path"_s, project, fullscreen ? u"--fullscreen"_s : u"--windowed"_s};
    if (resolution != ResolutionChoice::gameDefault)
        arguments << u"--resolution"_s << rawValue(resolution);
    return arguments;
}

QCoro::Task<int> GameRunner::runImport(QString engine, QString project, milliseconds timeout,
                                       LogCallback log)
{
    const auto child = std::make_shared<ManagedProcess>(ManagedProcess::Lifetime::endsWithLauncher,
                                                        m_durations.killTimeout);
    process = child;
    const auto clear = qScopeGuard([this] { process.reset(); });
    const auto run = offThread([=, durations = m_durations] {
        const std::jthread watcher([&](const std::stop_token& runEnded) {
            watchImport(project, log, *child, {durations.importSettleTime, timeout},
                        durations.importPollInterval, runEnded);
        });
        // The engine does not exit after the import; the watcher ends the run.
        return child->run(engine, {u"--path"_s, project, u"--editor"_s, u"--no-window"_s}, log);
    });
    co_return co_await run;
}

void GameRunner::terminateCurrent()
{
    if (process)
        process->terminate();
}
