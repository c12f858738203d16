// SPDX-License-Identifier: MIT
#include "EngineManagerTest.h"
#include "Support/UnchangeableScope.h"

namespace {

using EngineFailureTest = EngineManagerTest;

const auto readingList = QStringLiteral("Reading the official checksum list (SHA512-SUMS.txt)…");
const auto checking =
    QStringLiteral("Checking the download against the official SHA-512 checksum…");
const auto checksumOk = QStringLiteral("Checksum OK.");
const auto mismatch =
    QStringLiteral("The engine download did not match its official checksum, so it was discarded.");

} // namespace

TEST_F(EngineFailureTest, refusesAHostThatMakesNoUrl)
{
    const WebHostScope host(QStringLiteral("http://[nowhere"));

    EXPECT_EQ(install().sentence, QStringLiteral("Invalid engine URL."));
    EXPECT_EQ(lines(), QStringList{readingList});
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(EngineFailureTest, failsWhenTheListIsNotThere)
{
    installOldEngine();

    const auto outcome = install();

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence,
              QStringLiteral("Could not read the engine checksum list (HTTP 404)."));
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
        EXPECT_EQ(
            outcome.sentence,
            QStringLiteral("The checksum list has no entry for %1.").arg(engine.archiveName()));
    }
    EXPECT_EQ(server.requests().size(), 2);
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(EngineFailureTest, failsWhenTheListHasCarriageReturns)
{
    serveList("bb  " + engine.archiveName().toUtf8() + "\r\n");

    EXPECT_TRUE(install().sentence.startsWith(QStringLiteral("The checksum list has no entry")));
}

TEST_F(EngineFailureTest, saysThatTheListStalled)
{
    server.on(releasePath(QStringLiteral("SHA512-SUMS.txt")), HttpServer::silence());

    const auto outcome = eventually(
        engine.install(downloader, log(), stop.get_token(), std::chrono::milliseconds(400)));

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(outcome.sentence.contains(QStringLiteral("stalled")));
}

TEST_F(EngineFailureTest, failsWhenTheArchiveIsNotThere)
{
    installOldEngine();
    serveList("bb  " + engine.archiveName().toUtf8() + '\n');

    EXPECT_TRUE(
        install().sentence.startsWith(QStringLiteral("The server answered with HTTP 404 for ")));

    expectOldEngine();
}

TEST_F(EngineFailureTest, discardsADownloadWithAnotherChecksum)
{
    installOldEngine();
    serve(engineArchive());
    server.on(releasePath(engine.archiveName()), HttpServer::reply(200, engineArchive("another")));

    const auto outcome = install();

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence, mismatch);
    EXPECT_EQ(lines().last(), checking);
    expectOldEngine();
}

TEST_F(EngineFailureTest, keepsTheOldEngineWhenTheArchiveIsDamaged)
{
    installOldEngine();
    serve("no archive");

    EXPECT_EQ(install().sentence, QStringLiteral("Unzipping failed (ditto exit code 1)."));

    EXPECT_TRUE(lines().contains(checksumOk));
    expectOldEngine();
}

TEST_F(EngineFailureTest, leavesTheNewFolderWhenItHasNoProgram)
{
    installOldEngine();
    serve(ZipWriter().addFile("readme").archive());

    const auto outcome = install();

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence,
              QStringLiteral("The engine was unpacked but its program was not found."));
    EXPECT_EQ(home.names(installed()), QStringList{QStringLiteral("readme")});
    EXPECT_EQ(leftovers(), QStringList());
}

TEST_F(EngineFailureTest, reportsAnEngineFolderThatCannotBeMade)
{
    home.write(root(QStringLiteral("Engine")), "a file");
    serve(engineArchive());

    EXPECT_TRUE(install().isPlatformError);
    EXPECT_EQ(home.names(QStringLiteral("temporary")), QStringList());
}

TEST_F(EngineFailureTest, reportsATemporaryFolderThatCannotBeMade)
{
    installOldEngine();
    serve(engineArchive());
    const EnvironmentScope temporary("TMPDIR", home.write(QStringLiteral("a file")).toUtf8());

    EXPECT_TRUE(install().isPlatformError);

    EXPECT_EQ(lines(), QStringList{readingList});
    expectOldEngine();
}

TEST_F(EngineFailureTest, reportsADownloadThatCannotBeReadForItsDigest)
{
    installOldEngine();
    serve(engineArchive());
    atLine(checking, [this] {
        for (const auto& folder : home.names(QStringLiteral("temporary"))) {
            const auto name = QStringLiteral("temporary/%1/%2").arg(folder, engine.archiveName());
            EXPECT_TRUE(QFile::remove(home.path(name)));
        }
    });

    const auto outcome = install();

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(outcome.sentence.startsWith(QStringLiteral("Could not open “")));
    expectOldEngine();
}

TEST_F(EngineFailureTest, keepsAnOldEngineThatCannotBeReplaced)
{
    installOldEngine();
    serve(engineArchive());
    const UnchangeableScope unchangeable(engine.folder());
    if (!unchangeable.isInForce())
        GTEST_SKIP() << "This user or file system can make no folder unchangeable.";

    const auto outcome = install();

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(outcome.sentence.endsWith(
        QStringLiteral(" and “%1”: Operation not permitted.").arg(engine.folder())))
        << outcome.sentence.toStdString();
    expectOldEngine();
}
