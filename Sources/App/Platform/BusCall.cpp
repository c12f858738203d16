// SPDX-License-Identifier: MIT
#include "Platform/BusCall.h"

#include <QCoreApplication>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>

#include <limits>

using namespace Qt::StringLiterals;

QDBusMessage portalCall(const QString& interface, const QString& method)
{
    return QDBusMessage::createMethodCall(u"org.freedesktop.portal.Desktop"_s,
                                          u"/org/freedesktop/portal/desktop"_s,
                                          u"org.freedesktop.portal."_s + interface, method);
}

void callOverBus(const QDBusConnection& bus, const QDBusMessage& call,
                 const std::function<void(const QDBusMessage& reply)>& answered)
{
    if (!bus.isConnected()) {
        answered(call.createErrorReply(QDBusError::Disconnected, {}));
        return;
    }
    constexpr auto noTimeout = std::numeric_limits<int>::max();
    auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, noTimeout), qApp);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [answered](QDBusPendingCallWatcher* finished) {
                         finished->deleteLater();
                         answered(finished->reply());
                     });
}
