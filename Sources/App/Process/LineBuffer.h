// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <mutex>
#include <optional>

/// Turns the byte chunks that a child writes into whole text lines. Only a line feed ends a line: a
/// carriage return stays on it. Lines are decoded as UTF-8; a character split between two chunks is
/// read whole, and ill-formed sequences become U+FFFD.
///
/// Several lines are returned as one text with a line feed between each two, as LogStore::append()
/// takes them: a chunk may hold tens of thousands, of which the log keeps few. Thread-safe; each
/// operation is atomic with respect to the others.
class LineBuffer final
{
public:
    /// Adds `chunk` and returns the lines that are now complete, in order; nothing if there are
    /// none.
    std::optional<QString> append(QByteArrayView chunk);

    /// Returns the unfinished line and empties the buffer; nothing if it is empty.
    std::optional<QString> flush();

    /// As flush(), but only if the unfinished line is longer than `limit` bytes. The first bytes of
    /// an unfinished character at its end stay in the buffer.
    std::optional<QString> flushIfLongerThan(qsizetype limit);

private:
    std::mutex m_mutex;
    QByteArray m_unfinished;
};
