// SPDX-License-Identifier: MIT
#include "Process/ImportWatcher.h"

using namespace Qt::StringLiterals;

ImportWatcher::ImportWatcher(std::chrono::milliseconds settled, std::chrono::milliseconds timeout)
    : m_settled(settled)
    , m_timeout(timeout)
{
}

ImportWatcher::Step ImportWatcher::next(int count, std::chrono::milliseconds elapsed)
{
    Step step;
    if (count != m_lastCount)
        step.log.append(u"Import progress: %1 assets still to import"_s.arg(count));
    m_lastCount = count;
    if (isSettled(count, elapsed)) {
        step.log.append(u"All assets imported, closing the setup run."_s);
        step.verdict = Verdict::end;
    } else if (elapsed > m_timeout) {
        step.log.append(u"Setup took too long, stopping it."_s);
        step.verdict = Verdict::end;
    }
    return step;
}

/// Returns true if the count has been 0 for long enough.
bool ImportWatcher::isSettled(int count, std::chrono::milliseconds elapsed)
{
    if (count != 0) {
        m_allDoneSince.reset();
        return false;
    }
    if (!m_allDoneSince) {
        m_allDoneSince = elapsed;
        return false;
    }
    return elapsed - *m_allDoneSince >= m_settled;
}
