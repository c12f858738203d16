// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/DesktopNotification.h"
#include "Platform/SleepInhibition.h"
#include "Shell/TaskBarProgress.h"

#include <QObject>

#include <memory>

class AppModel;
class QWidget;

/// Keeps the computer awake during a setup. While the window is not in front, also shows the
/// progress on the task bar, and a notification when the setup has ended.
class SetupMonitor final : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive the monitor. Construct it before the window is shown.
    SetupMonitor(const AppModel& model, QWidget& window);

Q_SIGNALS:
    /// The player has clicked the notification, which should bring the window to the front. A
    /// Wayland desktop requires the token for that.
    void activated(const QByteArray& activationToken);

private:
    void update();
    void notifyEnd();
    void notify(const QString& sentence);

    const AppModel& m_model;
    QWidget& m_window;
    /// Also true if a sheet or an alert is in front.
    bool m_isInFront = false;
    bool m_isFlowRunning = false;
    bool m_isSetup = false;
    TaskBarProgress m_taskBarProgress;
    std::unique_ptr<SleepInhibition> m_sleepInhibition;
    std::unique_ptr<DesktopNotification> m_notification;
};
