// SPDX-License-Identifier: MIT
#include "Shell/TaskBarProgress.h"

#include "Model/AppModel.h"
#include "Platform/TaskBar.h"
#include "Project/GameFacts.h"

#include <algorithm>
#include <utility>

namespace {

/// The download of the game, that of the engine, and the import, whose progress is unknown.
constexpr int steps = 3;
/// The desktop redraws the task bar for each update.
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
        m_sinceShown.invalidate(); // Shown at once: the next change may be a long time away.
    }
    // Also if a download was skipped.
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
