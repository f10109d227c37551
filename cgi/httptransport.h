// Requests over HTTP as the commands need them, apart from the library that makes them.
#pragma once

#include "cgi/cgirequest.h"
#include "sdk/certificateblocks.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

/// How long an exchange may take.
struct HttpLimits
{
    std::chrono::milliseconds total{0}; ///< 0 for no limit
    long slowestRate = 0;               ///< in bytes a second; 0 for no limit
    std::chrono::seconds slowTime{0};   ///< how long it may be slower than that
};

/// How an exchange ended.
struct HttpOutcome
{
    long status = 0;                ///< of the last answer; 0 when none began
    QString failure;                ///< why it failed, in words; empty when it did not
    bool hasTooLongHeaders = false; ///< ended for that; a failure, too
    bool isStopped = false;         ///< ended by the watch; a failure, too

    /// Why nothing was sent over HTTPS: the certificate of the device; a failure, too.
    std::optional<sdk::CertificateVerdict> certificateRefusal = {};
};

/// Takes the body of an answer piece by piece. False ends the exchange, which then has failed.
using BodySink = std::function<bool(QByteArrayView)>;

/// Asked several times a second while an exchange runs, on its thread. False ends the exchange at once.
using ExchangeWatch = std::function<bool()>;

/// One request, which may be sent more than once. Blocks until it is done or a limit is reached; belongs to
/// the thread that opened it. A redirection is an answer like any other.
class HttpConversation
{
public:
    HttpConversation() = default;
    HttpConversation(const HttpConversation &) = delete;
    HttpConversation &operator=(const HttpConversation &) = delete;
    virtual ~HttpConversation() = default;

    /// From now on name and password go along unasked, in the Basic form. Before that they answer a
    /// challenge, in the Digest form.
    virtual void useBasic() = 0;

    /// Sends the request. Without a sink the body is thrown away; without a watch only a limit ends it early.
    virtual HttpOutcome perform(const HttpLimits &limits, const BodySink &sink,
                                const ExchangeWatch &watch) = 0;

    /// The header lines of all answers so far, but not more than a bounded length of them.
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

    /// Where requests to other machines go from now on, as "http://host:port". Empty, as at first: straight
    /// to the device, whatever the environment says, since devices are in the local network.
    virtual void setProxy(const QString &proxy) = 0;

    /// Who decides about the certificates of devices. Until then none is asked over HTTPS.
    virtual void setCertificateHandler(sdk::CertificateHandler handler, void *user) = 0;

    /// Null when the library has no memory left.
    [[nodiscard]] virtual std::unique_ptr<HttpConversation> open(const CgiRequest &request) = 0;
};
