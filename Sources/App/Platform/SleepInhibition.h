// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class QDBusConnection;
class QDBusMessage;

/// Prevents automatic sleep until the object is destroyed or the process ends.
///
/// Asks the desktop's portal, then the login manager, then the screen saver: the next one if one
/// refuses, does not answer or ends. Has no effect if all refuse. Does not block.
class SleepInhibition final : public QObject
{
    Q_OBJECT

public:
    /// The desktop may show the sentence `reason` to the player.
    explicit SleepInhibition(const QString& reason);
    ~SleepInhibition() override;

private:
    using Release = std::function<void()>;
    using MakeRelease = std::function<Release(const QDBusMessage& reply)>;
    using Next = std::function<void()>;

    void askPortal();
    void askLoginManager();
    void askScreenSaver();
    void ask(const QDBusConnection& bus, const QDBusMessage& question,
             const MakeRelease& makeRelease, const Next& next);
    void watch(const QDBusConnection& bus, const QString& service, const Next& next);

    const QString m_reason;
    /// Each ends one inhibition.
    std::vector<Release> m_releases;
};
