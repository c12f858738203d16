// SPDX-License-Identifier: MIT
#include "LineWork.h"

#include "Measurement.h"
#include "Process/LineBuffer.h"

#include <QByteArray>
#include <QString>

#include <algorithm>
#include <cstring>
#include <numeric>

namespace {

constexpr qsizetype chunkSize = qsizetype{64} * 1024;
constexpr qsizetype mebibyte = qsizetype{1024} * 1024;

/// Whole lines that also fill whole chunks, so that they can be fed over and over again. In most
/// chunks the last line is cut.
QByteArray makeOutput(qsizetype lineLength)
{
    QByteArray output(std::lcm(lineLength, chunkSize), 'x');
    for (auto end = lineLength; end <= output.size(); end += lineLength)
        output[end - 1] = '\n';
    return output;
}

} // namespace

void LineWork::buffered(qsizetype mebibytes, qsizetype lineLength)
{
    const auto output = makeOutput(lineLength);
    const auto rounds = std::max<qsizetype>(1, mebibytes * mebibyte / output.size());
    LineBuffer buffer;
    qsizetype lines = 0;
    const Measurement measurement;
    for (qsizetype round = 0; round < rounds; ++round) {
        for (qsizetype begin = 0; begin < output.size(); begin += chunkSize)
            lines += buffer.append(QByteArrayView(output).sliced(begin, chunkSize)).size();
    }
    measurement.report(lines);
}

void LineWork::bare(qsizetype mebibytes, qsizetype lineLength)
{
    const auto output = makeOutput(lineLength);
    const auto rounds = std::max<qsizetype>(1, mebibytes * mebibyte / output.size());
    qsizetype lines = 0;
    const Measurement measurement;
    for (qsizetype round = 0; round < rounds; ++round) {
        const char* begin = output.constBegin();
        const char* const end = output.constEnd();
        while (const auto* feed = static_cast<const char*>(
                   std::memchr(begin, '\n', static_cast<size_t>(end - begin)))) {
            const auto line = QString::fromUtf8(begin, feed - begin);
            lines += line.isNull() ? 0 : 1;
            begin = feed + 1;
            if (begin == end)
                break;
        }
    }
    measurement.report(lines);
}
