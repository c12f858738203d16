// SPDX-License-Identifier: MIT
#include "Shell/TaskBarProgress.h"

#include "Model/AppModel.h"
#include "Platform/TaskBar.h"
#include "Project/GameFacts.h"

#include <algorithm>
#include <utility>

namespace {

/// The game's download, the engine's, and the import, of which it is not known how far it is.
constexpr int steps = 3;
/// For the sake of the desktop, which draws each of them.
constexpr int minMillisecondsBetweenUpdates = 100;

} // namespace

void TaskBarProgress::update(const AppModel& model, bool isWanted)
{
    if (!model.phase().isSetup()) {
        hide();
        *this = TaskBarProgress();
        return;
    }
    advance(model);
    if (isWanted)
        show();
    else
        hide();
}

void TaskBarProgress::advance(const AppModel& model)
{
    if (const auto before = std::exchange(m_step, model.stepText()); before != m_step) {
        m_stepsDone += before.isEmpty() ? 0 : 1;
        m_sinceShown.invalidate(); // No other change may follow for long.
    }
    // Also where a download was skipped.
    if (model.phase() == Phase::Kind::settingUp)
        m_stepsDone = steps - 1;
    const auto percent = (m_stepsDone + model.progress().value_or(0)) * 100 / steps;
    m_percent = std::max(m_percent, static_cast<int>(percent));
}

void TaskBarProgress::show()
{
    const auto isTooSoon =
        m_sinceShown.isValid() && m_sinceShown.elapsed() < minMillisecondsBetweenUpdates;
    if (m_isShown && (m_percent == m_percentShown || isTooSoon))
        return;
    m_isShown = true;
    m_percentShown = m_percent;
    m_sinceShown.start();
    showTaskBarProgress(GameFacts::applicationId.toString(), m_percent / 100.0);
}

void TaskBarProgress::hide()
{
    if (std::exchange(m_isShown, false))
        showTaskBarProgress(GameFacts::applicationId.toString(), std::nullopt);
}
