// SPDX-License-Identifier: MIT
#include "Process/ChildOutput.h"

#include "Platform/Pipe.h"
#include "Platform/PlatformError.h"

#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <utility>

#include <sys/ioctl.h>
#include <unistd.h>

namespace {

/// As much as a pipe holds by default.
constexpr std::size_t chunkSize = std::size_t{64} * 1024;

} // namespace

ChildOutput::ChildOutput(LogCallback onLine)
    : m_onLine(std::move(onLine))
    , m_chunk(chunkSize)
{
    auto pipe = Pipe::make();
    if (!pipe)
        throw PlatformError::fromErrno(PlatformError::tr("create a pipe"), errno);
    m_readEnd = std::move(pipe->readEnd);
    m_writeEnd = std::move(pipe->writeEnd);
    makeNonBlocking(m_readEnd);
    m_notifier = std::make_unique<QSocketNotifier>(m_readEnd.get(), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] {
        if (readAtMost(std::ssize(m_chunk)) == 0)
            m_notifier->setEnabled(false);
    });
}

ChildOutput::~ChildOutput() = default;

void ChildOutput::finish()
{
    m_notifier->setEnabled(false);
    // What is in the pipe now is all the child wrote. Reading until the pipe is empty would never
    // end if a process it left behind keeps writing.
    int available = 0;
    ::ioctl(m_readEnd.get(), FIONREAD, &available);
    for (qsizetype rest = available; rest > 0;) {
        const auto size = readAtMost(std::min<qsizetype>(rest, std::ssize(m_chunk)));
        if (size <= 0)
            break;
        rest -= size;
    }
    const auto lastLine = m_onLine.takesBlocks() ? m_blocks.flush() : m_lines.flush();
    if (lastLine)
        m_onLine(*lastLine);
}

/// Reads and delivers up to `size` bytes. Gives how many those were, 0 at the end of the stream and
/// a negative number when there is nothing to read.
qsizetype ChildOutput::readAtMost(qsizetype size)
{
    const auto count = ::read(m_readEnd.get(), m_chunk.data(), static_cast<std::size_t>(size));
    if (count > 0)
        deliver(QByteArrayView(m_chunk.data(), count));
    return count;
}

void ChildOutput::deliver(QByteArrayView chunk)
{
    if (m_onLine.takesBlocks()) {
        if (const auto lines = m_blocks.append(chunk); !lines.isEmpty())
            m_onLine.takeBlock(lines);
    } else {
        const auto lines = m_lines.append(chunk);
        for (const auto& line : lines)
            m_onLine(line);
    }
}
