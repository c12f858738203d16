// SPDX-License-Identifier: MIT
#include "Shell/SetupMonitor.h"

#include "Model/AppModel.h"
#include "Project/GameFacts.h"

#include <QApplication>
#include <QWidget>

#include <utility>

SetupMonitor::SetupMonitor(const AppModel& model, QWidget& window)
    : m_model(model)
    , m_window(window)
{
    connect(&model, &AppModel::changed, this, &SetupMonitor::update);
    connect(qApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                m_isInFront = state == Qt::ApplicationActive;
                update();
            });
}

void SetupMonitor::update()
{
    const auto wasFlowRunning = std::exchange(m_isFlowRunning, m_model.isFlowRunning());
    const auto wasSetup = std::exchange(m_isSetup, m_model.phase().isSetup());
    if (m_isInFront || (m_isFlowRunning && !wasFlowRunning))
        m_notification.reset();
    if (m_isSetup && !wasSetup)
        m_sleepInhibition = std::make_unique<SleepInhibition>(tr("The game is being installed."));
    if (!m_isSetup)
        m_sleepInhibition.reset();
    m_taskBarProgress.update(m_model, !m_isInFront);
    if (wasSetup && !m_isSetup && !m_isInFront)
        notifyEnd();
}

void SetupMonitor::notifyEnd()
{
    if (m_model.phase() == Phase::Kind::playing)
        notify(tr("The game is ready and starting."));
    else if (m_model.phase() == Phase::Kind::needs)
        notify(m_model.phase().message());
    // Otherwise the player has cancelled the setup.
}

void SetupMonitor::notify(const QString& sentence)
{
    m_notification = std::make_unique<DesktopNotification>(
        GameFacts::applicationId.toString(), GameFacts::launcherName.toString(), sentence);
    const auto bringWindow = [this](const QByteArray& activationToken) {
        m_notification.release()->deleteLater();
        Q_EMIT activated(activationToken);
    };
    connect(m_notification.get(), &DesktopNotification::clicked, this, bringWindow,
            Qt::SingleShotConnection);
    QApplication::alert(&m_window);
}
