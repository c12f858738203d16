// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <chrono>
#include <optional>

/// Decides from successive counts of the assets still to import when an import run ends. Does not
/// count, wait or read a clock.
class ImportWatcher final
{
public:
    enum class Verdict {
        /// Keep the run and count again later.
        goOn,
        /// End the run: all assets are imported, or the time limit has passed.
        end
    };

    struct Step
    {
        Verdict verdict = Verdict::goOn;
        /// The lines to log, in order.
        QStringList log;
    };

    /// The run ends when no asset has been missing for `settled`, or after `timeout`.
    ImportWatcher(std::chrono::milliseconds settled, std::chrono::milliseconds timeout);

    /// Returns what to do when `count` assets are missing `elapsed` after the start of the run.
    Step next(int count, std::chrono::milliseconds elapsed);

private:
    bool isSettled(int count, std::chrono::milliseconds elapsed);

    std::chrono::milliseconds m_settled;
    std::chrono::milliseconds m_timeout;
    std::optional<int> m_lastCount;
    std::optional<std::chrono::milliseconds> m_allDoneSince;
};
