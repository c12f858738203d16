// SPDX-License-Identifier: MIT
#include "FileDownloaderTest.h"
#include "HttpsServer.h"

namespace {

using HttpsTest = FileDownloaderTest;

} // namespace

TEST_F(HttpsTest, downloadsFromAServerWithATrustedCertificate)
{
    const HttpsServer secure(HttpServer::head(200, "Content-Length: 9\n") + "the bytes");

    EXPECT_EQ(download(secure.url(QStringLiteral("/file.zip"))).sentence, QString());

    EXPECT_EQ(folder.read(QStringLiteral("file.zip")), "the bytes");
}

TEST_F(HttpsTest, failsOnACertificateThatNobodyVouchesFor)
{
    const HttpsServer secure(HttpServer::head(200, "Content-Length: 9\n") + "the bytes");
    QSslConfiguration::setDefaultConfiguration(QSslConfiguration());

    EXPECT_TRUE(download(secure.url(QStringLiteral("/file.zip"))).isPlatformError);
    EXPECT_TRUE(folder.names().isEmpty());
}

TEST_F(HttpsTest, isNotLedFromHttpsToHttp)
{
    server.on(QStringLiteral("/plain"), HttpServer::reply(200, "not to be trusted"));
    const HttpsServer secure(HttpServer::head(
        302,
        "Content-Length: 0\nLocation: " + server.url(QStringLiteral("/plain")).toEncoded() + '\n'));

    const auto outcome = download(secure.url(QStringLiteral("/file.zip")));

    EXPECT_TRUE(outcome.isPlatformError);
    EXPECT_TRUE(server.requests().isEmpty());
    EXPECT_TRUE(folder.names().isEmpty());
}

TEST_F(HttpsTest, isLedFromHttpToHttps)
{
    const HttpsServer secure(HttpServer::head(200, "Content-Length: 9\n") + "the bytes");
    server.on(QStringLiteral("/file.zip"),
              HttpServer::redirect(302, secure.url(QStringLiteral("/elsewhere"))));

    EXPECT_EQ(download(QStringLiteral("/file.zip")).sentence, QString());
}

TEST_F(HttpsTest, doesNotSpeakHttp2)
{
    const HttpsServer secure(HttpServer::head(200, "Content-Length: 9\n") + "the bytes");

    EXPECT_TRUE(download(secure.url(QStringLiteral("/file.zip"))).value);

    ASSERT_FALSE(secure.protocols().isEmpty());
    EXPECT_NE(secure.protocols().first(), "h2");
}
