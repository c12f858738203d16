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

/// A real HTTP server on the loopback interface that answers as badly as a test needs. Each
/// connection serves one request on a thread of its own and is then closed.
class HttpServer final
{
public:
    /// The answering end of one connection.
    class Connection final
    {
    public:
        explicit Connection(int socket)
            : m_socket(socket)
        {
        }

        /// Sends all of `bytes`. Returns false once the client has gone.
        bool send(QByteArrayView bytes) const;
        /// Stays silent until the client hangs up.
        void waitForHangUp() const;

    private:
        int m_socket;
    };
    using Handler = std::function<void(const Connection&)>;

    HttpServer();
    ~HttpServer();

    HttpServer(const HttpServer&) = delete;
    HttpServer& operator=(const HttpServer&) = delete;

    /// As a path: every path that has no handler of its own.
    static const QString anyPath;

    /// Answers the requests of `path` with what `handler` sends. Others get a 404.
    void on(const QString& path, Handler handler);

    /// An answer with a length and a body.
    static Handler reply(int status, const QByteArray& body, const QByteArray& headers = {});
    /// An answer whose body ends with the connection, and has no length.
    static Handler replyWithoutLength(const QByteArray& body);
    static Handler redirect(int status, const QUrl& to);
    /// An answer that never begins.
    static Handler silence();
    /// A status line and headers, each given line ended by a line feed, and the empty line.
    static QByteArray head(int status, const QByteArray& headers);

    /// "http://127.0.0.1:<port>".
    [[nodiscard]] QString host() const;
    [[nodiscard]] QUrl url(const QString& path) const;

    /// The heads of all requests so far.
    [[nodiscard]] QList<QByteArray> requests() const;
    /// Waits until `count` requests have come. Returns false after 20 s.
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
