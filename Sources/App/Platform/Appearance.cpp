// SPDX-License-Identifier: MIT
#include "Platform/Appearance.h"

#include "Platform/BusCall.h"

#include <QDBusArgument>
#include <QMap>
#include <QPointer>
#include <QVariantMap>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

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
    bus.connect(anySender, u"/org/freedesktop/portal/desktop"_s,
                u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s, this,
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
    auto call = portalCall(u"Settings"_s, u"ReadAll"_s);
    call << QStringList{portable, gnome};
    callOverBus(QDBusConnection::sessionBus(), call,
                [self = QPointer(this)](const QDBusMessage& reply) {
                    if (self && reply.type() == QDBusMessage::ReplyMessage)
                        self->take(appearance(qdbus_cast<Settings>(reply.arguments().value(0))));
                });
}

void AppearancePortal::take(const Appearance& appearance)
{
    if (std::exchange(m_appearance, appearance) != appearance)
        Q_EMIT changed(appearance);
}
