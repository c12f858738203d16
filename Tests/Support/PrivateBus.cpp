// SPDX-License-Identifier: MIT
#include "Support/PrivateBus.h"

#include "Support/Await.h"

#include <QCoreApplication>
#include <QDBusPendingCall>
#include <QProcess>
#include <QUuid>

#include <csignal>
#include <utility>

#include <sys/prctl.h>

using namespace Qt::StringLiterals;

namespace {

QString startBus()
{
    static auto& bus = *new QProcess; // It ends with this program.
    bus.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
    bus.start(u"dbus-daemon"_s, {u"--config-file="_s + QStringLiteral(BUS_CONFIGURATION),
                                 u"--nofork"_s, u"--print-address"_s});
    EXPECT_TRUE(bus.waitForReadyRead());
    return QString::fromUtf8(bus.readLine()).trimmed();
}

QString uniqueName()
{
    return QUuid::createUuid().toString();
}

} // namespace

void usePrivateBus()
{
    static const auto address = startBus().toUtf8();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", address);
    ASSERT_TRUE(QDBusConnection::sessionBus().isConnected());
}

BusService::BusService(const QString& name, Answer answer)
    : m_connectionName(uniqueName())
    , m_connection(QDBusConnection::connectToBus(QDBusConnection::SessionBus, m_connectionName))
    , m_answer(std::move(answer))
{
    EXPECT_TRUE(m_connection.registerVirtualObject(u"/"_s, this, QDBusConnection::SubPath));
    EXPECT_TRUE(m_connection.registerService(name));
}

BusService::~BusService()
{
    waitForDelivery(); // Qt leaks a message that arrives while it disconnects.
    QDBusConnection::disconnectFromBus(m_connectionName);
}

BusService::Answer BusService::returns(const QVariantList& values)
{
    return [values](const QDBusMessage& call) { return call.createReply(values); };
}

BusService::Answer BusService::refuses()
{
    return [](const QDBusMessage& call) {
        return call.createErrorReply(QDBusError::AccessDenied, u"It may not."_s);
    };
}

QString BusService::introspect(const QString&) const
{
    return {};
}

bool BusService::handleMessage(const QDBusMessage& message, const QDBusConnection& connection)
{
    calls.append(message);
    if (const auto answer = m_answer(message); answer && message.isReplyRequired())
        connection.send(*answer);
    else
        message.setDelayedReply(true);
    return true;
}

qsizetype BusService::callsOf(const QString& method) const
{
    return std::ranges::count(calls, method, &QDBusMessage::member);
}

void BusService::answerNow(const QVariantList& values)
{
    m_connection.send(calls.constFirst().createReply(values));
}

void BusService::emitSignal(const QString& path, const QString& interface, const QString& name,
                            const QVariantList& arguments)
{
    auto signal = QDBusMessage::createSignal(path, interface, name);
    signal.setArguments(arguments);
    m_connection.send(signal);
}

void BusService::waitForDelivery() const
{
    // Its answer comes after all of that.
    const auto ping = QDBusMessage::createMethodCall(m_connection.baseService(), u"/"_s,
                                                     u"org.freedesktop.DBus.Peer"_s, u"Ping"_s);
    const auto pong = QDBusConnection::sessionBus().asyncCall(ping);
    waitUntil([&pong] { return pong.isFinished(); });
    QCoreApplication::processEvents();
}

TaskBarListener::TaskBarListener()
{
    EXPECT_TRUE(QDBusConnection::sessionBus().connect(
        {}, {}, u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s, this,
        SLOT(receive(QString, QVariantMap))));
}

TaskBarListener::~TaskBarListener() = default;

void TaskBarListener::receive(const QString& application, const QVariantMap& properties)
{
    updates.append({application, properties.value(u"progress"_s).toDouble(),
                    properties.value(u"progress-visible"_s).toBool()});
}
