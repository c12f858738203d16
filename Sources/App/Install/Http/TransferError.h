// SPDX-License-Identifier: MIT
#pragma once

#include "System/Errors.h"

#include <QString>
#include <QUrl>

#include <curl/curl.h>

#include <chrono>

/// The details of a failed request.
struct FailedRequest
{
    /// The first URL, before any redirect.
    QUrl download;
    /// The host of the failed request, which may be the target of a redirect.
    QString host;
    /// The proxy's host and port; empty if there is none.
    QString proxy;
    CURLcode result = CURLE_OK;
    /// The status of the proxy's response to CONNECT; 0 if there was none.
    long proxyStatus = 0;
    /// Whether TLS was established with the host.
    bool isSecured = false;
    /// Why the certificate was refused (X509_V_ERR_…).
    long certificateError = 0;
};

/// Returns an error that says what failed and what the player can do.
[[nodiscard]] PlatformError transferError(const FailedRequest& request);

/// Returns the error for a host that has sent nothing for `timeout`, at all or since it answered.
[[nodiscard]] PlatformError stallError(const FailedRequest& request, bool hasAnswered,
                                       std::chrono::milliseconds timeout);
