// SPDX-License-Identifier: MIT
#include "FileDownloaderTest.h"

using namespace std::chrono_literals;

namespace {

class DownloadAnswerTest : public FileDownloaderTest
{
protected:
    [[nodiscard]] QString noAnswer() const
    {
        return QStringLiteral("The download of “%1” stalled: 127.0.0.1 did not answer within 0.4 "
                              "seconds.")
            .arg(server.url(QStringLiteral("/file.zip")).toString());
    }
};

const auto file = QStringLiteral("/file.zip");

} // namespace

TEST_F(DownloadAnswerTest, acceptsNoStatusBut200)
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

TEST_F(DownloadAnswerTest, keepsAnOlderFileWhenTheStatusIsBad)
{
    folder.write(QStringLiteral("file.zip"), "old");
    server.on(file, HttpServer::reply(404, {}));

    EXPECT_TRUE(download(file).isAppError);

    EXPECT_EQ(folder.read(QStringLiteral("file.zip")), "old");
}

TEST_F(DownloadAnswerTest, decidesABadStatusWithoutReadingItsBody)
{
    server.on(file, [](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(404, {}));
        while (connection.send(QByteArray(64 * 1024, 'x'))) {
        }
    });

    EXPECT_TRUE(download(file).sentence.contains(QStringLiteral("HTTP 404")));
}

TEST_F(DownloadAnswerTest, followsRedirectsToTheFinalAnswer)
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

TEST_F(DownloadAnswerTest, failsOnRedirectsThatNeverEnd)
{
    server.on(file, HttpServer::redirect(302, server.url(file)));

    const auto outcome = download(file);

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(outcome.sentence.contains(server.url(file).toString()));
}

TEST_F(DownloadAnswerTest, failsOnARedirectToAnythingThatIsNotTheWeb)
{
    server.on(file, HttpServer::redirect(302, QUrl(QStringLiteral("file:///etc/passwd"))));

    EXPECT_TRUE(download(file).isPlatformError);
    EXPECT_TRUE(folder.names().isEmpty());
}

TEST_F(DownloadAnswerTest, failsOnABodyThatIsCutShort)
{
    server.on(file, [](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(200, "Content-Length: 1000\n"));
        connection.send("only this");
    });
    EXPECT_TRUE(download(file).isPlatformError);
    EXPECT_TRUE(folder.names().isEmpty());
}

TEST_F(DownloadAnswerTest, saysThatASilentServerStalled)
{
    server.on(file, HttpServer::silence());

    const auto outcome = downloadWithin(400ms, file);

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_EQ(outcome.sentence, noAnswer());
}

TEST_F(DownloadAnswerTest, takesAHeadThatOnlyDripsInForNoAnswer)
{
    server.on(file, [](const HttpServer::Connection& connection) {
        connection.send("HTTP/1.1 200 OK\r\nX-Long: ");
        while (connection.send("x"))
            std::this_thread::sleep_for(20ms);
    });

    EXPECT_EQ(downloadWithin(400ms, file).sentence, noAnswer());
}

TEST_F(DownloadAnswerTest, saysThatABodyStalledAndLeavesNothing)
{
    server.on(file, [](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(200, "Content-Length: 1000\n"));
        connection.send("only this");
        connection.waitForHangUp();
    });

    const auto outcome = downloadWithin(2s, file);

    EXPECT_EQ(outcome.sentence,
              QStringLiteral("The download of “%1” stalled: 127.0.0.1 sent nothing for 2 seconds.")
                  .arg(server.url(file).toString()));
    EXPECT_FALSE(progress().isEmpty());
    EXPECT_TRUE(folder.names().isEmpty());
}

TEST_F(DownloadAnswerTest, isPatientWithASlowServer)
{
    server.on(file, [](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(200, "Content-Length: 8\n"));
        for (int i = 0; i < 8; ++i) {
            std::this_thread::sleep_for(300ms);
            connection.send("x");
        }
    });

    EXPECT_TRUE(downloadWithin(2s, file).value) << "It took longer, but was never silent so long.";
}

TEST_F(DownloadAnswerTest, explainsANetworkErrorInOneSentence)
{
    const auto refused = download(QUrl(QStringLiteral("http://127.0.0.1:1/file.zip")));
    EXPECT_TRUE(refused.isPlatformError);
    EXPECT_EQ(
        refused.sentence,
        QStringLiteral("Could not download “http://127.0.0.1:1/file.zip”: Connection refused."));

    const auto unknown = download(QUrl(QStringLiteral("http://no-such-host.invalid/file.zip")));
    EXPECT_TRUE(unknown.isPlatformError);
    EXPECT_TRUE(unknown.sentence.contains(QStringLiteral("no-such-host.invalid")));
    EXPECT_FALSE(unknown.sentence.contains(QStringLiteral("stalled")));
    EXPECT_FALSE(unknown.sentence.contains(u'\n'));
}
