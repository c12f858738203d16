// SPDX-License-Identifier: MIT
#include "Platform/FileBrowser.h"

#include "Platform/BusCall.h"
#include "System/FileDescriptor.h"

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

/// For a sandbox, which hides the file manager. The portal takes an open descriptor.
QDBusMessage askPortal(const QString& path)
{
    const FileDescriptor shown(::open(QFile::encodeName(path), O_RDONLY | O_CLOEXEC));
    auto message = portalCall(u"OpenURI"_s, u"OpenDirectory"_s);
    message << QString() << QVariant::fromValue(QDBusUnixFileDescriptor(shown.get()))
            << QVariantMap();
    return message;
}

} // namespace

void showInFileBrowser(const QString& path, const std::function<void()>& onFailure)
{
    const auto bus = QDBusConnection::sessionBus();
    const auto isError = [](const QDBusMessage& reply) {
        return reply.type() == QDBusMessage::ErrorMessage;
    };
    callOverBus(bus, askFileManager(path), [=](const QDBusMessage& shown) {
        if (!isError(shown))
            return;
        callOverBus(bus, askPortal(path), [=](const QDBusMessage& opened) {
            if (isError(opened))
                onFailure();
        });
    });
}
