// SPDX-License-Identifier: MIT
#include "FileDownloaderTest.h"
#include "Support/FileSizeLimit.h"
#include "Support/OwnMounts.h"
#include "Support/UnchangeableScope.h"

#include <utility>

#include <sys/mount.h>

using namespace Qt::StringLiterals;

namespace {

const auto file = u"/file.zip"_s;

} // namespace

TEST_F(FileDownloaderTest, namesTheFileAfterTheLastPartOfTheUrl)
{
    server.on(u"/a/master.zip?x=1"_s, HttpServer::reply(200, "the bytes"));

    const auto outcome = download(u"/a/master.zip?x=1"_s);

    EXPECT_EQ(outcome.value, folder.path(u"master.zip"_s));
    EXPECT_EQ(folder.read(u"master.zip"_s), "the bytes");
    EXPECT_EQ(folder.names(), QStringList{u"master.zip"_s});
}

TEST_F(FileDownloaderTest, callsAFileWithoutANameDownload)
{
    for (const auto& path : {u"/"_s, u"/folder/"_s}) {
        server.on(path, HttpServer::reply(200, "the bytes"));

        EXPECT_EQ(download(path).value, folder.path(u"download"_s));
    }
    EXPECT_EQ(folder.read(u"download"_s), "the bytes");
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
    server.on(u"/Sch%C3%B6n%20.zip"_s, HttpServer::reply(200, "x"));

    EXPECT_EQ(download(u"/Schön%20.zip"_s).value, folder.path(u"Schön .zip"_s));
}

TEST_F(FileDownloaderTest, replacesAFileAndEvenAFolderOfThatName)
{
    server.on(file, HttpServer::reply(200, "new"));
    folder.write(u"file.zip"_s, "old");
    EXPECT_TRUE(download(file).value);
    EXPECT_EQ(folder.read(u"file.zip"_s), "new");

    QFile::remove(folder.path(u"file.zip"_s));
    folder.write(u"file.zip/inner/old"_s);
    EXPECT_TRUE(download(file).value);
    EXPECT_EQ(folder.read(u"file.zip"_s), "new");
}

TEST_F(FileDownloaderTest, reportsEveryPieceAgainstTheAnnouncedLength)
{
    const QByteArray body(3'000'000, 'x');
    server.on(file, HttpServer::reply(200, body));

    EXPECT_TRUE(download(file).value);

    ASSERT_FALSE(progress.isEmpty());
    EXPECT_EQ(progress.last().received, body.size());
    qint64 before = 0;
    for (const auto& one : progress) {
        EXPECT_GT(one.received, before);
        EXPECT_EQ(one.total, body.size());
        EXPECT_GT(one.bytesPerSecond, 0);
        before = one.received;
    }
}

TEST_F(FileDownloaderTest, hasNoTotalWithoutALength)
{
    server.on(file, HttpServer::replyWithoutLength("the bytes"));

    EXPECT_TRUE(download(file).value);

    EXPECT_EQ(folder.read(u"file.zip"_s), "the bytes");
    ASSERT_FALSE(progress.isEmpty());
    EXPECT_EQ(progress.last().total, -1);
    EXPECT_FALSE(progress.last().text().contains(u" of "_s));
}

TEST_F(FileDownloaderTest, readsABodyInChunks)
{
    server.on(file, [](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(200, "Transfer-Encoding: chunked\n"));
        connection.send("4\r\nthe \r\n5\r\nbytes\r\n0\r\n\r\n");
    });

    EXPECT_TRUE(download(file).value);
    EXPECT_EQ(folder.read(u"file.zip"_s), "the bytes");
}

TEST_F(FileDownloaderTest, savesAnEmptyBodyAsAnEmptyFile)
{
    server.on(file, HttpServer::reply(200, {}));

    EXPECT_TRUE(download(file).value);
    EXPECT_EQ(folder.read(u"file.zip"_s), QByteArray());
}

TEST_F(FileDownloaderTest, asksForTheBytesAsTheyAre)
{
    server.on(file, HttpServer::reply(200, "raw", "Content-Encoding: gzip\n"));

    EXPECT_TRUE(download(file).value);

    EXPECT_EQ(folder.read(u"file.zip"_s), "raw");
    const auto head = server.requests().first().toLower();
    EXPECT_TRUE(head.contains("accept-encoding: identity\r\n"));
    EXPECT_TRUE(head.contains("user-agent: "));
    EXPECT_FALSE(head.contains("accept: "));
}

TEST_F(FileDownloaderTest, reportsAnOldFileThatCannotBeReplacedAndLeavesNothingElse)
{
    server.on(file, HttpServer::reply(200, "new"));
    const auto old = folder.write(u"file.zip"_s, "old");
    const UnchangeableScope unchangeable(old);
    if (!unchangeable.isInForce())
        GTEST_SKIP() << "This user or file system can make no file unchangeable.";

    const auto outcome = download(file);

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_EQ(outcome.sentence, u"Could not remove “%1”: Operation not permitted."_s.arg(old));
    EXPECT_EQ(folder.names(), QStringList{u"file.zip"_s});
    EXPECT_EQ(folder.read(u"file.zip"_s), "old");
}

TEST_F(FileDownloaderTest, reportsAFolderThatIsNotThere)
{
    server.on(file, HttpServer::reply(200, "the bytes"));

    const auto outcome = outcomeOf([this] {
        return FileDownloader([](const DownloadProgress&) {})
            .start(server.url(file), folder.path(u"missing"_s), stop.get_token());
    });

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(outcome.sentence.startsWith(u"Could not create “"_s));
}

TEST_F(FileDownloaderTest, reportsAFileThatCannotBeWrittenAndLeavesNothing)
{
    server.on(file, HttpServer::reply(200, QByteArray(1'000'000, 'x')));
    const FileSizeLimit sizeLimit(100'000);

    const auto outcome = download(file);

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(outcome.sentence.startsWith(u"Could not write “"_s));
    EXPECT_TRUE(folder.names().isEmpty());
}

TEST_F(FileDownloaderTest, refusesWhatDoesNotFitOnTheDiskAsSoonAsItsLengthIsKnown)
{
    server.on(file, [](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(200, "Content-Length: 9000000000000000000\n"));
        connection.waitForHangUp();
    });

    const auto outcome = download(file);

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(outcome.sentence.startsWith(
        u"The download of “%1” is "_s.arg(server.url(file).toString())));
    EXPECT_TRUE(outcome.sentence.endsWith(
        u" larger than what is free in “%1”. Make room there and try again."_s.arg(
            QFileInfo(folder.path()).path())))
        << outcome.sentence;
    EXPECT_TRUE(folder.names().isEmpty());
}

#if defined(Q_OS_LINUX)
TEST_F(FileDownloaderTest, endsADownloadOfUnknownLengthBeforeTheDiskIsFull)
{
    RUN_WITH_OWN_MOUNTS();
    ASSERT_EQ(
        ::mount("tmpfs", QFile::encodeName(folder.path()).constData(), "tmpfs", 0, "size=4000k"),
        0);
    server.on(file, HttpServer::replyWithoutLength(QByteArray(3'000'000, 'x')));
    EXPECT_EQ(download(file).sentence,
              u"The download of “%1” takes up all that is free in “%2”, but for a reserve. Make "
              "room there and try again."_s.arg(server.url(file).toString(),
                                                QFileInfo(folder.path()).path()));
    EXPECT_EQ(::umount(QFile::encodeName(folder.path()).constData()), 0);
}
#endif

TEST_F(FileDownloaderTest, keepsReadingWhatItReceivedWhateverHappensToTheName)
{
    server.on(file, HttpServer::reply(200, "the bytes"));
    const auto downloaded = FileDownloader([](const DownloadProgress&) {
                            }).start(server.url(file), folder.path(), stop.get_token());
    QFile::remove(downloaded.path());
    folder.write(u"file.zip"_s, "an impostor");

    QByteArray bytes(100, '\0');
    bytes.truncate(static_cast<qsizetype>(
        downloaded.readAt(0, bytes.data(), static_cast<std::size_t>(bytes.size()))));
    EXPECT_EQ(bytes, "the bytes");
}
