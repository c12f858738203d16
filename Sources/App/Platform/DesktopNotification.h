// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <functional>

class QDBusConnection;
class QDBusMessage;

/// A notification of the desktop, withdrawn when the object is destroyed. Does not block. Has no
/// effect if the desktop shows no notifications.
class DesktopNotification final : public QObject
{
    Q_OBJECT

public:
    /// `applicationId` names the application's desktop file. `title` and `body` are plain text.
    DesktopNotification(const QString& applicationId, const QString& title, const QString& body);
    ~DesktopNotification() override;

Q_SIGNALS:
    /// The player has clicked the notification. A Wayland desktop requires the token, which may be
    /// empty, to bring the application's window to the front.
    void clicked(const QByteArray& activationToken);

private Q_SLOTS:
    void portalActionInvoked(const QDBusMessage& signal);
    void setActivationToken(uint id, const QString& token);
    void actionInvoked(uint id, const QString& action);

private:
    using Withdraw = std::function<void()>;

    void showThroughPortal(const QString& title, const QString& body);
    void askServer(const QString& applicationId, const QString& title, const QString& body);
    void show(const QDBusMessage& question,
              const std::function<Withdraw(const QDBusMessage& reply)>& makeWithdraw);
    void listen(const QDBusMessage& reply);

    uint m_id = 0;
    QByteArray m_activationToken;
    Withdraw m_withdraw;
};
