// SPDX-License-Identifier: MIT
#pragma once

#include "System/Durations.h"

#include <QObject>
#include <QStringList>

#include <chrono>
#include <deque>
#include <functional>
#include <mutex>

/// Takes one line for the log, or several separated by line feeds. Thread-safe.
using LogCallback = std::function<void(const QString& text)>;

/// The launcher's one log: the newest lines of everything that setup and play write, bounded.
///
/// Any thread may append. Changes of `lines()` are published on the main thread, at most once per
/// flush interval, so that a flood of output does not redraw the window for every line. Lines are
/// never written to disk.
class LogStore final : public QObject
{
    Q_OBJECT

public:
    /// Keeps at most `maxLines` lines. Belongs to the thread that creates it, the main thread.
    explicit LogStore(int maxLines = 2000,
                      std::chrono::milliseconds flushInterval = Durations().logFlushInterval);

    /// Adds the lines of `text`, split at every line feed, empty pieces included. Any thread.
    void append(const QString& text);

    /// Empties the log and publishes that at once. Any thread.
    void clear();

    /// Returns a function that appends to this log. It must not be called once the log is gone.
    [[nodiscard]] LogCallback callback();

    /// The newest `count` lines as they are now, also those not published yet; all lines when there
    /// are fewer. Any thread.
    [[nodiscard]] QStringList newest(qsizetype count) const;

    /// The published lines, oldest first. Main thread.
    [[nodiscard]] const QStringList& lines() const { return m_lines; }

Q_SIGNALS:
    /// `lines()` has changed: its first `dropped` lines are gone, and `added` follow at its end.
    /// Main thread.
    void linesChanged(qsizetype dropped, const QStringList& added);

private:
    void publish();

    const qsizetype m_maxLines;
    const std::chrono::milliseconds m_flushInterval;
    QStringList m_lines;

    mutable std::mutex m_mutex;
    std::deque<QString> m_buffer;
    /// How many of the first lines of the buffer are published already.
    qsizetype m_publishedCount = 0;
    bool m_publishScheduled = false;
};
