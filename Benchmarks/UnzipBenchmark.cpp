// SPDX-License-Identifier: MIT
#include "Install/ZipExtractor.h"
#include "Support/ZipWriter.h"

#include <benchmark/benchmark.h>

#include <QDebug>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <memory>
#include <random>

namespace {

/// Bytes that compress to about half, as programs do.
QByteArray likeAProgram(qsizetype size)
{
    std::minstd_rand random(1);
    QByteArray bytes(size, Qt::Uninitialized);
    for (qsizetype i = 0; i < size; i += 4) {
        const auto word = random();
        for (qsizetype j = i; j < std::min(i + 4, size); ++j)
            bytes[j] = j % 2 == 0 ? 'x' : static_cast<char>(word >> 8 * (j % 4));
    }
    return bytes;
}

QByteArray oneProgram()
{
    return ZipWriter()
        .add({.name = "Godot", .data = likeAProgram(65'000'000), .deflated = true})
        .archive();
}

QByteArray manySmallFiles()
{
    const auto contents = likeAProgram(2'000);
    ZipWriter zip;
    for (int i = 0; i < 20'000; ++i) {
        zip.add({.name = "game/" + QByteArray::number(i / 100) + "/asset" + QByteArray::number(i),
                 .data = contents,
                 .deflated = true});
    }
    return zip.archive();
}

void unzip(benchmark::State& state, QByteArray (*makeArchive)())
{
    const QTemporaryDir folder;
    const auto path = folder.filePath(QStringLiteral("archive.zip"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(makeArchive()) < 0 || !file.flush()) {
        state.SkipWithError("The archive could not be written.");
        return;
    }
    for (auto _ : state) {
        state.PauseTiming();
        auto target = std::make_unique<QTemporaryDir>();
        state.ResumeTiming();
        const auto status = ZipExtractor::extract(
            path, target->path(), [](const QString& line) { qWarning() << line; }, {});
        state.PauseTiming();
        target.reset();
        state.ResumeTiming();
        if (status != 0) {
            state.SkipWithError("The archive was refused.");
            break;
        }
    }
}
BENCHMARK_CAPTURE(unzip, oneProgram, oneProgram)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(unzip, manySmallFiles, manySmallFiles)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
