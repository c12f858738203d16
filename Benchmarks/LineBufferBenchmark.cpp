// SPDX-License-Identifier: MIT
// The line buffer against the least that its work takes: finding the line feeds and making one
// string a line.
#include "Process/LineBuffer.h"

#include <benchmark/benchmark.h>

#include <QByteArray>

#include <algorithm>
#include <cstring>

namespace {

constexpr qsizetype chunkSize = qsizetype{64} * 1024;

QByteArray linesOf(qsizetype lineLength, qsizetype total)
{
    return (QByteArray(lineLength - 1, 'x') + '\n').repeated(total / lineLength);
}

/// 1 GiB in short lines is 16 times this: the input fits no cache, and the memory of any machine.
const QByteArray& shortLines()
{
    static const auto lines = linesOf(80, 64 * 1024 * 1024);
    return lines;
}

const QByteArray& longLine()
{
    static const auto line = linesOf(64 * 1024 * 1024, 64 * 1024 * 1024);
    return line;
}

void findAndDecode(QByteArrayView bytes)
{
    const auto* begin = bytes.data();
    const auto* const end = begin + bytes.size();
    while (const auto* lineFeed = static_cast<const char*>(
               std::memchr(begin, '\n', static_cast<std::size_t>(end - begin)))) {
        auto line = QString::fromUtf8(begin, lineFeed - begin);
        benchmark::DoNotOptimize(line);
        begin = lineFeed + 1;
    }
}

void append(QByteArrayView bytes)
{
    LineBuffer buffer;
    for (qsizetype begin = 0; begin < bytes.size(); begin += chunkSize) {
        auto lines = buffer.append(bytes.sliced(begin, std::min(chunkSize, bytes.size() - begin)));
        benchmark::DoNotOptimize(lines);
    }
}

template<typename Work>
void measure(benchmark::State& state, const QByteArray& bytes, int repetitions, Work work)
{
    for (auto _ : state) {
        for (int i = 0; i < repetitions; ++i)
            work(bytes);
    }
    state.SetBytesProcessed(state.iterations() * repetitions * bytes.size());
}

void shortLinesBare(benchmark::State& state)
{
    measure(state, shortLines(), 16, findAndDecode);
}
void shortLinesBuffer(benchmark::State& state)
{
    measure(state, shortLines(), 16, append);
}
void longLineBare(benchmark::State& state)
{
    measure(state, longLine(), 1, findAndDecode);
}
void longLineBuffer(benchmark::State& state)
{
    measure(state, longLine(), 1, append);
}

BENCHMARK(shortLinesBare)->Unit(benchmark::kMillisecond);
BENCHMARK(shortLinesBuffer)->Unit(benchmark::kMillisecond);
BENCHMARK(longLineBare)->Unit(benchmark::kMillisecond);
BENCHMARK(longLineBuffer)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
