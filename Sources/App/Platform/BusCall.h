// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>

#include <functional>

/// The sender of a signal for QDBusConnection::connect(). With a name, Qt would block while it asks
/// the bus for the name's owner.
inline const QString anySender;

/// Returns a call of a method of the desktop's portal, "Settings" being the interface
/// "org.freedesktop.portal.Settings".
QDBusMessage portalCall(const QString& interface, const QString& method);

/// Sends `call` and returns at once. Calls `answered` with the reply, which may be an error, on the
/// main thread. There is no time limit, so that what a late reply grants can be given back. Without
/// a bus, calls `answered` at once with an error.
void callOverBus(const QDBusConnection& bus, const QDBusMessage& call,
                 const std::function<void(const QDBusMessage& reply)>& answered);
