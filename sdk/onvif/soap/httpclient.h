// Requests to a device over HTTP, with connections that are kept.
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
    Answered,    ///< with any status
    NotReached,  ///< nothing answers at the address within the time
    NotAccepted, ///< the computer at the address refuses the connection
    NoAnswer,    ///< connected, and no whole answer within the time
    TooLarge,    ///< the answer exceeds HttpClient::largestAnswer
    Broken,      ///< the connection ended early, or what came is no HTTP
    Cancelled,
    UnknownCertificate, ///< over HTTPS: nobody has agreed to the key of the certificate; nothing was sent
    ChangedCertificate, ///< the same for a device of which another key is stored
};

struct HttpAnswer
{
    HttpEnd end = HttpEnd::NotReached;
    long status = 0;
    std::string body = {};
    bool offersDigest = false; ///< it is a challenge to log in by HTTP Digest
};

struct HttpLogin
{
    std::string account = {};
    std::string password = {};
};

/// Sends requests to one device. Several threads may use it; each request has a connection of its own, which
/// is kept for the next one. Redirects are not followed: they could lead a password to another address.
class HttpClient
{
public:
    static constexpr std::size_t largestAnswer = std::size_t(4) * 1024 * 1024;

    /// `decision` is asked for the certificates of HTTPS; without one all are refused.
    explicit HttpClient(std::shared_ptr<const CertificateDecision> decision = {});
    ~HttpClient();
    HttpClient(const HttpClient &) = delete;
    HttpClient &operator=(const HttpClient &) = delete;

    /// Blocks until the answer has arrived, `deadline` has passed, cancel() is called or the thread's
    /// RunningCall is stopped. With `login` the
    /// request is answered by HTTP Digest (RFC 7616) when the device asks for that, once; never by Basic,
    /// which would send the password.
    [[nodiscard]] HttpAnswer post(const ServiceAddress &address, const std::string &body,
                                  const std::string &contentType, const HttpLogin *login,
                                  std::chrono::steady_clock::time_point deadline);

    /// Fetches what `address` leads to, under the same rules.
    [[nodiscard]] HttpAnswer get(const ServiceAddress &address, const HttpLogin *login,
                                 std::chrono::steady_clock::time_point deadline);

    /// Sends a file of this computer as the body of a POST request. `progress` is called with the bytes that
    /// were sent, on this thread. The answer must come by `deadline`.
    [[nodiscard]] HttpAnswer postFile(const ServiceAddress &address, const std::string &fileName,
                                      const HttpLogin *login,
                                      const std::function<void(std::int64_t sent)> &progress,
                                      std::chrono::steady_clock::time_point deadline);

    /// Ends the requests that run, and every one that is made later.
    void cancel();
    [[nodiscard]] bool isCancelled() const { return m_isCancelled; }

private:
    struct Connection;
    struct Exchange;

    [[nodiscard]] std::unique_ptr<Connection> takeConnection();
    void giveBack(std::unique_ptr<Connection> connection);
    [[nodiscard]] HttpAnswer exchange(Connection &connection, const ServiceAddress &address,
                                      const HttpLogin *login,
                                      const std::function<void(std::int64_t)> &progress,
                                      std::chrono::steady_clock::time_point deadline);

    const std::shared_ptr<const CertificateDecision> m_decision;
    std::atomic_bool m_isCancelled = false;
    std::mutex m_mutex; ///< of the idle connections
    std::vector<std::unique_ptr<Connection>> m_idle;
};

} // namespace sdk::onvif
