// SPDX-License-Identifier: MIT
#include "Install/HttpTransfer.h"

#include "Install/HttpReceiver.h"
#include "Platform/Cancelled.h"
#include "Platform/PlatformError.h"
#include "Platform/ServiceThread.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

#include <utility>

namespace {

/// What the network may hold of a body that the receiver has not taken yet.
constexpr qint64 readAhead = qint64{4} * 1024 * 1024;
constexpr qsizetype pieceSize = qsizetype{256} * 1024;

QNetworkRequest requestFor(const QUrl& url)
{
    QNetworkRequest request(url);
    // A compressed body would be unpacked on the way, so that neither its length nor an early end
    // of it could be told.
    request.setRawHeader("Accept-Encoding", "identity");
    // The bound of the read buffer holds for HTTP/1 only.
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    return request;
}

bool isRedirect(const QNetworkReply& reply, int status)
{
    const auto followed =
        status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
    return followed && reply.hasRawHeader("Location");
}

PlatformError transferError(const QUrl& url, const QString& reason)
{
    return PlatformError::fromReason(PlatformError::tr("download “%1”").arg(url.toDisplayString()),
                                     reason.simplified());
}

QString inSeconds(std::chrono::milliseconds span)
{
    return QString::number(std::chrono::duration<double>(span).count());
}

} // namespace

std::shared_ptr<HttpTransfer> HttpTransfer::start(const QUrl& url,
                                                  std::unique_ptr<HttpReceiver> receiver,
                                                  std::chrono::milliseconds stallLimit)
{
    const std::shared_ptr<HttpTransfer> transfer(
        new HttpTransfer(url, std::move(receiver), stallLimit));
    ServiceThread::network().post([transfer] { transfer->open(); });
    return transfer;
}

HttpTransfer::HttpTransfer(QUrl url, std::unique_ptr<HttpReceiver> receiver,
                           std::chrono::milliseconds stallLimit)
    : m_url(std::move(url))
    , m_receiver(std::move(receiver))
    , m_stallLimit(stallLimit)
{
}

HttpTransfer::~HttpTransfer() = default;

void HttpTransfer::cancel()
{
    // The flag reaches a transfer that has not been opened yet, the call one that has.
    m_cancelled = true;
    ServiceThread::network().post(
        [self = shared_from_this()] { self->fail(std::make_exception_ptr(Cancelled())); });
}

void HttpTransfer::open()
{
    if (m_cancelled) {
        fail(std::make_exception_ptr(Cancelled()));
        return;
    }
    m_connection = new QObject;
    auto* const manager = new QNetworkAccessManager(m_connection);
    m_reply = manager->get(requestFor(m_url));
    m_reply->setReadBufferSize(readAhead);
    m_stallTimer = new QTimer(m_connection);
    m_stallTimer->setSingleShot(true);
    m_stallTimer->setTimerType(Qt::PreciseTimer); // A coarse one may come too early.
    m_stallTimer->setInterval(m_stallLimit);
    m_buffer.resize(pieceSize);
    connectReply();
    m_stallTimer->start();
}

void HttpTransfer::connectReply()
{
    // The connections own the transfer, and the transfer cuts them when it ends.
    const auto on = [this](auto* sender, auto signal, auto slot) {
        QObject::connect(sender, signal, m_connection,
                         [self = shared_from_this(), slot] { ((*self).*slot)(); });
    };
    on(m_reply, &QNetworkReply::metaDataChanged, &HttpTransfer::readHead);
    on(m_reply, &QNetworkReply::readyRead, &HttpTransfer::readBody);
    on(m_reply, &QNetworkReply::finished, &HttpTransfer::replyFinished);
    on(m_stallTimer, &QTimer::timeout, &HttpTransfer::stalled);
    QObject::connect(m_reply, &QNetworkReply::redirected, m_stallTimer,
                     [timer = m_stallTimer] { timer->start(); });
}

void HttpTransfer::readHead()
{
    if (m_headRead)
        return;
    m_stallTimer->start();
    const auto status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (isRedirect(*m_reply, status) && !m_reply->isFinished())
        return;
    m_headRead = true;
    const auto length = m_reply->header(QNetworkRequest::ContentLengthHeader);
    m_length = length.isValid() ? length.toLongLong() : -1;
    guarded([this, status] { m_receiver->begin(status, m_length); });
}

void HttpTransfer::readBody()
{
    readHead();
    while (m_reply && m_reply->bytesAvailable() > 0) {
        m_stallTimer->start();
        const auto size = m_reply->read(m_buffer.data(), m_buffer.size());
        if (size <= 0)
            return;
        m_received += size;
        guarded([&] { m_receiver->take(QByteArrayView(m_buffer).first(size)); });
    }
}

void HttpTransfer::replyFinished()
{
    // An answer's status counts more than the error that the library makes of it; but a redirect
    // that was not followed is the library's to explain.
    const auto status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
    const auto failed = m_reply->error() != QNetworkReply::NoError;
    if (status.isValid() && !(failed && isRedirect(*m_reply, status.toInt())))
        readBody();
    if (!m_reply)
        return;
    if (failed) {
        fail(std::make_exception_ptr(transferError(m_url, m_reply->errorString())));
    } else if (m_length >= 0 && m_received != m_length) {
        fail(std::make_exception_ptr(
            transferError(m_url, QStringLiteral("The connection ended too early"))));
    } else {
        complete();
    }
}

void HttpTransfer::stalled()
{
    // Before the head has come, the time counts from the request, whatever drips in.
    const auto sentence =
        m_headRead
            ? PlatformError::tr("The download of “%1” stalled: %2 sent nothing for %3 seconds.")
            : PlatformError::tr(
                  "The download of “%1” stalled: %2 did not answer within %3 seconds.");
    fail(std::make_exception_ptr(PlatformError(
        sentence.arg(m_url.toDisplayString(), m_reply->url().host(), inSeconds(m_stallLimit)))));
}

void HttpTransfer::complete()
{
    guarded([this] {
        m_receiver->complete();
        m_receiver.reset();
        closeConnection();
    });
}

void HttpTransfer::fail(const std::exception_ptr& error)
{
    if (!m_receiver)
        return;
    closeConnection();
    const auto receiver = std::exchange(m_receiver, nullptr);
    receiver->fail(error);
}

template<typename Step>
void HttpTransfer::guarded(Step&& step)
{
    try {
        step();
    } catch (...) {
        fail(std::current_exception());
    }
}

void HttpTransfer::closeConnection()
{
    if (!m_connection)
        return;
    // Not abort(): within a call of the reply's the library then reports a second error. Deleting
    // the manager ends the reply too, once that call has returned.
    m_reply->disconnect(m_connection);
    m_stallTimer->stop();
    std::exchange(m_connection, nullptr)->deleteLater();
    m_reply = nullptr;
    m_stallTimer = nullptr;
    m_buffer.clear();
}
