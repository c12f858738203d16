// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <functional>

class QDBusConnection;
class QDBusMessage;

/// A notification of the player's desktop, withdrawn when the object is destroyed.
///
/// Asks without waiting; where the desktop shows no notifications, nothing happens.
class DesktopNotification final : public QObject
{
    Q_OBJECT

public:
    /// `applicationId` names the application's desktop file. `title` and `body` are plain text.
    DesktopNotification(const QString& applicationId, const QString& title, const QString& body);
    ~DesktopNotification() override;

Q_SIGNALS:
    /// The player has clicked on it. With the token, where there is one, a Wayland desktop allows
    /// the application's window to come to the front.
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
