// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

/// Every span of time that decides something. Production leaves them at these defaults; tests
/// shorten them.
struct Durations
{
    /// How long the game must stay open before it counts as started.
    std::chrono::milliseconds startupThreshold = std::chrono::seconds{10};
    /// From one count of the assets still to import to the next.
    std::chrono::milliseconds importPollInterval = std::chrono::seconds{2};
    /// How long nothing may be missing before the import run is closed.
    std::chrono::milliseconds importSettleTime = std::chrono::seconds{4};
    /// The most an import run may take.
    std::chrono::milliseconds importTimeout = std::chrono::seconds{900};
    /// From the first unpublished log line to the publication.
    std::chrono::milliseconds logFlushInterval = std::chrono::milliseconds{100};
    /// The longest silence of a server before its transfer counts as stalled.
    std::chrono::milliseconds stallTimeout = std::chrono::seconds{60};
    /// From the polite request to stop to the kill of a child process.
    std::chrono::milliseconds killTimeout = std::chrono::seconds{5};
};
