// SPDX-License-Identifier: MIT
#include "Fuzz/FuzzTarget.h"
#include "Process/LineBuffer.h"
#include "System/Text.h"

#include <QStringList>

#include <algorithm>

namespace {

/// Calls `take` with one piece of `bytes` after the other. The first byte of each says its length.
void cut(const QByteArray& bytes, auto take)
{
    constexpr int maxLength = 7;
    for (qsizetype begin = 0; begin < bytes.size();) {
        const qsizetype length = 1 + static_cast<unsigned char>(bytes[begin]) % maxLength;
        const auto piece =
            QByteArrayView(bytes).sliced(begin, std::min(length, bytes.size() - begin));
        take(piece);
        begin += piece.size();
    }
}

/// However the bytes are cut, the lines are those of the whole.
void checkLines(const QByteArray& bytes)
{
    QStringList expected;
    for (const auto& line : bytes.split('\n'))
        expected.append(Text::decodedUtf8(line));
    LineBuffer buffer;
    QStringList lines;
    cut(bytes, [&](QByteArrayView piece) {
        if (const auto text = buffer.append(piece))
            lines += text->split(u'\n');
    });
    lines.append(buffer.flush().value_or(QString()));
    require(lines == expected);
    require(!buffer.flush());
}

/// Where long lines are broken, nothing is lost and no character is torn.
void checkBrokenLines(const QByteArray& bytes)
{
    constexpr qsizetype maxLength = 8;
    LineBuffer buffer;
    QString all;
    cut(bytes, [&](QByteArrayView piece) {
        if (const auto text = buffer.append(piece))
            all += *text + u'\n';
        const auto broken = buffer.flushIfLongerThan(maxLength).value_or(QString());
        require(!broken.contains(u'\n'));
        all += broken;
    });
    all += buffer.flush().value_or(QString());
    require(all == Text::decodedUtf8(bytes) || !bytes.isValidUtf8());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    checkLines(toByteArray(bytes, size));
    checkBrokenLines(toByteArray(bytes, size));
    return 0;
}
