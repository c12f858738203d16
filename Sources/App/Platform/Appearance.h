// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QDBusMessage;

/// How the player wants windows to look, as far as the desktop tells.
struct Appearance
{
    enum class Scheme { none, dark, light };

    Scheme scheme = Scheme::none;
    bool highContrast = false;
    bool reducedMotion = false;

    bool operator==(const Appearance&) const = default;
};

/// The appearance that the desktop's portal tells over the session bus.
///
/// Asks once without waiting, and again after each change. Without a session bus or a portal no
/// signal comes.
class AppearancePortal final : public QObject
{
    Q_OBJECT

public:
    AppearancePortal();

Q_SIGNALS:
    /// The portal has told something else than before. Before its first answer it has told nothing.
    void changed(const Appearance& appearance);

private Q_SLOTS:
    void settingChanged(const QDBusMessage& change);

private:
    void ask();
    void take(const Appearance& appearance);

    Appearance m_appearance;
};
