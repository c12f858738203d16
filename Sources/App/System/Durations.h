// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>

/// The time limits and intervals of the model and of what it runs. Production uses these defaults;
/// tests shorten them.
struct Durations
{
    /// How long the game must stay open before it counts as started.
    std::chrono::milliseconds startupThreshold = std::chrono::seconds{10};
    /// The interval between two counts of the assets still to import.
    std::chrono::milliseconds importPollInterval = std::chrono::seconds{2};
    /// How long no asset must be missing before the import run is ended.
    std::chrono::milliseconds importSettleTime = std::chrono::seconds{4};
    /// The time limit of an import run.
    std::chrono::milliseconds importTimeout = std::chrono::seconds{900};
    /// The delay from the first unpublished log line to its publication.
    std::chrono::milliseconds logFlushInterval = std::chrono::milliseconds{100};
    /// How long a server may be silent before its transfer counts as stalled.
    std::chrono::milliseconds stallTimeout = std::chrono::seconds{60};
    /// The time between SIGTERM and SIGKILL for a child process.
    std::chrono::milliseconds killTimeout = std::chrono::seconds{5};
};
