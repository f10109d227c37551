#include "sdk/onvif/soap/httpclient.h"

#include "sdk/certificates/certificatecheck.h"
#include "sdk/onvif/soap/runningcall.h"

#include <curl/curl.h>

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <utility>

namespace sdk::onvif {

namespace {

constexpr std::chrono::milliseconds connectLimit{3000};
constexpr long watchInterval = 20; // milliseconds between two checks of the cancellation
constexpr std::size_t idleConnections = 8;
constexpr std::size_t longestHeaders = std::size_t(64) * 1024;

struct HandleDeleter
{
    void operator()(CURL *handle) const { curl_easy_cleanup(handle); }
};

struct MultiHandleDeleter
{
    void operator()(CURLM *handle) const { curl_multi_cleanup(handle); }
};

struct ListDeleter
{
    void operator()(curl_slist *list) const { curl_slist_free_all(list); }
};

struct FileDeleter
{
    void operator()(std::FILE *file) const { std::fclose(file); }
};

/// `systemError` is the error number of the failed connection.
HttpEnd endOf(CURLcode code, bool isConnected, long systemError)
{
    switch (code) {
    case CURLE_OK:
        return HttpEnd::Responded;
    case CURLE_ABORTED_BY_CALLBACK:
        return HttpEnd::Cancelled;
    case CURLE_COULDNT_CONNECT:
        return systemError == ECONNREFUSED ? HttpEnd::NotAccepted : HttpEnd::NotReached;
    case CURLE_COULDNT_RESOLVE_HOST:
        return HttpEnd::NotReached;
    case CURLE_OPERATION_TIMEDOUT:
        return isConnected ? HttpEnd::NoResponse : HttpEnd::NotReached;
    case CURLE_WRITE_ERROR:
    case CURLE_FILESIZE_EXCEEDED:
        return HttpEnd::TooLarge;
    default:
        return HttpEnd::Broken;
    }
}

bool isDigestChallenge(std::string_view line)
{
    constexpr std::string_view start = "www-authenticate: digest";
    return line.size() >= start.size() &&
           std::equal(start.begin(), start.end(), line.begin(), [](char expected, char character) {
               return expected == static_cast<char>(std::tolower(static_cast<unsigned char>(character)));
           });
}

long millisecondsUntil(std::chrono::steady_clock::time_point deadline)
{
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    return static_cast<long>(left.count());
}

} // namespace

/// A handle of libcurl with its open connections.
struct HttpClient::Connection
{
    std::unique_ptr<CURLM, MultiHandleDeleter> multi{curl_multi_init()};
    std::unique_ptr<CURL, HandleDeleter> easy{curl_easy_init()};
    std::unique_ptr<curl_slist, ListDeleter> headers;
    std::unique_ptr<std::FILE, FileDeleter> file;

    [[nodiscard]] bool isUsable() const { return multi && easy; }

    template<typename Value>
    void set(CURLoption option, Value value)
    {
        // Fails only when memory is exhausted; the exchange then fails as well.
        curl_easy_setopt(easy.get(), option, value);
    }

    void addHeader(const std::string &header)
    {
        if (curl_slist *longer = curl_slist_append(headers.get(), header.c_str())) {
            (void)headers.release();
            headers.reset(longer);
        }
    }

    CURLcode run(const std::atomic_bool &isCancelled) const
    {
        int running = 1;
        const std::stop_token stop = RunningCall::stopOfThisThread();
        CURLMcode code = curl_multi_add_handle(multi.get(), easy.get());
        while (code == CURLM_OK && running > 0 && !isCancelled && !stop.stop_requested()) {
            code = curl_multi_perform(multi.get(), &running);
            if (code == CURLM_OK && running > 0)
                code = curl_multi_poll(multi.get(), nullptr, 0, watchInterval, nullptr);
        }
        CURLcode result = running > 0 && (isCancelled || stop.stop_requested()) ? CURLE_ABORTED_BY_CALLBACK
                                                                                : CURLE_OUT_OF_MEMORY;
        int left = 0;
        while (const CURLMsg *message = curl_multi_info_read(multi.get(), &left)) {
            if (message->msg == CURLMSG_DONE)
                result = message->data.result;
        }
        curl_multi_remove_handle(multi.get(), easy.get());
        return result;
    }
};

/// The data that are received in one exchange.
struct HttpClient::Exchange
{
    HttpResponse response;
    std::size_t headerLength = 0;
    const std::function<void(std::int64_t)> *progress = nullptr;

    static std::size_t takeHeader(const char *data, std::size_t size, std::size_t count, void *user)
    {
        auto *self = static_cast<Exchange *>(user);
        const std::string_view line(data, size * count);
        self->headerLength += line.size();
        if (self->headerLength > longestHeaders)
            return 0;
        if (line.starts_with(
                "HTTP/")) // the headers of the next response: the response to the login follows the challenge
            self->response.offersDigest = false;
        if (isDigestChallenge(line))
            self->response.offersDigest = true;
        return line.size();
    }

    static std::size_t takeBody(const char *data, std::size_t size, std::size_t count, void *user)
    {
        auto *self = static_cast<Exchange *>(user);
        const std::size_t length = size * count;
        if (self->response.body.size() + length > largestResponse)
            return 0;
        self->response.body.append(data, length);
        return length;
    }

    static int takeProgress(void *user, curl_off_t, curl_off_t, curl_off_t, curl_off_t sent)
    {
        const auto *self = static_cast<Exchange *>(user);
        (*self->progress)(sent);
        return 0;
    }
};

HttpClient::HttpClient(std::shared_ptr<const CertificateDecision> decision) : m_decision(std::move(decision))
{
    // Initialises libcurl once per process, before any thread creates a handle.
    static const CURLcode initialised = curl_global_init(CURL_GLOBAL_DEFAULT);
    (void)initialised;
}

HttpClient::~HttpClient() = default;

void HttpClient::cancel()
{
    m_isCancelled = true;
}

std::unique_ptr<HttpClient::Connection> HttpClient::takeConnection()
{
    const std::scoped_lock lock(m_mutex);
    if (m_idle.empty())
        return std::make_unique<Connection>();
    std::unique_ptr<Connection> connection = std::move(m_idle.back());
    m_idle.pop_back();
    return connection;
}

void HttpClient::giveBack(std::unique_ptr<Connection> connection)
{
    connection->headers.reset();
    connection->file.reset();
    const std::scoped_lock lock(m_mutex);
    if (m_idle.size() < idleConnections)
        m_idle.push_back(std::move(connection));
}

HttpResponse HttpClient::post(const ServiceAddress &address, const std::string &body,
                              const std::string &contentType, const HttpLogin *login,
                              std::chrono::steady_clock::time_point deadline)
{
    std::unique_ptr<Connection> connection = takeConnection();
    if (!connection->isUsable())
        return {.end = HttpEnd::Broken};
    curl_easy_reset(connection->easy.get());
    connection->addHeader("Content-Type: " + contentType);
    connection->addHeader("Expect:"); // small servers do not know "100-continue"
    connection->set(CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body.size()));
    connection->set(CURLOPT_POSTFIELDS, body.c_str());
    HttpResponse response = exchange(*connection, address, login, {}, deadline);
    giveBack(std::move(connection));
    return response;
}

HttpResponse HttpClient::get(const ServiceAddress &address, const HttpLogin *login,
                             std::chrono::steady_clock::time_point deadline)
{
    std::unique_ptr<Connection> connection = takeConnection();
    if (!connection->isUsable())
        return {.end = HttpEnd::Broken};
    curl_easy_reset(connection->easy.get());
    connection->set(CURLOPT_HTTPGET, 1L);
    HttpResponse response = exchange(*connection, address, login, {}, deadline);
    giveBack(std::move(connection));
    return response;
}

HttpResponse HttpClient::postFile(const ServiceAddress &address, const std::string &fileName,
                                  const HttpLogin *login, const std::function<void(std::int64_t)> &progress,
                                  std::chrono::steady_clock::time_point deadline)
{
    std::unique_ptr<Connection> connection = takeConnection();
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(fileName, error);
    connection->file.reset(std::fopen(fileName.c_str(), "rb"));
    if (!connection->isUsable() || !connection->file || error)
        return {.end = HttpEnd::Broken};
    curl_easy_reset(connection->easy.get());
    connection->addHeader("Content-Type: application/octet-stream");
    connection->addHeader("Expect:");
    connection->set(CURLOPT_POST, 1L);
    connection->set(CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(size));
    connection->set(CURLOPT_READDATA, static_cast<void *>(connection->file.get()));
    // Sends the file again from its start when the device requests a login only at its end.
    connection->set(CURLOPT_SEEKDATA, static_cast<void *>(connection->file.get()));
    connection->set(
        CURLOPT_SEEKFUNCTION,
        static_cast<int (*)(void *, curl_off_t, int)>([](void *file, curl_off_t offset, int origin) {
            return std::fseek(static_cast<std::FILE *>(file), static_cast<long>(offset), origin) == 0
                       ? CURL_SEEKFUNC_OK
                       : CURL_SEEKFUNC_FAIL;
        }));
    HttpResponse response = exchange(*connection, address, login, progress, deadline);
    giveBack(std::move(connection));
    return response;
}

HttpResponse HttpClient::exchange(Connection &connection, const ServiceAddress &address,
                                  const HttpLogin *login, const std::function<void(std::int64_t)> &progress,
                                  std::chrono::steady_clock::time_point deadline)
{
    const long left = millisecondsUntil(deadline);
    if (left <= 0)
        return {.end = HttpEnd::NoResponse};
    Exchange exchange;
    exchange.progress = &progress;
    const std::string url = address.url();
    connection.set(CURLOPT_URL, url.c_str());
    connection.set(CURLOPT_HTTPHEADER, connection.headers.get());
#if LIBCURL_VERSION_NUM >= 0x075500
    connection.set(CURLOPT_PROTOCOLS_STR, "http,https");
#else
    connection.set(CURLOPT_PROTOCOLS, static_cast<long>(CURLPROTO_HTTP | CURLPROTO_HTTPS));
#endif
    connection.set(CURLOPT_PROXY,
                   ""); // a device of the local network is never behind the environment's proxy
    connection.set(CURLOPT_NOSIGNAL, 1L); // the process has other threads
    connection.set(CURLOPT_CONNECTTIMEOUT_MS, std::min(left, static_cast<long>(connectLimit.count())));
    connection.set(CURLOPT_TIMEOUT_MS, left);
    connection.set(CURLOPT_HEADERFUNCTION, &Exchange::takeHeader);
    connection.set(CURLOPT_HEADERDATA, static_cast<void *>(&exchange));
    connection.set(CURLOPT_WRITEFUNCTION, &Exchange::takeBody);
    connection.set(CURLOPT_WRITEDATA, static_cast<void *>(&exchange));
    if (login) {
        // CURLAUTH_ONLY makes libcurl send the complete request first, and respond to a challenge with Digest
        // only.
        connection.set(CURLOPT_HTTPAUTH, static_cast<long>(CURLAUTH_ONLY | CURLAUTH_DIGEST));
        connection.set(CURLOPT_USERNAME, login->account.c_str());
        connection.set(CURLOPT_PASSWORD, login->password.c_str());
    }
    if (progress) {
        connection.set(CURLOPT_NOPROGRESS, 0L);
        connection.set(CURLOPT_XFERINFOFUNCTION, &Exchange::takeProgress);
        connection.set(CURLOPT_XFERINFODATA, static_cast<void *>(&exchange));
    }
    std::optional<CertificateCheck> check;
    if (address.isSecure) {
        check.emplace(m_decision.get(),
                      TlsPeer{.address = address.host, .port = address.port, .identity = address.identity});
        check->attachTo(connection.easy.get());
    }
    const CURLcode code = connection.run(m_isCancelled);
    curl_off_t connectTime = 0;
    curl_easy_getinfo(connection.easy.get(), CURLINFO_CONNECT_TIME_T, &connectTime);
    curl_easy_getinfo(connection.easy.get(), CURLINFO_RESPONSE_CODE, &exchange.response.status);
    long systemError = 0;
    curl_easy_getinfo(connection.easy.get(), CURLINFO_OS_ERRNO, &systemError);
    exchange.response.end = endOf(code, connectTime > 0, systemError);
    if (check && check->refusal())
        exchange.response.end = check->refusal() == CertificateVerdict::Changed ? HttpEnd::ChangedCertificate
                                                                                : HttpEnd::UnknownCertificate;
    return std::move(exchange.response);
}

} // namespace sdk::onvif
