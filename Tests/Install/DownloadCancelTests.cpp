// SPDX-License-Identifier: MIT
#include "FileDownloaderTest.h"

#include <thread>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

class DownloadCancelTest : public FileDownloaderTest
{
protected:
    /// Downloads and requests the stop when the server has been asked.
    Outcome<QString> downloadAndCancel(const QUrl& url)
    {
        const std::jthread canceller([this](const std::stop_token& ended) {
            while (server.requests().isEmpty() && !ended.stop_requested())
                std::this_thread::sleep_for(1ms);
            stop.request_stop();
        });
        return download(url);
    }
};

const auto file = u"/file.zip"_s;

} // namespace

TEST_F(DownloadCancelTest, endsWithCancelledAtOnceWhileTheServerIsSilent)
{
    server.on(file, HttpServer::silence());
    const auto start = std::chrono::steady_clock::now();

    EXPECT_TRUE(downloadAndCancel(server.url(file)).isCancelled);

    // Long before the stall timeout.
    EXPECT_LT(std::chrono::steady_clock::now() - start, 20s);
}

TEST_F(DownloadCancelTest, endsWithCancelledInTheMiddleOfABodyAndLeavesNothing)
{
    server.on(file, [](const HttpServer::Connection& connection) {
        connection.send(HttpServer::head(200, {}));
        while (connection.send(QByteArray(64 * 1024, 'x'))) {
        }
    });
    onProgress = [this] {
        if (progress.size() > 3)
            stop.request_stop();
    };

    EXPECT_TRUE(download(file).isCancelled);
    EXPECT_TRUE(folder.names().isEmpty());
}

TEST_F(DownloadCancelTest, asksNoServerWhenAskedBeforehand)
{
    stop.request_stop();

    EXPECT_TRUE(download(file).isCancelled);
    EXPECT_TRUE(server.requests().isEmpty());
    EXPECT_TRUE(folder.names().isEmpty());
}
