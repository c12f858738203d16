// SPDX-License-Identifier: MIT
#include "Fuzz/FuzzTarget.h"

#include <QDir>

#include <algorithm>
#include <cstdio>
#include <random>

// Stands in for libFuzzer where the compiler has none, called as it is with a folder of inputs:
// runs each of them, and then mutations of it, the same in every run, so that a failure can be
// repeated.

namespace {

constexpr int mutationsPerInput = 400;

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

QByteArray mutated(QByteArray bytes, Random& random)
{
    for (auto count = 1 + below(random, 4); count > 0; --count)
        mutateOnce(bytes, random);
    return bytes;
}

void run(const QByteArray& bytes)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                           static_cast<std::size_t>(bytes.size()));
}

} // namespace

int main(int argumentCount, char** arguments)
{
    const QDir corpus(QString::fromLocal8Bit(argumentCount == 2 ? arguments[1] : ""));
    const auto inputs = corpus.entryInfoList(QDir::Files, QDir::Name);
    if (argumentCount != 2 || inputs.isEmpty()) {
        std::fprintf(stderr, "usage: %s FOLDER\n", arguments[0]);
        return 2;
    }
    Random random(1);
    for (const auto& input : inputs) {
        QFile file(input.filePath());
        require(file.open(QIODevice::ReadOnly));
        const auto bytes = file.readAll();
        run(bytes);
        for (int i = 0; i < mutationsPerInput; ++i)
            run(mutated(bytes, random));
    }
    return 0;
}
