// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <mutex>
#include <optional>

/// Splits the output of a child process into lines. Only a line feed ends a line; a carriage return
/// stays. Lines are decoded as UTF-8, with U+FFFD for ill-formed sequences; a character may be
/// split between two chunks.
///
/// Several lines are returned as one text, separated by line feeds, as LogStore::append() takes
/// them: a chunk may hold tens of thousands of lines, and the log keeps few. Thread-safe.
class LineBuffer final
{
public:
    /// Adds `chunk` and returns the lines that are now complete; nothing if there are none.
    std::optional<QString> append(QByteArrayView chunk);

    /// Returns the unfinished line and empties the buffer; nothing if it is empty.
    std::optional<QString> flush();

    /// Like flush(), but only if the unfinished line is longer than `limit` bytes. An incomplete
    /// character at its end stays in the buffer.
    std::optional<QString> flushIfLongerThan(qsizetype limit);

private:
    std::mutex m_mutex;
    QByteArray m_unfinished;
};
