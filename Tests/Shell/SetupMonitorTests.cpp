// SPDX-License-Identifier: MIT
#include "Shell/SetupMonitor.h"

#include "Support/Await.h"
#include "Support/ModelTest.h"
#include "Support/PrivateBus.h"
#include "Support/ZipWriter.h"

#include <QApplication>
#include <QDBusObjectPath>
#include <QElapsedTimer>
#include <QSignalSpy>
#include <QWidget>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// A desktop that offers all that is asked of it, and a window that is not in front.
class SetupMonitorTest : public ModelTest
{
protected:
    SetupMonitorTest()
    {
        usePrivateBus();
        taskBar.emplace();
        portal.emplace(u"org.freedesktop.portal.Desktop"_s,
                       BusService::returns({QVariant::fromValue(QDBusObjectPath(u"/request"_s))}));
        notifications.emplace(u"org.freedesktop.Notifications"_s, [](const QDBusMessage& call) {
            return call.member() == u"Notify"_s ? call.createReply(7U)
                                                : call.createReply(QStringList{u"actions"_s});
        });
        startModel();
        monitor = std::make_unique<SetupMonitor>(model(), window);
    }

    /// A setup that only has to import, and then starts the game.
    void importAndPlay()
    {
        installGame();
        installEngine("exec sleep 60");
        model().play();
        waitForPhase(Phase::Kind::settingUp);
    }
    /// A download whose server sends what `handler` does.
    void download(const HttpServer::Handler& handler)
    {
        installGame();
        serveEngine({});
        server.on(enginePath(), handler);
        model().play();
        waitForPhase(Phase::Kind::downloading);
    }

    /// What the application tells when the player turns to the window, and away from it.
    static void bringToFront() { Q_EMIT qApp->applicationStateChanged(Qt::ApplicationActive); }
    static void sendToBack() { Q_EMIT qApp->applicationStateChanged(Qt::ApplicationInactive); }

    void waitForNotification()
    {
        waitUntil([this] { return notifications->callsOf(u"Notify"_s) == 1; });
        notifications->waitForDelivery();
    }
    [[nodiscard]] QString sentence() const
    {
        const auto call =
            std::ranges::find(notifications->calls, u"Notify"_s, &QDBusMessage::member);
        return call == notifications->calls.end() ? QString()
                                                  : call->arguments().value(4).toString();
    }
    void waitForWithdrawal()
    {
        waitUntil([this] { return notifications->callsOf(u"CloseNotification"_s) == 1; });
    }
    void waitForRelease()
    {
        waitUntil([this] { return portal->callsOf(u"Close"_s) == 1; });
        EXPECT_EQ(portal->callsOf(u"Inhibit"_s), 1);
    }
    void waitForHiddenProgress()
    {
        waitUntil([this] {
            return !taskBar->updates.isEmpty() && !taskBar->updates.constLast().isVisible;
        });
    }
    /// Long enough for what is under way on the bus.
    static void settle() { QTest::qWait(100); }

    QWidget window;
    std::optional<TaskBarListener> taskBar;
    std::optional<BusService> portal;
    std::optional<BusService> notifications;
    std::unique_ptr<SetupMonitor> monitor;
};

TEST_F(SetupMonitorTest, asksNothingOfTheDesktopBeforeTheFirstSetup)
{
    installGame();
    installEngine("exec sleep 60");
    writeMarker();
    model().refreshState();
    model().play();
    waitForPhase(Phase::Kind::playing);
    model().stopGame();
    waitForFlow();
    settle();
    EXPECT_TRUE(portal->calls.isEmpty());
    EXPECT_TRUE(notifications->calls.isEmpty());
    EXPECT_TRUE(taskBar->updates.isEmpty());
}

TEST_F(SetupMonitorTest, keepsTheComputerAwakeUntilTheGameStarts)
{
    importAndPlay();
    EXPECT_TRUE(waitUntil([this] { return portal->callsOf(u"Inhibit"_s) == 1; }));
    EXPECT_EQ(portal->callsOf(u"Close"_s), 0);
    waitForPhase(Phase::Kind::playing);
    waitForRelease();
}

TEST_F(SetupMonitorTest, keepsTheComputerAwakeOnceAlsoWhileTheWindowIsInFront)
{
    bringToFront();
    importAndPlay();
    sendToBack();
    bringToFront();
    waitForPhase(Phase::Kind::playing);
    waitForRelease();
}

TEST_F(SetupMonitorTest, tellsOnceThatTheGameStarts)
{
    importAndPlay();
    EXPECT_EQ(sentence(), QString());
    waitForPhase(Phase::Kind::playing);
    waitForNotification();
    EXPECT_EQ(sentence(), u"The game is ready and starting."_s);
    model().stopGame();
    waitForFlow();
    settle();
    EXPECT_EQ(notifications->callsOf(u"Notify"_s), 1);
    EXPECT_EQ(notifications->callsOf(u"CloseNotification"_s), 0);
}

TEST_F(SetupMonitorTest, tellsAFailureInItsOwnSentenceAndLetsTheComputerSleep)
{
    download(HttpServer::reply(500, "No."));
    waitForPhase(Phase::Kind::needs);
    waitForNotification();
    EXPECT_EQ(sentence(), model().phase().message());
    EXPECT_FALSE(sentence().isEmpty());
    waitForRelease();
}

TEST_F(SetupMonitorTest, saysNothingOfASetupThatThePlayerCancels)
{
    download(HttpServer::silence());
    model().cancelSetup();
    waitForFlow();
    waitForRelease();
    waitForHiddenProgress();
    settle();
    EXPECT_TRUE(notifications->calls.isEmpty());
    EXPECT_FALSE(taskBar->updates.constLast().isVisible);
}

TEST_F(SetupMonitorTest, leavesAPlayerWhoWatchesAlone)
{
    bringToFront();
    importAndPlay();
    waitForPhase(Phase::Kind::playing);
    settle();
    EXPECT_TRUE(notifications->calls.isEmpty());
    EXPECT_TRUE(taskBar->updates.isEmpty());
}

TEST_F(SetupMonitorTest, asksForTheWindowWhenThePlayerClicksOnTheNotification)
{
    const QSignalSpy activated(monitor.get(), &SetupMonitor::activated);
    importAndPlay();
    waitForNotification();
    const auto path = u"/org/freedesktop/Notifications"_s;
    const auto interface = u"org.freedesktop.Notifications"_s;
    notifications->emitSignal(path, interface, u"ActivationToken"_s, {7U, u"token"_s});
    for (int click = 0; click < 2; ++click)
        notifications->emitSignal(path, interface, u"ActionInvoked"_s, {7U, u"default"_s});
    EXPECT_TRUE(waitUntil([&] { return activated.count() == 1; }));
    EXPECT_EQ(activated.constFirst(), QVariantList{QByteArray("token")});
    waitForWithdrawal();
}

TEST_F(SetupMonitorTest, withdrawsTheNotificationWhenTheWindowComesToTheFront)
{
    importAndPlay();
    waitForNotification();
    bringToFront();
    waitForWithdrawal();
}

TEST_F(SetupMonitorTest, withdrawsTheNotificationWhenTheNextPlayBegins)
{
    importAndPlay();
    waitForNotification();
    model().stopGame();
    waitForFlow();
    EXPECT_EQ(notifications->callsOf(u"CloseNotification"_s), 0);
    model().play();
    waitForWithdrawal();
}

TEST_F(SetupMonitorTest, showsProgressThatOnlyGrowsAndIsGoneAtTheEnd)
{
    constexpr auto parts = 100;
    const QByteArray part(10'000, 'x');
    QElapsedTimer timer;
    timer.start();
    download([&](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(
            200, "Content-Length: " + QByteArray::number(parts * part.size()) + '\n'));
        for (int i = 0; i < parts; ++i) {
            connection.send(part);
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(300)); // The last part is shown, too.
    });
    waitForPhase(Phase::Kind::needs); // The checksum is another one.
    waitForHiddenProgress();

    auto updates = taskBar->updates;
    updates.removeLast();
    EXPECT_GE(updates.size(), 5);
    EXPECT_TRUE(std::ranges::is_sorted(updates, {}, &TaskBarListener::Update::progress));
    EXPECT_TRUE(std::ranges::all_of(updates, &TaskBarListener::Update::isVisible));
    EXPECT_EQ(updates.constFirst().progress, 0);
    EXPECT_GT(updates.constLast().progress, 0.25);
    EXPECT_LE(updates.constLast().progress, 0.34) << "it is one step of three";
    EXPECT_LE(updates.size(), 2 + timer.elapsed() / 100) << "ten a second";
    for (const auto& update : updates)
        EXPECT_EQ(update.application,
                  u"application://io.github.brindlework_demos.cavernyxplatformer.desktop"_s);
}

TEST_F(SetupMonitorTest, showsProgressOnlyWhileTheWindowIsNotInFront)
{
    enterDownload(50'000, 100'000);
    EXPECT_TRUE(waitUntil([this] { return !taskBar->updates.isEmpty(); }));
    bringToFront();
    EXPECT_TRUE(waitUntil([this] { return !taskBar->updates.constLast().isVisible; }));
    sendToBack();
    EXPECT_TRUE(waitUntil([this] { return taskBar->updates.constLast().isVisible; }));
    EXPECT_EQ(taskBar->updates.constLast().progress, 0.16);
}

TEST_F(SetupMonitorTest, showsEachStepAtOnceAndCountsTheImportAsTheLastOfThree)
{
    installGame();
    const auto name = programName().toUtf8();
    serveEngine(ZipWriter().addFile(name, "#!/bin/sh\nexec sleep 60\n").archive());
    model().play();
    EXPECT_TRUE(waitUntil(
        [this] { return !taskBar->updates.isEmpty() && !taskBar->updates.constLast().isVisible; }));
    QList<double> shown;
    for (const auto& update : taskBar->updates) {
        if (update.isVisible)
            shown.append(update.progress);
    }
    EXPECT_EQ(shown.constFirst(), 0);
    EXPECT_EQ(shown.constLast(), 0.66);
}

TEST_F(SetupMonitorTest, isQuietOnABusWithoutServices)
{
    portal.reset();
    notifications.reset();
    importAndPlay();
    waitForPhase(Phase::Kind::playing);
    settle();
}

} // namespace
