// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QUrl>

#include <chrono>
#include <functional>
#include <stop_token>

/// Receives the response of httpGet(), on its thread. An exception ends the transfer; httpGet()
/// rethrows it.
struct HttpReceiver
{
    /// Called once, before the body of the final response. `length` is the announced size of the
    /// body in bytes, or -1.
    std::function<void(int status, qint64 length)> begin;
    /// Called with each piece of the body, which is valid only during the call.
    std::function<void(QByteArrayView piece)> take;
};

/// Requests `url` and passes the final response to `receiver`, whatever its status. Blocks.
///
/// Follows at most ten redirects, only to https on GitHub's hosts and to the host of `url`. The
/// body is not decoded. Nothing is cached.
///
/// Throws PlatformError, with a sentence that says what the player can do, if the network or the
/// proxy fails, if a server sends nothing for `stallTimeout`, or if a redirect is refused. Throws
/// Cancelled within a second after `stop` is requested.
void httpGet(const QUrl& url, const HttpReceiver& receiver, std::chrono::milliseconds stallTimeout,
             const std::stop_token& stop);
