// SPDX-License-Identifier: MIT
#include "Support/ModelTest.h"

#include "Support/Await.h"
#include "System/OffThread.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QThreadPool>

using namespace std::chrono_literals;

ModelTest::ModelTest()
{
    QCoreApplication::setApplicationName(u"Cavernyx Platformer"_s);
    durations.startupThreshold = 20ms;
    durations.importPollInterval = 20ms;
    durations.importSettleTime = 40ms;
    durations.logFlushInterval = 10ms;
    durations.killTimeout = 500ms;
    durations.stallTimeout = 20s;
}

ModelTest::~ModelTest()
{
    endFlow();
    endModel();
}

AppModel& ModelTest::startModel()
{
    endModel();
    m_model = std::make_unique<AppModel>(desktop, lock, durations);
    return *m_model;
}

AppModel& ModelTest::startReady(const QByteArray& engine)
{
    installGame();
    installEngine(engine);
    writeMarker();
    return startModel();
}

void ModelTest::enter(Phase::Kind kind)
{
    using enum Phase::Kind;
    if (kind == downloading) {
        enterDownload(0, 0);
        return;
    }
    endFlow();
    const EngineManager engine;
    QFile::remove(engine.markerFile());
    if (kind == notDownloaded)
        QDir(root()).removeRecursively();
    else if (kind == needs)
        installGame("config_version=5\n");
    else
        installGame();
    if (kind != notDownloaded)
        installEngine("echo up; exec sleep 60");
    if (kind == settingUp) // With nothing to import, the phase would soon end.
        QFile::remove(root(u"Game/tetherwalk-master/.import/a.stex"_s));
    if (kind == ready || kind == playing)
        writeMarker();
    model().refreshState();
    if (kind != notDownloaded && kind != ready)
        model().play();
    waitForPhase(kind);
    if (kind == needs)
        waitForFlow();
}

void ModelTest::enterDownload(qint64 received, qint64 total)
{
    endFlow();
    installGame();
    QDir(root(u"Engine"_s)).removeRecursively();
    serveEngine({});
    server.on(enginePath(), [=](const HttpServer::Connection& connection) {
        if (received > 0) {
            connection.send(
                HttpServer::head(200, "Content-Length: " + QByteArray::number(total) + '\n'));
            connection.send(QByteArray(received, 'x'));
        }
        connection.waitForHangUp();
    });
    model().refreshState();
    model().play();
    waitForPhase(Phase::Kind::downloading);
    if (received > 0) {
        const auto fraction = static_cast<double>(received) / static_cast<double>(total);
        waitUntil([&] { return model().progress() == fraction; });
    }
}

void ModelTest::waitForFlow()
{
    waitUntil([this] { return !m_model->isFlowRunning(); });
}

void ModelTest::waitForDeletion()
{
    waitForFlow();
    workerPool().waitForDone();
    QCoreApplication::processEvents();
}

void ModelTest::waitForPhase(Phase::Kind kind)
{
    EXPECT_TRUE(waitUntil([&] { return m_model->phase() == kind; }))
        << m_model->statusTitle() << ": " << m_model->statusDetail();
}

QStringList ModelTest::logged()
{
    return m_model->log().newest();
}

void ModelTest::endFlow()
{
    if (m_model && m_model->isFlowRunning()) {
        m_model->cancelSetup();
        waitForFlow();
    }
}

void ModelTest::endModel()
{
    // A measurement that ends after its receiver has gone is a programming error to Qt.
    workerPool().waitForDone();
    m_model.reset();
}
