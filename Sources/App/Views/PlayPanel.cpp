// SPDX-License-Identifier: MIT
#include "Views/PlayPanel.h"

#include "AppModel.h"
#include "Views/BorderedButton.h"
#include "Views/DisclosureButton.h"
#include "Views/LogView.h"
#include "Views/LongTextEdit.h"
#include "Views/PlayButton.h"
#include "Views/ProgressBar.h"
#include "Views/Stack.h"
#include "Views/StatusDot.h"
#include "Views/SystemColors.h"
#include "Views/TextBox.h"
#include "Views/TextLabel.h"

#include <QBoxLayout>
#include <QPushButton>

#include <utility>

namespace {

constexpr auto spacing = 12;
constexpr auto padding = 14;
constexpr auto cornerRadius = 12;
constexpr auto statusSpacing = 8;
constexpr auto buttonSpacing = 12;
constexpr auto failureSpacing = 6;
constexpr auto failureHeight = 170;

QColor panelTint(const QPalette& palette)
{
    const auto secondary = SystemColors::secondaryText(palette);
    return SystemColors::withOpacity(secondary, secondary.alphaF() * 0.08);
}

QColor failureTint(const QPalette& palette)
{
    return SystemColors::withOpacity(SystemColors::red(palette), 0.08);
}

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
    : RoundedBox(cornerRadius, panelTint)
    , m_model(model)
{
    stackVertically(*this, spacing, padding,
                    {
                        statusRow(),
                        m_detail = new TextLabel(TextStyle::callout, {}, TextTone::secondary),
                        progressBlock(),
                        buttonRow(),
                        failureBlock(),
                        logDisclosure(),
                    });
    connect(&m_model, &AppModel::changed, this, &PlayPanel::refresh);
    refresh();
}

void PlayPanel::pressDefaultButton()
{
    m_play->click();
}

QWidget* PlayPanel::statusRow()
{
    m_dot = new StatusDot(statusColor(m_model));
    m_title = new TextLabel(TextStyle::headline);
    m_title->setWordWrap(false);
    return horizontalStack(statusSpacing, {m_dot, m_title, StackItem::spacer()});
}

QWidget* PlayPanel::progressBlock()
{
    m_progress = new ProgressBar;
    m_progress->setAccessibleName(tr("Progress"));
    m_progressText = new TextLabel(TextStyle::caption, {}, TextTone::secondary);
    m_progressBlock = verticalStack(defaultSpacing, {m_progress, m_progressText});
    return m_progressBlock;
}

QWidget* PlayPanel::buttonRow()
{
    m_play = new PlayButton;
    m_stop = new BorderedButton(tr("Stop"));
    m_cancel = new BorderedButton(tr("Cancel"));
    connect(m_play, &QPushButton::clicked, &m_model, &AppModel::play);
    connect(m_stop, &QPushButton::clicked, &m_model, &AppModel::stopGame);
    connect(m_cancel, &QPushButton::clicked, &m_model, &AppModel::cancelSetup);
    return horizontalStack(buttonSpacing, {m_play, m_stop, m_cancel});
}

QWidget* PlayPanel::failureBlock()
{
    m_failureBlock = verticalStack(failureSpacing, {});
    return m_failureBlock;
}

void PlayPanel::fillFailureBlock()
{
    m_failure = new TextBox(tr("Failure report"), failureHeight, failureTint);
    auto* const copy = new BorderedButton(tr("Copy"));
    connect(copy, &QPushButton::clicked, &m_model, &AppModel::copyFailure);
    m_failureBlock->layout()->addWidget(m_failure);
    m_failureBlock->layout()->addWidget(
        horizontalStack(defaultSpacing, {copy, StackItem::spacer()}));
    // What is made later would otherwise come last when the keyboard goes through the window.
    setTabOrder(m_cancel, &m_failure->edit());
    setTabOrder(&m_failure->edit(), copy);
}

QWidget* PlayPanel::logDisclosure()
{
    m_showLog = new DisclosureButton(tr("Show log"));
    connect(m_showLog, &QPushButton::toggled, &m_model, &AppModel::setShowLog);
    m_disclosed = verticalStack(0, {
                                       horizontalStack(0, {m_showLog, StackItem::spacer()}),
                                   });
    return m_disclosed;
}

// The setters of the widgets compare before they change anything, so that refreshing all of the
// panel after each change of the model costs next to nothing.
void PlayPanel::refresh()
{
    refreshStatus();
    refreshProgress();
    refreshButtons();
    refreshFailure();
    refreshLog();
}

void PlayPanel::refreshStatus()
{
    const auto title = m_model.statusTitle();
    const auto detail = m_model.statusDetail();
    m_dot->setStatus(statusColor(m_model), tr("Status: %1 \u2013 %2").arg(title, detail));
    m_title->setText(title);
    m_detail->setText(detail);
    // The panel holds the focus while Play is pressed and disabled.
    setAccessibleName(title);
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

void PlayPanel::refreshFailure()
{
    const auto& failure = m_model.failureText();
    const auto shown = m_model.phase() == Phase::Kind::needs && failure;
    if (shown && !m_failure)
        fillFailureBlock();
    if (shown)
        m_failure->setText(*failure);
    m_failureBlock->setVisible(shown);
}

void PlayPanel::refreshLog()
{
    const auto shown = m_model.showLog();
    m_showLog->setChecked(shown);
    if (shown && !m_log) {
        m_log = new LogView(m_model);
        m_disclosed->layout()->addWidget(m_log);
        m_log->followInTabOrder(*m_showLog);
        Q_EMIT disclosed(m_log);
    } else if (!shown && m_log) {
        delete std::exchange(m_log, nullptr);
    }
}
