// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QHash>
#include <QList>
#include <QString>
#include <QUrl>

#include <functional>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

/// An HTTP server on the loopback interface, which can also send invalid responses. Each connection
/// has its own thread, serves one request and is then closed.
class HttpServer final
{
public:
    /// The server's end of a connection.
    class Connection final
    {
    public:
        explicit Connection(int socket)
            : m_socket(socket)
        {
        }

        /// Sends all of `bytes`. Returns false if the client has closed the connection.
        bool send(QByteArrayView bytes) const;
        /// Blocks until the client closes the connection.
        void waitForHangUp() const;

    private:
        int m_socket;
    };
    using Handler = std::function<void(const Connection&)>;

    HttpServer();
    ~HttpServer();

    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;

    /// Matches every path without a handler.
    static const QString anyPath;

    /// Calls `handler` for the requests of `path`. A path without a handler gets a 404.
    void on(const QString& path, Handler handler);

    /// A response with Content-Length and a body.
    static Handler reply(int status, const QByteArray& body, const QByteArray& headers = {});
    /// A response without Content-Length. The body ends with the connection.
    static Handler replyWithoutLength(const QByteArray& body);
    static Handler redirect(int status, const QUrl& to);
    /// No response; the connection stays open.
    static Handler silence();
    /// A status line, `headers`, of which each ends with a line feed, and the empty line.
    static QByteArray head(int status, const QByteArray& headers);

    /// "http://127.0.0.1:<port>".
    [[nodiscard]] QString host() const;
    [[nodiscard]] QUrl url(const QString& path) const;

    /// The heads of all requests so far.
    [[nodiscard]] QList<QByteArray> requests() const;
    /// Waits until `count` requests have arrived. Returns false after 60 s.
    [[nodiscard]] bool waitForRequests(int count) const;

private:
    void accept();
    void serve(int socket);
    [[nodiscard]] Handler handlerFor(const QByteArray& requestHead);

    int m_listener = -1;
    quint16 m_port = 0;
    mutable std::mutex m_mutex;
    QHash<QByteArray, Handler> m_handlers;
    QList<QByteArray> m_requests;
    std::set<int> m_open;
    std::vector<std::thread> m_connections;
    std::thread m_acceptor;
};
