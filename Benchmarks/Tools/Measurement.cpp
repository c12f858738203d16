// SPDX-License-Identifier: MIT
#include "Measurement.h"

#include <cstdio>
#include <fstream>
#include <string>

#include <time.h>

namespace {

using Seconds = std::chrono::duration<double>;

std::chrono::nanoseconds processorTime()
{
    timespec time = {};
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

/// Not ru_maxrss: that starts with the size of the process this one was forked from.
long peakMemoryInKib()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:"))
            return std::stol(line.substr(line.find_first_of("0123456789")));
    }
    return 0;
}

} // namespace

Measurement::Measurement()
    : m_start(std::chrono::steady_clock::now())
    , m_processorStart(processorTime())
{
}

void Measurement::report(long long result) const
{
    const Seconds wall = std::chrono::steady_clock::now() - m_start;
    const Seconds processor = processorTime() - m_processorStart;
    std::printf("{\"wall\": %.6f, \"processor\": %.6f, \"peak_kib\": %ld, \"result\": %lld}\n",
                wall.count(), processor.count(), peakMemoryInKib(), result);
}
