// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

/// Times one piece of work from its construction on, and reports it as one line of JSON.
///
/// The wall time, and the processor time of all threads of this process; a program's start, its
/// loading of libraries above all, is thus left out. The peak memory is that of the whole process.
class Measurement final
{
public:
    Measurement();

    /// Ends the measurement and prints it to standard output. `result` is what the work gave, for
    /// the caller to check.
    void report(long long result) const;

private:
    const std::chrono::steady_clock::time_point m_start;
    const std::chrono::nanoseconds m_processorStart;
};
