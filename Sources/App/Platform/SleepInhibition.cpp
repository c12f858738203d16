// SPDX-License-Identifier: MIT
#include "Platform/SleepInhibition.h"

#include "Platform/BusCall.h"
#include "System/OffThread.h"

#include <QCoreApplication>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QDBusUnixFileDescriptor>
#include <QPointer>
#include <QTimer>
#include <QVariantMap>

#include <chrono>

using namespace Qt::StringLiterals;

namespace {

/// The next service is also asked if one does not answer for this time.
constexpr std::chrono::seconds maxSilence{2};

} // namespace

SleepInhibition::SleepInhibition(const QString& reason)
    : m_reason(reason)
{
    askPortal();
}

SleepInhibition::~SleepInhibition()
{
    for (const auto& release : m_releases)
        release();
}

void SleepInhibition::askPortal()
{
    constexpr uint suspend = 4;
    auto question = portalCall(u"Inhibit"_s, u"Inhibit"_s);
    const auto anyWindow = QString();
    question << anyWindow << suspend << QVariantMap{{u"reason"_s, m_reason}};
    const auto bus = QDBusConnection::sessionBus();
    const auto makeRelease = [=](const QDBusMessage& reply) -> Release {
        const auto request = reply.arguments().value(0).value<QDBusObjectPath>().path();
        auto close = QDBusMessage::createMethodCall(
            question.service(), request, u"org.freedesktop.portal.Request"_s, u"Close"_s);
        close.setAutoStartService(false);
        return [bus, close] { bus.send(close); };
    };
    ask(bus, question, makeRelease, [this] { askLoginManager(); });
}

void SleepInhibition::askLoginManager()
{
    auto question =
        QDBusMessage::createMethodCall(u"org.freedesktop.login1"_s, u"/org/freedesktop/login1"_s,
                                       u"org.freedesktop.login1.Manager"_s, u"Inhibit"_s);
    question.setAutoStartService(false);
    question << u"idle:sleep"_s << QCoreApplication::applicationName() << m_reason << u"block"_s;
    // The inhibition lasts as long as the descriptor is open. Destroying the function closes it.
    const auto makeRelease = [](const QDBusMessage& reply) -> Release {
        const auto descriptor = reply.arguments().value(0).value<QDBusUnixFileDescriptor>();
        return [descriptor] {};
    };
    // Connecting blocks.
    const auto connecting = offThread([] { return QDBusConnection::systemBus(); });
    whenFinished(connecting, this, [=, this](const QDBusConnection& bus) {
        ask(bus, question, makeRelease, [this] { askScreenSaver(); });
    });
}

void SleepInhibition::askScreenSaver()
{
    const auto path = u"/org/freedesktop/ScreenSaver"_s;
    const auto interface = u"org.freedesktop.ScreenSaver"_s;
    auto question = QDBusMessage::createMethodCall(interface, path, interface, u"Inhibit"_s);
    question.setAutoStartService(false);
    question << QCoreApplication::applicationName() << m_reason;
    const auto bus = QDBusConnection::sessionBus();
    const auto makeRelease = [=](const QDBusMessage& reply) -> Release {
        auto end = QDBusMessage::createMethodCall(interface, path, interface, u"UnInhibit"_s);
        end.setAutoStartService(false);
        end << reply.arguments().value(0).toUInt();
        return [bus, end] { bus.send(end); };
    };
    ask(bus, question, makeRelease, [] {});
}

void SleepInhibition::ask(const QDBusConnection& bus, const QDBusMessage& question,
                          const MakeRelease& makeRelease, const Next& next)
{
    const QPointer silence(new QTimer(this));
    silence->setSingleShot(true);
    connect(silence, &QTimer::timeout, this, next);
    silence->start(maxSilence);
    callOverBus(bus, question, [=, self = QPointer(this)](const QDBusMessage& reply) {
        const auto wasSilent = !silence || !silence->isActive();
        delete silence;
        if (reply.type() == QDBusMessage::ReplyMessage) {
            const auto release = makeRelease(reply);
            if (!self) {
                release();
                return;
            }
            self->m_releases.push_back(release);
            self->watch(bus, question.service(), next);
        } else if (self && !wasSilent) {
            next();
        }
    });
}

/// Asks the next service if `service` ends, and its inhibition with it.
void SleepInhibition::watch(const QDBusConnection& bus, const QString& service, const Next& next)
{
    auto* const watcher =
        new QDBusServiceWatcher(service, bus, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, watcher, next);
}
