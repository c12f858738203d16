// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QSslServer>
#include <QUrl>

/// An HTTPS server on the loopback interface that sends the same answer to every request, under a
/// self-signed certificate. Served by the event loop.
class HttpsServer final
{
public:
    explicit HttpsServer(const QByteArray& answer);

    HttpsServer(const HttpsServer&) = delete;
    HttpsServer& operator=(const HttpsServer&) = delete;

    [[nodiscard]] QUrl url(const QString& path) const;

private:
    void serve();

    const QByteArray m_answer;
    QSslServer m_server;
};
