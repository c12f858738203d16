// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <chrono>
#include <optional>

/// Decides, from one count of the assets still to import to the next, what becomes of an import
/// run. It neither counts nor waits nor knows the time of day.
class ImportWatcher final
{
public:
    enum class Verdict {
        /// The run goes on, to be looked at again.
        goOn,
        /// The run is to be ended, its work being done or its time being over.
        end
    };

    struct Step
    {
        Verdict verdict = Verdict::goOn;
        /// What the log is to say, in order.
        QStringList log;
    };

    /// The run is done when nothing has been missing for `settled`, and given up when it has taken
    /// more than `limit`.
    ImportWatcher(std::chrono::milliseconds settled, std::chrono::milliseconds limit);

    /// What follows from `count` assets missing `elapsed` after the start of the run.
    Step next(int count, std::chrono::milliseconds elapsed);

private:
    bool isSettled(int count, std::chrono::milliseconds elapsed);

    std::chrono::milliseconds m_settled;
    std::chrono::milliseconds m_limit;
    std::optional<int> m_lastCount;
    std::optional<std::chrono::milliseconds> m_allDoneSince;
};
