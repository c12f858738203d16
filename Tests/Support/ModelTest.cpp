// SPDX-License-Identifier: MIT
#include "Support/ModelTest.h"

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <QTest>
#include <QThreadPool>

#include <limits>

using namespace std::chrono_literals;

ModelTest::ModelTest()
    : m_data("XDG_DATA_HOME", home.makeFolder(QStringLiteral("data")).toUtf8())
    , m_temporary("TMPDIR", home.makeFolder(QStringLiteral("temporary")).toUtf8())
{
    QCoreApplication::setOrganizationName(QStringLiteral("Cavernyx Platformer"));
    QCoreApplication::setApplicationName(QStringLiteral("Cavernyx Platformer"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                       home.makeFolder(QStringLiteral("settings")));
    durations.startUpWatch = 300ms;
    durations.importPoll = 20ms;
    durations.importSettled = 40ms;
    durations.logPublication = 10ms;
    durations.killGrace = 500ms;
    durations.transferStall = 20s;
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
    m_model = std::make_unique<AppModel>(desktop, session, durations);
    return *m_model;
}

QString ModelTest::root(const QString& relative) const
{
    return QDir::cleanPath(home.path(QStringLiteral("data/Cavernyx Platformer/")) + relative);
}

void ModelTest::installGame(const QByteArray& projectExtra) const
{
    const auto folder = QStringLiteral("data/Cavernyx Platformer/Game/tetherwalk-master/");
    home.write(folder + QStringLiteral("project.godot"),
               "config_version=4\n[application]\nconfig/name=\"Tether\"\n"
               "run/main_scene=\"res://main.tscn\"\n" +
                   projectExtra);
    home.write(folder + QStringLiteral("a.png"));
    home.write(folder + QStringLiteral("a.png.import"), "[remap]\npath=\"res://.import/a.stex\"\n");
    home.write(folder + QStringLiteral(".import/a.stex"));
}

void ModelTest::installEngine(const QByteArray& body, const QString& build) const
{
    home.writeScript(QStringLiteral("data/Cavernyx Platformer/Engine/%1/Godot_v3.5.3").arg(build),
                     body);
}

void ModelTest::writeMarker() const
{
    home.write(QStringLiteral("data/Cavernyx Platformer/Game/.setup-v2-3.5.3-stable"));
}

void ModelTest::waitForFlow()
{
    EXPECT_TRUE(QTest::qWaitFor([this] { return !m_model->isFlowRunning(); }, 20'000));
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
    auto left = home.names(QStringLiteral("temporary"));
    for (const auto& place : {QStringLiteral("data/Cavernyx Platformer"),
                              QStringLiteral("data/Cavernyx Platformer/Engine")}) {
        left += home.names(place).filter(QStringLiteral(".new-"));
    }
    return left;
}

void ModelTest::endModel()
{
    // A measurement that ends after its receiver has gone is a programming error to Qt.
    QThreadPool::globalInstance()->waitForDone();
    m_model.reset();
}
