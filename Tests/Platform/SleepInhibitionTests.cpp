// SPDX-License-Identifier: MIT
#include "Platform/SleepInhibition.h"

#include "Support/Await.h"
#include "Support/PrivateBus.h"
#include "System/FileDescriptor.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusObjectPath>
#include <QDBusUnixFileDescriptor>

#include <cerrno>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

const auto portalName = u"org.freedesktop.portal.Desktop"_s;
const auto loginName = u"org.freedesktop.login1"_s;
const auto screenSaverName = u"org.freedesktop.ScreenSaver"_s;

/// A desktop with all that could be asked, each of which is started by a test that wants it.
class SleepInhibitionTest : public testing::Test
{
protected:
    SleepInhibitionTest()
    {
        usePrivateBus();
        makeNonBlocking(pipe->readEnd);
    }

    void startPortal(const BusService::Answer& answer) { portal.emplace(portalName, answer); }
    void startLoginManager(const BusService::Answer& answer) { login.emplace(loginName, answer); }
    void startScreenSaver(const BusService::Answer& answer)
    {
        screenSaver.emplace(screenSaverName, answer);
    }

    /// Hands the writing end of the pipe over, and keeps none.
    BusService::Answer grantsDescriptor()
    {
        return [this](const QDBusMessage& call) {
            const QDBusUnixFileDescriptor descriptor(pipe->writeEnd.get());
            pipe->writeEnd.close();
            return call.createReply(QVariant::fromValue(descriptor));
        };
    }
    /// Whether all copies of the descriptor are closed.
    [[nodiscard]] bool isDescriptorClosed() const
    {
        char byte = 0;
        return ::read(pipe->readEnd.get(), &byte, 1) == 0;
    }

    void inhibit() { inhibition = std::make_unique<SleepInhibition>(u"It is at work."_s); }
    static void waitForCall(const std::optional<BusService>& service, const QString& method)
    {
        EXPECT_TRUE(waitUntil([&] { return service->callsOf(method) == 1; })) << method;
    }
    /// Long enough for what is under way on the bus.
    static void settle() { QTest::qWait(100); }

    const QVariantList handle{QVariant::fromValue(QDBusObjectPath(u"/request/7"_s))};
    std::optional<Pipe> pipe = Pipe::make();
    std::optional<BusService> portal;
    std::optional<BusService> login;
    std::optional<BusService> screenSaver;
    std::unique_ptr<SleepInhibition> inhibition;
};

TEST_F(SleepInhibitionTest, asksThePortalAndNoOtherUntilItIsOver)
{
    startPortal(BusService::returns(handle));
    startLoginManager(BusService::refuses());
    startScreenSaver(BusService::refuses());
    inhibit();
    waitForCall(portal, u"Inhibit"_s);
    settle();
    const auto arguments = portal->calls.constFirst().arguments();
    EXPECT_EQ(portal->calls.constFirst().path(), u"/org/freedesktop/portal/desktop"_s);
    EXPECT_EQ(portal->calls.constFirst().interface(), u"org.freedesktop.portal.Inhibit"_s);
    EXPECT_EQ(arguments.value(0).toString(), QString());
    EXPECT_EQ(arguments.value(1), QVariant(4U)) << "the flag for suspending";
    EXPECT_EQ(qdbus_cast<QVariantMap>(arguments.value(2)),
              (QVariantMap{{u"reason"_s, u"It is at work."_s}}));
    EXPECT_EQ(portal->callsOf(u"Close"_s), 0);

    inhibition.reset();
    waitForCall(portal, u"Close"_s);
    EXPECT_EQ(portal->calls.constLast().path(), u"/request/7"_s);
    EXPECT_EQ(portal->calls.constLast().interface(), u"org.freedesktop.portal.Request"_s);
    EXPECT_TRUE(login->calls.isEmpty());
    EXPECT_TRUE(screenSaver->calls.isEmpty());
}

TEST_F(SleepInhibitionTest, holdsADescriptorOfTheLoginManagerWhereThereIsNoPortal)
{
    startLoginManager(grantsDescriptor());
    startScreenSaver(BusService::refuses());
    inhibit();
    waitForCall(login, u"Inhibit"_s);
    settle();
    EXPECT_EQ(login->calls.constFirst().path(), u"/org/freedesktop/login1"_s);
    EXPECT_EQ(login->calls.constFirst().interface(), u"org.freedesktop.login1.Manager"_s);
    EXPECT_EQ(login->calls.constFirst().arguments(),
              (QVariantList{u"idle:sleep"_s, QCoreApplication::applicationName(),
                            u"It is at work."_s, u"block"_s}));
    EXPECT_FALSE(isDescriptorClosed());

    inhibition.reset();
    EXPECT_TRUE(waitUntil([this] { return isDescriptorClosed(); }));
    EXPECT_TRUE(screenSaver->calls.isEmpty());
}

TEST_F(SleepInhibitionTest, asksTheScreenSaverWhereTheOthersRefuse)
{
    startPortal(BusService::refuses());
    startLoginManager(BusService::refuses());
    startScreenSaver(BusService::returns({11U}));
    inhibit();
    waitForCall(screenSaver, u"Inhibit"_s);
    settle();
    EXPECT_EQ(screenSaver->calls.constFirst().arguments(),
              (QVariantList{QCoreApplication::applicationName(), u"It is at work."_s}));
    EXPECT_EQ(portal->callsOf(u"Inhibit"_s), 1);
    EXPECT_EQ(login->callsOf(u"Inhibit"_s), 1);

    inhibition.reset();
    waitForCall(screenSaver, u"UnInhibit"_s);
    EXPECT_EQ(screenSaver->calls.constLast().arguments(), QVariantList{11U});
}

TEST_F(SleepInhibitionTest, givesUpQuietlyWhereAllRefuse)
{
    startPortal(BusService::refuses());
    startLoginManager(BusService::refuses());
    startScreenSaver(BusService::refuses());
    inhibit();
    waitForCall(screenSaver, u"Inhibit"_s);
    settle();
    inhibition.reset();
    settle();
    EXPECT_EQ(portal->calls.size() + login->calls.size() + screenSaver->calls.size(), 3);
}

TEST_F(SleepInhibitionTest, asksTheNextOfAServiceThatIsSilentAndGivesBackWhatBothGrant)
{
    startPortal([](const QDBusMessage&) { return std::nullopt; });
    startLoginManager(grantsDescriptor());
    inhibit();
    waitForCall(login, u"Inhibit"_s);
    portal->answerNow(handle);
    settle();
    EXPECT_FALSE(isDescriptorClosed());
    inhibition.reset();
    EXPECT_TRUE(waitUntil([this] { return isDescriptorClosed(); }));
    waitForCall(portal, u"Close"_s);
}

TEST_F(SleepInhibitionTest, givesBackAtOnceWhatIsGrantedTooLate)
{
    startPortal([](const QDBusMessage&) { return std::nullopt; });
    inhibit();
    waitForCall(portal, u"Inhibit"_s);
    inhibition.reset();
    settle();
    EXPECT_EQ(portal->callsOf(u"Close"_s), 0);
    portal->answerNow(handle);
    waitForCall(portal, u"Close"_s);
}

TEST_F(SleepInhibitionTest, asksTheNextOfAServiceThatCrashes)
{
    startPortal(BusService::returns(handle));
    startLoginManager(BusService::refuses());
    startScreenSaver(BusService::returns({11U}));
    inhibit();
    waitForCall(portal, u"Inhibit"_s);
    portal->waitForDelivery();
    EXPECT_TRUE(screenSaver->calls.isEmpty());
    portal.reset();
    waitForCall(screenSaver, u"Inhibit"_s);
    settle();
    inhibition.reset();
    waitForCall(screenSaver, u"UnInhibit"_s);
}

TEST_F(SleepInhibitionTest, asksTheNextOfAServiceThatCrashesBeforeItAnswers)
{
    startPortal([](const QDBusMessage&) { return std::nullopt; });
    startScreenSaver(BusService::returns({11U}));
    inhibit();
    waitForCall(portal, u"Inhibit"_s);
    portal.reset();
    waitForCall(screenSaver, u"Inhibit"_s);
}

TEST_F(SleepInhibitionTest, isQuietOnABusWithoutServices)
{
    inhibit();
    settle();
    // A service that comes later is not asked.
    startPortal(BusService::returns(handle));
    settle();
    EXPECT_TRUE(portal->calls.isEmpty());
    inhibition.reset();
}

} // namespace
