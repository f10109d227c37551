// The interface for HTTP requests of commands, independent of the HTTP library.
#pragma once

#include "cgi/cgirequest.h"
#include "sdk/certificateblocks.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

/// Time limits of an exchange. An exchange that reaches a limit fails as TimedOut.
struct HttpLimits
{
    /// With the connection attempt; 0 for no limit. The connection attempt also has a limit of its own, see
    /// CurlTransport.
    std::chrono::milliseconds total{0};
    long slowestRate = 0;             ///< in bytes per second; 0 for no limit
    std::chrono::seconds slowTime{0}; ///< longest time below `slowestRate`; 0 for no limit
};

/// Kinds of failures that need different actions of the user.
enum class HttpFailure
{
    None,
    UnknownHost,
    Refused,     ///< the port is closed
    Unreachable, ///< no connection for another reason
    TimedOut,
    Tls,         ///< no encrypted connection
    Malformed,   ///< the response is not HTTP
    Interrupted, ///< the device closed the connection before the end of the response
    Other,       ///< also ended by the watch or the sink, or because of too long headers
};

/// How an exchange ended.
struct HttpOutcome
{
    long status = 0; ///< of the last response; 0 for none; also set if the body is incomplete
    QString failure; ///< reason of the failure as text of the library; empty on success, with any status
    HttpFailure failureKind = HttpFailure::None;
    bool hasTooLongHeaders = false; ///< ended because of headers of more than 256 KiB; also a failure
    bool isStopped = false;         ///< ended by the watch; also a failure

    /// The verdict on the device's certificate, if it prevented a request over HTTPS; also a failure.
    std::optional<sdk::CertificateVerdict> certificateRefusal = {};
};

/// Receives the body of a response in chunks. False ends the exchange as failed.
using BodySink = std::function<bool(QByteArrayView)>;

/// Called several times per second during an exchange, on the thread of perform(). False ends the exchange
/// immediately; HttpOutcome::isStopped is then set.
using ExchangeWatch = std::function<bool()>;

/// One request, which may be sent several times. It is used on the thread that opened it, and may outlive the
/// transport. A redirection is not followed: it is a response like any other.
class PreparedHttpRequest
{
public:
    PreparedHttpRequest() = default;
    PreparedHttpRequest(const PreparedHttpRequest &) = delete;
    PreparedHttpRequest &operator=(const PreparedHttpRequest &) = delete;
    virtual ~PreparedHttpRequest() = default;

    /// Later calls of perform() send the user name and the password by Basic, with the first request. Without
    /// this call they are sent only in response to a challenge, by Digest.
    virtual void useBasic() = 0;

    /// Sends the request as GET. Blocks until the response is complete, a limit is reached, or the sink or
    /// the watch ends the exchange. `sink` and `watch` may be empty: without a sink the body is discarded.
    virtual HttpOutcome perform(const HttpLimits &limits, const BodySink &sink,
                                const ExchangeWatch &watch) = 0;

    /// The header lines of all responses so far, of all calls of perform(). Truncated after 64 KiB.
    [[nodiscard]] virtual QByteArray headerText() const = 0;
};

/// Makes requests. Thread-safe.
class HttpTransport
{
public:
    HttpTransport() = default;
    HttpTransport(const HttpTransport &) = delete;
    HttpTransport &operator=(const HttpTransport &) = delete;
    virtual ~HttpTransport() = default;

    /// Sets the proxy of the requests that are opened later, as "http://host:port". Requests to this host
    /// (127.0.0.1, ::1 and localhost) do not use it. Empty, the default, for no proxy, regardless of the
    /// environment, since devices are in the local network.
    virtual void setProxy(const QString &proxy) = 0;

    /// Sets the handler that decides about the certificates of devices, also for requests that are already
    /// open. `user` is passed to it and must outlive the requests. Without a handler no request is sent over
    /// HTTPS: HttpOutcome::certificateRefusal is set.
    virtual void setCertificateHandler(sdk::CertificateHandler handler, void *user) = 0;

    /// Prepares a request; nothing is sent until PreparedHttpRequest::perform(). Does not check
    /// CgiRequest::refusal(). Null when memory is exhausted.
    [[nodiscard]] virtual std::unique_ptr<PreparedHttpRequest> open(const CgiRequest &request) = 0;
};
