// SPDX-License-Identifier: MIT
#include "ColorScheme.h"

#include "Views/LauncherStyle.h"
#include "Views/SystemColors.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QStyle>
#include <QStyleFactory>

#include <memory>

namespace {

constexpr auto service = "org.freedesktop.portal.Desktop";
constexpr auto path = "/org/freedesktop/portal/desktop";
constexpr auto settings = "org.freedesktop.portal.Settings";
constexpr auto appearance = "org.freedesktop.appearance";
constexpr auto colorScheme = "color-scheme";

/// The values of the setting; any other is no preference.
constexpr auto preferDark = 1U;
constexpr auto preferLight = 2U;

/// The platform's palette where it has one of its own; where Qt only falls back on that of its
/// style, ours in its place.
void usePlatformPalette()
{
    QApplication::setPalette(QPalette());
    const std::unique_ptr<QStyle> fallback(QStyleFactory::create(QStringLiteral("fusion")));
    const auto platform = QApplication::palette();
    const auto generic = fallback->standardPalette();
    if (platform.window() == generic.window() && platform.button() == generic.button())
        QApplication::setPalette(QApplication::style()->standardPalette());
}

/// The portal wraps a value once or twice, depending on its version.
uint unwrapped(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.toUInt();
}

} // namespace

ColorScheme::ColorScheme()
{
    usePlatformPalette();
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(QLatin1String(service), QLatin1String(path), QLatin1String(settings),
                QStringLiteral("SettingChanged"), this, SLOT(settingChanged(QDBusMessage)));
    ask();
}

void ColorScheme::settingChanged(const QDBusMessage& change)
{
    const auto words = change.arguments();
    if (words.size() == 3 && words.at(0) == QLatin1String(appearance) &&
        words.at(1) == QLatin1String(colorScheme))
        apply(unwrapped(words.at(2)));
}

void ColorScheme::ask()
{
    auto question = QDBusMessage::createMethodCall(QLatin1String(service), QLatin1String(path),
                                                   QLatin1String(settings), QStringLiteral("Read"));
    question << QString::fromLatin1(appearance) << QString::fromLatin1(colorScheme);
    auto* const watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this](QDBusPendingCallWatcher* call) {
                call->deleteLater();
                const QDBusPendingReply<QDBusVariant> reply = *call;
                if (!reply.isError())
                    apply(unwrapped(reply.value().variant()));
            });
}

void ColorScheme::apply(uint preference)
{
    if (preference != preferDark && preference != preferLight) {
        usePlatformPalette();
        return;
    }
    const auto dark = preference == preferDark;
    if (SystemColors::isDark(QApplication::palette()) != dark)
        QApplication::setPalette(dark ? LauncherStyle::darkPalette()
                                      : LauncherStyle::lightPalette());
}
