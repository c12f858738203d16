// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <chrono>
#include <optional>

/// Decides from successive counts of the assets still to import whether an import run goes on.
/// Pure: it does not count, wait or read a clock.
class ImportWatcher final
{
public:
    enum class Verdict {
        /// Keep the run and count again later.
        goOn,
        /// End the run: its work is done, or its time is over.
        end
    };

    struct Step
    {
        Verdict verdict = Verdict::goOn;
        /// The lines to log, in order.
        QStringList log;
    };

    /// The run is done when nothing has been missing for `settled`, and given up when it has taken
    /// more than `limit`.
    ImportWatcher(std::chrono::milliseconds settled, std::chrono::milliseconds limit);

    /// Returns what to do when `count` assets are missing `elapsed` after the start of the run.
    Step next(int count, std::chrono::milliseconds elapsed);

private:
    bool isSettled(int count, std::chrono::milliseconds elapsed);

    std::chrono::milliseconds m_settled;
    std::chrono::milliseconds m_limit;
    std::optional<int> m_lastCount;
    std::optional<std::chrono::milliseconds> m_allDoneSince;
};
