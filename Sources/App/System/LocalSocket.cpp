// SPDX-License-Identifier: MIT
#include "System/LocalSocket.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <tuple>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace {

#if defined(Q_OS_LINUX)
constexpr int sendFlags = MSG_NOSIGNAL;
#else
constexpr int sendFlags = 0;
#endif

class Address final
{
public:
    explicit Address(const QByteArray& name)
    {
#if defined(Q_OS_LINUX)
        const auto path = '\0' + name;
#else
        const auto path = QFile::encodeName(QDir::tempPath()) + '/' + name + '\0';
#endif
        const auto length =
            std::min(static_cast<std::size_t>(path.size()), sizeof m_address.sun_path);
        std::copy_n(path.constData(), length, m_address.sun_path);
        m_address.sun_family = AF_UNIX;
        m_size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + length);
    }

    [[nodiscard]] const sockaddr* get() const
    {
        return reinterpret_cast<const sockaddr*>(&m_address);
    }
    [[nodiscard]] socklen_t size() const { return m_size; }
    [[nodiscard]] const char* path() const { return m_address.sun_path; }

private:
    sockaddr_un m_address = {};
    socklen_t m_size = 0;
};

FileDescriptor prepared(int descriptor)
{
    FileDescriptor socket(descriptor);
    ::fcntl(socket.get(), F_SETFD, FD_CLOEXEC);
    makeNonBlocking(socket);
#if !defined(Q_OS_LINUX)
    const int on = 1;
    ::setsockopt(socket.get(), SOL_SOCKET, SO_NOSIGPIPE, &on, sizeof on);
#endif
    return socket;
}

bool isOwnUser(const FileDescriptor& socket)
{
#if defined(Q_OS_LINUX)
    ucred peer = {};
    socklen_t size = sizeof peer;
    return ::getsockopt(socket.get(), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == ::geteuid();
#else
    uid_t user = 0;
    gid_t group = 0;
    return ::getpeereid(socket.get(), &user, &group) == 0 && user == ::geteuid();
#endif
}

} // namespace

FileDescriptor LocalSocket::listen(const QByteArray& name)
{
    const Address address(name);
#if !defined(Q_OS_LINUX)
    // A killed process leaves the file.
    ::unlink(address.path());
#endif
    auto socket = prepared(::socket(AF_UNIX, SOCK_STREAM, 0));
    if (::bind(socket.get(), address.get(), address.size()) != 0 ||
        ::listen(socket.get(), SOMAXCONN) != 0)
        return {};
    return socket;
}

FileDescriptor LocalSocket::connect(const QByteArray& name)
{
    const Address address(name);
    auto socket = prepared(::socket(AF_UNIX, SOCK_STREAM, 0));
    if (::connect(socket.get(), address.get(), address.size()) != 0 || !isOwnUser(socket))
        return {};
    return socket;
}

FileDescriptor LocalSocket::accept(const FileDescriptor& listener)
{
    while (true) {
        auto socket = prepared(::accept(listener.get(), nullptr, nullptr));
        if (!socket.isOpen() || isOwnUser(socket))
            return socket;
    }
}

void LocalSocket::send(const FileDescriptor& socket, const QByteArray& bytes)
{
    std::ignore =
        ::send(socket.get(), bytes.constData(), static_cast<std::size_t>(bytes.size()), sendFlags);
}

bool LocalSocket::receive(const FileDescriptor& socket, QByteArray& buffer)
{
    std::array<char, 4096> bytes; // NOLINT(*-member-init): recv() fills it.
    const auto count = ::recv(socket.get(), bytes.data(), bytes.size(), 0);
    if (count > 0)
        buffer.append(bytes.data(), count);
    return count > 0 || (count < 0 && (errno == EAGAIN || errno == EINTR));
}
