// SPDX-License-Identifier: MIT
#pragma once

#include "System/Errors.h"

#include <QString>
#include <QUrl>

#include <curl/curl.h>

#include <chrono>

/// What is known of a request that failed.
struct FailedRequest
{
    /// The address that the download began with.
    QUrl download;
    /// The host that was asked last: a redirect may have led to it.
    QString host;
    /// The proxy on the way, for a sentence; empty if there is none.
    QString proxy;
    CURLcode result = CURLE_OK;
    /// The status that the proxy answered a CONNECT with; 0 if there was none.
    long proxyStatus = 0;
    /// Whether TLS was established with the host.
    bool isSecured = false;
    /// Why the certificate was refused (X509_V_ERR_…), if it was.
    long certificateError = 0;
};

/// Says what went wrong, whose fault it may be and what the player can do, without the library's
/// own words.
[[nodiscard]] PlatformError transferError(const FailedRequest& request);

/// Says that the host did not answer within `timeout`, or has been silent for that long.
[[nodiscard]] PlatformError stallError(const FailedRequest& request, bool hasAnswered,
                                       std::chrono::milliseconds timeout);
