// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QUrl>

#include <atomic>
#include <chrono>
#include <exception>
#include <memory>

class HttpReceiver;
class QNetworkReply;
class QObject;
class QTimer;

/// One HTTP GET, served on the network thread.
///
/// Redirects are followed, though never from https to http. The body arrives as the server sent it,
/// in pieces, and is never held in memory as a whole: a receiver slower than the server slows the
/// server down. Nothing is cached or remembered after the transfer.
class HttpTransfer final : public std::enable_shared_from_this<HttpTransfer>
{
public:
    /// Starts the transfer of `url` into `receiver`. It fails with a PlatformError when the network
    /// fails, or when the server does not answer within `stallLimit` or is silent for so long. The
    /// transfer keeps itself alive until it has ended, and `receiver` is released on the network
    /// thread before that.
    static std::shared_ptr<HttpTransfer> start(const QUrl& url,
                                               std::unique_ptr<HttpReceiver> receiver,
                                               std::chrono::milliseconds stallLimit);
    ~HttpTransfer();

    /// Ends the transfer with Cancelled; harmless once it has ended. Any thread.
    void cancel();

private:
    HttpTransfer(QUrl url, std::unique_ptr<HttpReceiver> receiver,
                 std::chrono::milliseconds stallLimit);

    void open();
    void connectReply();
    void readHead();
    void readBody();
    void replyFinished();
    void stalled();

    void complete();
    void fail(const std::exception_ptr& error);
    /// Runs `step`; what it throws ends the transfer.
    template<typename Step>
    void guarded(Step&& step);
    void closeConnection();

    QUrl m_url;
    std::unique_ptr<HttpReceiver> m_receiver;
    std::chrono::milliseconds m_stallLimit;
    std::atomic<bool> m_cancelled = false;

    // Used on the network thread only, and gone once the transfer has ended.
    QObject* m_connection = nullptr;
    QNetworkReply* m_reply = nullptr;
    QTimer* m_stallTimer = nullptr;
    QByteArray m_buffer;
    bool m_headRead = false;
    qint64 m_length = -1;
    qint64 m_received = 0;
};
