// SPDX-License-Identifier: MIT
#include "Process/LogStore.h"

#include "Platform/Utf8.h"

#include <QTimer>

#include <algorithm>

namespace {

qsizetype countLineFeeds(QByteArrayView bytes)
{
    // Counted in short runs with a counter of one byte, which the compiler turns into vector code.
    constexpr qsizetype runLength = 255;
    qsizetype count = 0;
    for (qsizetype begin = 0; begin < bytes.size(); begin += runLength) {
        const auto run = bytes.sliced(begin, std::min(runLength, bytes.size() - begin));
        unsigned char inRun = 0;
        for (const auto byte : run)
            inRun = static_cast<unsigned char>(inRun + (byte == '\n' ? 1 : 0));
        count += inRun;
    }
    return count;
}

} // namespace

LogStore::LogStore(int maxLines, std::chrono::milliseconds publicationDelay)
    : m_maxLines(maxLines)
    , m_publicationDelay(publicationDelay)
{
}

void LogStore::append(const QString& text)
{
    const auto lines = text.split(u'\n');
    std::unique_lock lock(m_lock);
    decodeBlocks();
    const auto kept = std::min(lines.size(), m_maxLines);
    m_decoded.insert(m_decoded.end(), lines.end() - kept, lines.end());
    dropDecoded(std::ssize(m_decoded) - m_maxLines);
    m_linesEver += lines.size();
    announce(std::move(lock));
}

void LogStore::appendBlock(const QByteArray& lines)
{
    const auto count = countLineFeeds(lines);
    std::unique_lock lock(m_lock);
    m_blocks.push_back({lines, count});
    m_linesInBlocks += count;
    m_linesEver += count;
    while (m_linesInBlocks - m_blocks.front().lineCount >= m_maxLines) {
        m_linesInBlocks -= m_blocks.front().lineCount;
        m_blocks.pop_front();
    }
    announce(std::move(lock));
}

LogCallback LogStore::callback()
{
    return LogCallback([this](const QString& line) { append(line); },
                       [this](const QByteArray& lines) { appendBlock(lines); });
}

void LogStore::clear()
{
    {
        const std::lock_guard guard(m_lock);
        m_decoded.clear();
        m_blocks.clear();
        m_linesInBlocks = 0;
    }
    QMetaObject::invokeMethod(this, &LogStore::publish, Qt::QueuedConnection);
}

QStringList LogStore::newest(int count) const
{
    const std::lock_guard guard(m_lock);
    decodeBlocks();
    const auto wanted = std::clamp<qsizetype>(count, 0, std::ssize(m_decoded));
    return QStringList(m_decoded.end() - wanted, m_decoded.end());
}

/// Decodes those lines of the blocks that are within the bound. The lock is held.
void LogStore::decodeBlocks() const
{
    auto surplus = std::ssize(m_decoded) + m_linesInBlocks - m_maxLines;
    surplus -= dropDecoded(surplus);
    for (const auto& block : m_blocks) {
        QByteArrayView rest(block.bytes);
        for (auto end = rest.indexOf('\n'); end >= 0; end = rest.indexOf('\n')) {
            if (surplus > 0)
                --surplus;
            else
                m_decoded.push_back(decodedUtf8(rest.first(end)));
            rest = rest.sliced(end + 1);
        }
    }
    m_blocks.clear();
    m_linesInBlocks = 0;
}

/// Drops up to `count` of the oldest decoded lines and gives how many those were.
qsizetype LogStore::dropDecoded(qsizetype count) const
{
    const auto dropped = std::clamp<qsizetype>(count, 0, std::ssize(m_decoded));
    m_decoded.erase(m_decoded.begin(), m_decoded.begin() + dropped);
    return dropped;
}

/// Sees to it that the change made under `lock` is published, unless one that will carry it is
/// pending already.
void LogStore::announce(std::unique_lock<std::mutex> lock)
{
    if (std::exchange(m_publishScheduled, true))
        return;
    lock.unlock();
    QMetaObject::invokeMethod(
        this,
        [this] {
            QTimer::singleShot(m_publicationDelay, Qt::PreciseTimer, this, &LogStore::publish);
        },
        Qt::QueuedConnection);
}

void LogStore::publish()
{
    std::unique_lock lock(m_lock);
    decodeBlocks();
    QStringList lines(m_decoded.begin(), m_decoded.end());
    const auto linesEver = m_linesEver;
    m_publishScheduled = false;
    // A writer does not wait for the former lines to go.
    lock.unlock();
    m_lines = std::move(lines);
    m_firstLineNumber = linesEver - m_lines.size();
    Q_EMIT linesChanged();
}
