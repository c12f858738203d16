// SPDX-License-Identifier: MIT
#include "Platform/BusCall.h"

#include <QCoreApplication>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>

#include <limits>

void callOverBus(const QDBusConnection& bus, const QDBusMessage& question,
                 const std::function<void(const QDBusMessage& reply)>& answered)
{
    if (!bus.isConnected()) {
        answered(question.createErrorReply(QDBusError::Disconnected, {}));
        return;
    }
    constexpr auto noTimeout = std::numeric_limits<int>::max();
    auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(question, noTimeout), qApp);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [answered](QDBusPendingCallWatcher* call) {
                         call->deleteLater();
                         answered(call->reply());
                     });
}
