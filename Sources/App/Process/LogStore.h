// SPDX-License-Identifier: MIT
#pragma once

#include "System/Durations.h"

#include <QObject>
#include <QStringList>

#include <chrono>
#include <deque>
#include <functional>
#include <limits>
#include <mutex>

/// Takes one line for the log, or several separated by line feeds. Thread-safe.
using LogCallback = std::function<void(const QString& text)>;

/// The log of setup and play, in memory only. It keeps the newest lines.
///
/// Any thread may append. Changes of `lines()` are published on the main thread, at most once per
/// flush interval, so that the window is not redrawn for every line.
class LogStore final : public QObject
{
    Q_OBJECT

public:
    static constexpr int defaultMaxLines = 2000;

    /// Keeps at most `maxLines` lines. Belongs to the thread that creates it, the main thread.
    explicit LogStore(int maxLines = defaultMaxLines,
                      std::chrono::milliseconds flushInterval = Durations().logFlushInterval);

    /// Adds the lines of `text`, empty ones included. Any thread.
    void append(const QString& text);

    /// Removes all lines and publishes that without delay. Any thread.
    void clear();

    /// Returns a function that appends to this log. The log must outlive it.
    [[nodiscard]] LogCallback callback();

    /// Returns the newest `count` lines, or all if there are fewer, including lines not published
    /// yet. Any thread.
    [[nodiscard]] QStringList newest(qsizetype count = std::numeric_limits<qsizetype>::max()) const;

    /// The published lines, oldest first. Main thread.
    [[nodiscard]] const QStringList& lines() const { return m_lines; }

Q_SIGNALS:
    /// The first `dropped` of the lines were removed, and `added` appended.
    void linesChanged(qsizetype dropped, const QStringList& added);

private:
    void publish();

    const qsizetype m_maxLines;
    const std::chrono::milliseconds m_flushInterval;
    QStringList m_lines;

    mutable std::mutex m_mutex;
    std::deque<QString> m_buffer;
    /// The number of lines at the front of the buffer that are published.
    qsizetype m_publishedCount = 0;
    bool m_publishScheduled = false;
};
