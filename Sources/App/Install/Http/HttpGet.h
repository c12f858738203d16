// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QUrl>

#include <chrono>
#include <functional>
#include <stop_token>

/// Takes what an HTTP GET brings, on the thread that runs it. What either function throws ends the
/// transfer and is thrown by it.
struct HttpReceiver
{
    /// The final answer has come; `length` is the announced size of its body in bytes, or -1.
    /// Called once, before the body.
    std::function<void(int status, qint64 length)> begin;
    /// The next piece of the body, valid during the call only.
    std::function<void(QByteArrayView piece)> take;
};

/// GETs `url` and hands the final answer to `receiver`. Blocks until all of it has come.
///
/// Redirects are followed, at most ten, to https on GitHub's hosts and to the host of `url` only.
/// The body comes as the server sent it, in pieces, and is never held in memory as a whole. Nothing
/// is cached or remembered.
///
/// Throws PlatformError, with a sentence that says what the player can do, if the network or the
/// proxy fails, if a server does not answer or is silent for `stallTimeout`, and for a redirect
/// that is not followed. Throws Cancelled within a second after `stop` is requested.
void httpGet(const QUrl& url, const HttpReceiver& receiver, std::chrono::milliseconds stallTimeout,
             const std::stop_token& stop);
