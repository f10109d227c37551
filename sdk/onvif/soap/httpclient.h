// Requests to a device over HTTP, with persistent connections.
#pragma once

#include "sdk/certificates/certificatedecision.h"
#include "sdk/onvif/soap/serviceaddress.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace sdk::onvif {

/// How an exchange over HTTP ended.
enum class HttpEnd
{
    Responded,   ///< with any status
    NotReached,  ///< no host responds at the address within 3 s or before the deadline
    NotAccepted, ///< the host at the address refuses the connection
    NoResponse,  ///< no complete response before the deadline
    TooLarge,    ///< the response exceeds HttpClient::largestResponse
    Broken,      ///< the connection ended early, or the response is not HTTP
    Cancelled,
    UnknownCertificate, ///< over HTTPS: the user has not accepted the key of the certificate; nothing was
                        ///< sent
    ChangedCertificate, ///< the same for a device with another stored key
};

struct HttpResponse
{
    HttpEnd end = HttpEnd::NotReached;
    long status = 0; ///< HTTP status; 0 without a response
    std::string body = {};
    bool offersDigest = false; ///< the last response contains a challenge for HTTP Digest
};

struct HttpLogin
{
    std::string account = {};
    std::string password = {};
};

/// Sends requests to one device. Thread-safe: each running request has a separate connection, which is kept
/// for later requests. Redirections are not followed: they could send a password to another address.
class HttpClient
{
public:
    static constexpr std::size_t largestResponse = std::size_t(4) * 1024 * 1024;

    /// `decision` decides about the certificates of HTTPS; without it all are refused.
    explicit HttpClient(std::shared_ptr<const CertificateDecision> decision = {});
    ~HttpClient();
    HttpClient(const HttpClient &) = delete;
    HttpClient &operator=(const HttpClient &) = delete;

    /// Blocks until the response has arrived, `deadline` has passed, cancel() is called or the thread's
    /// RunningCall is stopped. With `login` (null for none), a challenge of the device is answered once by
    /// HTTP Digest (RFC 7616), and never by Basic, which would send the password.
    [[nodiscard]] HttpResponse post(const ServiceAddress &address, const std::string &body,
                                    const std::string &contentType, const HttpLogin *login,
                                    std::chrono::steady_clock::time_point deadline);

    /// Fetches the resource at `address`, under the same rules.
    [[nodiscard]] HttpResponse get(const ServiceAddress &address, const HttpLogin *login,
                                   std::chrono::steady_clock::time_point deadline);

    /// Sends a local file as the body of a POST request. `progress`, if not empty, is called repeatedly on
    /// this thread with the number of sent bytes; it starts again if the file is sent again with a login.
    /// HttpEnd::Broken if the file cannot be read. The response must arrive before `deadline`.
    [[nodiscard]] HttpResponse postFile(const ServiceAddress &address, const std::string &fileName,
                                        const HttpLogin *login,
                                        const std::function<void(std::int64_t sent)> &progress,
                                        std::chrono::steady_clock::time_point deadline);

    /// Ends the running requests; later requests fail.
    void cancel();
    [[nodiscard]] bool isCancelled() const { return m_isCancelled; }

private:
    struct Connection;
    struct Exchange;

    [[nodiscard]] std::unique_ptr<Connection> takeConnection();
    void giveBack(std::unique_ptr<Connection> connection);
    [[nodiscard]] HttpResponse exchange(Connection &connection, const ServiceAddress &address,
                                        const HttpLogin *login,
                                        const std::function<void(std::int64_t)> &progress,
                                        std::chrono::steady_clock::time_point deadline);

    const std::shared_ptr<const CertificateDecision> m_decision;
    std::atomic_bool m_isCancelled = false;
    std::mutex m_mutex; ///< guards the idle connections
    std::vector<std::unique_ptr<Connection>> m_idle;
};

} // namespace sdk::onvif
