// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// Gathers the byte chunks a child writes into blocks of whole lines, not decoded: for whoever will
/// look at few of them. For one thread at a time.
class BlockBuffer final
{
public:
    /// Adds `chunk` and gives the lines that are now complete, each with its line feed.
    QByteArray append(QByteArrayView chunk);

    /// Gives what is left, decoded, as one last line and empties the buffer; nothing when it is
    /// empty.
    std::optional<QString> flush();

private:
    QByteArray m_begun;
};
