// SPDX-License-Identifier: MIT
#include "Process/LineBuffer.h"

#include <utility>

QStringList LineBuffer::append(QByteArrayView chunk)
{
    const std::lock_guard guard(m_lock);
    QStringList lines;
    // Only the new bytes are searched, so that a line in many chunks does not cost their square.
    for (auto end = chunk.indexOf('\n'); end >= 0; end = chunk.indexOf('\n')) {
        lines.append(takeLine(chunk.first(end)));
        chunk = chunk.sliced(end + 1);
    }
    m_data.append(chunk);
    return lines;
}

QByteArray LineBuffer::appendRaw(QByteArrayView chunk)
{
    const std::lock_guard guard(m_lock);
    // The search from the front is the fast one; from the back only a part of a line is searched.
    if (!chunk.contains('\n')) {
        m_data.append(chunk);
        return {};
    }
    const auto length = chunk.lastIndexOf('\n') + 1;
    auto lines = std::exchange(m_data, chunk.sliced(length).toByteArray());
    lines.append(chunk.first(length));
    return lines;
}

std::optional<QString> LineBuffer::flush()
{
    const std::lock_guard guard(m_lock);
    if (m_data.isEmpty())
        return std::nullopt;
    return takeLine({});
}

/// Decodes what is kept and `end` as one line, and keeps nothing.
QString LineBuffer::takeLine(QByteArrayView end)
{
    if (m_data.isEmpty())
        return QString::fromUtf8(end);
    m_data.append(end);
    return QString::fromUtf8(std::exchange(m_data, {}));
}
