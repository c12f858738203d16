// SPDX-License-Identifier: MIT
#include "EngineManagerTest.h"

using namespace Qt::StringLiterals;

namespace {

using EngineCancelTest = EngineManagerTest;

const auto checking = u"Checking the download against the official SHA-512 checksum…"_s;
const auto checksumOk = u"Checksum OK."_s;

} // namespace

TEST_F(EngineCancelTest, endsWithCancelledWhileItReadsTheList)
{
    server.on(releasePath(u"SHA512-SUMS.txt"_s), HttpServer::silence());
    const auto installing = startInstall();
    ASSERT_TRUE(server.waitForRequests(1));

    stop.request_stop();

    EXPECT_TRUE(eventually(installing).isCancelled);
    EXPECT_FALSE(home.exists(root({})));
}

TEST_F(EngineCancelTest, endsWithCancelledWhileItDownloads)
{
    installOldEngine();
    serve(engineArchive());
    server.on(releasePath(engine.archiveName()), HttpServer::silence());
    const auto installing = startInstall();
    ASSERT_TRUE(server.waitForRequests(2));

    stop.request_stop();

    EXPECT_TRUE(eventually(installing).isCancelled);
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
        clearLeftovers();
        expectOldEngine();
    }
}
