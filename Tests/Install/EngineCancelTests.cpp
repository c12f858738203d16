// SPDX-License-Identifier: MIT
#include "EngineManagerTest.h"

namespace {

using EngineCancelTest = EngineManagerTest;

const auto checking =
    QStringLiteral("Checking the download against the official SHA-512 checksum…");
const auto checksumOk = QStringLiteral("Checksum OK.");

} // namespace

TEST_F(EngineCancelTest, endsWithCancelledWhileItReadsTheList)
{
    server.on(releasePath(QStringLiteral("SHA512-SUMS.txt")), HttpServer::silence());
    auto task = startInstall();
    ASSERT_TRUE(server.waitForRequests(1));

    stop.request_stop();

    EXPECT_TRUE(eventually(std::move(task)).isCancelled);
    EXPECT_FALSE(home.exists(root({})));
}

TEST_F(EngineCancelTest, endsWithCancelledWhileItDownloads)
{
    installOldEngine();
    serve(engineArchive());
    server.on(releasePath(engine.archiveName()), HttpServer::silence());
    auto task = startInstall();
    ASSERT_TRUE(server.waitForRequests(2));

    stop.request_stop();

    EXPECT_TRUE(eventually(std::move(task)).isCancelled);
    expectOldEngine();
}

TEST_F(EngineCancelTest, endsWithCancelledBeforeTheDigestOrTheUnpacking)
{
    installOldEngine();
    serve(engineArchive());
    for (const auto& line : {checking, checksumOk}) {
        stop = std::stop_source();
        stopAtLine(line);

        EXPECT_TRUE(install().isCancelled);

        EXPECT_EQ(lines().last(), line);
        expectOldEngine();
    }
}
