// SPDX-License-Identifier: MIT
#include "Model/SetupTest.h"

#include "Support/ZipWriter.h"

#include <QCryptographicHash>
#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

const QString SetupTest::gamePath =
    u"/brindlework-demos/tetherwalk/archive/refs/heads/master.zip"_s;
const QString SetupTest::releasePath = u"/godotengine/godot/releases/download/3.5.3-stable/"_s;
const QString SetupTest::engineName = u"Godot_v3.5.3-stable_x11.64"_s;

const QByteArray SetupTest::goodEngine = R"(
case "$*" in
*--editor*)
    mkdir -p "$2/.import"
    printf '[remap]\npath="res://.import/a.stex"\n' > "$2/a.png.import"
    touch "$2/.import/a.stex"
    echo imported
    exec sleep 60 ;;
*)
    echo playing
    sleep 0.5 ;;
esac
)";

SetupTest::SetupTest()
    : m_host(server.host())
{
    serveGame("config_version=4\nconfig/name=\"Tether\"\nrun/main_scene=\"res://main.tscn\"\n");
    serveEngine(goodEngine);
    startModel();
    QObject::connect(&model(), &AppModel::changed, &model(), [this] {
        const auto step = model().statusTitle() + u": "_s + model().stepText();
        if (steps.isEmpty() || steps.last() != step)
            steps.append(step);
    });
}

void SetupTest::serveGame(const QByteArray& project, const QByteArray& extraName)
{
    ZipWriter zip;
    zip.addFile("tetherwalk-master/project.godot", project);
    zip.addFile("tetherwalk-master/a.png", "png");
    zip.addFile("tetherwalk-master/README.org", "#+DESCRIPTION: A tiny game.\n");
    if (!extraName.isEmpty())
        zip.addFile(extraName, "extra");
    server.on(gamePath, HttpServer::replyWithoutLength(zip.archive()));
}

void SetupTest::serveEngine(const QByteArray& script, const QString& name)
{
    ZipWriter zip;
    zip.addFile(name.toUtf8(), "#!/bin/sh\n" + script);
    const auto archive = zip.archive();
    server.on(releasePath + name + u".zip"_s, HttpServer::reply(200, archive));
    serveList(QCryptographicHash::hash(archive, QCryptographicHash::Sha512).toHex() + "  " +
              name.toUtf8() + ".zip\n");
}

void SetupTest::serveList(const QByteArray& list)
{
    server.on(releasePath + u"SHA512-SUMS.txt"_s, HttpServer::reply(200, list));
}

void SetupTest::playToTheEnd()
{
    model().play();
    waitForFlow();
}

void SetupTest::expectNothingInstalled()
{
    EXPECT_EQ(model().phase(), Phase::notDownloaded());
    EXPECT_FALSE(model().failureText());
    EXPECT_EQ(logged().last(), u"Cancelled.");
    EXPECT_EQ(leftovers(), QStringList());
}

qsizetype SetupTest::requestsOf(const QString& path) const
{
    const auto requests = server.requests();
    return std::ranges::count_if(
        requests, [&path](const QByteArray& request) { return request.contains(path.toUtf8()); });
}

bool SetupTest::exists(const QString& relative) const
{
    return QFile::exists(root(relative));
}
