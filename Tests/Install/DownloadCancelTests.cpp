// SPDX-License-Identifier: MIT
#include "FileDownloaderTest.h"

namespace {

using DownloadCancelTest = FileDownloaderTest;

const auto file = QStringLiteral("/file.zip");

} // namespace

TEST_F(DownloadCancelTest, endsWithCancelledWhileTheServerIsSilent)
{
    server.on(file, HttpServer::silence());
    const auto pending = m_downloader.start(server.url(file), folder.path());
    ASSERT_TRUE(server.waitForRequests(1));

    m_downloader.cancel();
    m_downloader.cancel();

    EXPECT_TRUE(eventually(pending).isCancelled);
}

TEST_F(DownloadCancelTest, endsWithCancelledInTheMiddleOfABodyAndLeavesNothing)
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

TEST_F(DownloadCancelTest, endsWithCancelledWhenAskedBeforeTheTransferHasBegun)
{
    server.on(file, HttpServer::reply(200, "the bytes"));
    const auto pending = m_downloader.start(server.url(file), folder.path());

    m_downloader.cancel();

    EXPECT_TRUE(eventually(pending).isCancelled);
    EXPECT_TRUE(folder.names().isEmpty());
}

TEST_F(DownloadCancelTest, canBeUsedAgainAndForgetsAnOlderCancel)
{
    m_downloader.cancel();
    server.on(file, HttpServer::reply(200, "first"));
    EXPECT_TRUE(download(file).value);
    m_downloader.cancel();

    server.on(file, HttpServer::reply(200, "second"));
    EXPECT_TRUE(download(file).value);
    EXPECT_EQ(folder.read(QStringLiteral("file.zip")), "second");
}
