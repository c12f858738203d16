// SPDX-License-Identifier: MIT
#include "FileDownloaderTest.h"
#include "HttpsServer.h"
#include "System/OffThread.h"

using namespace Qt::StringLiterals;

namespace {

using HttpsTest = FileDownloaderTest;

} // namespace

// That a server which the system trusts is accepted is shown end to end, with the system's own
// store of certificates.
TEST_F(HttpsTest, failsOnACertificateThatIsNotTrusted)
{
    const HttpsServer secure(HttpServer::head(200, "Content-Length: 9\n") + "the bytes");
    const auto url = secure.url(u"/file.zip"_s);

    // The server is served by the event loop.
    const auto outcome = await(offThread([&] { return download(url); }));

    EXPECT_EQ(outcome.sentence,
              u"Could not download “%1”: The certificate of “127.0.0.1” cannot be "
              "trusted. Another network may help."_s.arg(url.toString()));
    EXPECT_TRUE(folder.names().isEmpty());
}
