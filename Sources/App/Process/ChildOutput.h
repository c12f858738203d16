// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/FileDescriptor.h"
#include "Process/BlockBuffer.h"
#include "Process/LineBuffer.h"
#include "Process/LogCallback.h"

#include <memory>
#include <vector>

class QSocketNotifier;

/// The pipe a child writes its output to, and its reader, which delivers it line by line.
///
/// It reads a bounded amount at a time, so that a child that never stops writing cannot keep the
/// thread from its other work. A line is kept until its line feed comes, however long it grows. It
/// belongs to the thread that creates it.
class ChildOutput final
{
public:
    /// Makes the pipe. Throws PlatformError.
    explicit ChildOutput(LogCallback onLine);
    ~ChildOutput();

    /// What the child is to write to.
    [[nodiscard]] int writeEnd() const { return m_writeEnd.get(); }

    /// To be called once the child has its own copy of the write end, or has failed to start.
    void closeWriteEnd() { m_writeEnd.close(); }

    /// To be called once the child has ended: delivers what it has left in the pipe and then the
    /// last line, which may lack its line feed. What another process that has inherited the pipe
    /// may write later is not waited for.
    void finish();

private:
    qsizetype readAtMost(qsizetype size);
    void deliver(QByteArrayView chunk);

    const LogCallback m_onLine;
    FileDescriptor m_readEnd;
    FileDescriptor m_writeEnd;
    std::unique_ptr<QSocketNotifier> m_notifier;
    // Which of the two serves depends on what the callback takes.
    BlockBuffer m_blocks;
    LineBuffer m_lines;
    std::vector<char> m_chunk;
};
