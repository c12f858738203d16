// SPDX-License-Identifier: MIT
#include "EngineManagerTest.h"

#include <QFileInfo>

TEST_F(EngineManagerTest, namesItsFilesWithTheEditionExactlyOnce)
{
    const auto version = EngineManager::version();
    EXPECT_EQ(engine.folder(), root(u"Engine/"_s + version));
    EXPECT_EQ(engine.markerFile(), root(u"Game/.setup-v2-"_s + version));
    engine.mono = true;
    EXPECT_EQ(engine.folder(), root(u"Engine/%1-mono"_s.arg(version)));
    EXPECT_EQ(engine.markerFile(), root(u"Game/.setup-v2-%1-mono"_s.arg(version)));
    EXPECT_TRUE(engine.archiveName().startsWith(u"Godot_v%1_mono_"_s.arg(version)));
}

TEST_F(EngineManagerTest, findsBothEditionsInTheSameRelease)
{
    EXPECT_EQ(EngineManager::releaseURL(u"a.zip"_s),
              server.url(u"/godotengine/godot/releases/download/%1/a.zip"_s.arg(
                  EngineManager::version())));
}

TEST_F(EngineManagerTest, installsTheEngineStepByStep)
{
    serveEngine(engineArchive());

    const auto outcome = install();

    EXPECT_EQ(outcome.value, installed(programName()));
    EXPECT_EQ(
        lines(),
        (QStringList{readingList,
                     u"Downloading %1 from godotengine/godot releases…"_s.arg(engine.archiveName()),
                     checking, checksumOk}));
    EXPECT_EQ(installedProgram(), "an engine");
    EXPECT_EQ(engine.executable(), outcome.value);
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(EngineManagerTest, installsTheOtherEditionForACSharpGame)
{
    engine.mono = true;
    serveEngine(engineArchive(), engine);

    EXPECT_TRUE(install().value);

    EXPECT_TRUE(home.exists(engine.folder()));
    EXPECT_FALSE(EngineManager{.mono = false}.executable());
}

TEST_F(EngineManagerTest, makesTheProgramExecutableThoughTheArchiveDoesNot)
{
    serveEngine(engineArchive());

    const auto outcome = install();

    ASSERT_TRUE(outcome.value);
    EXPECT_TRUE(QFileInfo(*outcome.value).isExecutable());
    EXPECT_FALSE(QFileInfo(installed(u"sub/readme"_s)).isExecutable());
}

TEST_F(EngineManagerTest, replacesAnInstalledEngine)
{
    installOldEngine();
    serveEngine(engineArchive());

    EXPECT_TRUE(install().value);

    EXPECT_FALSE(home.exists(installed(u"old godot"_s)));
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(EngineManagerTest, isNotInstalledWhereThereIsNoProgram)
{
    EXPECT_FALSE(engine.executable());
    home.write(installed(u"readme"_s));
    EXPECT_FALSE(engine.executable());
}

TEST_F(EngineManagerTest, requiresTheLastDigestOfTheList)
{
    const auto archive = engineArchive();
    const auto digest = QCryptographicHash::hash(archive, QCryptographicHash::Sha512).toHex();
    const auto name = engine.archiveName().toUtf8();
    serveEngine(archive);
    serveList(digest + "  " + name + "\nbb  " + name + '\n');
    EXPECT_EQ(install().sentence, mismatch);

    serveList("bb  " + name + '\n' + digest + "  " + name + '\n');
    EXPECT_TRUE(install().value);
}
