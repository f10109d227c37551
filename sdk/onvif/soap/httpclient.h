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
    NoResponse,  ///< no complete response before the deadline, or the deadline had passed before the call
    TooLarge,    ///< the body exceeds HttpClient::largestResponse, or the headers exceed 64 KiB
    Broken,      ///< the connection ended early, or the response is not HTTP
    Cancelled,   ///< by HttpClient::cancel() or a stop of the thread's RunningCall
    UnknownCertificate, ///< over HTTPS: the user has not accepted the key of the certificate; no request was
                        ///< sent
    ChangedCertificate, ///< over HTTPS: another key is stored for the device; no request was sent
};

/// The result of an exchange. With an `end` other than HttpEnd::Responded, the other members are unspecified.
struct HttpResponse
{
    HttpEnd end = HttpEnd::NotReached;
    long status = 0; ///< HTTP status; 0 without a response
    std::string body = {};
    bool offersDigest = false; ///< the last response contains a challenge for HTTP Digest, any algorithm
};

/// The account of a request. Strings are UTF-8.
struct HttpLogin
{
    std::string account = {};
    std::string password = {};
};

/// Sends requests to devices, usually to one. Thread-safe: each running request has a separate connection,
/// which is kept for later requests. Redirections are not followed: they could send a password to another
/// address. The proxy of the environment is not used.
class HttpClient
{
public:
    static constexpr std::size_t largestResponse = std::size_t(4) * 1024 * 1024; ///< bytes of the body

    /// `decision` decides about the certificates of HTTPS; if it is null, all are refused.
    explicit HttpClient(std::shared_ptr<const CertificateDecision> decision = {});
    ~HttpClient();
    HttpClient(const HttpClient &) = delete;
    HttpClient &operator=(const HttpClient &) = delete;

    /// Sends a POST request. Blocks until the response has arrived, `deadline` has passed, cancel() is called
    /// or the RunningCall of the calling thread is stopped. The request is sent without a login first. With
    /// `login` (null for none), a challenge of the device is answered once by HTTP Digest (RFC 7616), and
    /// never by Basic, which would send the password in plain text. A refused login is a response with the
    /// status 401.
    [[nodiscard]] HttpResponse post(const ServiceAddress &address, const std::string &body,
                                    const std::string &contentType, const HttpLogin *login,
                                    std::chrono::steady_clock::time_point deadline);

    /// Sends a GET request for the resource at `address`. The rest is as for post().
    [[nodiscard]] HttpResponse get(const ServiceAddress &address, const HttpLogin *login,
                                   std::chrono::steady_clock::time_point deadline);

    /// Sends a local file as the body of a POST request. The rest is as for post(). `progress`, if not empty,
    /// is called repeatedly on the calling thread with the number of sent bytes. The number starts again at 0
    /// if the device requests a login and the file is sent again. HttpEnd::Broken if the file cannot be read.
    [[nodiscard]] HttpResponse postFile(const ServiceAddress &address, const std::string &fileName,
                                        const HttpLogin *login,
                                        const std::function<void(std::int64_t sent)> &progress,
                                        std::chrono::steady_clock::time_point deadline);

    /// Ends the running requests with HttpEnd::Cancelled, without waiting for them. Later requests end in the
    /// same way. Cannot be undone.
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
