// SPDX-License-Identifier: MIT
#include "Fuzz/FuzzTarget.h"

#include <QCoreApplication>

#include <algorithm>
#include <random>

// Stands in for libFuzzer where the compiler has none: the seeds, and then mutations of them, the
// same in every run, so that a failure can be repeated.

namespace {

constexpr int mutationsPerSeed = 400;

using Random = std::minstd_rand;

qsizetype below(Random& random, qsizetype bound)
{
    return static_cast<qsizetype>(random()) % std::max<qsizetype>(bound, 1);
}

void mutateOnce(QByteArray& bytes, Random& random)
{
    const auto at = below(random, bytes.size());
    switch (below(random, 5)) {
    case 0:
        if (!bytes.isEmpty())
            bytes[at] = static_cast<char>(random());
        break;
    case 1:
        if (!bytes.isEmpty())
            bytes[at] = static_cast<char>(bytes[at] ^ (1 << below(random, 8)));
        break;
    case 2:
        bytes.truncate(at);
        break;
    case 3:
        bytes.remove(at, below(random, 16));
        break;
    default:
        bytes.insert(at, bytes.mid(below(random, bytes.size()), below(random, 64)));
        break;
    }
}

void run(const QByteArray& bytes)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                           static_cast<std::size_t>(bytes.size()));
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const QCoreApplication application(argumentCount, arguments);
    Random random(1);
    for (const auto& seed : fuzzSeeds()) {
        run(seed);
        for (int i = 0; i < mutationsPerSeed; ++i) {
            auto bytes = seed;
            for (auto count = 1 + below(random, 4); count > 0; --count)
                mutateOnce(bytes, random);
            run(bytes);
        }
    }
    return 0;
}
