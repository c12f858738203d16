// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <vector>

class QDBusConnection;
class QDBusMessage;

/// Keeps the computer from falling asleep by itself until the object is destroyed or the process
/// ends.
///
/// Asks without waiting: the desktop's portal, where that does not help the system's login manager,
/// and then the screen saver. Goes on to the next one also when a service ends or is silent. Where
/// none helps, the computer falls asleep as usual.
class SleepInhibition final : public QObject
{
    Q_OBJECT

public:
    /// The desktop may show `reason`, a sentence, to the player.
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
    /// Each gives back what one service has granted.
    std::vector<Release> m_releases;
};
