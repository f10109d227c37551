// HTTP requests and responses of the site's web service, without their transport.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <chrono>
#include <utility>

namespace sdk::demo {

inline constexpr qsizetype longestHttpTarget = qsizetype{8} * 1024;
inline constexpr qsizetype longestHttpHead = qsizetype{32} * 1024; ///< request line and headers
inline constexpr qsizetype longestHttpBody = qsizetype{64} * 1024;

enum class HttpStatus
{
    None = 0, ///< no response
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

/// The phrase after the status code: "Not Found".
[[nodiscard]] QByteArray reasonPhrase(HttpStatus status);

struct HttpRequest
{
    QByteArray method;
    QByteArray target;                               ///< as in the request line
    QList<std::pair<QByteArray, QByteArray>> fields; ///< names in lower case
    qsizetype bodyLength = 0;
    bool keepsConnection = true;
    bool waitsForContinue = false; ///< sends its body only after the status 100

    /// The first header of that name (in lower case), empty without one.
    [[nodiscard]] QByteArray field(QByteArrayView name) const;
};

/// Reads a request line and headers, including the empty line. Returns Ok, or the status of the refusal.
/// `longestBody` is the limit of Content-Length.
[[nodiscard]] HttpStatus readHttpHead(const QByteArray &head, HttpRequest &request,
                                      qint64 longestBody = longestHttpBody);

/// The length of the head at the start of `received`, 0 while it is incomplete.
[[nodiscard]] qsizetype httpHeadLength(const QByteArray &received);

/// The target of a request: "http://192.168.1.104:80/cgi-bin/time?set=x", or only the path and the query.
struct HttpTarget
{
    QString scheme;       ///< lower case; empty if the target starts with its path
    QString host;         ///< an address, IPv6 without its brackets
    int port = 80;        ///< 443 for the scheme "https" without a port
    QByteArray path;      ///< still encoded
    QByteArray query;     ///< still encoded, without the question mark
    bool isValid = false; ///< false for an invalid target, and for one with a user
};

[[nodiscard]] HttpTarget readHttpTarget(const QByteArray &target);

/// A response and the faults of its transport. Plain text by default.
struct HttpResponse
{
    HttpStatus status = HttpStatus::Ok;
    QByteArray contentType = "text/plain; charset=utf-8";
    QByteArrayList fields; ///< further headers: "Allow: GET"
    QByteArray body;
    qint64 length = -1; ///< of the body, which is repeated up to this length; -1: the body once

    std::chrono::milliseconds delay{0};   ///< before the response
    std::chrono::seconds slowDuration{0}; ///< the time during which one byte of the body is sent each second
    bool isBroken = false;                ///< ends within the body
    bool hasNoHead = false;               ///< only the body is sent

    [[nodiscard]] qint64 fullLength() const { return length < 0 ? body.size() : length; }

    /// A response with a line of text.
    [[nodiscard]] static HttpResponse line(HttpStatus status, const QString &text);
};

/// Status line and headers of `response`.
[[nodiscard]] QByteArray httpHead(const HttpResponse &response, bool keepsConnection);

} // namespace sdk::demo
