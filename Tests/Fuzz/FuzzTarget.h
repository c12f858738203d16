// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QFile>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// What a fuzz target defines, in the form that libFuzzer calls: it takes one input, and calls
/// require() for what the tested code promises.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

/// Aborts where a promise is broken, which is how a fuzzer learns of it.
inline void require(bool isKept)
{
    if (!isKept)
        std::abort();
}

inline QByteArray toByteArray(const std::uint8_t* bytes, std::size_t size)
{
    return {reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size)};
}

inline void writeFile(const QString& path, const QByteArray& contents)
{
    QFile file(path);
    // Some file systems write a file that is made shorter to the disk, and take their time.
    file.remove();
    require(file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size());
}
