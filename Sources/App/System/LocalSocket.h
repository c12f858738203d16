// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QByteArray>

/// Non-blocking Unix domain sockets. QLocalSocket would load Qt Network and eight more libraries at
/// every start.
///
/// The name is in the abstract namespace if the system has one; else it is a file in the temporary
/// folder.
namespace LocalSocket {

/// Returns a socket that listens; a closed one if another process listens, or on any failure.
FileDescriptor listen(const QByteArray& name);

/// Returns a connected socket; a closed one if no process of this user listens, or on any failure.
FileDescriptor connect(const QByteArray& name);

/// Returns the next connection to `listener`; a closed one if there is none. Refuses connections of
/// other users.
FileDescriptor accept(const FileDescriptor& listener);

/// Sends `bytes`. Bytes that do not fit into the socket's buffer are lost.
void send(const FileDescriptor& socket, const QByteArray& bytes);

/// Appends the received bytes to `buffer`. Returns false at the end of the connection.
bool receive(const FileDescriptor& socket, QByteArray& buffer);

} // namespace LocalSocket
