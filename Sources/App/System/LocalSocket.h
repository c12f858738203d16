// SPDX-License-Identifier: MIT
#pragma once

#include "System/FileDescriptor.h"

#include <QByteArray>

/// Non-blocking stream sockets between processes of one machine. QLocalSocket would load Qt Network
/// and eight further libraries at every start.
///
/// Where the system has an abstract namespace the name lies there, so that no file is left behind;
/// elsewhere it is a file in the temporary folder.
namespace LocalSocket {

/// Returns a socket that listens; a closed one if another process listens, or on any failure.
FileDescriptor listen(const QByteArray& name);

/// Returns a connected socket; a closed one if no process of this user listens, or on any failure.
FileDescriptor connect(const QByteArray& name);

/// Returns the next connection to `listener`; a closed one if there is none. One of another user is
/// refused: every user of the machine can connect.
FileDescriptor accept(const FileDescriptor& listener);

/// Sends `bytes`, which must be few. What the other end does not take is lost.
void send(const FileDescriptor& socket, const QByteArray& bytes);

/// Appends what has come to `buffer`. Returns false at the end of the connection.
bool receive(const FileDescriptor& socket, QByteArray& buffer);

} // namespace LocalSocket
