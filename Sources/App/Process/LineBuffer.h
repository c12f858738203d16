// SPDX-License-Identifier: MIT
#pragma once

#include "Process/BlockBuffer.h"

#include <QStringList>

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

    /// Gives what is left as one last line and empties the buffer; nothing when it is empty.
    std::optional<QString> flush();

private:
    std::mutex m_lock;
    BlockBuffer m_blocks;
};
