// SPDX-License-Identifier: MIT
#include "System/TerminationSignals.h"

#include "System/FileDescriptor.h"

#include <QSocketNotifier>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <tuple>
#include <utility>

#include <unistd.h>

namespace {

constexpr std::array signalNumbers{SIGTERM, SIGINT, SIGHUP};

/// The write end of the pipe. In a signal handler, write() is allowed and Qt is not.
std::atomic<int> wakeUpDescriptor = -1;

void wakeUp(int)
{
    const auto error = errno;
    const char byte = 0;
    std::ignore = ::write(wakeUpDescriptor, &byte, 1);
    errno = error;
}

void setHandler(int number, void (*handler)(int))
{
    struct sigaction current = {};
    ::sigaction(number, nullptr, &current);
    if (current.sa_handler == SIG_IGN)
        return;
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    ::sigaction(number, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals()
{
    auto pipe = Pipe::make();
    if (!pipe)
        return; // The signals then end the program at once.
    m_readEnd = std::move(pipe->readEnd);
    m_writeEnd = std::move(pipe->writeEnd);
    makeNonBlocking(m_readEnd);
    makeNonBlocking(m_writeEnd);
    m_notifier = std::make_unique<QSocketNotifier>(m_readEnd.get(), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &TerminationSignals::drain);
    wakeUpDescriptor = m_writeEnd.get();
    for (const auto number : signalNumbers)
        setHandler(number, wakeUp);
}

TerminationSignals::~TerminationSignals()
{
    for (const auto number : signalNumbers)
        setHandler(number, SIG_DFL);
}

void TerminationSignals::drain()
{
    std::array<char, 16> bytes = {};
    while (::read(m_readEnd.get(), bytes.data(), bytes.size()) > 0) {
    }
    Q_EMIT received();
}
