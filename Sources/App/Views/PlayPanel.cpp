// SPDX-License-Identifier: MIT
#include "Views/PlayPanel.h"

#include "AppModel.h"
#include "Views/BorderedButton.h"
#include "Views/FailureReport.h"
#include "Views/LogDisclosure.h"
#include "Views/PlayButton.h"
#include "Views/ProgressBar.h"
#include "Views/Stack.h"
#include "Views/StatusDot.h"
#include "Views/SystemColors.h"
#include "Views/TextLabel.h"

namespace {

constexpr auto spacing = 12;
constexpr auto padding = 14;
constexpr auto cornerRadius = 12;
constexpr auto statusSpacing = 8;
constexpr auto buttonSpacing = 12;

StatusDot::Color statusColor(const AppModel& model)
{
    switch (model.phase().kind()) {
    case Phase::Kind::notDownloaded:
        return SystemColors::gray;
    case Phase::Kind::downloading:
    case Phase::Kind::settingUp:
        return SystemColors::blue;
    case Phase::Kind::ready:
        return SystemColors::green;
    case Phase::Kind::playing:
        return model.stillStarting() ? SystemColors::orange : SystemColors::green;
    case Phase::Kind::needs:
        return SystemColors::red;
    }
    Q_UNREACHABLE();
}

} // namespace

PlayPanel::PlayPanel(AppModel& model)
    : RoundedBox(cornerRadius, SystemColors::panel)
    , m_model(model)
{
    stackVertically(
        *this, spacing, padding,
        {
            horizontalStack(statusSpacing,
                            {
                                m_dot = new StatusDot(statusColor(m_model)),
                                m_title = new TextLabel(TextStyle::headline),
                                spacer(),
                            }),
            m_detail = new TextLabel(TextStyle::callout, {}, TextTone::secondary),
            m_progressBlock = verticalStack(
                defaultSpacing,
                {
                    m_progress = new ProgressBar(tr("Progress")),
                    m_progressText = new TextLabel(TextStyle::caption, {}, TextTone::secondary),
                }),
            horizontalStack(buttonSpacing,
                            {
                                m_play = new PlayButton,
                                m_stop = new BorderedButton(tr("Stop")),
                                m_cancel = new BorderedButton(tr("Cancel")),
                            }),
            new FailureReport(m_model),
            m_log = new LogDisclosure(m_model),
        });
    m_title->setWordWrap(false);

    connect(m_play, &QPushButton::clicked, &m_model, &AppModel::play);
    connect(m_stop, &QPushButton::clicked, &m_model, &AppModel::stopGame);
    connect(m_cancel, &QPushButton::clicked, &m_model, &AppModel::cancelSetup);
    connect(m_log, &LogDisclosure::disclosed, this, &PlayPanel::disclosed);
    connect(&m_model, &AppModel::changed, this, &PlayPanel::refresh);
    refresh();
}

void PlayPanel::pressDefaultButton()
{
    m_play->click();
}

// The setters of the widgets compare before they change anything, so that refreshing all of the
// panel after each change of the model costs next to nothing.
void PlayPanel::refresh()
{
    refreshStatus();
    refreshProgress();
    refreshButtons();
}

void PlayPanel::refreshStatus()
{
    const auto title = m_model.statusTitle();
    const auto detail = m_model.statusDetail();
    m_dot->setStatus(statusColor(m_model), tr("Status: %1 \u2013 %2").arg(title, detail));
    m_title->setText(title);
    m_detail->setText(detail);
    // The panel holds the focus while Play is pressed and disabled. Each of these tells assistive
    // technology of a change, also where there is none.
    if (accessibleName() != title)
        setAccessibleName(title);
    if (accessibleDescription() != detail)
        setAccessibleDescription(detail);
}

void PlayPanel::refreshProgress()
{
    const auto shown = m_model.phase().isSetup();
    if (shown) {
        m_progress->setFraction(m_model.progress());
        m_progressText->setText(m_model.progressText());
        m_progressText->setVisible(!m_model.progressText().isEmpty());
    }
    m_progressBlock->setVisible(shown);
}

void PlayPanel::refreshButtons()
{
    const auto busy = m_model.phase().isBusy();
    const auto stop = m_model.phase() == Phase::Kind::playing;
    const auto cancel = m_model.phase().isSetup();
    // A button that goes while it has the focus would hand that to the next one, where a second
    // press of the space bar might cancel what the first one started. The panel takes it instead.
    const auto* const focus = window()->focusWidget();
    if ((busy && focus == m_play) || (!stop && focus == m_stop) || (!cancel && focus == m_cancel))
        setFocus(Qt::OtherFocusReason);
    m_play->setEnabled(!busy);
    m_stop->setVisible(stop);
    m_cancel->setVisible(cancel);
    if (!busy && window()->focusWidget() == this)
        m_play->setFocus(Qt::OtherFocusReason);
}
