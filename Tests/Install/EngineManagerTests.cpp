// SPDX-License-Identifier: MIT
#include "EngineManagerTest.h"

#include <QFileInfo>

namespace {

const auto readingList = QStringLiteral("Reading the official checksum list (SHA512-SUMS.txt)…");
const auto checking =
    QStringLiteral("Checking the download against the official SHA-512 checksum…");
const auto checksumOk = QStringLiteral("Checksum OK.");
const auto mismatch =
    QStringLiteral("The engine download did not match its official checksum, so it was discarded.");

} // namespace

TEST_F(EngineManagerTest, namesItsFilesWithTheEditionExactlyOnce)
{
    EXPECT_EQ(EngineManager::version(), QStringLiteral("3.5.3-stable"));
    EXPECT_EQ(engine.folder(), home.path(root(QStringLiteral("Engine/3.5.3-stable"))));
    EXPECT_EQ(engine.markerFile(), home.path(root(QStringLiteral("Game/.setup-v2-3.5.3-stable"))));
    engine.mono = true;
    EXPECT_EQ(engine.folder(), home.path(root(QStringLiteral("Engine/3.5.3-stable-mono"))));
    EXPECT_EQ(engine.markerFile(),
              home.path(root(QStringLiteral("Game/.setup-v2-3.5.3-stable-mono"))));
    EXPECT_TRUE(engine.archiveName().startsWith(QStringLiteral("Godot_v3.5.3-stable_mono_")));
}

TEST_F(EngineManagerTest, findsBothEditionsInTheSameRelease)
{
    EXPECT_EQ(EngineManager::releaseURL(QStringLiteral("a.zip")),
              server.url(releasePath(QStringLiteral("a.zip"))));
}

TEST_F(EngineManagerTest, installsTheEngineStepByStep)
{
    serve(engineArchive());

    const auto outcome = install();

    EXPECT_EQ(outcome.value, home.path(installed(QStringLiteral("Godot_v3.5.3-stable_x11.64"))));
    EXPECT_EQ(lines(),
              (QStringList{readingList,
                           QStringLiteral("Downloading %1 from godotengine/godot releases…")
                               .arg(engine.archiveName()),
                           checking, checksumOk}));
    EXPECT_EQ(home.read(installed(QStringLiteral("Godot_v3.5.3-stable_x11.64"))), "an engine");
    EXPECT_EQ(engine.executable(), outcome.value);
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(EngineManagerTest, installsTheOtherEditionForACSharpGame)
{
    engine.mono = true;
    serve(engineArchive());

    EXPECT_TRUE(install().value);

    EXPECT_TRUE(home.exists(root(QStringLiteral("Engine/3.5.3-stable-mono"))));
    EXPECT_FALSE(EngineManager{.mono = false}.executable());
}

TEST_F(EngineManagerTest, makesTheProgramExecutableThoughTheArchiveDoesNot)
{
    serve(engineArchive());

    const auto outcome = install();

    ASSERT_TRUE(outcome.value);
    EXPECT_TRUE(QFileInfo(*outcome.value).isExecutable());
    EXPECT_FALSE(QFileInfo(home.path(installed(QStringLiteral("sub/readme")))).isExecutable());
}

TEST_F(EngineManagerTest, replacesAnInstalledEngine)
{
    installOldEngine();
    serve(engineArchive());

    EXPECT_TRUE(install().value);

    EXPECT_FALSE(home.exists(installed(QStringLiteral("old godot"))));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(EngineManagerTest, isNotInstalledWhereThereIsNoProgram)
{
    EXPECT_FALSE(engine.executable());
    home.write(installed(QStringLiteral("readme")));
    EXPECT_FALSE(engine.executable());
}

TEST_F(EngineManagerTest, requiresTheLastDigestOfTheList)
{
    const auto archive = engineArchive();
    const auto digest = QCryptographicHash::hash(archive, QCryptographicHash::Sha512).toHex();
    const auto name = engine.archiveName().toUtf8();
    serve(archive);
    serveList(digest + "  " + name + "\nbb  " + name + '\n');
    EXPECT_EQ(install().sentence, mismatch);

    serveList("bb  " + name + '\n' + digest + "  " + name + '\n');
    EXPECT_TRUE(install().value);
}

TEST_F(EngineManagerTest, outlivesTheRecordItWasStartedOn)
{
    serve(engineArchive());
    auto record = std::make_unique<EngineManager>();
    auto task = record->install(downloader, log(), stop.get_token());
    record->mono = true;
    record.reset();

    EXPECT_TRUE(eventually(std::move(task)).value);
    EXPECT_TRUE(home.exists(root(QStringLiteral("Engine/3.5.3-stable"))));
}
