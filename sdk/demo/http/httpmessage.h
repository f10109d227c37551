// HTTP requests and responses of the site's web service, without their transport.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <chrono>
#include <utility>

namespace sdk::demo {

// Limits of requests, in bytes.
inline constexpr qsizetype longestHttpTarget = qsizetype{8} * 1024;
inline constexpr qsizetype longestHttpHead = qsizetype{32} * 1024; ///< request line and headers
inline constexpr qsizetype longestHttpBody = qsizetype{64} * 1024;

/// The status codes that the simulated devices and the proxy use.
enum class HttpStatus
{
    None = 0, ///< not a status of HTTP: the request gets no response
    Ok = 200,
    Found = 302,
    BadRequest = 400,
    Unauthorized = 401,
    Forbidden = 403,
    NotFound = 404,
    MethodNotAllowed = 405,
    RequestTimeout = 408,
    BodyTooLong = 413,
    TargetTooLong = 414,
    HeadTooLong = 431,
    InternalServerError = 500,
    NotImplemented = 501,
    BadGateway = 502,
    GatewayTimeout = 504,
    VersionNotSupported = 505,
};

/// The phrase after the status code: "Not Found". Empty for None.
[[nodiscard]] QByteArray reasonPhrase(HttpStatus status);

/// The head of a request.
struct HttpRequest
{
    QByteArray method;                               ///< "GET"
    QByteArray target;                               ///< as in the request line: a path or a URL
    QList<std::pair<QByteArray, QByteArray>> fields; ///< names in lower case
    qsizetype bodyLength = 0;                        ///< in bytes; the body is not part of this struct
    bool keepsConnection = true;   ///< the client may send another request over the connection
    bool waitsForContinue = false; ///< sends its body only after the status 100

    /// The value of the first header of that name (in lower case); empty without one.
    [[nodiscard]] QByteArray field(QByteArrayView name) const;
};

/// Reads a request line and headers, including the empty line, into the empty `request`. `head` has the
/// length that httpHeadLength() returns. Returns Ok, or the status with which the request is refused;
/// `request` is incomplete then. `longestBody` is the limit of Content-Length, in bytes.
[[nodiscard]] HttpStatus readHttpHead(const QByteArray &head, HttpRequest &request,
                                      qint64 longestBody = longestHttpBody);

/// The length in bytes of the head at the start of `received`, including its empty line; 0 while the head is
/// incomplete.
[[nodiscard]] qsizetype httpHeadLength(const QByteArray &received);

/// The parts of a request's target: "http://192.168.1.104:80/cgi-bin/time?set=x", or only the path and the
/// query.
struct HttpTarget
{
    QString scheme;       ///< lower case; empty if the target starts with its path
    QString host;         ///< an address, IPv6 without its brackets
    int port = 80;        ///< 443 for the scheme "https" without a port
    QByteArray path;      ///< still encoded, with its leading slash
    QByteArray query;     ///< still encoded, without the question mark
    bool isValid = false; ///< false for an invalid target, and for one with a user: the rest is meaningless
};

/// Reads the target of a request line. Any scheme is valid. A fragment ("#...") is ignored.
[[nodiscard]] HttpTarget readHttpTarget(const QByteArray &target);

/// A response, and the faults of its transport, which the connection applies when it sends the response.
/// Plain text by default.
struct HttpResponse
{
    HttpStatus status = HttpStatus::Ok;
    QByteArray contentType = "text/plain; charset=utf-8";
    QByteArrayList fields; ///< further headers: "Allow: GET"
    QByteArray body;
    qint64 length = -1; ///< in bytes: `body` is repeated up to this length; -1 for `body` once

    std::chrono::milliseconds delay{0};   ///< before the response, on the site's clock
    std::chrono::seconds slowDuration{0}; ///< the body starts with one byte a second for this time
    bool isBroken = false;                ///< half of the body is sent, then the connection closes
    bool hasNoHead = false;               ///< only the body is sent, then the connection closes

    /// The length of the body that the head announces, in bytes.
    [[nodiscard]] qint64 fullLength() const { return length < 0 ? body.size() : length; }

    /// A response with a line of text; a line feed is appended.
    [[nodiscard]] static HttpResponse line(HttpStatus status, const QString &text);
};

/// Status line and headers of `response`, including the empty line. Without `keepsConnection` they announce
/// that the server closes the connection.
[[nodiscard]] QByteArray httpHead(const HttpResponse &response, bool keepsConnection);

} // namespace sdk::demo
