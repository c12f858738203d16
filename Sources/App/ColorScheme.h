// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QDBusMessage;

/// Follows the session's preference for light or dark, where the desktop tells it over the session
/// bus and no platform theme of Qt's does.
///
/// Without a preference, light or dark is the platform theme's choice.
///
/// The question is asked without waiting: a session without such a service costs nothing.
class ColorScheme final : public QObject
{
    Q_OBJECT

public:
    ColorScheme();

private Q_SLOTS:
    /// The whole message, since Qt 6.4 connects no signal to a slot that takes a variant of the
    /// bus's own until somebody has registered that type.
    void settingChanged(const QDBusMessage& change);

private:
    void ask();
    void apply(uint preference);
};
