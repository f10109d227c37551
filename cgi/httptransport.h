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

/// Time limits of an exchange.
struct HttpLimits
{
    std::chrono::milliseconds total{0}; ///< 0 for no limit
    long slowestRate = 0;               ///< in bytes per second; 0 for no limit
    std::chrono::seconds slowTime{0};   ///< longest time below `slowestRate`; 0 for no limit
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
    Other,
};

/// How an exchange ended.
struct HttpOutcome
{
    long status = 0; ///< of the last response; 0 for none
    QString failure; ///< reason of the failure as text of the library; empty on success
    HttpFailure failureKind = HttpFailure::None;
    bool hasTooLongHeaders = false; ///< ended because of too long headers; also a failure
    bool isStopped = false;         ///< ended by the watch; also a failure

    /// The verdict on the device's certificate, if it prevented a request over HTTPS; also a failure.
    std::optional<sdk::CertificateVerdict> certificateRefusal = {};
};

/// Receives the body of a response in chunks. False ends the exchange as failed.
using BodySink = std::function<bool(QByteArrayView)>;

/// Called several times per second during an exchange, on its thread. False ends the exchange immediately.
using ExchangeWatch = std::function<bool()>;

/// One request, which may be sent several times. Used by the thread that opened it. A redirection is a
/// response like any other.
class PreparedHttpRequest
{
public:
    PreparedHttpRequest() = default;
    PreparedHttpRequest(const PreparedHttpRequest &) = delete;
    PreparedHttpRequest &operator=(const PreparedHttpRequest &) = delete;
    virtual ~PreparedHttpRequest() = default;

    /// Sends the user name and the password with every later request, by Basic. Without this call they are
    /// sent only in response to a challenge, by Digest.
    virtual void useBasic() = 0;

    /// Sends the request. Blocks until the response is complete or a limit is reached. Without a sink the
    /// body is discarded; without a watch only a limit ends the exchange early.
    virtual HttpOutcome perform(const HttpLimits &limits, const BodySink &sink,
                                const ExchangeWatch &watch) = 0;

    /// The header lines of all responses so far, of all calls of perform(), up to a bounded length.
    [[nodiscard]] virtual QByteArray headerText() const = 0;
};

/// Thread-safe.
class HttpTransport
{
public:
    HttpTransport() = default;
    HttpTransport(const HttpTransport &) = delete;
    HttpTransport &operator=(const HttpTransport &) = delete;
    virtual ~HttpTransport() = default;

    /// Sets the proxy of later requests to other hosts, as "http://host:port". Empty, the default, for no
    /// proxy, regardless of the environment, since devices are in the local network.
    virtual void setProxy(const QString &proxy) = 0;

    /// Sets the handler that decides about the certificates of devices. Without it no request is made over
    /// HTTPS.
    virtual void setCertificateHandler(sdk::CertificateHandler handler, void *user) = 0;

    /// Null when memory is exhausted.
    [[nodiscard]] virtual std::unique_ptr<PreparedHttpRequest> open(const CgiRequest &request) = 0;
};
