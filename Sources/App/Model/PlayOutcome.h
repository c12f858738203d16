// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QString>

#include <chrono>

/// How a run of the game ended.
class PlayOutcome final
{
    Q_DECLARE_TR_FUNCTIONS(PlayOutcome)

public:
    enum class Kind {
        /// The player stopped the game, which ended with any exit status.
        stoppedByPlayer,
        /// The game ended before the startup threshold, with any exit status.
        closedTooSoon,
        closedNormally,
        stoppedUnexpectedly,
    };

    /// `elapsed` is the duration of the run. A run of exactly `startupThreshold` counts as started.
    static PlayOutcome judge(bool userStopped, std::chrono::nanoseconds elapsed, int exitStatus,
                             std::chrono::nanoseconds startupThreshold);

    [[nodiscard]] Kind kind() const { return m_kind; }
    /// Returns the log line, or for a failure the translated sentence for the player.
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
