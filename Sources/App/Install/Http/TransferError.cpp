// SPDX-License-Identifier: MIT
#include "Install/Http/TransferError.h"

#include <openssl/x509_vfy.h>

namespace {

QString certificateReason(const FailedRequest& request)
{
    switch (request.certificateError) {
    case X509_V_ERR_CERT_NOT_YET_VALID:
        return PlatformError::tr("The certificate of “%1” is not yet valid. Check the date and "
                                 "time of this computer.")
            .arg(request.host);
    case X509_V_ERR_CERT_HAS_EXPIRED:
        return PlatformError::tr("The certificate of “%1” has expired. Check the date and time of "
                                 "this computer.")
            .arg(request.host);
    // libcurl compares the host names itself, before it asks OpenSSL for the result.
    case X509_V_ERR_UNSPECIFIED:
    case X509_V_OK:
    case X509_V_ERR_HOSTNAME_MISMATCH:
        return PlatformError::tr("The certificate of “%1” belongs to another server. Another "
                                 "network may help.")
            .arg(request.host);
    default:
        return PlatformError::tr("The certificate of “%1” cannot be trusted. Another network may "
                                 "help.")
            .arg(request.host);
    }
}

QString proxyReason(const FailedRequest& request)
{
    if (request.result == CURLE_COULDNT_RESOLVE_PROXY) {
        return PlatformError::tr("The proxy “%1” was not found. Check the proxy settings.")
            .arg(request.proxy);
    }
    if (request.proxyStatus >= 300) {
        return PlatformError::tr("The proxy “%1” refused the connection (HTTP %2). Check the proxy "
                                 "settings.")
            .arg(request.proxy, QString::number(request.proxyStatus));
    }
    return PlatformError::tr("The proxy “%1” cannot be used. Check the proxy settings.")
        .arg(request.proxy);
}

/// Returns true if the proxy, not the host, is the cause.
bool failedAtProxy(const FailedRequest& request)
{
    if (request.proxy.isEmpty())
        return false;
    switch (request.result) {
    case CURLE_COULDNT_RESOLVE_PROXY:
    case CURLE_COULDNT_CONNECT:
    case CURLE_PROXY:
    case CURLE_UNSUPPORTED_PROTOCOL:
    case CURLE_URL_MALFORMAT:
        return true;
    case CURLE_GOT_NOTHING:
    case CURLE_RECV_ERROR:
    case CURLE_SEND_ERROR:
    case CURLE_OPERATION_TIMEDOUT:
        return request.proxyStatus == 0 && !request.isSecured;
    default:
        return request.proxyStatus >= 300;
    }
}

QString reason(const FailedRequest& request)
{
    if (failedAtProxy(request))
        return proxyReason(request);
    switch (request.result) {
    case CURLE_COULDNT_RESOLVE_HOST:
        return PlatformError::tr("The server “%1” was not found. Check the internet connection.")
            .arg(request.host);
    case CURLE_COULDNT_CONNECT:
        return PlatformError::tr("The server “%1” cannot be reached. Check the internet "
                                 "connection.")
            .arg(request.host);
    case CURLE_PEER_FAILED_VERIFICATION:
        return certificateReason(request);
    case CURLE_SSL_CACERT_BADFILE:
        return PlatformError::tr("The certificates that this system trusts cannot be read. Install "
                                 "its package of certificates.");
    case CURLE_SSL_CONNECT_ERROR:
        return PlatformError::tr("No secure connection to “%1” could be made. Another network may "
                                 "help.")
            .arg(request.host);
    case CURLE_PARTIAL_FILE:
    case CURLE_GOT_NOTHING:
    case CURLE_RECV_ERROR:
    case CURLE_SEND_ERROR:
        return PlatformError::tr("The connection to “%1” was lost. Check the internet connection "
                                 "and try again.")
            .arg(request.host);
    case CURLE_OUT_OF_MEMORY:
        return PlatformError::tr("There is not enough memory. Close other programs and try again.");
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_WRITE_ERROR: // The body of a redirect is too large.
    case CURLE_HTTP2:
    case CURLE_HTTP2_STREAM:
    case CURLE_UNSUPPORTED_PROTOCOL:
        return PlatformError::tr("“%1” sent an answer that is not understood. Try again later.")
            .arg(request.host);
    default:
        return PlatformError::tr("The transfer from “%1” failed. Try again later.")
            .arg(request.host);
    }
}

} // namespace

PlatformError transferError(const FailedRequest& request)
{
    return PlatformError::fromReason(
        PlatformError::tr("Could not download “%1”").arg(request.download.toDisplayString()),
        reason(request));
}

PlatformError stallError(const FailedRequest& request, bool hasAnswered,
                         std::chrono::milliseconds timeout)
{
    const auto isProxySilent = !hasAnswered && failedAtProxy(request);
    const auto seconds = static_cast<int>(std::chrono::ceil<std::chrono::seconds>(timeout).count());
    const auto sentence =
        isProxySilent
            ? PlatformError::tr("The download of “%1” stalled: the proxy “%2” did not answer "
                                "within %n seconds. Check the proxy settings and try again.",
                                nullptr, seconds)
        : hasAnswered
            ? PlatformError::tr("The download of “%1” stalled: %2 sent nothing for %n seconds. "
                                "Check the internet connection and try again.",
                                nullptr, seconds)
            : PlatformError::tr("The download of “%1” stalled: %2 did not answer within %n "
                                "seconds. Check the internet connection and try again.",
                                nullptr, seconds);
    return PlatformError(sentence.arg(request.download.toDisplayString(),
                                      isProxySilent ? request.proxy : request.host));
}
