// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QDBusMessage;

/// How windows should look, according to the desktop's settings.
struct Appearance
{
    enum class Scheme { none, dark, light };

    Scheme scheme = Scheme::none;
    bool highContrast = false;
    bool reducedMotion = false;

    bool operator==(const Appearance&) const = default;
};

/// Reads the appearance from the desktop's portal over the session bus, at construction and after
/// each change. Does not block. Without a session bus or a portal, emits nothing.
class AppearancePortal final : public QObject
{
    Q_OBJECT

public:
    AppearancePortal();

Q_SIGNALS:
    /// The appearance has changed. It is Appearance() at first.
    void changed(const Appearance& appearance);

private Q_SLOTS:
    void settingChanged(const QDBusMessage& change);

private:
    void ask();
    void take(const Appearance& appearance);

    Appearance m_appearance;
};
