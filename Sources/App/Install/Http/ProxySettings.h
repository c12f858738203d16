// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

#include <stop_token>

/// The proxy that a request is to go through.
struct ProxySettings
{
    /// Its address as a URL, with the user's name and password if it has some; empty for none.
    QString address;
    /// Its host and port, for a sentence.
    QString shownName;

    /// The proxy for `url`: what the environment says (https_proxy, http_proxy, all_proxy and
    /// no_proxy, as curl reads them), else what the desktop says. A desktop that does not answer
    /// within two seconds, or before `stop` is requested, has no proxy. Blocks.
    static ProxySettings proxyFor(const QUrl& url, const std::stop_token& stop);
};
