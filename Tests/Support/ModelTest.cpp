// SPDX-License-Identifier: MIT
#include "Support/ModelTest.h"

#include "System/OffThread.h"

#include <QCoreApplication>
#include <QDir>
#include <QTest>
#include <QThreadPool>

#include <limits>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

ModelTest::ModelTest()
    : m_data("XDG_DATA_HOME", home.makeFolder(u"data"_s).toUtf8())
    , m_configuration("XDG_CONFIG_HOME", home.path(u"config"_s).toUtf8())
    , m_temporary("TMPDIR", home.makeFolder(u"temporary"_s).toUtf8())
{
    lock.tryAcquire();
    QCoreApplication::setApplicationName(u"Cavernyx Platformer"_s);
    durations.startupThreshold = 300ms;
    durations.importPollInterval = 20ms;
    durations.importSettleTime = 40ms;
    durations.logFlushInterval = 10ms;
    durations.killTimeout = 500ms;
    durations.stallTimeout = 20s;
}

ModelTest::~ModelTest()
{
    if (m_model && m_model->isFlowRunning()) {
        m_model->cancelSetup();
        waitForFlow();
    }
    endModel();
}

AppModel& ModelTest::startModel()
{
    endModel();
    m_model = std::make_unique<AppModel>(desktop, lock, durations);
    return *m_model;
}

QString ModelTest::root(const QString& relative) const
{
    return QDir::cleanPath(home.path(u"data/Cavernyx Platformer/"_s) + relative);
}

void ModelTest::installGame(const QByteArray& projectExtra) const
{
    const auto folder = u"data/Cavernyx Platformer/Game/tetherwalk-master/"_s;
    home.write(folder + u"project.godot"_s,
               "config_version=4\n[application]\nconfig/name=\"Tether\"\n"
               "run/main_scene=\"res://main.tscn\"\n" +
                   projectExtra);
    home.write(folder + u"a.png"_s);
    home.write(folder + u"a.png.import"_s, "[remap]\npath=\"res://.import/a.stex\"\n");
    home.write(folder + u".import/a.stex"_s);
}

void ModelTest::installEngine(const QByteArray& body, const QString& build) const
{
    home.writeScript(u"data/Cavernyx Platformer/Engine/%1/Godot_v3.5.3"_s.arg(build), body);
}

void ModelTest::writeMarker() const
{
    home.write(u"data/Cavernyx Platformer/Game/.setup-v2-3.5.3-stable"_s);
}

void ModelTest::waitForFlow()
{
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_model->isFlowRunning(); }, 20'000));
}

void ModelTest::waitForDeletion()
{
    waitForFlow();
    workerPool().waitForDone();
    QCoreApplication::processEvents();
}

void ModelTest::waitForPhase(Phase::Kind kind)
{
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_model->phase() == kind; }, 20'000))
        << m_model->statusTitle().toStdString() << ": " << m_model->statusDetail().toStdString();
}

QStringList ModelTest::logged()
{
    return m_model->log().newest(std::numeric_limits<int>::max());
}

QStringList ModelTest::leftovers() const
{
    workerPool().waitForDone();
    return stagingFolders();
}

QStringList ModelTest::stagingFolders() const
{
    auto left = home.names(u"temporary"_s);
    for (const auto& place :
         {u"data/Cavernyx Platformer"_s, u"data/Cavernyx Platformer/Engine"_s}) {
        left += home.names(place).filter(u".new-"_s);
    }
    return left;
}

void ModelTest::endModel()
{
    // A measurement that ends after its receiver has gone is a programming error to Qt.
    workerPool().waitForDone();
    m_model.reset();
}
