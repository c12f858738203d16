// SPDX-License-Identifier: MIT
#include "Platform/DesktopNotification.h"

#include "Support/Await.h"
#include "Support/EnvironmentScope.h"
#include "Support/PrivateBus.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QSignalSpy>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const auto serverPath = u"/org/freedesktop/Notifications"_s;
const auto serverName = u"org.freedesktop.Notifications"_s;
const auto portalPath = u"/org/freedesktop/portal/desktop"_s;
const auto portalName = u"org.freedesktop.portal.Desktop"_s;
const auto portalInterface = u"org.freedesktop.portal.Notification"_s;

class DesktopNotificationTest : public testing::Test
{
protected:
    DesktopNotificationTest() { usePrivateBus(); }

    /// A server that can do so much, and says that it shows number 7 unless it `isSilent`.
    void startServer(const QStringList& capabilities, bool isSilent = false)
    {
        server.emplace(serverName, [=](const QDBusMessage& call) -> std::optional<QDBusMessage> {
            if (call.member() == u"GetCapabilities"_s)
                return call.createReply(capabilities);
            if (isSilent)
                return std::nullopt;
            return call.createReply(7U);
        });
    }
    void startPortal() { portal.emplace(portalName, BusService::returns({})); }

    void show()
    {
        notification =
            std::make_unique<DesktopNotification>(u"org.example.Game"_s, u"The game"_s, u"1 < 2"_s);
        QObject::connect(notification.get(), &DesktopNotification::clicked,
                         [this](const QByteArray& token) { clicks.append(token); });
    }
    static QDBusMessage waitForCall(const std::optional<BusService>& service, const QString& method)
    {
        EXPECT_TRUE(waitUntil([&] { return service->callsOf(method) == 1; })) << method;
        return service->calls.constLast();
    }
    /// Long enough for what is under way on the bus.
    static void settle() { QTest::qWait(100); }

    void emitFromServer(const QString& name, const QVariantList& arguments)
    {
        server->emitSignal(serverPath, serverName, name, arguments);
    }

    EnvironmentScope snap{"SNAP", std::nullopt};
    std::optional<BusService> server;
    std::optional<BusService> portal;
    std::unique_ptr<DesktopNotification> notification;
    QList<QByteArray> clicks;
};

TEST_F(DesktopNotificationTest, isShownByTheServerOnceAndWithdrawn)
{
    startServer({u"body"_s, u"actions"_s});
    startPortal();
    show();
    const auto arguments = waitForCall(server, u"Notify"_s).arguments();
    EXPECT_EQ(arguments.mid(0, 6),
              (QVariantList{QCoreApplication::applicationName(), 0U, u"org.example.Game"_s,
                            u"The game"_s, u"1 < 2"_s, QStringList{u"default"_s, QString()}}));
    EXPECT_EQ(qdbus_cast<QVariantMap>(arguments.value(6)),
              (QVariantMap{{u"desktop-entry"_s, u"org.example.Game"_s}}));
    EXPECT_EQ(arguments.value(7), QVariant(-1));
    settle();
    EXPECT_EQ(server->callsOf(u"CloseNotification"_s), 0);

    notification.reset();
    EXPECT_EQ(waitForCall(server, u"CloseNotification"_s).arguments(), QVariantList{7U});
    EXPECT_EQ(server->callsOf(u"Notify"_s), 1);
    EXPECT_TRUE(portal->calls.isEmpty());
}

TEST_F(DesktopNotificationTest, escapesItsTextWhereTheServerReadsMarkup)
{
    startServer({u"body"_s, u"body-markup"_s});
    show();
    const auto arguments = waitForCall(server, u"Notify"_s).arguments();
    EXPECT_EQ(arguments.value(3), u"The game"_s);
    EXPECT_EQ(arguments.value(4), u"1 &lt; 2"_s);
    EXPECT_EQ(arguments.value(5).toStringList(), QStringList()) << "it knows no actions";
}

TEST_F(DesktopNotificationTest, tellsAClickOnItselfWithTheToken)
{
    startServer({u"actions"_s});
    show();
    waitForCall(server, u"Notify"_s);
    server->waitForDelivery();
    emitFromServer(u"ActionInvoked"_s, {8U, u"default"_s});
    emitFromServer(u"ActivationToken"_s, {8U, u"another's"_s});
    emitFromServer(u"ActionInvoked"_s, {7U, u"other"_s});
    emitFromServer(u"ActionInvoked"_s, {7U, u"default"_s});
    emitFromServer(u"ActivationToken"_s, {7U, u"token"_s});
    emitFromServer(u"ActionInvoked"_s, {7U, u"default"_s});
    EXPECT_TRUE(waitUntil([this] { return clicks.size() == 2; }));
    EXPECT_EQ(clicks, (QList<QByteArray>{{}, "token"}));
}

TEST_F(DesktopNotificationTest, isNotShownWhenItIsWithdrawnBefore)
{
    startServer({});
    show();
    notification.reset();
    EXPECT_TRUE(waitUntil([this] { return server->callsOf(u"GetCapabilities"_s) == 1; }));
    settle();
    EXPECT_EQ(server->calls.size(), 1);
}

TEST_F(DesktopNotificationTest, isWithdrawnAlsoWhenTheServerAnswersLater)
{
    constexpr auto isSilent = true;
    startServer({}, isSilent);
    show();
    waitForCall(server, u"Notify"_s);
    notification.reset();
    settle();
    EXPECT_EQ(server->callsOf(u"CloseNotification"_s), 0);
    server->calls.removeFirst();
    server->answerNow({9U});
    EXPECT_EQ(waitForCall(server, u"CloseNotification"_s).arguments(), QVariantList{9U});
}

TEST_F(DesktopNotificationTest, goesThroughThePortalInASandbox)
{
    const EnvironmentScope sandbox("SNAP", "/snap/game/1");
    startServer({});
    startPortal();
    show();
    const auto arguments = waitForCall(portal, u"AddNotification"_s).arguments();
    const auto id = arguments.value(0).toString();
    const auto contents = qdbus_cast<QVariantMap>(arguments.value(1));
    EXPECT_EQ(contents.value(u"title"_s), u"The game"_s);
    EXPECT_EQ(contents.value(u"body"_s), u"1 < 2"_s);
    portal->waitForDelivery();

    const auto click = [&](const QString& which, const QVariantList& parameters) {
        portal->emitSignal(portalPath, portalInterface, u"ActionInvoked"_s,
                           {which, contents.value(u"default-action"_s), parameters});
    };
    click(u"another"_s, {});
    click(id, {});
    click(id, {QVariantMap{{u"activation-token"_s, u"token"_s}}});
    EXPECT_TRUE(waitUntil([this] { return clicks.size() == 2; }));
    EXPECT_EQ(clicks, (QList<QByteArray>{{}, "token"}));

    notification.reset();
    EXPECT_EQ(waitForCall(portal, u"RemoveNotification"_s).arguments(), QVariantList{id});
    EXPECT_TRUE(server->calls.isEmpty());
}

TEST_F(DesktopNotificationTest, isQuietOnABusWithoutServices)
{
    show();
    settle();
    // A server that comes later is asked nothing.
    startServer({});
    notification.reset();
    settle();
    EXPECT_TRUE(server->calls.isEmpty());
}

} // namespace
