// SPDX-License-Identifier: MIT
#include "Model/PlayOutcome.h"

using namespace Qt::StringLiterals;

PlayOutcome PlayOutcome::judge(bool userStopped, std::chrono::nanoseconds elapsed, int exitStatus,
                               std::chrono::nanoseconds startupThreshold)
{
    const auto kind = userStopped                  ? Kind::stoppedByPlayer
                      : elapsed < startupThreshold ? Kind::closedTooSoon
                      : exitStatus == 0            ? Kind::closedNormally
                                                   : Kind::stoppedUnexpectedly;
    return {kind, std::chrono::duration_cast<std::chrono::seconds>(elapsed), exitStatus};
}

QString PlayOutcome::sentence() const
{
    switch (m_kind) {
    case Kind::stoppedByPlayer:
        return u"Game stopped by you."_s;
    case Kind::closedTooSoon:
        return tr("The game closed after %n seconds (exit code %1), so it did not "
                  "start properly.",
                  nullptr, static_cast<int>(m_elapsed.count()))
            .arg(m_exitStatus);
    case Kind::closedNormally:
        return u"Game closed normally."_s;
    case Kind::stoppedUnexpectedly:
        return tr("The game stopped unexpectedly (exit code %1).").arg(m_exitStatus);
    }
    Q_UNREACHABLE();
}
