// SPDX-License-Identifier: MIT
#include "Platform/ColorScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace {

constexpr auto service = "org.freedesktop.portal.Desktop"_L1;
constexpr auto path = "/org/freedesktop/portal/desktop"_L1;
constexpr auto settings = "org.freedesktop.portal.Settings"_L1;
constexpr auto appearance = "org.freedesktop.appearance"_L1;
constexpr auto colorScheme = "color-scheme"_L1;

/// Returns the setting's value. Older portals wrap it in two variants, newer ones in one.
ColorScheme::Preference preference(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    switch (value.toUInt()) {
    case 1:
        return ColorScheme::Preference::dark;
    case 2:
        return ColorScheme::Preference::light;
    default:
        return ColorScheme::Preference::none;
    }
}

} // namespace

ColorScheme::ColorScheme()
{
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(service, path, settings, u"SettingChanged"_s, this,
                SLOT(settingChanged(QDBusMessage)));
    ask();
}

void ColorScheme::settingChanged(const QDBusMessage& change)
{
    const auto arguments = change.arguments();
    if (arguments.size() == 3 && arguments.at(0) == appearance && arguments.at(1) == colorScheme)
        Q_EMIT preferenceReceived(preference(arguments.at(2)));
}

void ColorScheme::ask()
{
    auto question = QDBusMessage::createMethodCall(service, path, settings, u"Read"_s);
    question << QString(appearance) << QString(colorScheme);
    auto* const watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher* call) {
                call->deleteLater();
                const QDBusPendingReply<QDBusVariant> reply = *call;
                if (!reply.isError())
                    Q_EMIT preferenceReceived(preference(reply.value().variant()));
            });
}
