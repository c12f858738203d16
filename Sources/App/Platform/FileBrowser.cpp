// SPDX-License-Identifier: MIT
#include "Platform/FileBrowser.h"

#include "System/FileDescriptor.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingCallWatcher>
#include <QDBusUnixFileDescriptor>
#include <QFile>
#include <QUrl>
#include <QVariantMap>

#include <fcntl.h>

using namespace Qt::StringLiterals;

namespace {

QDBusMessage askFileManager(const QString& path)
{
    auto message = QDBusMessage::createMethodCall(
        u"org.freedesktop.FileManager1"_s, u"/org/freedesktop/FileManager1"_s,
        u"org.freedesktop.FileManager1"_s, u"ShowItems"_s);
    message << QStringList{QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded)} << QString();
    return message;
}

/// A sandbox hides the file manager. The portal asks it on the program's behalf, for what the
/// program can open itself.
QDBusMessage askPortal(const QString& path)
{
    const FileDescriptor shown(::open(QFile::encodeName(path), O_RDONLY | O_CLOEXEC));
    auto message = QDBusMessage::createMethodCall(
        u"org.freedesktop.portal.Desktop"_s, u"/org/freedesktop/portal/desktop"_s,
        u"org.freedesktop.portal.OpenURI"_s, u"OpenDirectory"_s);
    message << QString() << QVariant::fromValue(QDBusUnixFileDescriptor(shown.get()))
            << QVariantMap();
    return message;
}

void call(const QDBusMessage& message, const std::function<void()>& onFailure)
{
    auto* const watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message), qApp);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [onFailure](QDBusPendingCallWatcher* answered) {
                         answered->deleteLater();
                         if (answered->isError())
                             onFailure();
                     });
}

} // namespace

void showInFileBrowser(const QString& path, const std::function<void()>& onFailure)
{
    if (!QDBusConnection::sessionBus().isConnected()) {
        onFailure();
        return;
    }
    call(askFileManager(path), [path, onFailure] { call(askPortal(path), onFailure); });
}
