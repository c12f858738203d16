// SPDX-License-Identifier: MIT
#include "Process/LineBuffer.h"

#include "System/Text.h"

#include <algorithm>
#include <utility>

namespace {

/// Returns the length of `bytes` without an incomplete UTF-8 character at the end.
qsizetype lengthOfWholeCharacters(QByteArrayView bytes)
{
    constexpr qsizetype maxCharacterLength = 4;
    const auto first = std::max<qsizetype>(0, bytes.size() - maxCharacterLength + 1);
    for (auto at = bytes.size() - 1; at >= first; --at) {
        const auto byte = static_cast<unsigned char>(bytes[at]);
        if ((byte & 0xC0) == 0x80)
            continue; // A continuation byte.
        const auto length = byte >= 0xF0 ? 4 : byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
        return at + length > bytes.size() ? at : bytes.size();
    }
    return bytes.size();
}

} // namespace

std::optional<QString> LineBuffer::append(QByteArrayView chunk)
{
    const std::lock_guard guard(m_mutex);
    const auto end = chunk.lastIndexOf('\n');
    if (end < 0) {
        m_unfinished.append(chunk);
        return std::nullopt;
    }
    auto lines = std::exchange(m_unfinished, chunk.sliced(end + 1).toByteArray());
    lines.append(chunk.first(end));
    return Text::decodedUtf8(lines);
}

std::optional<QString> LineBuffer::flush()
{
    const std::lock_guard guard(m_mutex);
    if (m_unfinished.isEmpty())
        return std::nullopt;
    return Text::decodedUtf8(std::exchange(m_unfinished, {}));
}

std::optional<QString> LineBuffer::flushIfLongerThan(qsizetype limit)
{
    const std::lock_guard guard(m_mutex);
    if (m_unfinished.size() <= limit)
        return std::nullopt;
    const auto length = lengthOfWholeCharacters(m_unfinished);
    const auto line = Text::decodedUtf8(QByteArrayView(m_unfinished).first(length));
    m_unfinished = m_unfinished.sliced(length);
    return line;
}
