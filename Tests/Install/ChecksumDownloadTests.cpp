// SPDX-License-Identifier: MIT
#include "Install/ChecksumList.h"

#include "Support/Eventually.h"
#include "Support/HttpServer.h"
#include "Support/WebHostScope.h"

#include <gtest/gtest.h>

#include <stop_token>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

constexpr qsizetype mebibyte = qsizetype{1024} * 1024;
const auto tooLarge = u"The engine checksum list is larger than 1 MiB, so it was not read."_s;

class ChecksumDownloadTest : public testing::Test
{
protected:
    Outcome<QByteArray> download(const HttpServer::Handler& handler,
                                 std::chrono::milliseconds stallTimeout = 20s)
    {
        server.on(HttpServer::anyPath, handler);
        return outcomeOf([&] {
            return ChecksumList::download(server.url(u"/list"_s), stallTimeout, stop.get_token());
        });
    }

    HttpServer server;
    const WebHostScope host{server.host()};
    std::stop_source stop;
};

} // namespace

TEST_F(ChecksumDownloadTest, returnsTheBytesOfTheList)
{
    EXPECT_EQ(download(HttpServer::reply(200, "the list\r\n")).value, "the list\r\n");
    EXPECT_EQ(download(HttpServer::reply(200, {})).value, "");
}

TEST_F(ChecksumDownloadTest, acceptsNoStatusBut200)
{
    const auto outcome = download(HttpServer::reply(404, "the list"));

    EXPECT_TRUE(outcome.isAppError);
    EXPECT_EQ(outcome.sentence, u"Could not read the engine checksum list (HTTP 404)."_s);
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
    EXPECT_TRUE(outcome.sentence.contains(u"stalled: 127.0.0.1 did not answer"_s));
}

TEST_F(ChecksumDownloadTest, endsWithCancelled)
{
    const auto outcome = download([this](const HttpServer::Connection& connection) {
        stop.request_stop();
        connection.waitForHangUp();
    });

    EXPECT_TRUE(outcome.isCancelled);
}
