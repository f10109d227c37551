// A client of the site's web service that sends just what a test tells it to.
#pragma once

#include "tests/sdk/demo/testsite.h"

#include <QCryptographicHash>
#include <QUrl>

#include <arpa/inet.h>
#include <sys/socket.h>
#include <unistd.h>

namespace sdk::demo {

struct HttpAnswer
{
    int status = 0; ///< 0 when no answer came
    QByteArray head;
    QByteArray body;

    [[nodiscard]] QByteArray field(const QByteArray &name) const
    {
        for (const QByteArray &line : head.split('\n')) {
            if (line.toLower().startsWith(name.toLower() + ": "))
                return line.mid(name.size() + 2).trimmed();
        }
        return {};
    }
};

/// A connection to a port of 127.0.0.1.
class HttpClient
{
public:
    explicit HttpClient(int port) : m_socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        constexpr timeval patience = {10, 0};
        setsockopt(m_socket, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof(patience));
        setsockopt(m_socket, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof(patience));
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        m_isConnected =
            ::connect(m_socket, reinterpret_cast<const sockaddr *>(&address), sizeof(address)) == 0;
    }
    ~HttpClient() { ::close(m_socket); }
    HttpClient(const HttpClient &) = delete;
    HttpClient &operator=(const HttpClient &) = delete;

    [[nodiscard]] bool isConnected() const { return m_isConnected; }

    void send(const QByteArray &bytes) const
    {
        ::send(m_socket, bytes.constData(), static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL);
    }

    /// One answer, with the body that its length tells.
    HttpAnswer answer()
    {
        HttpAnswer answer;
        while (!m_received.contains("\r\n\r\n")) {
            if (!readMore())
                return answer;
        }
        answer.head = read(m_received.indexOf("\r\n\r\n") + 4);
        answer.status = answer.head.split(' ').value(1).toInt();
        answer.body = read(answer.field("Content-Length").toLongLong());
        return answer;
    }

    /// Everything until the other side ends, as long as it does not fall silent.
    QByteArray readToEnd()
    {
        while (readMore()) {
        }
        return std::exchange(m_received, {});
    }

private:
    /// Up to `size` bytes, fewer at the end of the connection.
    QByteArray read(qsizetype size)
    {
        while (m_received.size() < size && readMore()) {
        }
        const QByteArray bytes = m_received.left(size);
        m_received.remove(0, size);
        return bytes;
    }

    bool readMore()
    {
        std::array<char, 65536> piece;
        const ssize_t count = ::recv(m_socket, piece.data(), piece.size(), 0);
        m_received.append(piece.data(), std::max<ssize_t>(count, 0));
        return count > 0;
    }

    int m_socket;
    bool m_isConnected = false;
    QByteArray m_received;
};

inline QByteArray request(const QByteArray &target, const QByteArray &authorization = {})
{
    const QByteArray field =
        authorization.isEmpty() ? QByteArray() : "Authorization: " + authorization + "\r\n";
    return "GET " + target + " HTTP/1.1\r\nHost: device\r\n" + field + "\r\n";
}

/// What a client answers to a Digest challenge; `uri` is what it says that it asks for.
inline QByteArray digest(const QByteArray &challenge, const QByteArray &uri, const QByteArray &user,
                         const QByteArray &password)
{
    const auto part = [&challenge](const QByteArray &name) {
        const qsizetype begin = challenge.indexOf(name + "=\"") + name.size() + 2;
        return challenge.mid(begin, challenge.indexOf('"', begin) - begin);
    };
    const auto hash = [](const QByteArray &text) {
        return QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex();
    };
    const QByteArray response = hash(hash(user + ':' + part("realm") + ':' + password) + ':' + part("nonce") +
                                     ":00000001:c0ffee:auth:" + hash("GET:" + uri));
    return "Digest username=\"" + user + "\", realm=\"" + part("realm") + "\", nonce=\"" + part("nonce") +
           "\", uri=\"" + uri + "\", cnonce=\"c0ffee\", nc=00000001, qop=auth, response=\"" + response + '"';
}

/// A site whose web services are reached through its proxy.
struct HttpSite : TestSite
{
    explicit HttpSite(const QList<SceneDevice> &devices = {camera(1, std::chrono::milliseconds(100))})
        : TestSite(devices), port(QUrl(site->httpProxy()).port())
    {
    }

    /// What the device at 192.168.1.1 answers to `command`.
    [[nodiscard]] HttpAnswer ask(const QByteArray &command, const QByteArray &password = "Pass-1") const
    {
        HttpClient client(port);
        const QByteArray target = "http://192.168.1.1:80" + command;
        client.send(request(target));
        const QByteArray challenge = client.answer().field("WWW-Authenticate");
        client.send(request(target, challenge.startsWith("Basic")
                                        ? "Basic " + ("admin:" + password).toBase64()
                                        : digest(challenge, command, "admin", password)));
        return client.answer();
    }

    int port;
};

} // namespace sdk::demo
