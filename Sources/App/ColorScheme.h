// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QDBusVariant;

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
    explicit ColorScheme(QObject* parent = nullptr);

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void ask();
    void apply(uint preference);
};
