// SPDX-License-Identifier: MIT
#include "Platform/FileBrowser.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QUrl>

using namespace Qt::StringLiterals;

void showInFileBrowser(const QString& path, const std::function<void()>& onFailure)
{
    const auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        onFailure();
        return;
    }
    auto message = QDBusMessage::createMethodCall(
        u"org.freedesktop.FileManager1"_s, u"/org/freedesktop/FileManager1"_s,
        u"org.freedesktop.FileManager1"_s, u"ShowItems"_s);
    message << QStringList{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)} << QString();
    auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), qApp);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [onFailure](QDBusPendingCallWatcher* call) {
                         call->deleteLater();
                         if (call->isError())
                             onFailure();
                     });
}
