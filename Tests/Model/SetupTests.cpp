// SPDX-License-Identifier: MIT
#include "Model/SetupTest.h"

#include "Support/Await.h"

#include <QFile>

namespace {

TEST_F(SetupTest, takesAPlayerFromNothingToTheRunningGame)
{
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::ready()) << model().statusDetail();
    const auto project = root(u"Game/tetherwalk-master"_s);
    const QStringList expected{
        u"Downloading the game source from GitHub (branch master)…"_s,
        u"Unpacking the game with ditto…"_s,
        u"Game ready at "_s + project,
        u"project.godot: config_version=4 → Godot 3.x, C#: no, main scene: res://main.tscn"_s,
        u"Reading the official checksum list (SHA512-SUMS.txt)…"_s,
        u"Downloading %1 from godotengine/godot releases…"_s.arg(EngineManager().archiveName()),
        u"Checking the download against the official SHA-512 checksum…"_s,
        u"Checksum OK."_s,
        u"Importing the game's assets (Godot 3 has no --headless flag; using "
        "--editor --no-window --quit)."_s,
        u"Import progress: 0 assets still to import"_s,
        u"All assets imported, closing the setup run."_s,
        u"Step 4 of 4 · Starting: Godot --path %1 --windowed"_s.arg(project),
        u"playing"_s,
        u"Game closed normally."_s,
    };
    auto lines = logged();
    // Where the engine's line and the first counts stand depends on the machine.
    EXPECT_TRUE(lines.removeOne(u"imported"_s));
    lines.removeAll(u"Import progress: 1 assets still to import"_s);
    EXPECT_EQ(lines, expected);
    EXPECT_EQ(
        steps,
        (QStringList{
            u"Not downloaded: "_s, u"Downloading: Step 1 of 4 · Downloading the game"_s,
            u"Downloading: Step 2 of 4 · Downloading the Godot engine (%1)"_s.arg(
                EngineManager::version()),
            u"Setting up: Step 3 of 4 · First-time setup, this can take a minute or more"_s,
            u"Starting…: Step 4 of 4 · Play"_s, u"Playing: Step 4 of 4 · Play"_s, u"Ready: "_s}));
    EXPECT_TRUE(hasMarker());
    EXPECT_TRUE(EngineManager().executable());
    EXPECT_EQ(model().facts().summary, u"A tiny game.");
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(SetupTest, contactsNoServerOnceEverythingIsInstalled)
{
    playToTheEnd();
    const auto before = server.requests().size();
    steps.clear();
    playToTheEnd();
    EXPECT_EQ(server.requests().size(), before);
    EXPECT_EQ(model().phase(), Phase::ready());
    for (const auto& step : steps) {
        EXPECT_FALSE(step.startsWith(u"Downloading")) << step;
        EXPECT_FALSE(step.startsWith(u"Setting up")) << step;
    }
}

TEST_F(SetupTest, importsAgainWhenAnAssetIsMissingThoughTheMarkerIsThere)
{
    playToTheEnd();
    ASSERT_TRUE(QFile::remove(root(u"Game/tetherwalk-master/.import/a.stex"_s)));
    steps.clear();
    playToTheEnd();
    EXPECT_EQ(steps.filter(u"Setting up"_s).size(), 1);
    EXPECT_EQ(model().phase(), Phase::ready());
    EXPECT_TRUE(hasMarker());
}

TEST_F(SetupTest, downloadsTheOtherEditionForACSharpGame)
{
    serveGame("config_version=4\n", "tetherwalk-master/Game.csproj");
    const EngineManager mono{.mono = true};
    serveScript(goodEngine, mono);
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::ready()) << model().statusDetail();
    EXPECT_TRUE(
        steps.contains(u"Downloading: Step 2 of 4 · Downloading the Godot engine (%1-mono)"_s.arg(
            EngineManager::version())));
    EXPECT_TRUE(mono.executable());
    EXPECT_TRUE(hasMarker(mono));
}

TEST_F(SetupTest, takesACompleteImportForSuccessWhateverTheEnginesStatus)
{
    serveScript(R"(
case "$*" in *--editor*) mkdir "$2/.import"; echo > "$2/a.png.import"; exit 9 ;; esac
sleep 0.4
)");
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::ready()) << model().statusDetail();
    EXPECT_TRUE(hasMarker());
}

TEST_F(SetupTest, ignoresFurtherPressesWhileBusy)
{
    server.on(gamePath(), HttpServer::silence());
    model().play();
    model().play();
    waitForPhase(Phase::Kind::downloading);
    model().play();
    ASSERT_TRUE(waitUntil([this] { return !server.requests().isEmpty(); }));
    EXPECT_EQ(logged().filter(u"Downloading the game source"_s).size(), 1);
    EXPECT_EQ(server.requests().size(), 1);
    model().cancelSetup();
    waitForFlow();
}

} // namespace
