// SPDX-License-Identifier: MIT
#include "Process/LineBuffer.h"

#include <QStringDecoder>

#include <algorithm>
#include <utility>

namespace {

/// How many bytes at the end of `bytes` are the beginning of a UTF-8 character whose rest is
/// missing.
qsizetype cutCharacterLength(QByteArrayView bytes)
{
    const auto mostBytes = std::min<qsizetype>(bytes.size(), 3);
    for (qsizetype length = 1; length <= mostBytes; ++length) {
        const auto byte = static_cast<unsigned char>(bytes.at(bytes.size() - length));
        if (byte >= 0xC0) {
            const auto needed = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : 2;
            return length < needed ? length : 0;
        }
        if (byte < 0x80)
            return 0;
    }
    return 0;
}

} // namespace

QStringList LineBuffer::append(QByteArrayView chunk)
{
    QStringList lines;
    append(chunk, [&lines](const QString& line) { lines.append(line); });
    return lines;
}

void LineBuffer::append(QByteArrayView chunk, const std::function<void(const QString&)>& takeLine)
{
    const std::lock_guard guard(m_lock);
    // Only the new bytes are searched, so that a line in many chunks does not cost their square.
    for (auto end = chunk.indexOf('\n'); end >= 0; end = chunk.indexOf('\n')) {
        takeLine(this->takeLine(chunk.first(end)));
        chunk = chunk.sliced(end + 1);
    }
    keep(chunk);
}

std::optional<QString> LineBuffer::flush()
{
    const std::lock_guard guard(m_lock);
    if (m_begun.isEmpty() && m_cutCharacter.isEmpty())
        return std::nullopt;
    return takeLine({});
}

/// Adds `bytes` to the line that has begun.
void LineBuffer::keep(QByteArrayView bytes)
{
    auto joined = std::exchange(m_cutCharacter, {});
    if (!joined.isEmpty())
        bytes = joined.append(bytes);
    const auto cut = cutCharacterLength(bytes);
    decode(bytes.chopped(cut));
    m_cutCharacter = bytes.last(cut).toByteArray();
}

/// Decodes `bytes`, which end with a whole character, onto the line that has begun.
void LineBuffer::decode(QByteArrayView bytes)
{
    // A byte order mark is one at the beginning only.
    const auto flags = m_begun.isEmpty() ? QStringDecoder::Flags(QStringDecoder::Flag::Stateless)
                                         : QStringDecoder::Flag::Stateless |
                                               QStringDecoder::Flag::ConvertInitialBom;
    QStringDecoder decoder(QStringDecoder::Utf8, flags);
    const auto length = m_begun.size();
    m_begun.resize(length + decoder.requiredSpace(bytes.size()));
    const auto* const end = decoder.appendToBuffer(m_begun.data() + length, bytes);
    m_begun.truncate(end - m_begun.constData());
}

/// The line that has begun, with `end`; none has begun then.
QString LineBuffer::takeLine(QByteArrayView end)
{
    if (m_begun.isEmpty() && m_cutCharacter.isEmpty())
        return QString::fromUtf8(end);
    decode(std::exchange(m_cutCharacter, {}).append(end));
    return std::exchange(m_begun, {});
}
