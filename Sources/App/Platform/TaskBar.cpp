// SPDX-License-Identifier: MIT
#include "Platform/TaskBar.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QVariantMap>

using namespace Qt::StringLiterals;

void showTaskBarProgress(const QString& applicationId, std::optional<double> progress)
{
    // Several desktops listen to this signal, from any object path.
    auto update = QDBusMessage::createSignal(u"/com/canonical/unity/launcherentry/1"_s,
                                             u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s);
    update << u"application://%1.desktop"_s.arg(applicationId)
           << QVariantMap{{u"progress"_s, progress.value_or(0)},
                          {u"progress-visible"_s, progress.has_value()}};
    QDBusConnection::sessionBus().send(update);
}
