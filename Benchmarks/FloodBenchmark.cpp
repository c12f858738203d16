// SPDX-License-Identifier: MIT
// A child that prints five million lines into the log, against the same child into `cat`.
#include "Process/LogStore.h"
#include "Process/ManagedProcess.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QFutureWatcher>

#include <cstdlib>

#include <sys/resource.h>

namespace {

/// The shell command that prints five million lines of `length` bytes, the line feed included.
QString flood(std::int64_t length)
{
    return QStringLiteral("yes %1 | head -n 5000000")
        .arg(QString(static_cast<int>(length) - 1, u'x'));
}

void intoCat(benchmark::State& state)
{
    const auto command = (flood(state.range()) + QStringLiteral(" | cat >/dev/null")).toUtf8();
    for (auto _ : state) {
        if (std::system(command.constData()) != 0) // NOLINT: the shell is what is compared with
            state.SkipWithError("The child failed.");
    }
}

qint64 peakMemory()
{
    struct rusage usage = {};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

void intoLog(benchmark::State& state)
{
    const auto command = flood(state.range());
    LogStore log;
    const auto before = peakMemory();
    for (auto _ : state) {
        ManagedProcess child;
        QEventLoop loop;
        QFutureWatcher<int> watcher;
        QObject::connect(&watcher, &QFutureWatcher<int>::finished, &loop, &QEventLoop::quit);
        watcher.setFuture(
            child.run(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command}, log.callback()));
        loop.exec();
        if (log.newest(3000).size() != 2000)
            state.SkipWithError("The log does not hold the newest lines.");
    }
    state.counters["KiB more at the peak"] = static_cast<double>(peakMemory() - before);
}

/// Two processors serve three programs: only the time on the clock compares.
BENCHMARK(intoCat)->Arg(2)->Arg(80)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(5);
BENCHMARK(intoLog)->Arg(2)->Arg(80)->Unit(benchmark::kMillisecond)->UseRealTime()->MinTime(5);

} // namespace

int main(int argumentCount, char** arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    benchmark::Initialize(&argumentCount, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
