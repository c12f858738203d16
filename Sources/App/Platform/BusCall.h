// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>

#include <functional>

/// Sends `question` without waiting, and calls `answered` with the reply, which may be an error, on
/// the main thread; also a reply that comes late, when it may be time to give back what it grants.
/// Without a bus it is an error at once.
void callOverBus(const QDBusConnection& bus, const QDBusMessage& question,
                 const std::function<void(const QDBusMessage& reply)>& answered);
