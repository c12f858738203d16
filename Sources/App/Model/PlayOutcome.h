// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include <chrono>

/// How a play run ended. A pure value: it reads no clock.
class PlayOutcome final
{
    Q_DECLARE_TR_FUNCTIONS(PlayOutcome)

public:
    enum class Kind {
        /// The player stopped the game; how it ended then does not matter.
        stoppedByPlayer,
        /// The game did not stay open long enough to count as started, whatever its exit status.
        closedTooSoon,
        closedNormally,
        stoppedUnexpectedly,
    };

    /// `elapsed` is the time from the start of the run to its end; a run of exactly
    /// `startupThreshold` counts as started.
    static PlayOutcome judge(bool userStopped, std::chrono::nanoseconds elapsed, int exitStatus,
                             std::chrono::nanoseconds startupThreshold);

    [[nodiscard]] Kind kind() const { return m_kind; }
    /// Returns the log line for kinds that are no failure, else the failure, translated.
    [[nodiscard]] QString sentence() const;

private:
    Kind m_kind;
    std::chrono::seconds m_elapsed;
    int m_exitStatus;

    PlayOutcome(Kind kind, std::chrono::seconds elapsed, int exitStatus)
        : m_kind(kind)
        , m_elapsed(elapsed)
        , m_exitStatus(exitStatus)
    {
    }
};
