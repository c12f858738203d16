// SPDX-License-Identifier: MIT
#include "Model/SetupTest.h"

#include "Support/Await.h"

#include <QFile>

namespace {

TEST_F(SetupTest, takesAPlayerFromNothingToTheRunningGame)
{
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::ready()) << model().statusDetail().toStdString();
    const auto project = root(QStringLiteral("Game/tetherwalk-master"));
    const QStringList expected{
        QStringLiteral("Downloading the game source from GitHub (branch master)…"),
        QStringLiteral("Unpacking the game with ditto…"),
        QStringLiteral("Game ready at ") + project,
        QStringLiteral(
            "project.godot: config_version=4 → Godot 3.x, C#: no, main scene: res://main.tscn"),
        QStringLiteral("Reading the official checksum list (SHA512-SUMS.txt)…"),
        QStringLiteral(
            "Downloading Godot_v3.5.3-stable_x11.64.zip from godotengine/godot releases…"),
        QStringLiteral("Checking the download against the official SHA-512 checksum…"),
        QStringLiteral("Checksum OK."),
        QStringLiteral("Importing the game's assets (Godot 3 has no --headless flag; using "
                       "--editor --no-window --quit)."),
        QStringLiteral("imported"),
        QStringLiteral("Import progress: 0 assets still to import"),
        QStringLiteral("All assets imported, closing the setup run."),
        QStringLiteral("Step 4 of 4 · Starting: Godot --path %1 --windowed").arg(project),
        QStringLiteral("playing"),
        QStringLiteral("Game closed normally."),
    };
    auto lines = logged();
    // Whether the first count comes before the engine is done depends on the machine.
    lines.removeAll(QStringLiteral("Import progress: 1 assets still to import"));
    EXPECT_EQ(lines.join(u'\n').toStdString(), expected.join(u'\n').toStdString());
    EXPECT_EQ(steps,
              (QStringList{
                  QStringLiteral("Not downloaded: "),
                  QStringLiteral("Downloading: Step 1 of 4 · Downloading the game"),
                  QStringLiteral(
                      "Downloading: Step 2 of 4 · Downloading the Godot engine (3.5.3-stable)"),
                  QStringLiteral(
                      "Setting up: Step 3 of 4 · First-time setup, this can take a minute or more"),
                  QStringLiteral("Starting…: Step 4 of 4 · Play"),
                  QStringLiteral("Playing: Step 4 of 4 · Play"), QStringLiteral("Ready: ")}));
    EXPECT_TRUE(exists(QStringLiteral("Game/.setup-v2-3.5.3-stable")));
    EXPECT_TRUE(exists(QStringLiteral("Engine/3.5.3-stable/Godot_v3.5.3-stable_x11.64")));
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
        EXPECT_FALSE(step.startsWith(u"Downloading")) << step.toStdString();
        EXPECT_FALSE(step.startsWith(u"Setting up")) << step.toStdString();
    }
}

TEST_F(SetupTest, importsAgainWhenAnAssetIsMissingThoughTheMarkerIsThere)
{
    playToTheEnd();
    ASSERT_TRUE(QFile::remove(root(QStringLiteral("Game/tetherwalk-master/.import/a.stex"))));
    steps.clear();
    playToTheEnd();
    EXPECT_EQ(steps.filter(QStringLiteral("Setting up")).size(), 1);
    EXPECT_EQ(model().phase(), Phase::ready());
    EXPECT_TRUE(exists(QStringLiteral("Game/.setup-v2-3.5.3-stable")));
}

TEST_F(SetupTest, downloadsTheOtherEditionForACSharpGame)
{
    serveGame("config_version=4\n", "tetherwalk-master/Game.csproj");
    const auto name = QStringLiteral("Godot_v3.5.3-stable_mono_x11_64");
    serveEngine(goodEngine, name);
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::ready()) << model().statusDetail().toStdString();
    EXPECT_TRUE(steps.contains(QStringLiteral(
        "Downloading: Step 2 of 4 · Downloading the Godot engine (3.5.3-stable-mono)")));
    EXPECT_TRUE(exists(QStringLiteral("Engine/3.5.3-stable-mono/") + name));
    EXPECT_TRUE(exists(QStringLiteral("Game/.setup-v2-3.5.3-stable-mono")));
}

TEST_F(SetupTest, takesACompleteImportForSuccessWhateverTheEnginesStatus)
{
    serveEngine(R"(
case "$*" in *--editor*) mkdir "$2/.import"; echo > "$2/a.png.import"; exit 9 ;; esac
sleep 0.4
)");
    playToTheEnd();
    EXPECT_EQ(model().phase(), Phase::ready()) << model().statusDetail().toStdString();
    EXPECT_TRUE(exists(QStringLiteral("Game/.setup-v2-3.5.3-stable")));
}

TEST_F(SetupTest, ignoresFurtherPressesWhileBusy)
{
    server.on(gamePath, HttpServer::silence());
    model().play();
    model().play();
    waitForPhase(Phase::Kind::downloading);
    model().play();
    ASSERT_TRUE(waitUntil([this] { return !server.requests().isEmpty(); }));
    EXPECT_EQ(logged().filter(QStringLiteral("Downloading the game source")).size(), 1);
    EXPECT_EQ(server.requests().size(), 1);
    model().cancelSetup();
    waitForFlow();
}

} // namespace
