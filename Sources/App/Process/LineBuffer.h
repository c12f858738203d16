// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>

#include <mutex>
#include <optional>

/// Turns the byte chunks a child writes into whole text lines. Only a line feed ends a line: a
/// carriage return stays on it. Lines are decoded as UTF-8 once they are complete, so a character
/// split between two chunks is read whole; ill-formed sequences become U+FFFD.
///
/// Each operation is atomic with respect to the others; all may be called from any thread.
class LineBuffer final
{
public:
    /// Adds `chunk` and gives every line that is now complete, in order.
    QStringList append(QByteArrayView chunk);

    /// The same, but gives the complete lines as they came: not decoded, one after the other, each
    /// with its line feed. For whoever will look at few of them.
    QByteArray appendRaw(QByteArrayView chunk);

    /// Gives what is left as one last line and empties the buffer; nothing when it is empty.
    std::optional<QString> flush();

private:
    QString takeLine(QByteArrayView end);

    std::mutex m_lock;
    QByteArray m_data;
};
