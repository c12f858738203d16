// SPDX-License-Identifier: MIT
#include "Install/FileDownloader.h"

#include "Support/Eventually.h"
#include "Support/HttpServer.h"
#include "Support/TestFolder.h"

#include <gtest/gtest.h>

#include <thread>
#include <utility>

#include <csignal>

#include <sys/resource.h>

using namespace std::chrono_literals;

namespace {

class FileDownloaderTest : public testing::Test
{
protected:
    Outcome<QString> download(const QUrl& url)
    {
        return eventually(m_downloader.start(url, folder.path()));
    }
    Outcome<QString> download(const QString& path) { return download(server.url(path)); }

    void remember(const DownloadProgress& progress)
    {
        const std::lock_guard lock(m_mutex);
        m_progress.append(progress);
        m_progressThread = std::this_thread::get_id();
    }
    QList<DownloadProgress> progress()
    {
        const std::lock_guard lock(m_mutex);
        return m_progress;
    }

    TestFolder folder;
    HttpServer server;
    std::mutex m_mutex;
    QList<DownloadProgress> m_progress;
    std::thread::id m_progressThread;
    FileDownloader m_downloader{[this](const DownloadProgress& now) { remember(now); }, 400ms};
};

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

TEST_F(FileDownloaderTest, acceptsNoStatusBut200)
{
    for (const auto status : {201, 206, 304, 404, 500, 503}) {
        server.on(file, HttpServer::reply(status, "an explanation"));

        const auto outcome = download(file);

        EXPECT_TRUE(outcome.isAppError);
        EXPECT_EQ(outcome.sentence, QStringLiteral("The server answered with HTTP %1 for %2.")
                                        .arg(QString::number(status), server.url(file).toString()));
    }
    EXPECT_TRUE(folder.names().isEmpty());
    EXPECT_TRUE(progress().isEmpty());
}

TEST_F(FileDownloaderTest, keepsAnOlderFileWhenTheStatusIsBad)
{
    folder.write(QStringLiteral("file.zip"), "old");
    server.on(file, HttpServer::reply(404, {}));

    EXPECT_TRUE(download(file).isAppError);

    EXPECT_EQ(folder.read(QStringLiteral("file.zip")), "old");
}

TEST_F(FileDownloaderTest, decidesABadStatusWithoutReadingItsBody)
{
    server.on(file, [](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(404, {}));
        while (connection.send(QByteArray(64 * 1024, 'x'))) {
        }
    });

    EXPECT_TRUE(download(file).sentence.contains(QStringLiteral("HTTP 404")));
}

TEST_F(FileDownloaderTest, followsRedirectsToTheFinalAnswer)
{
    for (const auto status : {301, 302, 303, 307, 308}) {
        server.on(file, HttpServer::redirect(status, server.url(QStringLiteral("/elsewhere"))));
        server.on(QStringLiteral("/elsewhere"), HttpServer::reply(200, "moved here"));

        EXPECT_EQ(download(file).value, folder.path(QStringLiteral("file.zip"))) << status;
        EXPECT_EQ(folder.read(QStringLiteral("file.zip")), "moved here");
    }
    server.on(QStringLiteral("/elsewhere"), HttpServer::reply(404, {}));
    EXPECT_EQ(download(file).sentence, QStringLiteral("The server answered with HTTP 404 for %1.")
                                           .arg(server.url(file).toString()));
}

TEST_F(FileDownloaderTest, failsOnRedirectsThatNeverEnd)
{
    server.on(file, HttpServer::redirect(302, server.url(file)));

    const auto outcome = download(file);

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(outcome.sentence.contains(server.url(file).toString()));
}

TEST_F(FileDownloaderTest, failsOnARedirectToAnythingThatIsNotTheWeb)
{
    server.on(file, HttpServer::redirect(302, QUrl(QStringLiteral("file:///etc/passwd"))));

    EXPECT_TRUE(download(file).isPlatformError);
    EXPECT_TRUE(folder.names().isEmpty());
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

TEST_F(FileDownloaderTest, failsOnABodyThatIsCutShort)
{
    server.on(file, [](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(200, "Content-Length: 1000\n"));
        connection.send("only this");
    });
    EXPECT_TRUE(download(file).isPlatformError);
    EXPECT_TRUE(folder.names().isEmpty());
}

TEST_F(FileDownloaderTest, saysThatASilentServerStalled)
{
    server.on(file, HttpServer::silence());

    const auto outcome = download(file);

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_EQ(
        outcome.sentence,
        QStringLiteral("The download of “%1” stalled: 127.0.0.1 sent nothing for 0.4 seconds.")
            .arg(server.url(file).toString()));
}

TEST_F(FileDownloaderTest, saysThatABodyStalledAndLeavesNothing)
{
    server.on(file, [](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(200, "Content-Length: 1000\n"));
        connection.send("only this");
        connection.waitForHangUp();
    });

    const auto outcome = download(file);

    EXPECT_TRUE(outcome.sentence.contains(QStringLiteral("stalled")));
    EXPECT_FALSE(progress().isEmpty());
    EXPECT_TRUE(folder.names().isEmpty());
}

TEST_F(FileDownloaderTest, isPatientWithASlowServer)
{
    server.on(file, [](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(200, "Content-Length: 8\n"));
        for (int i = 0; i < 8; ++i) {
            std::this_thread::sleep_for(100ms);
            connection.send("x");
        }
    });

    EXPECT_TRUE(download(file).value);
}

TEST_F(FileDownloaderTest, explainsANetworkErrorInOneSentence)
{
    const auto refused = download(QUrl(QStringLiteral("http://127.0.0.1:1/file.zip")));
    EXPECT_TRUE(refused.isPlatformError);
    EXPECT_EQ(
        refused.sentence,
        QStringLiteral("Could not download “http://127.0.0.1:1/file.zip”: Connection refused."));

    const auto unknown = download(QUrl(QStringLiteral("http://no-such-host.invalid/file.zip")));
    EXPECT_TRUE(unknown.isPlatformError);
    EXPECT_TRUE(unknown.sentence.contains(QStringLiteral("no-such-host.invalid")));
    EXPECT_FALSE(unknown.sentence.contains(u'\n'));
}

TEST_F(FileDownloaderTest, endsWithCancelledWhileTheServerIsSilent)
{
    server.on(file, HttpServer::silence());
    const auto pending = m_downloader.start(server.url(file), folder.path());
    ASSERT_TRUE(server.waitForRequests(1));

    m_downloader.cancel();
    m_downloader.cancel();

    EXPECT_TRUE(eventually(pending).isCancelled);
}

TEST_F(FileDownloaderTest, endsWithCancelledInTheMiddleOfABodyAndLeavesNothing)
{
    server.on(file, [](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(200, {}));
        while (connection.send(QByteArray(64 * 1024, 'x'))) {
        }
    });
    const auto pending = m_downloader.start(server.url(file), folder.path());
    ASSERT_TRUE(QTest::qWaitFor([this] { return progress().size() > 3; }, 20'000));

    std::thread([this] { m_downloader.cancel(); }).join();

    EXPECT_TRUE(eventually(pending).isCancelled);
    EXPECT_TRUE(folder.names().isEmpty());
}

TEST_F(FileDownloaderTest, endsWithCancelledWhenAskedBeforeTheTransferHasBegun)
{
    server.on(file, HttpServer::reply(200, "the bytes"));
    const auto pending = m_downloader.start(server.url(file), folder.path());

    m_downloader.cancel();

    EXPECT_TRUE(eventually(pending).isCancelled);
    EXPECT_TRUE(folder.names().isEmpty());
}

TEST_F(FileDownloaderTest, canBeUsedAgainAndForgetsAnOlderCancel)
{
    m_downloader.cancel();
    server.on(file, HttpServer::reply(200, "first"));
    EXPECT_TRUE(download(file).value);
    m_downloader.cancel();

    server.on(file, HttpServer::reply(200, "second"));
    EXPECT_TRUE(download(file).value);
    EXPECT_EQ(folder.read(QStringLiteral("file.zip")), "second");
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
