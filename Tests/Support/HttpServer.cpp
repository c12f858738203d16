// SPDX-License-Identifier: MIT
#include "Support/HttpServer.h"

#include <gtest/gtest.h>

#include <QTest>

#include <array>
#include <utility>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

/// Reads the request up to the empty line, or less if the client closes the connection.
QByteArray readHead(int socket)
{
    QByteArray head;
    std::array<char, 4096> buffer = {};
    while (!head.contains("\r\n\r\n")) {
        const auto count = ::recv(socket, buffer.data(), buffer.size(), 0);
        if (count <= 0)
            break;
        head.append(buffer.data(), count);
    }
    return head;
}

} // namespace

const QString HttpServer::anyPath = u"*"_s;

bool HttpServer::Connection::send(QByteArrayView bytes) const
{
    while (!bytes.isEmpty()) {
        const auto count =
            ::send(m_socket, bytes.data(), static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL);
        if (count <= 0)
            return false;
        bytes = bytes.sliced(count);
    }
    return true;
}

void HttpServer::Connection::waitForHangUp() const
{
    std::array<char, 256> ignored = {};
    while (::recv(m_socket, ignored.data(), ignored.size(), 0) > 0) {
    }
}

HttpServer::HttpServer()
    : m_listener(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    EXPECT_EQ(::bind(m_listener, generic, size), 0);
    EXPECT_EQ(::listen(m_listener, 16), 0);
    EXPECT_EQ(::getsockname(m_listener, generic, &size), 0);
    m_port = ntohs(address.sin_port);
    m_acceptor = std::thread([this] { accept(); });
}

HttpServer::~HttpServer()
{
    ::shutdown(m_listener, SHUT_RDWR);
    m_acceptor.join();
    {
        const std::lock_guard lock(m_mutex);
        for (const auto socket : m_open)
            ::shutdown(socket, SHUT_RDWR);
    }
    for (auto& connection : m_connections)
        connection.join();
    ::close(m_listener);
}

void HttpServer::on(const QString& path, Handler handler)
{
    const std::lock_guard lock(m_mutex);
    m_handlers.insert(path.toUtf8(), std::move(handler));
}

HttpServer::Handler HttpServer::reply(int status, const QByteArray& body, const QByteArray& headers)
{
    return [=](const Connection& connection) {
        connection.send(
            head(status, "Content-Length: " + QByteArray::number(body.size()) + '\n' + headers));
        connection.send(body);
    };
}

HttpServer::Handler HttpServer::replyWithoutLength(const QByteArray& body)
{
    return [=](const Connection& connection) {
        connection.send(head(200, {}));
        connection.send(body);
    };
}

HttpServer::Handler HttpServer::redirect(int status, const QUrl& to)
{
    return reply(status, "moved", "Location: " + to.toEncoded() + '\n');
}

HttpServer::Handler HttpServer::silence()
{
    return [](const Connection& connection) { connection.waitForHangUp(); };
}

QByteArray HttpServer::head(int status, const QByteArray& headers)
{
    auto text =
        "HTTP/1.1 " + QByteArray::number(status) + " Answer\nConnection: close\n" + headers + '\n';
    return text.replace("\n", "\r\n");
}

QString HttpServer::host() const
{
    return u"http://127.0.0.1:%1"_s.arg(m_port);
}

QUrl HttpServer::url(const QString& path) const
{
    return QUrl(host() + path);
}

QList<QByteArray> HttpServer::requests() const
{
    const std::lock_guard lock(m_mutex);
    return m_requests;
}

bool HttpServer::waitForRequests(int count) const
{
    return QTest::qWaitFor([&] { return requests().size() >= count; }, 60'000);
}

void HttpServer::accept()
{
    while (true) {
        const auto socket = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
        if (socket < 0)
            return;
        const std::lock_guard lock(m_mutex);
        m_open.insert(socket);
        m_connections.emplace_back([this, socket] { serve(socket); });
    }
}

void HttpServer::serve(int socket)
{
    const auto requestHead = readHead(socket);
    if (!requestHead.isEmpty())
        handlerFor(requestHead)(Connection(socket));
    const std::lock_guard lock(m_mutex);
    m_open.erase(socket);
    ::close(socket);
}

HttpServer::Handler HttpServer::handlerFor(const QByteArray& requestHead)
{
    const std::lock_guard lock(m_mutex);
    m_requests.append(requestHead);
    const auto others = m_handlers.value(anyPath.toUtf8(), reply(404, "not here"));
    return m_handlers.value(requestHead.split(' ').value(1), others);
}
