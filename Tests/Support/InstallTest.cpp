// SPDX-License-Identifier: MIT
#include "Support/InstallTest.h"

#include "Install/RepoDownloader.h"
#include "Install/StaleFolders.h"
#include "System/OffThread.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <utility>

InstallTest::InstallTest()
{
    lock.tryAcquire();
}

LogCallback InstallTest::log()
{
    return [this, collect = m_lines.callback()](const QString& line) {
        collect(line);
        if (m_atLine && line.contains(m_lineText))
            m_atLine();
    };
}

void InstallTest::atLine(const QString& text, std::function<void()> action)
{
    m_lineText = text;
    m_atLine = std::move(action);
}

void InstallTest::stopAtLine(const QString& text)
{
    atLine(text, [this] { stop.request_stop(); });
}

QString InstallTest::root(const QString& relative) const
{
    return QDir::cleanPath(home.path(u"data/Cavernyx Platformer/"_s) + relative);
}

QStringList InstallTest::stagingFolders() const
{
    const QRegularExpression staging(u"\\.(new|old)-"_s);
    return home.names(u"temporary"_s) + home.names(root()).filter(staging) +
           home.names(root(u"Engine"_s)).filter(staging);
}

QStringList InstallTest::leftovers() const
{
    workerPool().waitForDone();
    return stagingFolders();
}

void InstallTest::clearLeftovers()
{
    StaleFolders::clear(StaleFolders::restoreAndList(lock));
}

void InstallTest::installGame(const QByteArray& settings) const
{
    const auto folder = root(u"Game/tetherwalk-master"_s) + u'/';
    home.write(folder + u"project.godot"_s,
               "config_version=4\n[application]\nconfig/name=\"Tether\"\n"
               "run/main_scene=\"res://main.tscn\"\n" +
                   settings);
    home.write(folder + u"a.png"_s);
    home.write(folder + u"a.png.import"_s, "[remap]\npath=\"res://.import/a.stex\"\n");
    home.write(folder + u".import/a.stex"_s);
}

void InstallTest::installManyFiles() const
{
    for (int file = 0; file < 20'000; ++file)
        home.write(root(u"Game/many/%1"_s.arg(file)));
}

void InstallTest::installEngine(const QByteArray& body, const EngineManager& engine) const
{
    home.writeScript(engine.folder() + u'/' + programName(engine), body);
}

void InstallTest::writeMarker(const EngineManager& engine) const
{
    home.write(engine.markerFile());
}

bool InstallTest::hasMarker(const EngineManager& engine)
{
    return QFile::exists(engine.markerFile());
}

QString InstallTest::gamePath()
{
    return RepoDownloader::zipURL().path();
}

QString InstallTest::releasePath(const QString& name)
{
    return EngineManager::releaseURL(name).path();
}

QString InstallTest::enginePath(const EngineManager& engine)
{
    return releasePath(engine.archiveName());
}

QString InstallTest::programName(const EngineManager& engine)
{
    return engine.archiveName().chopped(4);
}

void InstallTest::serveEngine(const QByteArray& archive, const EngineManager& engine)
{
    const auto digest = QCryptographicHash::hash(archive, QCryptographicHash::Sha512).toHex();
    serveList("aa  other.zip\n" + digest.toUpper() + " *" + engine.archiveName().toUtf8() + '\n');
    server.on(enginePath(engine), HttpServer::reply(200, archive));
}

void InstallTest::serveList(const QByteArray& list)
{
    server.on(listPath(), HttpServer::reply(200, list));
}
