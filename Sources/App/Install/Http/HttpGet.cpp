// SPDX-License-Identifier: MIT
#include "Install/Http/HttpGet.h"

#include "Install/Http/ProxySettings.h"
#include "Install/Http/TransferError.h"
#include "Platform/CertificateStore.h"
#include "Project/GameFacts.h"
#include "System/Errors.h"

#include <QCoreApplication>
#include <QScopeGuard>

#include <curl/curl.h>

#include <algorithm>
#include <array>
#include <exception>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

using std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

namespace {

constexpr int maxRedirects = 10;
/// The maximum size in bytes of the body of a redirect.
constexpr qint64 maxRedirectBody = 65'536;
/// In bytes. Takes fewer system calls than libcurl's default of 16 KiB.
constexpr long bufferSize = 262'144;
/// How late a stop request is noticed if curl_multi_wakeup() fails.
constexpr milliseconds pollInterval{1000};

template<auto function>
struct Free
{
    template<typename Handle>
    void operator()(Handle* handle) const
    {
        function(handle);
    }
};
using Easy = std::unique_ptr<CURL, Free<&curl_easy_cleanup>>;
using Multi = std::unique_ptr<CURLM, Free<&curl_multi_cleanup>>;
using HeaderList = std::unique_ptr<curl_slist, Free<&curl_slist_free_all>>;

bool isRedirectStatus(long status)
{
    return status == 301 || status == 302 || status == 303 || status == 307 || status == 308;
}

bool isHostOrBelow(QStringView host, QStringView domain)
{
    return host == domain || host.endsWith(u'.' + domain.toString());
}

/// Throws PlatformError if a redirect of `download` to `next` must not be followed: the player was
/// promised that only GitHub is contacted.
void checkRedirect(const QUrl& download, const QUrl& next)
{
    const auto host = next.host();
    const auto isKnown =
        host == download.host() ||
        std::ranges::any_of(GameFacts::allowedDomains,
                            [&host](QStringView domain) { return isHostOrBelow(host, domain); });
    const auto isEncrypted = next.scheme() == "https"_L1;
    if (!isKnown || (!isEncrypted && next.scheme() != download.scheme())) {
        throw PlatformError(
            PlatformError::tr("The download of “%1” was redirected to “%2”, which is not one of "
                              "GitHub's own secure servers, so it was stopped.")
                .arg(download.toDisplayString(), next.scheme() + u"://"_s + host));
    }
}

QByteArray userAgent()
{
    return (QCoreApplication::applicationName().replace(u' ', u'-') + u'/' +
            QCoreApplication::applicationVersion())
        .toUtf8();
}

/// One request, without redirects.
class Request final
{
public:
    Request(const QUrl& download, const QUrl& url, const HttpReceiver& receiver,
            milliseconds stallTimeout, const std::stop_token& stop)
        : m_download(download)
        , m_url(url)
        , m_receiver(receiver)
        , m_stallTimeout(stallTimeout)
        , m_stop(stop)
        , m_proxy(ProxySettings::proxyFor(url, stop))
    {
        // A compressed body has another length than the file. "Accept:" removes that header.
        m_headers.reset(curl_slist_append(nullptr, "Accept-Encoding: identity"));
        curl_slist_append(m_headers.get(), "Accept:");
        set(CURLOPT_HTTPHEADER, m_headers.get());
        set(CURLOPT_URL, m_url.toEncoded().constData());
        set(CURLOPT_USERAGENT, userAgent().constData());
        set(CURLOPT_PROXY, m_proxy.address.toUtf8().constData());
        set(CURLOPT_NOPROXY, "");
        set(CURLOPT_SUPPRESS_CONNECT_HEADERS, 1L);
        set(CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
        set(CURLOPT_PROTOCOLS_STR, "http,https");
        const auto trusted = certificateFile(info<char*>(CURLINFO_CAINFO));
        set(CURLOPT_CAINFO, trusted.isEmpty() ? nullptr : trusted.constData());
        set(CURLOPT_NOSIGNAL, 1L);
        // Does not wait for the thread of a DNS lookup.
        set(CURLOPT_QUICK_EXIT, 1L);
        set(CURLOPT_BUFFERSIZE, bufferSize);
        set(CURLOPT_HEADERFUNCTION, &Request::readHeaderLine);
        set(CURLOPT_HEADERDATA, this);
        set(CURLOPT_WRITEFUNCTION, &Request::write);
        set(CURLOPT_WRITEDATA, this);
    }

    /// Returns the target of a redirect; nothing after the final response.
    std::optional<QUrl> perform()
    {
        const Multi multi(curl_multi_init());
        curl_multi_add_handle(multi.get(), m_easy.get());
        const auto remove =
            qScopeGuard([&] { curl_multi_remove_handle(multi.get(), m_easy.get()); });
        const auto result = run(multi.get());
        if (m_error)
            std::rethrow_exception(m_error);
        if (result != CURLE_OK)
            throw transferError(failure(result));
        const auto* const location = info<char*>(CURLINFO_REDIRECT_URL);
        if (isRedirectStatus(status()) && location)
            return QUrl::fromEncoded(location);
        if (!m_hasBegun)
            begin();
        return std::nullopt;
    }

private:
    template<typename Value>
    void set(CURLoption option, Value value)
    {
        if (curl_easy_setopt(m_easy.get(), option, value) != CURLE_OK)
            throw PlatformError(PlatformError::tr("The network library cannot be used."));
    }

    template<typename Value>
    [[nodiscard]] Value info(CURLINFO what) const
    {
        Value value{};
        curl_easy_getinfo(m_easy.get(), what, &value);
        return value;
    }

    [[nodiscard]] long status() const { return info<long>(CURLINFO_RESPONSE_CODE); }

    CURLcode run(CURLM* multi)
    {
        const std::stop_callback wakeUp(m_stop, [multi] { curl_multi_wakeup(multi); });
        for (int running = 1; running > 0;) {
            throwIfCancelled(m_stop);
            throwIfStalled();
            curl_multi_perform(multi, &running);
            if (running > 0)
                curl_multi_poll(multi, nullptr, 0, pollTimeout(), nullptr);
        }
        int left = 0;
        const auto* const message = curl_multi_info_read(multi, &left);
        return message ? message->data.result : CURLE_FAILED_INIT;
    }

    /// A callback of libcurl, called with each header line; an empty one ends the headers.
    static std::size_t readHeaderLine(const char* line, std::size_t, std::size_t size,
                                      void* request)
    {
        auto& self = *static_cast<Request*>(request);
        const auto endsHead =
            QByteArrayView(line, static_cast<qsizetype>(size)).trimmed().isEmpty();
        const auto status = self.status();
        return self.attempt([&] {
            // A status below 200 is informational.
            if (endsHead && status >= 200 && !isRedirectStatus(status))
                self.begin();
            return true;
        })
                   ? size
                   : 0;
    }

    /// A callback of libcurl, called with each piece of a body.
    static std::size_t write(const char* bytes, std::size_t, std::size_t size, void* request)
    {
        auto& self = *static_cast<Request*>(request);
        return self.attempt([&] { return self.take({bytes, static_cast<qsizetype>(size)}); })
                   ? size
                   : CURL_WRITEFUNC_ERROR;
    }

    /// Returns the result of `step`, or keeps its exception and returns false: libcurl is C.
    template<typename Step>
    bool attempt(Step step)
    {
        try {
            return step();
        } catch (...) {
            m_error = std::current_exception();
            return false;
        }
    }

    bool take(QByteArrayView piece)
    {
        m_lastByte = Clock::now();
        if (isRedirectStatus(status())) {
            m_redirectBody += piece.size();
            return m_redirectBody <= maxRedirectBody;
        }
        m_receiver.take(piece);
        return true;
    }

    void begin()
    {
        m_hasBegun = true;
        m_lastByte = Clock::now();
        m_receiver.begin(static_cast<int>(status()),
                         info<curl_off_t>(CURLINFO_CONTENT_LENGTH_DOWNLOAD_T));
    }

    // Before the body, only the start of the request counts, not what headers arrive.
    void throwIfStalled() const
    {
        if (Clock::now() - m_lastByte >= m_stallTimeout)
            throw stallError(failure(CURLE_OPERATION_TIMEDOUT), m_hasBegun, m_stallTimeout);
    }

    [[nodiscard]] int pollTimeout() const
    {
        const auto rest =
            std::chrono::ceil<milliseconds>(m_lastByte + m_stallTimeout - Clock::now());
        return static_cast<int>(std::clamp(rest, milliseconds(0), pollInterval).count());
    }

    [[nodiscard]] FailedRequest failure(CURLcode result) const
    {
        return {.download = m_download,
                .host = m_url.host(),
                .proxy = m_proxy.shownName,
                .result = result,
                .proxyStatus = info<long>(CURLINFO_HTTP_CONNECTCODE),
                .isSecured = info<curl_off_t>(CURLINFO_APPCONNECT_TIME_T) > 0,
                .certificateError = info<long>(CURLINFO_SSL_VERIFYRESULT)};
    }

    const QUrl& m_download;
    const QUrl m_url;
    const HttpReceiver& m_receiver;
    const milliseconds m_stallTimeout;
    const std::stop_token& m_stop;
    const ProxySettings m_proxy;
    HeaderList m_headers;
    Easy m_easy{curl_easy_init()};
    Clock::time_point m_lastByte = Clock::now();
    qint64 m_redirectBody = 0;
    bool m_hasBegun = false;
    std::exception_ptr m_error;
};

} // namespace

void httpGet(const QUrl& url, const HttpReceiver& receiver, milliseconds stallTimeout,
             const std::stop_token& stop)
{
    static const auto initialised = curl_global_init(CURL_GLOBAL_DEFAULT);
    Q_UNUSED(initialised)
    auto current = url;
    for (int redirects = 0; redirects <= maxRedirects; ++redirects) {
        throwIfCancelled(stop);
        const auto next = Request(url, current, receiver, stallTimeout, stop).perform();
        if (!next)
            return;
        checkRedirect(url, *next);
        current = *next;
    }
    throw PlatformError(PlatformError::tr("The download of “%1” was redirected too often, last to "
                                          "“%2”. Try again later.")
                            .arg(url.toDisplayString(), current.host()));
}
