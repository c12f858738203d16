// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>

#include <exception>

/// Takes what an HttpTransfer brings. All calls come on the network thread, in this order: begin()
/// at most once, take() any number of times, then exactly one of complete() and fail(). What one of
/// the first three throws ends the transfer and comes back through fail().
class HttpReceiver
{
public:
    HttpReceiver() = default;
    virtual ~HttpReceiver() = default;

    HttpReceiver(const HttpReceiver&) = delete;
    HttpReceiver& operator=(const HttpReceiver&) = delete;

    /// The final answer's head has arrived; `length` is the announced size of the body in bytes, or
    /// -1. Nothing of the body is read when this throws.
    virtual void begin(int status, qint64 length) = 0;
    /// The next piece of the body, valid during the call only.
    virtual void take(QByteArrayView piece) = 0;
    /// The whole body has arrived.
    virtual void complete() = 0;
    /// The transfer ended early: an AppError, a PlatformError, or Cancelled.
    virtual void fail(const std::exception_ptr& error) noexcept = 0;
};
