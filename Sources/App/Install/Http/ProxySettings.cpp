// SPDX-License-Identifier: MIT
#include "Install/Http/ProxySettings.h"

#include "System/Abandonable.h"

#include <QNetworkProxyFactory>
#include <QStringList>

#include <algorithm>
#include <chrono>
#include <optional>

using namespace Qt::StringLiterals;

using namespace std::chrono_literals;

namespace {

constexpr auto desktopTimeout = 2s;

/// Returns the value of the first variable that is set and not empty.
std::optional<QString> firstSet(std::initializer_list<const char*> variables)
{
    for (const auto* const variable : variables) {
        if (!qEnvironmentVariableIsEmpty(variable))
            return qEnvironmentVariable(variable);
    }
    return std::nullopt;
}

/// Returns the proxy of the environment. Ignores no_proxy.
std::optional<QString> addressFromEnvironment(const QUrl& url)
{
    // Not HTTP_PROXY: in a CGI program, a client can set it by its header "Proxy".
    return url.scheme() == "https"_L1
               ? firstSet({"https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY"})
               : firstSet({"http_proxy", "all_proxy", "ALL_PROXY"});
}

/// Returns true if no_proxy lists the host, a domain above it, or "*".
bool isExempt(const QString& host)
{
    auto entries = firstSet({"no_proxy", "NO_PROXY"}).value_or(QString());
    const auto list = entries.replace(u' ', u',').split(u',', Qt::SkipEmptyParts);
    return std::ranges::any_of(list, [&host](QString entry) {
        if (entry == "*"_L1)
            return true;
        if (entry.startsWith(u'.'))
            entry.remove(0, 1);
        return host.compare(entry, Qt::CaseInsensitive) == 0 ||
               host.endsWith(u'.' + entry, Qt::CaseInsensitive);
    });
}

QString addressOf(const QNetworkProxy& proxy)
{
    QUrl address;
    switch (proxy.type()) {
    case QNetworkProxy::HttpProxy:
    case QNetworkProxy::HttpCachingProxy:
        address.setScheme(u"http"_s);
        break;
    case QNetworkProxy::Socks5Proxy:
        address.setScheme(u"socks5h"_s);
        break;
    default:
        return {};
    }
    address.setHost(proxy.hostName());
    address.setPort(proxy.port());
    address.setUserName(proxy.user());
    address.setPassword(proxy.password());
    return address.toString(QUrl::FullyEncoded);
}

QString addressFromDesktop(const QUrl& url, const std::stop_token& stop)
{
    // May run a script (PAC) from the network.
    const auto address = runAbandonable(
        [url] {
            const auto proxies = QNetworkProxyFactory::systemProxyForQuery(QNetworkProxyQuery(url));
            return proxies.isEmpty() ? QString() : addressOf(proxies.first());
        },
        desktopTimeout, stop);
    return address.value_or(QString());
}

QString shownNameOf(const QString& address)
{
    const QUrl url(address.contains("://"_L1) ? address : u"http://"_s + address);
    if (!url.isValid() || url.host().isEmpty())
        return address.section(u'@', -1); // Malformed. Removes a password.
    return url.port() < 0 ? url.host() : u"%1:%2"_s.arg(url.host()).arg(url.port());
}

} // namespace

ProxySettings ProxySettings::proxyFor(const QUrl& url, const std::stop_token& stop)
{
    if (isExempt(url.host()))
        return {};
    auto address = addressFromEnvironment(url);
    if (!address)
        address = addressFromDesktop(url, stop);
    return address->isEmpty() ? ProxySettings() : ProxySettings{*address, shownNameOf(*address)};
}
