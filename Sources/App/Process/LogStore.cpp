// SPDX-License-Identifier: MIT
#include "Process/LogStore.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

/// Returns the last `count` lines of `text`. Does not read the lines before them, since the text
/// may be large.
QStringList lastLines(QStringView text, qsizetype count)
{
    QStringList lines;
    while (lines.size() < count) {
        const auto lineFeed = text.lastIndexOf(u'\n');
        lines.append(text.sliced(lineFeed + 1).toString());
        if (lineFeed < 0)
            break;
        text = text.first(lineFeed);
    }
    std::ranges::reverse(lines);
    return lines;
}

} // namespace

LogStore::LogStore(int maxLines, std::chrono::milliseconds flushInterval)
    : m_maxLines(maxLines)
    , m_flushInterval(flushInterval)
{
}

void LogStore::append(const QString& text)
{
    const auto lines = lastLines(text, m_maxLines);
    {
        const std::lock_guard guard(m_mutex);
        m_buffer.insert(m_buffer.end(), lines.begin(), lines.end());
        const auto surplus = std::max<qsizetype>(0, std::ssize(m_buffer) - m_maxLines);
        m_buffer.erase(m_buffer.begin(), m_buffer.begin() + surplus);
        m_publishedCount = std::max<qsizetype>(0, m_publishedCount - surplus);
        if (std::exchange(m_publishScheduled, true))
            return; // The pending publish() includes these lines.
    }
    QMetaObject::invokeMethod(
        this,
        [this] { QTimer::singleShot(m_flushInterval, Qt::PreciseTimer, this, &LogStore::publish); },
        Qt::QueuedConnection);
}

void LogStore::clear()
{
    {
        const std::lock_guard guard(m_mutex);
        m_buffer.clear();
        m_publishedCount = 0;
    }
    QMetaObject::invokeMethod(this, &LogStore::publish, Qt::QueuedConnection);
}

LogCallback LogStore::callback()
{
    return [this](const QString& text) { append(text); };
}

QStringList LogStore::newest(qsizetype count) const
{
    const std::lock_guard guard(m_mutex);
    const auto wanted = std::clamp<qsizetype>(count, 0, std::ssize(m_buffer));
    return QStringList(m_buffer.end() - wanted, m_buffer.end());
}

void LogStore::publish()
{
    QStringList lines;
    qsizetype kept = 0;
    {
        const std::lock_guard guard(m_mutex);
        lines = QStringList(m_buffer.begin(), m_buffer.end());
        kept = std::exchange(m_publishedCount, lines.size());
        m_publishScheduled = false;
    }
    const auto dropped = m_lines.size() - kept;
    m_lines = std::move(lines);
    Q_EMIT linesChanged(dropped, m_lines.sliced(kept));
}
