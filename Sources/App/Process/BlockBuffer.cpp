// SPDX-License-Identifier: MIT
#include "Process/BlockBuffer.h"

#include "Platform/Utf8.h"

#include <utility>

QByteArray BlockBuffer::append(QByteArrayView chunk)
{
    // The search from the front is the fast one; from the back only a part of a line is searched.
    if (!chunk.contains('\n')) {
        // When append() has to make room it copies everything, where reserve() can often move it.
        const auto size = m_begun.size() + chunk.size();
        if (size > m_begun.capacity())
            m_begun.reserve(2 * size);
        m_begun.append(chunk);
        return {};
    }
    const auto length = chunk.lastIndexOf('\n') + 1;
    auto lines = std::exchange(m_begun, chunk.sliced(length).toByteArray());
    lines.append(chunk.first(length));
    return lines;
}

std::optional<QString> BlockBuffer::flush()
{
    if (m_begun.isEmpty())
        return std::nullopt;
    return decodedUtf8(std::exchange(m_begun, {}));
}
