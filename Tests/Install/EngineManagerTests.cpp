// SPDX-License-Identifier: MIT
#include "EngineManagerTest.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const auto readingList = u"Reading the official checksum list (SHA512-SUMS.txt)…"_s;
const auto checking = u"Checking the download against the official SHA-512 checksum…"_s;
const auto checksumOk = u"Checksum OK."_s;
const auto mismatch =
    u"The engine download did not match its official checksum, so it was discarded."_s;

} // namespace

TEST_F(EngineManagerTest, namesItsFilesWithTheEditionExactlyOnce)
{
    EXPECT_EQ(EngineManager::version(), u"3.5.3-stable"_s);
    EXPECT_EQ(engine.folder(), home.path(root(u"Engine/3.5.3-stable"_s)));
    EXPECT_EQ(engine.markerFile(), home.path(root(u"Game/.setup-v2-3.5.3-stable"_s)));
    engine.mono = true;
    EXPECT_EQ(engine.folder(), home.path(root(u"Engine/3.5.3-stable-mono"_s)));
    EXPECT_EQ(engine.markerFile(), home.path(root(u"Game/.setup-v2-3.5.3-stable-mono"_s)));
    EXPECT_TRUE(engine.archiveName().startsWith(u"Godot_v3.5.3-stable_mono_"_s));
}

TEST_F(EngineManagerTest, findsBothEditionsInTheSameRelease)
{
    EXPECT_EQ(EngineManager::releaseURL(u"a.zip"_s), server.url(releasePath(u"a.zip"_s)));
}

TEST_F(EngineManagerTest, installsTheEngineStepByStep)
{
    serve(engineArchive());

    const auto outcome = install();

    EXPECT_EQ(outcome.value, home.path(installed(u"Godot_v3.5.3-stable_x11.64"_s)));
    EXPECT_EQ(
        lines(),
        (QStringList{readingList,
                     u"Downloading %1 from godotengine/godot releases…"_s.arg(engine.archiveName()),
                     checking, checksumOk}));
    EXPECT_EQ(home.read(installed(u"Godot_v3.5.3-stable_x11.64"_s)), "an engine");
    EXPECT_EQ(engine.executable(), outcome.value);
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(EngineManagerTest, installsTheOtherEditionForACSharpGame)
{
    engine.mono = true;
    serve(engineArchive());

    EXPECT_TRUE(install().value);

    EXPECT_TRUE(home.exists(root(u"Engine/3.5.3-stable-mono"_s)));
    EXPECT_FALSE(EngineManager{.mono = false}.executable());
}

TEST_F(EngineManagerTest, makesTheProgramExecutableThoughTheArchiveDoesNot)
{
    serve(engineArchive());

    const auto outcome = install();

    ASSERT_TRUE(outcome.value);
    EXPECT_TRUE(QFileInfo(*outcome.value).isExecutable());
    EXPECT_FALSE(QFileInfo(home.path(installed(u"sub/readme"_s))).isExecutable());
}

TEST_F(EngineManagerTest, replacesAnInstalledEngine)
{
    installOldEngine();
    serve(engineArchive());

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
    serve(archive);
    serveList(digest + "  " + name + "\nbb  " + name + '\n');
    EXPECT_EQ(install().sentence, mismatch);

    serveList("bb  " + name + '\n' + digest + "  " + name + '\n');
    EXPECT_TRUE(install().value);
}
