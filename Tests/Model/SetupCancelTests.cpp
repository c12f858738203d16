// SPDX-License-Identifier: MIT
#include "Model/SetupTest.h"

#include "Model/ProgressRelay.h"
#include "Support/Await.h"
#include "Support/BusyPool.h"

#include <QFile>
#include <QSignalSpy>

namespace {

using SetupCancelTest = SetupTest;

TEST_F(SetupCancelTest, cancelsDuringTheGamesDownload)
{
    server.on(gamePath(), [](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(200, "Content-Length: 1000\n") + QByteArray(10, 'x'));
        connection.waitForHangUp();
    });
    model().play();
    waitForPhase(Phase::Kind::downloading);
    ASSERT_TRUE(waitUntil([this] { return !model().progressText().isEmpty(); }));
    EXPECT_EQ(model().progress(), 0.01);
    model().cancelSetup();
    waitForFlow();
    expectNothingInstalled();
    EXPECT_FALSE(exists(u"Game"_s));
}

TEST_F(SetupCancelTest, showsNoProgressOnceTheDownloadHasEnded)
{
    server.on(gamePath(), [](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(200, {}));
        while (connection.send("x")) {
        }
    });
    model().play();
    ASSERT_TRUE(waitUntil([this] { return !model().progressText().isEmpty(); }));
    model().cancelSetup();
    waitForFlow();
    // A report that was on its way then would come before this one.
    ProgressRelay later;
    const QSignalSpy delivered(&later, &ProgressRelay::progressed);
    later.report({});
    ASSERT_TRUE(waitUntil([&] { return delivered.size() == 1; }));
    EXPECT_TRUE(model().progressText().isEmpty()) << model().progressText();
    EXPECT_FALSE(model().progress());
}

TEST_F(SetupCancelTest, cancelsDuringTheChecksumList)
{
    server.on(listPath(), HttpServer::silence());
    model().play();
    ASSERT_TRUE(waitUntil([this] { return requestsOf(listPath()) > 0; }));
    model().cancelSetup();
    waitForFlow();
    expectNothingInstalled();
    EXPECT_TRUE(exists(u"Game"_s));
}

TEST_F(SetupCancelTest, cancelsDuringTheEnginesDownload)
{
    server.on(enginePath(), HttpServer::silence());
    model().play();
    ASSERT_TRUE(waitUntil([this] { return requestsOf(enginePath()) > 0; }));
    model().cancelSetup();
    waitForFlow();
    expectNothingInstalled();
    EXPECT_FALSE(EngineManager().executable());
}

TEST_F(SetupCancelTest, cancelsDuringTheImportAndEndsTheEngine)
{
    serveScript("echo up $$; exec sleep 60");
    model().play();
    ASSERT_TRUE(waitUntil([this] { return !logged().filter(u"up "_s).isEmpty(); }));
    const auto engine = logged().filter(u"up "_s).first().mid(3);
    model().cancelSetup();
    waitForFlow();
    expectNothingInstalled();
    EXPECT_FALSE(hasMarker());
    EXPECT_FALSE(QFile::exists(u"/proc/"_s + engine));
}

TEST_F(SetupCancelTest, startsNoEngineWhenCancelledWhileTheImportIsAnnounced)
{
    serveScript("echo up; exec sleep 60");
    QObject::connect(&model(), &AppModel::changed, &model(), [this] {
        if (model().phase() == Phase::Kind::settingUp)
            model().cancelSetup();
    });
    model().play();
    waitForFlow();
    EXPECT_FALSE(logged().contains(u"up"_s));
    expectNothingInstalled();
}

TEST_F(SetupCancelTest, cancelsAlreadyInItsSilentChecks)
{
    {
        const BusyPool busy;
        model().play();
        EXPECT_TRUE(model().isBusy());
        EXPECT_EQ(model().phase(), Phase::notDownloaded());
        model().cancelSetup();
    }
    waitForFlow();
    expectNothingInstalled();
    EXPECT_TRUE(server.requests().isEmpty());
}

TEST_F(SetupCancelTest, quitsAlreadyInItsSilentChecks)
{
    {
        const BusyPool busy;
        model().play();
        EXPECT_TRUE(model().confirmQuit());
    }
    waitForFlow();
    expectNothingInstalled();
    EXPECT_TRUE(server.requests().isEmpty());
}

TEST_F(SetupCancelTest, playsAfterACancel)
{
    server.on(gamePath(), HttpServer::silence());
    model().play();
    waitForPhase(Phase::Kind::downloading);
    model().cancelSetup();
    waitForFlow();
    serveGame("config_version=4\n");
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::ready());
}

TEST_F(SetupCancelTest, quitsDuringADownloadWithoutAQuestion)
{
    server.on(gamePath(), HttpServer::silence());
    model().play();
    waitForPhase(Phase::Kind::downloading);
    EXPECT_TRUE(model().confirmQuit());
    waitForFlow();
    EXPECT_TRUE(desktop.questions.isEmpty());
    expectNothingInstalled();
}

TEST_F(SetupCancelTest, removesTheMarkerBeforeAnImport)
{
    playToTheEnd();
    ASSERT_TRUE(hasMarker());
    ASSERT_TRUE(QFile::remove(root(u"Game/tetherwalk-master/.import/a.stex"_s)));
    installEngine("echo up; exec sleep 60");
    model().play();
    ASSERT_TRUE(waitUntil([this] { return logged().contains(u"up"_s); }));
    model().cancelSetup();
    waitForFlow();
    EXPECT_FALSE(hasMarker());
}

} // namespace
