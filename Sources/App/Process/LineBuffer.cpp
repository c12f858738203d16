// SPDX-License-Identifier: MIT
#include "Process/LineBuffer.h"

#include "Platform/Utf8.h"

QStringList LineBuffer::append(QByteArrayView chunk)
{
    const std::lock_guard guard(m_lock);
    const auto block = m_blocks.append(chunk);
    QByteArrayView rest(block);
    QStringList lines;
    for (auto end = rest.indexOf('\n'); end >= 0; end = rest.indexOf('\n')) {
        lines.append(decodedUtf8(rest.first(end)));
        rest = rest.sliced(end + 1);
    }
    return lines;
}

std::optional<QString> LineBuffer::flush()
{
    const std::lock_guard guard(m_lock);
    return m_blocks.flush();
}
