// SPDX-License-Identifier: MIT
#include "Install/ChecksumDownload.h"

#include "Support/Eventually.h"
#include "Support/HttpServer.h"

#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

constexpr qsizetype mebibyte = qsizetype{1024} * 1024;
const auto tooLarge =
    QStringLiteral("The engine checksum list is larger than 1 MiB, so it was not read.");

class ChecksumDownloadTest : public testing::Test
{
protected:
    Outcome<QByteArray> download(const HttpServer::Handler& handler,
                                 std::chrono::milliseconds stallLimit = 20s)
    {
        server.on(HttpServer::anyPath, handler);
        const ChecksumDownload download(server.url(QStringLiteral("/list")), stallLimit);
        return eventually(download.list());
    }

    HttpServer server;
};

} // namespace

TEST_F(ChecksumDownloadTest, givesTheBytesOfTheList)
{
    EXPECT_EQ(download(HttpServer::reply(200, "the list\r\n")).value, "the list\r\n");
    EXPECT_EQ(download(HttpServer::reply(200, {})).value, "");
}

TEST_F(ChecksumDownloadTest, acceptsNoStatusBut200)
{
    const auto outcome = download(HttpServer::reply(404, "the list"));

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence,
              QStringLiteral("Could not read the engine checksum list (HTTP 404)."));
}

TEST_F(ChecksumDownloadTest, readsAListOfExactlyTheLargestSize)
{
    EXPECT_EQ(download(HttpServer::reply(200, QByteArray(mebibyte, 'x'))).value->size(), mebibyte);
}

TEST_F(ChecksumDownloadTest, refusesALargerListByItsAnnouncedLength)
{
    const auto outcome = download([](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(200, "Content-Length: 1048577\n"));
        connection.waitForHangUp();
    });

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence, tooLarge);
}

TEST_F(ChecksumDownloadTest, refusesAListThatNeverEnds)
{
    const auto outcome = download([](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(200, {}));
        while (connection.send(QByteArray(64 * 1024, 'x'))) {
        }
    });

    EXPECT_EQ(outcome.sentence, tooLarge);
}

TEST_F(ChecksumDownloadTest, saysThatASilentServerStalled)
{
    const auto outcome = download(HttpServer::silence(), 300ms);

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(outcome.sentence.contains(QStringLiteral("stalled: 127.0.0.1 did not answer")));
}

TEST_F(ChecksumDownloadTest, endsWithCancelled)
{
    server.on(HttpServer::anyPath, HttpServer::silence());
    ChecksumDownload download(server.url(QStringLiteral("/list")), 20s);
    ASSERT_TRUE(server.waitForRequests(1));

    download.cancel();

    EXPECT_TRUE(eventually(download.list()).isCancelled);
}
