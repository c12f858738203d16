// SPDX-License-Identifier: MIT
#include "Platform/DesktopNotification.h"

#include "Platform/BusCall.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusVariant>
#include <QFile>
#include <QPointer>
#include <QVariantMap>

using namespace Qt::StringLiterals;

namespace {

const auto portalPath = u"/org/freedesktop/portal/desktop"_s;
const auto portalInterface = u"org.freedesktop.portal.Notification"_s;
const auto serverPath = u"/org/freedesktop/Notifications"_s;
const auto serverInterface = u"org.freedesktop.Notifications"_s;

/// The one notification that a program shows through the portal, and the action of a click on it.
const auto portalId = u"notification"_s;
const auto portalAction = u"activate"_s;

/// A sandbox hides the notification server; the portal shows notifications instead.
bool isSandboxed()
{
    return QFile::exists(u"/.flatpak-info"_s) || qEnvironmentVariableIsSet("SNAP");
}

QDBusMessage serverCall(const QString& method)
{
    return QDBusMessage::createMethodCall(serverInterface, serverPath, serverInterface, method);
}

/// Returns the token in the parameters of an action; empty for an older portal.
QByteArray activationToken(const QVariant& parameters)
{
    for (auto parameter : qdbus_cast<QVariantList>(parameters)) {
        if (parameter.canConvert<QDBusVariant>())
            parameter = parameter.value<QDBusVariant>().variant();
        const auto token = qdbus_cast<QVariantMap>(parameter).value(u"activation-token"_s);
        if (token.isValid())
            return token.toByteArray();
    }
    return {};
}

} // namespace

DesktopNotification::DesktopNotification(const QString& applicationId, const QString& title,
                                         const QString& body)
{
    if (isSandboxed())
        showThroughPortal(title, body);
    else
        askServer(applicationId, title, body);
}

DesktopNotification::~DesktopNotification()
{
    if (m_withdraw)
        m_withdraw();
}

void DesktopNotification::showThroughPortal(const QString& title, const QString& body)
{
    auto question = portalCall(u"Notification"_s, u"AddNotification"_s);
    question << portalId
             << QVariantMap{
                    {u"title"_s, title}, {u"body"_s, body}, {u"default-action"_s, portalAction}};
    show(question, [](const QDBusMessage&) -> Withdraw {
        auto removal = portalCall(u"Notification"_s, u"RemoveNotification"_s);
        removal.setAutoStartService(false);
        removal << portalId;
        return [removal] { QDBusConnection::sessionBus().send(removal); };
    });
}

/// Asks for the capabilities first: some servers show the text as markup, and some show a dialog
/// for a notification with actions.
void DesktopNotification::askServer(const QString& applicationId, const QString& title,
                                    const QString& body)
{
    callOverBus(QDBusConnection::sessionBus(), serverCall(u"GetCapabilities"_s),
                [=, self = QPointer(this)](const QDBusMessage& reply) {
                    if (!self || reply.type() != QDBusMessage::ReplyMessage)
                        return;
                    const auto capabilities = reply.arguments().value(0).toStringList();
                    const auto hasMarkup = capabilities.contains(u"body-markup"_s);
                    const auto actions = capabilities.contains(u"actions"_s)
                                             ? QStringList{u"default"_s, QString()}
                                             : QStringList();
                    constexpr uint replacesNone = 0;
                    constexpr auto usualDuration = -1;
                    auto question = serverCall(u"Notify"_s);
                    question << QCoreApplication::applicationName() << replacesNone << applicationId
                             << title << (hasMarkup ? body.toHtmlEscaped() : body) << actions
                             << QVariantMap{{u"desktop-entry"_s, applicationId}} << usualDuration;
                    self->show(question, [](const QDBusMessage& shown) -> Withdraw {
                        auto closing = serverCall(u"CloseNotification"_s);
                        closing.setAutoStartService(false);
                        closing << shown.arguments().value(0).toUInt();
                        return [closing] { QDBusConnection::sessionBus().send(closing); };
                    });
                });
}

void DesktopNotification::show(
    const QDBusMessage& question,
    const std::function<Withdraw(const QDBusMessage& reply)>& makeWithdraw)
{
    callOverBus(QDBusConnection::sessionBus(), question,
                [=, self = QPointer(this)](const QDBusMessage& reply) {
                    if (reply.type() != QDBusMessage::ReplyMessage)
                        return;
                    const auto withdraw = makeWithdraw(reply);
                    if (!self) {
                        withdraw(); // It is no longer wanted.
                        return;
                    }
                    self->m_withdraw = withdraw;
                    self->listen(reply);
                });
}

void DesktopNotification::listen(const QDBusMessage& reply)
{
    auto bus = QDBusConnection::sessionBus();
    if (isSandboxed()) {
        bus.connect(anySender, portalPath, portalInterface, u"ActionInvoked"_s, this,
                    SLOT(portalActionInvoked(QDBusMessage)));
        return;
    }
    m_id = reply.arguments().value(0).toUInt();
    bus.connect(anySender, serverPath, serverInterface, u"ActivationToken"_s, this,
                SLOT(setActivationToken(uint, QString)));
    bus.connect(anySender, serverPath, serverInterface, u"ActionInvoked"_s, this,
                SLOT(actionInvoked(uint, QString)));
}

void DesktopNotification::portalActionInvoked(const QDBusMessage& signal)
{
    const auto arguments = signal.arguments();
    if (arguments.value(0) == portalId && arguments.value(1) == portalAction)
        Q_EMIT clicked(activationToken(arguments.value(2)));
}

void DesktopNotification::setActivationToken(uint id, const QString& token)
{
    if (id == m_id)
        m_activationToken = token.toUtf8();
}

void DesktopNotification::actionInvoked(uint id, const QString& action)
{
    if (id == m_id && action == u"default"_s)
        Q_EMIT clicked(m_activationToken);
}
