// SPDX-License-Identifier: MIT
#include "Model/SetupTest.h"

#include "Support/ZipWriter.h"

#include <algorithm>

// The asset comes last: once it is there, the run is ended.
const QByteArray SetupTest::goodEngine = R"(
case "$*" in
*--editor*)
    mkdir -p "$2/.import"
    echo imported
    touch "$2/.import/a.stex"
    printf '[remap]\npath="res://.import/a.stex"\n' > "$2/a.png.import"
    exec sleep 60 ;;
*)
    echo playing
    sleep 0.5 ;;
esac
)";

SetupTest::SetupTest()
{
    serveGame("config_version=4\nconfig/name=\"Tether\"\nrun/main_scene=\"res://main.tscn\"\n");
    serveScript(goodEngine);
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
    server.on(gamePath(), HttpServer::replyWithoutLength(zip.archive()));
}

void SetupTest::serveScript(const QByteArray& script, const EngineManager& engine)
{
    const auto name = programName(engine).toUtf8();
    serveEngine(ZipWriter().addFile(name, "#!/bin/sh\n" + script).archive(), engine);
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
