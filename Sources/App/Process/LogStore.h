// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QStringList>

#include <chrono>
#include <deque>
#include <mutex>

/// The launcher's one log: the newest lines of everything that setup and play write, bounded.
///
/// Writers on any thread are taken at once; readers of `lines()` are told of changes on the main
/// thread, at most once per publication delay, so that a flood of output never redraws the window
/// for every line. Lines are never written to disk.
class LogStore final : public QObject
{
    Q_OBJECT

public:
    /// Keeps at most `maxLines` lines. Belongs to the thread that creates it, the main thread.
    explicit LogStore(int maxLines = 2000,
        std::chrono::milliseconds publicationDelay = std::chrono::milliseconds{100},
        QObject* parent = nullptr);

    /// Adds the lines of `text`, split at every line feed, empty pieces included. Any thread.
    void append(const QString& text);

    /// Empties the log and publishes that at once. Any thread.
    void clear();

    /// The newest `count` lines as they are now, also those not published yet; all lines when there
    /// are fewer. Any thread.
    [[nodiscard]] QStringList newest(int count) const;

    /// The published lines, oldest first. Main thread.
    [[nodiscard]] const QStringList& lines() const { return m_lines; }

    /// How many lines, over the life of the log, went before the first of `lines()`. Tells a reader
    /// which of the lines it already shows are still there. Main thread.
    [[nodiscard]] qint64 firstLineNumber() const { return m_firstLineNumber; }

Q_SIGNALS:
    /// `lines()` has changed. Main thread.
    void linesChanged();

private:
    void schedulePublication(std::chrono::milliseconds delay);
    void publish();

    const int m_maxLines;
    const std::chrono::milliseconds m_publicationDelay;
    QStringList m_lines;
    qint64 m_firstLineNumber = 0;

    mutable std::mutex m_lock;
    std::deque<QString> m_buffer;
    qint64 m_dropped = 0;
    bool m_publishScheduled = false;
};
