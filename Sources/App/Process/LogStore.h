// SPDX-License-Identifier: MIT
#pragma once

#include "Durations.h"
#include "Process/LogCallback.h"

#include <QByteArray>
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
                      std::chrono::milliseconds publicationDelay = Durations().logPublication);

    /// Adds the lines of `text`, split at every line feed, empty pieces included. Any thread.
    void append(const QString& text);

    /// Adds whole lines of UTF-8 text, each ended by a line feed, as `append` of each of them
    /// would. They are decoded only once somebody asks for them: of a flood of output, most never
    /// are. Any thread.
    void appendBlock(const QByteArray& lines);

    /// What writes to this log. It must not be called once the log is gone.
    [[nodiscard]] LogCallback callback();

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
    /// Whole lines of output that nobody has asked for yet.
    struct Block
    {
        QByteArray bytes;
        qsizetype lineCount = 0;
    };

    void decodeBlocks() const;
    qsizetype dropDecoded(qsizetype count) const;
    void announce(std::unique_lock<std::mutex> lock);
    void publish();

    const qsizetype m_maxLines;
    const std::chrono::milliseconds m_publicationDelay;
    QStringList m_lines;
    qint64 m_firstLineNumber = 0;

    // The log as it is now: the decoded lines, then those of the blocks. What is beyond the bound
    // goes when the blocks are decoded; until then it is at most a bound's and a block's worth.
    mutable std::mutex m_lock;
    mutable std::deque<QString> m_decoded;
    mutable std::deque<Block> m_blocks;
    mutable qsizetype m_linesInBlocks = 0;
    qint64 m_linesEver = 0;
    bool m_publishScheduled = false;
};
