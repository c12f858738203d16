// SPDX-License-Identifier: MIT
#include "EngineManagerTest.h"

using EngineCancelTest = EngineManagerTest;

TEST_F(EngineCancelTest, endsWithCancelledWhileItReadsTheList)
{
    server.on(listPath(), HttpServer::silence());
    const auto installing = startInstall();
    ASSERT_TRUE(server.waitForRequests(1));

    stop.request_stop();

    EXPECT_TRUE(eventually(installing).isCancelled);
    EXPECT_FALSE(exists({}));
}

TEST_F(EngineCancelTest, endsWithCancelledWhileItDownloads)
{
    installOldEngine();
    serveEngine(engineArchive());
    server.on(enginePath(engine), HttpServer::silence());
    const auto installing = startInstall();
    ASSERT_TRUE(server.waitForRequests(2));

    stop.request_stop();

    EXPECT_TRUE(eventually(installing).isCancelled);
    expectOldEngine();
}

TEST_F(EngineCancelTest, endsWithCancelledBeforeTheDigestOrTheUnpacking)
{
    installOldEngine();
    serveEngine(engineArchive());
    for (const auto& line : {checking, checksumOk}) {
        stop = std::stop_source();
        stopAtLine(line);

        EXPECT_TRUE(install().isCancelled);

        EXPECT_EQ(lines().last(), line);
        clearLeftovers();
        expectOldEngine();
    }
}
