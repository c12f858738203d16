// SPDX-License-Identifier: MIT
#include "EngineManagerTest.h"
#include "Support/UnchangeableScope.h"

using EngineFailureTest = EngineManagerTest;

TEST_F(EngineFailureTest, refusesAHostThatMakesNoUrl)
{
    const WebHostScope host(u"http://[nowhere"_s);

    EXPECT_EQ(install().sentence, u"Invalid engine URL."_s);
    EXPECT_EQ(lines(), QStringList{readingList});
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(EngineFailureTest, failsWhenTheListIsNotThere)
{
    installOldEngine();

    const auto outcome = install();

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence, u"Could not read the engine checksum list (HTTP 404)."_s);
    expectOldEngine();
}

TEST_F(EngineFailureTest, failsWhenTheListNamesOnlyTheOtherEdition)
{
    for (const auto mono : {false, true}) {
        engine.mono = mono;
        const EngineManager other{.mono = !mono};
        serveList("bb  " + other.archiveName().toUtf8() + '\n');

        const auto outcome = install();

        EXPECT_TRUE(outcome.isAppError);
        EXPECT_EQ(outcome.sentence,
                  u"The checksum list has no entry for %1."_s.arg(engine.archiveName()));
    }
    EXPECT_EQ(server.requests().size(), 2);
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(EngineFailureTest, failsWhenTheListHasCarriageReturns)
{
    serveList("bb  " + engine.archiveName().toUtf8() + "\r\n");

    EXPECT_TRUE(install().sentence.startsWith(u"The checksum list has no entry"_s));
}

TEST_F(EngineFailureTest, saysThatTheListStalled)
{
    server.on(listPath(), HttpServer::silence());

    downloader = std::make_shared<const FileDownloader>([](const DownloadProgress&) {},
                                                        std::chrono::milliseconds(400));

    const auto outcome = install();

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(outcome.sentence.contains(u"stalled"_s));
}

TEST_F(EngineFailureTest, failsWhenTheArchiveIsNotThere)
{
    installOldEngine();
    serveList("bb  " + engine.archiveName().toUtf8() + '\n');

    EXPECT_TRUE(install().sentence.startsWith(u"The server answered with HTTP 404 for "_s));

    expectOldEngine();
}

TEST_F(EngineFailureTest, discardsADownloadWithAnotherChecksum)
{
    installOldEngine();
    serveEngine(engineArchive());
    server.on(enginePath(engine), HttpServer::reply(200, engineArchive("another")));

    const auto outcome = install();

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence, mismatch);
    EXPECT_EQ(lines().last(), checking);
    expectOldEngine();
}

TEST_F(EngineFailureTest, keepsTheOldEngineWhenTheArchiveIsDamaged)
{
    installOldEngine();
    serveEngine("no archive");

    EXPECT_EQ(install().sentence, u"Unzipping failed (ditto exit code 1)."_s);

    EXPECT_TRUE(lines().contains(checksumOk));
    expectOldEngine();
}

TEST_F(EngineFailureTest, leavesTheNewFolderWhenItHasNoProgram)
{
    installOldEngine();
    serveEngine(ZipWriter().addFile("readme").archive());

    const auto outcome = install();

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence, u"The engine was unpacked but its program was not found."_s);
    EXPECT_EQ(home.names(engine.folder()), QStringList{u"readme"_s});
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(EngineFailureTest, reportsAnEngineFolderThatCannotBeMade)
{
    home.write(root(u"Engine"_s), "a file");
    serveEngine(engineArchive());

    EXPECT_TRUE(install().isPlatformError);
    EXPECT_EQ(home.names(u"temporary"_s), QStringList());
}

TEST_F(EngineFailureTest, reportsATemporaryFolderThatCannotBeMade)
{
    installOldEngine();
    serveEngine(engineArchive());
    const EnvironmentScope temporary("TMPDIR", home.write(u"a file"_s).toUtf8());

    EXPECT_TRUE(install().isPlatformError);

    EXPECT_EQ(lines(), QStringList{readingList});
    expectOldEngine();
}

TEST_F(EngineFailureTest, unpacksWhatItVerifiedThoughAnImpostorTakesItsPlace)
{
    serveEngine(engineArchive());
    atLine(checksumOk, [this] {
        for (const auto& folder : home.names(u"temporary"_s)) {
            const auto name = u"temporary/%1/%2"_s.arg(folder, engine.archiveName());
            EXPECT_TRUE(QFile::remove(home.path(name)));
            home.write(name, engineArchive("an impostor"));
        }
    });

    const auto outcome = install();

    ASSERT_TRUE(outcome.value);
    EXPECT_EQ(installedProgram(), "an engine");
}

TEST_F(EngineFailureTest, keepsAnOldEngineThatCannotBeReplaced)
{
    installOldEngine();
    serveEngine(engineArchive());
    const UnchangeableScope unchangeable(engine.folder());
    if (!unchangeable.isInForce())
        GTEST_SKIP() << "This user or file system can make no folder unchangeable.";

    const auto outcome = install();

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(
        outcome.sentence.endsWith(u" and “%1”: Operation not permitted."_s.arg(engine.folder())))
        << outcome.sentence;
    expectOldEngine();
}
