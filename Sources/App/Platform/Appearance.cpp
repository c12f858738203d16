// SPDX-License-Identifier: MIT
#include "Platform/Appearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QMap>
#include <QVariantMap>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto service = "org.freedesktop.portal.Desktop"_L1;
constexpr auto path = "/org/freedesktop/portal/desktop"_L1;
constexpr auto settings = "org.freedesktop.portal.Settings"_L1;
const auto portable = u"org.freedesktop.appearance"_s;
const auto gnome = u"org.gnome.desktop.interface"_s;

/// Settings by their names, by their namespaces.
using Settings = QMap<QString, QVariantMap>;

Appearance::Scheme scheme(uint value)
{
    switch (value) {
    case 1:
        return Appearance::Scheme::dark;
    case 2:
        return Appearance::Scheme::light;
    default:
        return Appearance::Scheme::none;
    }
}

Appearance appearance(const Settings& all)
{
    const auto common = all.value(portable);
    const auto animations = all.value(gnome).value(u"enable-animations"_s, true).toBool();
    return {.scheme = scheme(common.value(u"color-scheme"_s).toUInt()),
            .highContrast = common.value(u"contrast"_s).toUInt() == 1,
            .reducedMotion = !animations || common.value(u"reduced-motion"_s).toUInt() == 1};
}

} // namespace

AppearancePortal::AppearancePortal()
{
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(service, path, settings, u"SettingChanged"_s, this,
                SLOT(settingChanged(QDBusMessage)));
    ask();
}

void AppearancePortal::settingChanged(const QDBusMessage& change)
{
    const auto name = change.arguments().value(0).toString();
    if (name == portable || name == gnome)
        ask();
}

void AppearancePortal::ask()
{
    auto question = QDBusMessage::createMethodCall(service, path, settings, u"ReadAll"_s);
    question << QStringList{portable, gnome};
    auto* const watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher* call) {
                call->deleteLater();
                const auto arguments = call->reply().arguments();
                if (!call->isError() && !arguments.isEmpty())
                    take(appearance(qdbus_cast<Settings>(arguments.constFirst())));
            });
}

void AppearancePortal::take(const Appearance& appearance)
{
    if (std::exchange(m_appearance, appearance) != appearance)
        Q_EMIT changed(appearance);
}
