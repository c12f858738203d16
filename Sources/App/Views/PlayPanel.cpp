// SPDX-License-Identifier: MIT
#include "Views/PlayPanel.h"

#include "Controls/Buttons.h"
#include "Controls/ProgressBar.h"
#include "Controls/Stack.h"
#include "Controls/StatusDot.h"
#include "Controls/SystemColors.h"
#include "Controls/TextLabel.h"
#include "Model/AppModel.h"
#include "Views/FailureReport.h"
#include "Views/LogView.h"

#include <QLayout>

#include <utility>

namespace {

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
    : RoundedBox(12, SystemColors::panel)
    , m_model(model)
    , m_dot(new StatusDot(statusColor(model)))
    , m_title(new TextLabel(TextStyle::headline))
    , m_detail(new TextLabel(TextStyle::callout, {}, TextTone::secondary))
    //: What a screen reader calls the progress bar.
    , m_progress(new ProgressBar(tr("Progress")))
    , m_progressText(new TextLabel(TextStyle::caption, {}, TextTone::secondary))
    , m_progressBlock(verticalStack({}, {m_progress, m_progressText}))
    //: The button that installs the game, if need be, and starts it.
    , m_play(new PlayButton(tr("Play"), [this] { m_model.play(); }))
    //: The button that ends the running game.
    , m_stop(new BorderedButton(tr("Stop"), [this] { m_model.stopGame(); }))
    //: The button that cancels the download or the setup.
    , m_cancel(new BorderedButton(tr("Cancel"), [this] { m_model.cancelSetup(); }))
    , m_showLog(new DisclosureButton(tr("Show log")))
    , m_logBlock(verticalStack({.spacing = 0}, {{m_showLog, Qt::AlignLeading}}))
{
    m_title->setWordWrap(false);
    stackVertically(*this, {.spacing = 12, .padding = 14},
                    {
                        horizontalStack({}, {m_dot, m_title, spacer}),
                        m_detail,
                        m_progressBlock,
                        horizontalStack({.spacing = 12}, {m_play, m_stop, m_cancel}),
                        new FailureReport(m_model),
                        m_logBlock,
                    });

    connect(m_showLog, &QPushButton::toggled, &m_model, &AppModel::setShowLog);
    connect(&m_model, &AppModel::changed, this, &PlayPanel::refresh);
    refresh();
}

void PlayPanel::refresh()
{
    refreshStatus();
    refreshProgress();
    refreshButtons();
    refreshLog();
}

void PlayPanel::refreshStatus()
{
    const auto title = m_model.statusTitle();
    const auto detail = m_model.statusDetail();
    //: What a screen reader says of the coloured dot: a status, and a sentence about it.
    m_dot->setStatus(statusColor(m_model), tr("Status: %1 \u2013 %2").arg(title, detail));
    m_title->setText(title);
    m_detail->setText(detail);
    // The panel has the focus while Play is disabled. These setters notify assistive technology
    // even if the value is unchanged.
    if (accessibleName() != title)
        setAccessibleName(title);
    if (accessibleDescription() != detail) {
        setAccessibleDescription(detail);
        m_play->setAccessibleDescription(detail);
    }
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
    const auto busy = m_model.isBusy();
    const auto stop = m_model.phase() == Phase::Kind::playing;
    const auto cancel = m_model.phase().isSetup();
    // The panel takes the focus from a button that is to be disabled or hidden. Qt would move it to
    // the next button, where a second press of the space bar could cancel what the first started.
    const auto* const focus = window()->focusWidget();
    if ((busy && focus == m_play) || (!stop && focus == m_stop) || (!cancel && focus == m_cancel))
        setFocus(Qt::OtherFocusReason);
    m_play->setEnabled(!busy);
    m_stop->setVisible(stop);
    m_cancel->setVisible(cancel);
    if (!busy && window()->focusWidget() == this)
        m_play->setFocus(Qt::OtherFocusReason);
}

void PlayPanel::refreshLog()
{
    const auto shown = m_model.showLog();
    m_showLog->setChecked(shown);
    if (shown && !m_log) {
        m_log = new LogView(m_model);
        m_logBlock->layout()->addWidget(m_log);
        m_log->followInTabOrder(*m_showLog);
        Q_EMIT disclosed(m_log);
    } else if (!shown && m_log) {
        if (m_log->isAncestorOf(window()->focusWidget()))
            m_showLog->setFocus(Qt::OtherFocusReason);
        delete std::exchange(m_log, nullptr);
    }
}
