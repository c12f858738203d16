// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>

#include <functional>
#include <mutex>
#include <optional>

/// Turns the byte chunks a child writes into whole text lines. Only a line feed ends a line: a
/// carriage return stays on it. Lines are decoded as UTF-8; a character split between two chunks is
/// read whole, and ill-formed sequences become U+FFFD.
///
/// Each operation is atomic with respect to the others; all may be called from any thread.
class LineBuffer final
{
public:
    /// Adds `chunk` and gives every line that is now complete, in order.
    QStringList append(QByteArrayView chunk);

    /// The same, but hands each line to `takeLine`, which must not call this object. Faster, since
    /// the lines of a chunk do not all exist at once.
    void append(QByteArrayView chunk, const std::function<void(const QString&)>& takeLine);

    /// Gives what is left as one last line and empties the buffer; nothing when it is empty.
    std::optional<QString> flush();

private:
    void keep(QByteArrayView bytes);
    void decode(QByteArrayView bytes);
    QString takeLine(QByteArrayView end);

    std::mutex m_lock;
    /// What has come of an unfinished line is decoded at once, so that of a very long one there is
    /// never a second copy; only the first bytes of a character that is cut are kept as they are.
    QString m_begun;
    QByteArray m_cutCharacter;
};
