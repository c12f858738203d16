// SPDX-License-Identifier: MIT
#include "FileDownloaderTest.h"
#include "Support/UnchangeableScope.h"

#include <utility>

#include <csignal>

#include <sys/resource.h>

namespace {

const auto file = QStringLiteral("/file.zip");

} // namespace

TEST_F(FileDownloaderTest, namesTheFileAfterTheLastPartOfTheUrl)
{
    server.on(QStringLiteral("/a/master.zip?x=1"), HttpServer::reply(200, "the bytes"));

    const auto outcome = download(QStringLiteral("/a/master.zip?x=1"));

    EXPECT_EQ(outcome.value, folder.path(QStringLiteral("master.zip")));
    EXPECT_EQ(folder.read(QStringLiteral("master.zip")), "the bytes");
    EXPECT_EQ(folder.names(), QStringList{QStringLiteral("master.zip")});
}

TEST_F(FileDownloaderTest, callsAFileWithoutANameDownload)
{
    for (const auto& path : {QStringLiteral("/"), QStringLiteral("/folder/")}) {
        server.on(path, HttpServer::reply(200, "the bytes"));

        EXPECT_EQ(download(path).value, folder.path(QStringLiteral("download")));
    }
    EXPECT_EQ(folder.read(QStringLiteral("download")), "the bytes");
}

TEST_F(FileDownloaderTest, keepsAHostileNameInsideTheFolder)
{
    const std::pair<const char*, const char*> names[] = {{"/a/%2e%2e", "download"},
                                                         {"/a/%2E", "download"},
                                                         {"/a/..%2F..%2Fevil", "evil"},
                                                         {"/a/x%00y", "download"}};
    server.on(HttpServer::anyPath, HttpServer::reply(200, "the bytes"));
    for (const auto& [path, name] : names) {
        EXPECT_EQ(download(QUrl::fromEncoded(server.host().toUtf8() + path)).value,
                  folder.path(QString::fromLatin1(name)))
            << path;
    }
}

TEST_F(FileDownloaderTest, decodesANameThatIsNotAscii)
{
    server.on(QStringLiteral("/Sch%C3%B6n%20.zip"), HttpServer::reply(200, "x"));

    EXPECT_EQ(download(QStringLiteral("/Schön%20.zip")).value,
              folder.path(QStringLiteral("Schön .zip")));
}

TEST_F(FileDownloaderTest, replacesAFileAndEvenAFolderOfThatName)
{
    server.on(file, HttpServer::reply(200, "new"));
    folder.write(QStringLiteral("file.zip"), "old");
    EXPECT_TRUE(download(file).value);
    EXPECT_EQ(folder.read(QStringLiteral("file.zip")), "new");

    QFile::remove(folder.path(QStringLiteral("file.zip")));
    folder.write(QStringLiteral("file.zip/inner/old"));
    EXPECT_TRUE(download(file).value);
    EXPECT_EQ(folder.read(QStringLiteral("file.zip")), "new");
}

TEST_F(FileDownloaderTest, reportsEveryPieceAgainstTheAnnouncedLength)
{
    const QByteArray body(3'000'000, 'x');
    server.on(file, HttpServer::reply(200, body));

    EXPECT_TRUE(download(file).value);

    const auto all = progress();
    ASSERT_FALSE(all.isEmpty());
    EXPECT_EQ(all.last().received, body.size());
    qint64 before = 0;
    for (const auto& one : all) {
        EXPECT_GT(one.received, before);
        EXPECT_EQ(one.total, body.size());
        EXPECT_GT(one.bytesPerSecond, 0);
        before = one.received;
    }
    EXPECT_NE(m_progressThread, std::this_thread::get_id());
}

TEST_F(FileDownloaderTest, hasNoTotalWithoutALength)
{
    server.on(file, HttpServer::replyWithoutLength("the bytes"));

    EXPECT_TRUE(download(file).value);

    EXPECT_EQ(folder.read(QStringLiteral("file.zip")), "the bytes");
    ASSERT_FALSE(progress().isEmpty());
    EXPECT_EQ(progress().last().total, -1);
    EXPECT_FALSE(progress().last().text().contains(QStringLiteral(" of ")));
}

TEST_F(FileDownloaderTest, readsABodyInChunks)
{
    server.on(file, [](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(200, "Transfer-Encoding: chunked\n"));
        connection.send("4\r\nthe \r\n5\r\nbytes\r\n0\r\n\r\n");
    });

    EXPECT_TRUE(download(file).value);
    EXPECT_EQ(folder.read(QStringLiteral("file.zip")), "the bytes");
}

TEST_F(FileDownloaderTest, savesAnEmptyBodyAsAnEmptyFile)
{
    server.on(file, HttpServer::reply(200, {}));

    EXPECT_TRUE(download(file).value);
    EXPECT_EQ(folder.read(QStringLiteral("file.zip")), QByteArray());
}

TEST_F(FileDownloaderTest, asksForTheBytesAsTheyAre)
{
    server.on(file, HttpServer::reply(200, "raw", "Content-Encoding: gzip\n"));

    EXPECT_TRUE(download(file).value);

    EXPECT_EQ(folder.read(QStringLiteral("file.zip")), "raw");
    EXPECT_TRUE(server.requests().first().contains("Accept-Encoding: identity\r\n"));
}

TEST_F(FileDownloaderTest, reportsAnOldFileThatCannotBeReplacedAndLeavesNothingElse)
{
    server.on(file, HttpServer::reply(200, "new"));
    const auto old = folder.write(QStringLiteral("file.zip"), "old");
    const UnchangeableScope unchangeable(old);
    if (!unchangeable.isInForce())
        GTEST_SKIP() << "This user or file system can make no file unchangeable.";

    const auto outcome = download(file);

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_EQ(outcome.sentence,
              QStringLiteral("Could not remove “%1”: Operation not permitted.").arg(old));
    EXPECT_EQ(folder.names(), QStringList{QStringLiteral("file.zip")});
    EXPECT_EQ(folder.read(QStringLiteral("file.zip")), "old");
}

TEST_F(FileDownloaderTest, reportsAFolderThatIsNotThere)
{
    server.on(file, HttpServer::reply(200, "the bytes"));

    const auto outcome =
        eventually(m_downloader.start(server.url(file), folder.path(QStringLiteral("missing"))));

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(outcome.sentence.startsWith(QStringLiteral("Could not create “")));
}

TEST_F(FileDownloaderTest, reportsAFileThatCannotBeWrittenAndLeavesNothing)
{
    // A limit on the size of files fails a write as a full disk does: part of the way through.
    server.on(file, HttpServer::reply(200, QByteArray(1'000'000, 'x')));
    rlimit before = {};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit limited{100'000, before.rlim_max};
    const auto handlerBefore = ::signal(SIGXFSZ, SIG_IGN);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limited), 0);

    const auto outcome = download(file);

    ::setrlimit(RLIMIT_FSIZE, &before);
    ::signal(SIGXFSZ, handlerBefore);
    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(outcome.sentence.startsWith(QStringLiteral("Could not write “")));
    EXPECT_TRUE(folder.names().isEmpty());
}
