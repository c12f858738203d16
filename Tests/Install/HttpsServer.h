// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QList>
#include <QSslConfiguration>
#include <QSslServer>
#include <QUrl>

/// An HTTPS server on the loopback interface that gives the same answer to every request, under a
/// certificate of its own that this program trusts while the server lives. It offers HTTP/2, though
/// it speaks HTTP/1.1 only. Served by the event loop.
class HttpsServer final
{
public:
    explicit HttpsServer(const QByteArray& answer);
    ~HttpsServer();

    HttpsServer(const HttpsServer&) = delete;
    HttpsServer& operator=(const HttpsServer&) = delete;

    [[nodiscard]] QUrl url(const QString& path) const;
    /// The protocol that each client chose, e.g. "http/1.1"; empty when it named none.
    [[nodiscard]] const QList<QByteArray>& protocols() const { return m_protocols; }

private:
    void serve();

    const QByteArray m_answer;
    const QSslConfiguration m_trustBefore;
    QSslServer m_server;
    QList<QByteArray> m_protocols;
};
