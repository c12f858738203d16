// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QDBusMessage;

/// Reads the desktop's preference for light or dark from the portal on the session bus, and follows
/// its changes. Does not block. Emits no signal without a session bus or a portal.
class ColorScheme final : public QObject
{
    Q_OBJECT

public:
    enum class Preference { none, dark, light };

    ColorScheme();

Q_SIGNALS:
    /// The portal has answered, or the player has changed the setting.
    void preferenceReceived(ColorScheme::Preference preference);

private Q_SLOTS:
    // Takes the whole message: Qt 6.4 connects a bus signal to a slot with a QDBusVariant only
    // after that type has been registered.
    void settingChanged(const QDBusMessage& change);

private:
    void ask();
};
