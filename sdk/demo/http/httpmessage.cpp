#include "sdk/demo/http/httpmessage.h"

#include <QUrl>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace sdk::demo {

namespace {

struct Phrase
{
    HttpStatus status;
    const char *text;
};

constexpr std::array phrases = {
    Phrase{HttpStatus::Ok, "OK"},
    Phrase{HttpStatus::Found, "Found"},
    Phrase{HttpStatus::BadRequest, "Bad Request"},
    Phrase{HttpStatus::Unauthorized, "Unauthorized"},
    Phrase{HttpStatus::Forbidden, "Forbidden"},
    Phrase{HttpStatus::NotFound, "Not Found"},
    Phrase{HttpStatus::MethodNotAllowed, "Method Not Allowed"},
    Phrase{HttpStatus::RequestTimeout, "Request Timeout"},
    Phrase{HttpStatus::BodyTooLong, "Content Too Large"},
    Phrase{HttpStatus::TargetTooLong, "URI Too Long"},
    Phrase{HttpStatus::HeadTooLong, "Request Header Fields Too Large"},
    Phrase{HttpStatus::InternalServerError, "Internal Server Error"},
    Phrase{HttpStatus::NotImplemented, "Not Implemented"},
    Phrase{HttpStatus::BadGateway, "Bad Gateway"},
    Phrase{HttpStatus::GatewayTimeout, "Gateway Timeout"},
    Phrase{HttpStatus::VersionNotSupported, "HTTP Version Not Supported"},
};

bool isTokenCharacter(char character)
{
    constexpr std::string_view others = "!#$%&'*+-.^_`|~";
    const auto byte = static_cast<unsigned char>(character);
    return (byte >= '0' && byte <= '9') || (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z') ||
           others.find(character) != std::string_view::npos;
}

bool isToken(const QByteArray &text)
{
    return !text.isEmpty() && std::all_of(text.begin(), text.end(), isTokenCharacter);
}

/// Whether all bytes are printable; `withSpaces` also allows spaces, tabs and bytes outside ASCII.
bool isPrintable(const QByteArray &text, bool withSpaces)
{
    return std::all_of(text.begin(), text.end(), [withSpaces](char character) {
        const auto byte = static_cast<unsigned char>(character);
        constexpr unsigned char firstBeyond = 0x7F;
        if (byte == ' ' || byte == '\t' || byte > firstBeyond)
            return withSpaces;
        return byte > ' ' && byte != firstBeyond;
    });
}

HttpStatus readRequestLine(const QByteArray &line, HttpRequest &request)
{
    const QByteArrayList parts = line.split(' ');
    if (parts.size() != 3 || !isToken(parts.at(0)) || parts.at(1).isEmpty() ||
        !isPrintable(parts.at(1), false) || !parts.at(2).startsWith("HTTP/"))
        return HttpStatus::BadRequest;
    if (parts.at(1).size() > longestHttpTarget)
        return HttpStatus::TargetTooLong;
    if (parts.at(2) != "HTTP/1.1" && parts.at(2) != "HTTP/1.0")
        return HttpStatus::VersionNotSupported;
    request.method = parts.at(0);
    request.target = parts.at(1);
    request.keepsConnection = parts.at(2) == "HTTP/1.1";
    return HttpStatus::Ok;
}

HttpStatus readFraming(HttpRequest &request, qint64 longestBody)
{
    bool hasLength = false;
    for (const auto &[name, value] : std::as_const(request.fields)) {
        const QByteArray lowered = value.toLower();
        if (name == "content-length") {
            const bool isNumber = !value.isEmpty() && std::all_of(value.begin(), value.end(), [](char digit) {
                return digit >= '0' && digit <= '9';
            });
            if (!isNumber || hasLength)
                return HttpStatus::BadRequest;
            bool fits = false;
            request.bodyLength = value.toLongLong(&fits);
            if (!fits || request.bodyLength > longestBody)
                return HttpStatus::BodyTooLong;
            hasLength = true;
        } else if (name == "transfer-encoding") {
            return HttpStatus::NotImplemented;
        } else if ((name == "connection" || name == "proxy-connection") && lowered.contains("close")) {
            request.keepsConnection = false;
        } else if (name == "expect" && lowered == "100-continue") {
            request.waitsForContinue = true;
        }
    }
    return HttpStatus::Ok;
}

} // namespace

QByteArray reasonPhrase(HttpStatus status)
{
    const auto found = std::find_if(phrases.begin(), phrases.end(),
                                    [status](const Phrase &phrase) { return phrase.status == status; });
    return found == phrases.end() ? QByteArray() : QByteArray(found->text);
}

QByteArray HttpRequest::field(QByteArrayView name) const
{
    const auto found =
        std::find_if(fields.begin(), fields.end(), [name](const auto &entry) { return entry.first == name; });
    return found == fields.end() ? QByteArray() : found->second;
}

qsizetype httpHeadLength(const QByteArray &received)
{
    // Line by line: some clients end their lines with only a line feed.
    qsizetype begin = 0;
    for (;;) {
        const qsizetype end = received.indexOf('\n', begin);
        if (end < 0)
            return 0;
        const bool isEmpty = end == begin || (end == begin + 1 && received.at(begin) == '\r');
        if (isEmpty && begin > 0)
            return end + 1;
        begin = end + 1;
    }
}

HttpStatus readHttpHead(const QByteArray &head, HttpRequest &request, qint64 longestBody)
{
    QByteArrayList lines = head.split('\n');
    for (QByteArray &line : lines) {
        if (line.endsWith('\r'))
            line.chop(1);
    }
    const HttpStatus first = readRequestLine(lines.takeFirst(), request);
    if (first != HttpStatus::Ok)
        return first;
    for (const QByteArray &line : std::as_const(lines)) {
        if (line.isEmpty())
            break;
        const qsizetype colon = line.indexOf(':');
        const QByteArray name = line.left(std::max<qsizetype>(colon, 0));
        const QByteArray value = line.mid(colon + 1).trimmed();
        if (!isToken(name) || !isPrintable(value, true))
            return HttpStatus::BadRequest;
        request.fields.append({name.toLower(), value});
    }
    return readFraming(request, longestBody);
}

HttpTarget readHttpTarget(const QByteArray &target)
{
    HttpTarget read;
    QByteArray rest = target;
    if (!rest.startsWith('/')) {
        const qsizetype schemeEnd = rest.indexOf("://");
        if (schemeEnd <= 0)
            return read;
        read.scheme = QString::fromLatin1(rest.left(schemeEnd)).toLower();
        rest.remove(0, schemeEnd + 3);
        const auto pathBegin = std::find_if(
            rest.begin(), rest.end(), [](char character) { return character == '/' || character == '?'; });
        const qsizetype hostLength = pathBegin - rest.begin();
        const QUrl host(u"http://"_s + QString::fromLatin1(rest.left(hostLength)), QUrl::StrictMode);
        if (!host.isValid() || host.host().isEmpty() || !host.userInfo().isEmpty())
            return read;
        read.host = host.host();
        read.port = host.port(read.scheme == u"https" ? 443 : 80);
        rest.remove(0, hostLength);
        if (!rest.startsWith('/'))
            rest.prepend('/');
    }
    rest = rest.left(rest.indexOf('#') < 0 ? rest.size() : rest.indexOf('#'));
    const qsizetype question = rest.indexOf('?');
    read.path = question < 0 ? rest : rest.left(question);
    read.query = question < 0 ? QByteArray() : rest.mid(question + 1);
    read.isValid = true;
    return read;
}

HttpResponse HttpResponse::line(HttpStatus status, const QString &text)
{
    HttpResponse response;
    response.status = status;
    response.body = text.toUtf8() + '\n';
    return response;
}

QByteArray httpHead(const HttpResponse &response, bool keepsConnection)
{
    QByteArray head = "HTTP/1.1 " + QByteArray::number(static_cast<int>(response.status)) + ' ' +
                      reasonPhrase(response.status) + "\r\n";
    for (const QByteArray &field : response.fields)
        head += field + "\r\n";
    head += "Content-Type: " + response.contentType +
            "\r\nContent-Length: " + QByteArray::number(response.fullLength()) + "\r\n";
    if (!keepsConnection)
        head += "Connection: close\r\n";
    return head + "\r\n";
}

} // namespace sdk::demo
