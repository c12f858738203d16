// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/DesktopNotification.h"
#include "Platform/SleepInhibition.h"
#include "Shell/TaskBarProgress.h"

#include <QObject>

#include <memory>

class AppModel;
class QWidget;

/// Looks after a setup that the player does not watch: keeps the computer awake, and while the
/// window is not in front shows the progress on the task bar and tells how the setup has ended.
///
/// It asks nothing of the desktop before the first setup.
class SetupMonitor final : public QObject
{
    Q_OBJECT

public:
    /// Both must outlive the monitor, which begins before the window is shown.
    SetupMonitor(const AppModel& model, QWidget& window);

Q_SIGNALS:
    /// The player has clicked on the notification. The window is to come to the front, which a
    /// Wayland desktop allows with the token.
    void activated(const QByteArray& activationToken);

private:
    void update();
    void tellEnd();
    void notify(const QString& sentence);

    const AppModel& m_model;
    QWidget& m_window;
    /// Also while a sheet or an alert of the window is.
    bool m_isInFront = false;
    bool m_isFlowRunning = false;
    bool m_isSetup = false;
    TaskBarProgress m_taskBarProgress;
    std::unique_ptr<SleepInhibition> m_sleepInhibition;
    std::unique_ptr<DesktopNotification> m_notification;
};
