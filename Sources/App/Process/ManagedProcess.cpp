// SPDX-License-Identifier: MIT
#include "Process/ManagedProcess.h"

#include "Process/LineBuffer.h"
#include "System/Errors.h"

#include <QScopeGuard>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <optional>
#include <vector>

#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

namespace {

/// The default capacity of a pipe.
constexpr std::size_t chunkSize = 65'536;
constexpr qsizetype maxLineLength = 16'384;

Pipe makePipe()
{
    auto pipe = Pipe::make();
    if (!pipe)
        throw PlatformError::fromErrno(PlatformError::tr("Could not create a pipe"), errno);
    return std::move(*pipe);
}

/// Reads lines from a pipe.
class OutputReader final
{
public:
    OutputReader(int pipe, const LogCallback& onLines)
        : m_pipe(pipe)
        , m_onLines(onLines)
        , m_chunk(chunkSize)
    {
    }

    /// Reads at most `limit` bytes. Returns the number of bytes read; 0 at the end of the stream.
    std::size_t read(std::size_t limit = chunkSize)
    {
        const auto count = ::read(m_pipe, m_chunk.data(), std::min(limit, m_chunk.size()));
        if (count <= 0)
            return 0;
        deliver(m_buffer.append(QByteArrayView(m_chunk.data(), count)));
        deliver(m_buffer.flushIfLongerThan(maxLineLength));
        return static_cast<std::size_t>(count);
    }

    /// Reads what is left in the pipe and delivers the last line.
    void finish()
    {
        // Reading until the pipe is empty would not end if another process keeps writing to it.
        int available = 0;
        ::ioctl(m_pipe, FIONREAD, &available);
        for (auto rest = static_cast<std::size_t>(available); rest > 0;) {
            const auto count = read(rest);
            if (count == 0)
                break;
            rest -= count;
        }
        deliver(m_buffer.flush());
    }

private:
    void deliver(const std::optional<QString>& lines)
    {
        if (lines)
            m_onLines(*lines);
    }

    const int m_pipe;
    const LogCallback& m_onLines;
    std::vector<char> m_chunk;
    LineBuffer m_buffer;
};

/// Returns the time until `deadline` for poll(), rounded up; -1 for none.
int pollTimeout(const std::optional<Clock::time_point>& deadline)
{
    if (!deadline)
        return -1;
    const auto rest = std::chrono::ceil<milliseconds>(*deadline - Clock::now());
    return static_cast<int>(std::max(rest, milliseconds(0)).count());
}

} // namespace

ManagedProcess::ManagedProcess(Lifetime lifetime, milliseconds killTimeout, int installationLock)
    : m_lifetime(lifetime)
    , m_killTimeout(killTimeout)
    , m_installationLock(installationLock)
    , m_wakeUp(makePipe())
{
}

int ManagedProcess::run(const QString& program, const QStringList& arguments,
                        const LogCallback& onLines)
{
    m_isRunning = true;
    const auto ended = qScopeGuard([this] { m_isRunning = false; });
    auto output = makePipe();
    ChildProcess child({.program = program,
                        .arguments = arguments,
                        .output = output.writeEnd.get(),
                        .lifetime = m_lifetime,
                        .installationLock = m_installationLock});
    output.writeEnd.close();

    OutputReader reader(output.readEnd.get(), onLines);
    std::optional<Clock::time_point> killTime;
    std::array<pollfd, 3> sources{{{output.readEnd.get(), POLLIN, 0},
                                   {child.endDescriptor(), POLLIN, 0},
                                   {m_wakeUp.readEnd.get(), POLLIN, 0}}};
    auto& [outputSource, endSource, wakeUpSource] = sources;
    while (true) {
        const auto ready = ::poll(sources.data(), sources.size(), pollTimeout(killTime));
        if (ready > 0 && endSource.revents != 0)
            break;
        if (ready > 0 && outputSource.revents != 0 && reader.read() == 0)
            outputSource.fd = -1; // The child has closed its output but still runs.
        if (m_isEndRequested && wakeUpSource.fd >= 0) {
            wakeUpSource.fd = -1;
            child.signalGroup(SIGTERM);
            killTime = Clock::now() + m_killTimeout;
        } else if (killTime && Clock::now() >= *killTime) {
            child.signalGroup(SIGKILL);
            killTime.reset();
        }
    }
    if (m_isEndRequested || m_lifetime == Lifetime::endsWithLauncher)
        child.signalGroup(SIGKILL);
    reader.finish();
    return child.reap();
}

void ManagedProcess::terminate()
{
    if (!m_isEndRequested.exchange(true))
        m_wakeUp.writeEnd.close();
}

int runTool(const QString& program, const QStringList& arguments, const LogCallback& onLines,
            const std::stop_token& stop)
{
    throwIfCancelled(stop);
    ManagedProcess process;
    const std::stop_callback terminate(stop, [&process] { process.terminate(); });
    const auto status = process.run(program, arguments, onLines);
    throwIfCancelled(stop);
    return status;
}
