// SPDX-License-Identifier: MIT
#include "Install/EngineManager.h"

#include <benchmark/benchmark.h>

#include <QFile>
#include <QTemporaryDir>

namespace {

/// The digest of a file that lies in the system's cache. The argument is its size in MiB.
void digest(benchmark::State& state)
{
    const QTemporaryDir folder;
    const auto path = folder.filePath(QStringLiteral("file"));
    {
        QFile file(path);
        const QByteArray piece(1024 * 1024, 'x');
        if (!file.open(QIODevice::WriteOnly)) {
            state.SkipWithError("The file could not be written.");
            return;
        }
        for (int64_t i = 0; i < state.range(0); ++i)
            file.write(piece);
    }
    for (auto _ : state)
        benchmark::DoNotOptimize(EngineManager::sha512(path));
    state.SetBytesProcessed(state.iterations() * state.range(0) * 1024 * 1024);
}
BENCHMARK(digest)->Arg(1)->Arg(70)->Arg(1024)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
