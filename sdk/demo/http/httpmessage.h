// Requests and replies of the site's web service, apart from how they travel.
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
    None = 0, ///< nothing is answered
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

/// The phrase that stands after the number: "Not Found".
[[nodiscard]] QByteArray reasonPhrase(HttpStatus status);

struct HttpRequest
{
    QByteArray method;
    QByteArray target;                               ///< as it stands in the request line
    QList<std::pair<QByteArray, QByteArray>> fields; ///< names in lower case
    qsizetype bodyLength = 0;
    bool keepsConnection = true;
    bool waitsForContinue = false; ///< sends its body only when it is told to go on

    /// The first header of that name (in lower case), empty without one.
    [[nodiscard]] QByteArray field(QByteArrayView name) const;
};

/// Reads a request line and headers, up to and with the empty line. Returns Ok, or the status to refuse it
/// with. A body may be as long as `longestBody`.
[[nodiscard]] HttpStatus readHttpHead(const QByteArray &head, HttpRequest &request,
                                      qint64 longestBody = longestHttpBody);

/// The length of the head at the begin of `received`, 0 while it is not complete.
[[nodiscard]] qsizetype httpHeadLength(const QByteArray &received);

/// Where a request goes: "http://192.168.1.104:80/cgi-bin/time?set=x", or from the path on.
struct HttpTarget
{
    QString scheme; ///< lower case; empty when the target begins with its path
    QString host;   ///< an address, IPv6 without its brackets
    int port = 80;
    QByteArray path;     ///< still encoded
    QByteArray query;    ///< the same, without its question mark
    bool isGood = false; ///< false for what is no target, or names a user
};

[[nodiscard]] HttpTarget readHttpTarget(const QByteArray &target);

/// What goes back, and what is wrong with how it goes. A plain text unless told otherwise.
struct HttpReply
{
    HttpStatus status = HttpStatus::Ok;
    QByteArray contentType = "text/plain; charset=utf-8";
    QByteArrayList fields; ///< further headers: "Allow: GET"
    QByteArray body;
    qint64 length = -1; ///< of the body, which is repeated until then; -1 for once

    std::chrono::milliseconds lateness{0}; ///< before anything is sent
    std::chrono::seconds slowness{0};      ///< for how long one byte of the body comes each second
    bool isBroken = false;                 ///< ends in the middle of the body
    bool hasNoHead = false;                ///< the body alone

    [[nodiscard]] qint64 fullLength() const { return length < 0 ? body.size() : length; }

    /// A line of text with that status.
    [[nodiscard]] static HttpReply line(HttpStatus status, const QString &text);
};

/// Status line and headers of `reply`.
[[nodiscard]] QByteArray httpHead(const HttpReply &reply, bool keepsConnection);

} // namespace sdk::demo
