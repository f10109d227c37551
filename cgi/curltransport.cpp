#include "cgi/curltransport.h"

#include "sdk/certificates/certificatecheck.h"

#include <curl/curl.h>

#include <cerrno>
#include <cstdio>

namespace {

constexpr qsizetype keptHeaderText = 64LL * 1024;
/// Without this limit, endless headers would keep an exchange without a time limit running.
constexpr qsizetype longestHeaderText = 256LL * 1024;

/// Hosts that are accessed without the proxy: a tunnel to a device ends on this host.
constexpr const char *localNames = "127.0.0.1,localhost,::1";

struct HandleDeleter
{
    void operator()(CURL *handle) const { curl_easy_cleanup(handle); }
};
using Handle = std::unique_ptr<CURL, HandleDeleter>;

struct MultiHandleDeleter
{
    void operator()(CURLM *handle) const { curl_multi_cleanup(handle); }
};
using MultiHandle = std::unique_ptr<CURLM, MultiHandleDeleter>;

struct UrlDeleter
{
    void operator()(CURLU *url) const { curl_url_cleanup(url); }
};

QByteArray partOf(CURLU *url, CURLUPart part)
{
    char *text = nullptr;
    if (curl_url_get(url, part, &text, CURLU_DEFAULT_PORT) != CURLUE_OK)
        return {};
    QByteArray copy(text);
    curl_free(text);
    return copy;
}

/// Parsed by libcurl, which makes the connection: another parser might find another host.
sdk::TlsPeer peerOf(const QByteArray &address)
{
    const std::unique_ptr<CURLU, UrlDeleter> url(curl_url());
    if (!url || curl_url_set(url.get(), CURLUPART_URL, address.constData(), 0) != CURLUE_OK)
        return {};
    QByteArray host = partOf(url.get(), CURLUPART_HOST);
    if (host.startsWith('[') && host.endsWith(']'))
        host = host.sliced(1, host.size() - 2);
    return {.address = host.toStdString(), .port = partOf(url.get(), CURLUPART_PORT).toInt(), .identity = {}};
}

// The error number of a refused connection. Windows has its own numbers for sockets, which <cerrno> lacks.
#ifdef _WIN32
constexpr long connectionRefused = WSAECONNREFUSED;
#else
constexpr long connectionRefused = ECONNREFUSED;
#endif

HttpFailure failureKindOf(CURLcode result, long systemError)
{
    switch (result) {
    case CURLE_OK:
        return HttpFailure::None;
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY:
        return HttpFailure::UnknownHost;
    case CURLE_COULDNT_CONNECT:
        return systemError == connectionRefused ? HttpFailure::Refused : HttpFailure::Unreachable;
    case CURLE_OPERATION_TIMEDOUT:
        return HttpFailure::TimedOut;
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_SSL_ENGINE_INITFAILED:
    case CURLE_SSL_CIPHER:
    case CURLE_SSL_CERTPROBLEM:
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_USE_SSL_FAILED:
        return HttpFailure::Tls;
    case CURLE_UNSUPPORTED_PROTOCOL: // HTTP/0.9, which has no status line
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_BAD_CONTENT_ENCODING:
        return HttpFailure::Malformed;
    case CURLE_GOT_NOTHING:
    case CURLE_PARTIAL_FILE:
    case CURLE_RECV_ERROR:
    case CURLE_SEND_ERROR:
        return HttpFailure::Interrupted;
    default:
        return HttpFailure::Other;
    }
}

class CurlHttpRequest : public PreparedHttpRequest
{
public:
    CurlHttpRequest(Handle handle, MultiHandle multi, const CgiRequest &request,
                    std::chrono::seconds connectLimit, const QByteArray &proxy,
                    std::shared_ptr<const sdk::CertificateDecision> certificates)
        : m_certificates(std::move(certificates)), m_check(m_certificates.get(), peerOf(request.url())),
          m_handle(std::move(handle)), m_multi(std::move(multi))
    {
        m_check.attachTo(m_handle.get());
        set(CURLOPT_HTTPGET, 1L);
        set(CURLOPT_URL, request.url().constData());
        // Digest in the form of older browsers, which omits the query: the devices require that.
        set(CURLOPT_HTTPAUTH, static_cast<long>(CURLAUTH_DIGEST_IE));
        // Without an account a challenge is not responded to: an empty account would count as a failed login.
        if (request.userPassword() != ":")
            set(CURLOPT_USERPWD, request.userPassword().constData());
        set(CURLOPT_HEADERFUNCTION, &CurlHttpRequest::takeHeader);
        set(CURLOPT_HEADERDATA, static_cast<void *>(this));
        set(CURLOPT_CONNECTTIMEOUT, static_cast<long>(connectLimit.count()));

#if LIBCURL_VERSION_NUM >= 0x075500
        set(CURLOPT_PROTOCOLS_STR, "http,https");
#else
        set(CURLOPT_PROTOCOLS, static_cast<long>(CURLPROTO_HTTP | CURLPROTO_HTTPS));
#endif
        set(CURLOPT_PROXY, proxy.constData()); // empty: no proxy, regardless of the environment
        set(CURLOPT_NOPROXY, localNames);
        set(CURLOPT_NOSIGNAL, 1L); // the process has other threads
        set(CURLOPT_WRITEFUNCTION, &CurlHttpRequest::takeBody);
        set(CURLOPT_WRITEDATA, static_cast<void *>(this));
    }

    void useBasic() override
    {
        set(CURLOPT_HTTPAUTH, static_cast<long>(CURLAUTH_BASIC));
    }

    HttpOutcome perform(const HttpLimits &limits, const BodySink &sink, const ExchangeWatch &watch) override
    {
        set(CURLOPT_TIMEOUT_MS, static_cast<long>(limits.total.count()));
        set(CURLOPT_LOW_SPEED_LIMIT, limits.slowestRate);
        set(CURLOPT_LOW_SPEED_TIME, static_cast<long>(limits.slowTime.count()));
        m_sink = sink;
        m_headerLength = 0;
        const CURLcode result = transfer(watch);
        m_sink = {};

        HttpOutcome outcome;
        outcome.isStopped = result == CURLE_ABORTED_BY_CALLBACK;
        outcome.hasTooLongHeaders = m_headerLength > longestHeaderText;
        outcome.certificateRefusal = m_check.refusal();
        curl_easy_getinfo(m_handle.get(), CURLINFO_RESPONSE_CODE, &outcome.status);
        if (result != CURLE_OK) {
            long systemError = 0;
            curl_easy_getinfo(m_handle.get(), CURLINFO_OS_ERRNO, &systemError);
            outcome.failureKind = failureKindOf(result, systemError);
            outcome.failure = QString::fromUtf8(curl_easy_strerror(result));
            std::fprintf(stderr, "curl_easy_perform() failed: %s\n", curl_easy_strerror(result));
        }
        return outcome;
    }

    [[nodiscard]] QByteArray headerText() const override
    {
        return m_headerText;
    }

private:
    template<typename Value>
    void set(CURLoption option, Value value)
    {
        // Fails when memory is exhausted, or for an option that libcurl lacks; the exchange then fails as
        // well.
        curl_easy_setopt(m_handle.get(), option, value);
    }

    /// Like curl_easy_perform(), but calls the watch more often: libcurl calls a progress function only once
    /// per second while no data arrive.
    CURLcode transfer(const ExchangeWatch &watch)
    {
        constexpr int watchInterval = 50; // ms
        int running = 1;
        bool isStopped = false;
        CURLMcode code = curl_multi_add_handle(m_multi.get(), m_handle.get());
        while (code == CURLM_OK && running > 0 && !isStopped) {
            code = curl_multi_perform(m_multi.get(), &running);
            if (code == CURLM_OK && running > 0)
                code = curl_multi_poll(m_multi.get(), nullptr, 0, watchInterval, nullptr);
            isStopped = running > 0 && watch && !watch();
        }
        CURLcode result = isStopped ? CURLE_ABORTED_BY_CALLBACK : CURLE_OUT_OF_MEMORY;
        int left = 0;
        while (const CURLMsg *message = curl_multi_info_read(m_multi.get(), &left)) {
            if (message->msg == CURLMSG_DONE)
                result = message->data.result;
        }
        curl_multi_remove_handle(m_multi.get(), m_handle.get());
        return result;
    }

    static size_t takeHeader(const char *line, size_t size, size_t count, void *prepared)
    {
        auto *self = static_cast<CurlHttpRequest *>(prepared);
        const auto length = static_cast<qsizetype>(size * count);
        self->m_headerLength += length;
        if (self->m_headerLength > longestHeaderText)
            return 0;
        self->m_headerText.append(line, qMin(length, keptHeaderText - self->m_headerText.size()));
        return size * count;
    }

    /// There is always a write function: without one libcurl prints the body.
    static size_t takeBody(const char *data, size_t size, size_t count, void *prepared)
    {
        const auto *self = static_cast<const CurlHttpRequest *>(prepared);
        const size_t length = size * count;
        const bool isTaken = !self->m_sink || self->m_sink({data, static_cast<qsizetype>(length)});
        return isTaken ? length : 0;
    }

    const std::shared_ptr<const sdk::CertificateDecision> m_certificates;
    sdk::CertificateCheck m_check;
    const Handle m_handle;
    const MultiHandle m_multi; ///< keeps the connection for the next exchange
    BodySink m_sink;
    QByteArray m_headerText;
    qsizetype m_headerLength = 0; ///< of the running exchange
};

} // namespace

CurlTransport::CurlTransport(std::chrono::seconds connectLimit) : m_connectLimit(connectLimit) {}

void CurlTransport::setProxy(const QString &proxy)
{
    const std::lock_guard lock(m_mutex);
    m_proxy = proxy.toUtf8();
}

void CurlTransport::setCertificateHandler(sdk::CertificateHandler handler, void *user)
{
    m_certificates->setHandler(handler, user);
}

std::unique_ptr<PreparedHttpRequest> CurlTransport::open(const CgiRequest &request)
{
    // Once per process, before the first handle. Not earlier, since it takes 3 MB for TLS.
    static const CURLcode isReady = curl_global_init(CURL_GLOBAL_DEFAULT);
    Q_UNUSED(isReady);
    Handle handle(curl_easy_init());
    MultiHandle multi(curl_multi_init());
    if (!handle || !multi)
        return nullptr;
    const std::lock_guard lock(m_mutex);
    return std::make_unique<CurlHttpRequest>(std::move(handle), std::move(multi), request, m_connectLimit,
                                             m_proxy, m_certificates);
}
