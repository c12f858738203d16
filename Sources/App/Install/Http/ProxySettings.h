// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

#include <stop_token>

/// The proxy of a request.
struct ProxySettings
{
    /// Its address as a URL, with a user name and password if it needs them; empty for no proxy.
    QString address;
    /// Its host and port, for a message.
    QString shownName;

    /// Returns the proxy for `url` from the environment (https_proxy, http_proxy, all_proxy and
    /// no_proxy, as curl reads them), else from the desktop's settings. Returns no proxy if the
    /// desktop does not answer within two seconds, or if `stop` is requested. Blocks.
    static ProxySettings proxyFor(const QUrl& url, const std::stop_token& stop);
};
