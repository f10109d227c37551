// A client of the simulated devices of a site on real sockets: it sends SOAP requests over HTTP, as a test
// defines them. All functions block.
#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <QDateTime>
#include <QElapsedTimer>
#include <QHostAddress>
#include <QRegularExpression>
#include <QTcpSocket>
#include <QThread>
#include <QUdpSocket>

#include <functional>

namespace site {

/// The response to a request.
struct Response
{
    int status = 0;  ///< of HTTP; 0 without a complete response
    QByteArray head; ///< status line and headers
    QByteArray body;

    /// All values of the header `name`, whose case is ignored, in order.
    [[nodiscard]] QByteArrayList fields(const QByteArray &name) const
    {
        QByteArrayList values;
        for (const QByteArray &line : head.split('\n')) {
            if (line.toLower().startsWith(name.toLower() + ":"))
                values.append(line.mid(name.size() + 1).trimmed());
        }
        return values;
    }

    /// The texts of all XML elements of the body with that name and any prefix, in order.
    [[nodiscard]] QStringList texts(const QString &name) const
    {
        static const QRegularExpression element(
            QStringLiteral("<(?:[\\w-]+:)?([\\w-]+)(?:\\s[^>]*)?>([^<]*)(?=<)"));
        QStringList found;
        QRegularExpressionMatchIterator matches = element.globalMatch(QString::fromUtf8(body));
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            if (match.captured(1) == name)
                found.append(match.captured(2));
        }
        return found;
    }
    /// The first one of texts(); empty if there is none.
    [[nodiscard]] QString text(const QString &name) const { return texts(name).value(0); }

    /// The HTTP status and, for a SOAP fault, its innermost code without its prefix: "200", "400
    /// NotAuthorized".
    [[nodiscard]] QString outcome() const
    {
        const QStringList codes = body.contains("Fault>") ? texts(QStringLiteral("Value")) : QStringList();
        const QString code = codes.isEmpty() ? QString() : u' ' + codes.last().section(u':', -1);
        return QString::number(status) + code;
    }
};

/// Sends the complete request `bytes` on a new connection, which is closed after the response. `patience` is
/// the timeout of the connection and of each wait for bytes, in milliseconds. After a timeout, the status is
/// 0.
inline Response exchange(const QString &address, int port, const QByteArray &bytes, int patience = 10000)
{
    QTcpSocket socket;
    socket.connectToHost(address, static_cast<quint16>(port));
    if (!socket.waitForConnected(patience))
        return {};
    socket.write(bytes);
    QByteArray received;
    Response response;
    for (;;) {
        const qsizetype headEnd = received.indexOf("\r\n\r\n");
        if (headEnd >= 0) {
            response.head = received.left(headEnd);
            response.body = received.mid(headEnd + 4);
            const QByteArray length = response.fields("Content-Length").value(0, "0");
            if (response.body.size() >= length.toLongLong())
                break;
        }
        if (!socket.waitForReadyRead(patience))
            return {};
        received += socket.readAll();
    }
    response.status = response.head.split(' ').value(1).toInt();
    return response;
}

/// How a request logs in, with the user name "admin".
struct Login
{
    enum class Kind
    {
        None,
        Token,  ///< a WS-Security user name token in the SOAP header
        Digest, ///< an HTTP Digest in response to the challenge of a first request
    };
    Kind kind = Kind::None;
    QString password;
    int minutesOff = 0;              ///< by which the client's clock is ahead of the real time; for a token
    QByteArray algorithmSuffix = {}; ///< added to the name of the digest algorithm
};

/// The hash of a text in hexadecimal digits, by "SHA-256" or, for any other algorithm, by MD5.
inline QByteArray hashed(const QByteArray &text, const QByteArray &algorithm)
{
    return QCryptographicHash::hash(text, algorithm == "SHA-256" ? QCryptographicHash::Sha256
                                                                 : QCryptographicHash::Md5)
        .toHex();
}

/// The header line Authorization, with CRLF, for a Digest of the user "admin": the response to the first
/// challenge of `refusal`, a response with status 401. `suffix` is added to the name of the algorithm.
inline QByteArray digestHeader(const Response &refusal, const QString &password, const QByteArray &method,
                               const QByteArray &uri, const QByteArray &suffix = {})
{
    const QByteArray challenge = refusal.fields("WWW-Authenticate").value(0);
    const auto parameter = [&challenge](const char *name) {
        static const QRegularExpression pattern(QStringLiteral("(\\w+)=\"?([^\",]*)"));
        QRegularExpressionMatchIterator matches = pattern.globalMatch(QString::fromLatin1(challenge));
        while (matches.hasNext()) {
            const QRegularExpressionMatch match = matches.next();
            if (match.captured(1) == QLatin1String(name))
                return match.captured(2).toLatin1();
        }
        return QByteArray();
    };
    const QByteArray algorithm = parameter("algorithm");
    const QByteArray who = hashed("admin:" + parameter("realm") + ':' + password.toUtf8(), algorithm);
    const QByteArray what = hashed(method + ':' + uri, algorithm);
    const QByteArray proof =
        hashed(who + ':' + parameter("nonce") + ":00000001:client:auth:" + what, algorithm);
    return "Authorization: Digest username=\"admin\", realm=\"" + parameter("realm") + "\", nonce=\"" +
           parameter("nonce") + "\", uri=\"" + uri +
           "\", qop=auth, nc=00000001, cnonce=\"client\", algorithm=" + algorithm + suffix + ", response=\"" +
           proof + "\"\r\n";
}

/// The SOAP header with the user name token of a login.
inline QByteArray tokenHeader(const Login &login)
{
    const QByteArray created =
        QDateTime::currentDateTimeUtc().addSecs(login.minutesOff * 60).toString(Qt::ISODate).toLatin1();
    const QByteArray nonce = "0123456789abcdef";
    const QByteArray proof =
        QCryptographicHash::hash(nonce + created + login.password.toUtf8(), QCryptographicHash::Sha1)
            .toBase64();
    const QByteArray base = "http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-";
    return "<e:Header><Security xmlns=\"" + base +
           "wssecurity-secext-1.0.xsd\"><UsernameToken><Username>admin</Username><Password Type=\"" + base +
           "username-token-profile-1.0#PasswordDigest\">" + proof + "</Password><Nonce>" + nonce.toBase64() +
           "</Nonce><c:Created xmlns:c=\"" + base + "wssecurity-utility-1.0.xsd\">" + created +
           "</c:Created></UsernameToken></Security></e:Header>";
}

/// Sends an operation to a service of a device and returns the response. `operation` is the XML element of
/// the operation, with the default namespace of its service; the prefix "tt" is declared. `service` is the
/// name in the path, as in "/onvif/device_service". With Login::Kind::Digest, a request that is refused with
/// status 401 is sent again with the Digest.
inline Response ask(const QString &address, const QByteArray &operation, const Login &login = {},
                    const QByteArray &service = "device", int port = 80)
{
    const QByteArray path = "/onvif/" + service + "_service";
    const QByteArray body = "<e:Envelope xmlns:e=\"http://www.w3.org/2003/05/soap-envelope\" "
                            "xmlns:tt=\"http://www.onvif.org/ver10/schema\">" +
                            (login.kind == Login::Kind::Token ? tokenHeader(login) : QByteArray()) +
                            "<e:Body>" + operation + "</e:Body></e:Envelope>";
    const auto request = [&](const QByteArray &fields) {
        return "POST " + path + " HTTP/1.1\r\nHost: device\r\nConnection: close\r\n" + fields +
               "Content-Type: application/soap+xml\r\nContent-Length: " + QByteArray::number(body.size()) +
               "\r\n\r\n" + body;
    };
    const Response response = exchange(address, port, request({}));
    if (login.kind != Login::Kind::Digest || response.status != 401)
        return response;
    return exchange(address, port,
                    request(digestHeader(response, login.password, "POST", path, login.algorithmSuffix)));
}

/// The XML element of an operation of the device service; `content` are its child elements.
inline QByteArray deviceOperation(const QByteArray &name, const QByteArray &content = {})
{
    return "<" + name + " xmlns=\"http://www.onvif.org/ver10/device/wsdl\">" + content + "</" + name + ">";
}

/// The same for the media service (version 2).
inline QByteArray mediaOperation(const QByteArray &name, const QByteArray &content = {})
{
    return "<" + name + " xmlns=\"http://www.onvif.org/ver20/media/wsdl\">" + content + "</" + name + ">";
}

/// Polls `isRight` every 50 ms until it returns true. Returns false if it does not within `seconds`.
inline bool becomes(const std::function<bool()> &isRight, int seconds = 20)
{
    QElapsedTimer timer;
    timer.start();
    while (!isRight()) {
        if (timer.elapsed() > seconds * 1000)
            return false;
        QThread::msleep(50); // poll interval
    }
    return true;
}

} // namespace site
