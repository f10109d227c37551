#include "sdk/demo/http/httpconnection.h"

#include "sdk/clock.h"
#include "sdk/demo/http/encryption.h"

#include <algorithm>
#include <array>

#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

using namespace std::chrono_literals;

namespace sdk::demo {

namespace {

/// The timeout of a client that does not read, or does not continue a handshake.
constexpr timeval sendTimeout = {15, 0};

void skipEmptyLines(QByteArray &received)
{
    const auto begin = std::find_if_not(received.begin(), received.end(), [](char character) {
        return character == '\r' || character == '\n';
    });
    received.remove(0, begin - received.begin());
}

QString sentenceFor(HttpStatus status)
{
    return QString::fromLatin1(reasonPhrase(status));
}

} // namespace

HttpConnection::HttpConnection(HttpResponder &responder, int socket, int localPort, std::stop_token stop)
    : m_responder(responder), m_socket(socket), m_stop(std::move(stop)), m_route{.localPort = localPort},
      m_stream(std::make_unique<PlainStream>(socket))
{
    setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &sendTimeout, sizeof(sendTimeout));
    setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &sendTimeout, sizeof(sendTimeout));
    // Head and body are sent separately. The body must not wait for the acknowledgement of the head.
    const int on = 1;
    setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof(on));
}

bool HttpConnection::isProxy() const
{
    return m_route.localPort == HttpResponder::proxy && m_route.host.isEmpty();
}

bool HttpConnection::withholdResponse(HttpResponse &response) const
{
    if (!m_responder.clock().wait(HttpResponder::silence, m_stop) || !isProxy())
        return false;
    response = HttpResponse::line(HttpStatus::GatewayTimeout, sentenceFor(HttpStatus::GatewayTimeout));
    return true;
}

bool HttpConnection::enterTunnel(const HttpRequest &request)
{
    HttpTunnel tunnel = m_responder.openTunnel(request);
    if (!tunnel.key) {
        if ((tunnel.refusal.status != HttpStatus::None || withholdResponse(tunnel.refusal)) &&
            sendResponse(tunnel.refusal, true, false))
            linger();
        return false;
    }
    // The client starts TLS only after the response.
    if (!m_received.isEmpty() || !send("HTTP/1.1 200 Connection established\r\n\r\n"))
        return false;
    auto encrypted = std::make_unique<EncryptedStream>(m_socket, tunnel.key);
    const bool isAccepted = encrypted->accept();
    m_stream = std::move(encrypted);
    m_route = tunnel.route;
    return isAccepted;
}

void HttpConnection::serve()
{
    if (!m_responder.isHttpPort(m_route.localPort))
        return;
    for (;;) {
        HttpRequest request;
        const HttpStatus status = receiveRequest(request);
        if (status == HttpStatus::None)
            return;
        if (status != HttpStatus::Ok) {
            if (sendResponse(HttpResponse::line(status, sentenceFor(status)), true, false))
                linger();
            return;
        }
        if (request.method == "CONNECT" && isProxy()) {
            if (!enterTunnel(request))
                return;
            continue;
        }
        HttpResponse response = m_responder.respond(m_route, request);
        if (response.status == HttpStatus::None && !withholdResponse(response))
            return;
        const bool hasBody = request.method != "HEAD";
        const bool keeps = request.keepsConnection && hasBody && request.method != "CONNECT";
        if (!sendResponse(response, hasBody, keeps))
            return;
        if (!keeps) {
            linger();
            return;
        }
    }
}

HttpStatus HttpConnection::receiveRequest(HttpRequest &request)
{
    const Deadline deadline = std::chrono::steady_clock::now() + requestTime;
    qsizetype headLength = 0;
    for (;;) {
        skipEmptyLines(m_received);
        headLength = httpHeadLength(m_received);
        if (headLength > longestHttpHead)
            return HttpStatus::HeadTooLong;
        if (headLength > 0)
            break;
        constexpr qsizetype besideTarget = 64; // method and version
        if (m_received.size() > longestHttpTarget + besideTarget && !m_received.contains('\n'))
            return HttpStatus::TargetTooLong;
        if (m_received.size() > longestHttpHead)
            return HttpStatus::HeadTooLong;
        if (!receiveMore(deadline))
            return m_received.isEmpty() ? HttpStatus::None : HttpStatus::RequestTimeout;
    }
    const HttpStatus status = readHttpHead(m_received.left(headLength), request);
    if (status != HttpStatus::Ok)
        return status;
    m_received.remove(0, headLength);
    if (request.waitsForContinue && !send("HTTP/1.1 100 Continue\r\n\r\n"))
        return HttpStatus::None;
    // Commands have no parameters in the body: it is read and discarded.
    while (m_received.size() < request.bodyLength) {
        if (!receiveMore(deadline))
            return HttpStatus::RequestTimeout;
    }
    m_received.remove(0, request.bodyLength);
    return HttpStatus::Ok;
}

bool HttpConnection::receiveMore(Deadline deadline)
{
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
    constexpr std::size_t chunkSize = std::size_t{16} * 1024;
    std::array<char, chunkSize> chunk;
    const ssize_t count = m_stream->receive(chunk.data(), chunk.size(), std::max(left, 0ms));
    if (count <= 0)
        return false;
    m_received.append(chunk.data(), count);
    return true;
}

bool HttpConnection::sendResponse(const HttpResponse &response, bool hasBody, bool keepsConnection) const
{
    if (response.delay > 0ms && !m_responder.clock().wait(response.delay, m_stop))
        return false;
    if (!response.hasNoHead && !send(httpHead(response, keepsConnection)))
        return false;
    return !hasBody || (sendBody(response) && !response.isBroken && !response.hasNoHead);
}

bool HttpConnection::sendBody(const HttpResponse &response) const
{
    const qint64 end = response.isBroken ? response.fullLength() / 2 : response.fullLength();
    const QByteArrayView block = response.body;
    qint64 sent = 0;
    for (std::chrono::seconds slow = response.slowDuration; slow > 0s && sent < end; slow -= 1s, ++sent) {
        if (!send(block.sliced(sent % block.size(), 1)) || !m_responder.clock().wait(1s, m_stop))
            return false;
    }
    while (sent < end && !block.isEmpty()) {
        const qint64 position = sent % block.size();
        const qint64 count = std::min<qint64>(block.size() - position, end - sent);
        if (!send(block.sliced(position, count)))
            return false;
        sent += count;
    }
    return true;
}

bool HttpConnection::send(QByteArrayView bytes) const
{
    while (!bytes.isEmpty()) {
        const ssize_t count = m_stream->send(bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (count <= 0)
            return false;
        bytes = bytes.sliced(count);
    }
    return true;
}

void HttpConnection::linger()
{
    m_stream->finishSending();
    constexpr qsizetype most = qsizetype{1024} * 1024;
    const Deadline deadline = std::chrono::steady_clock::now() + 1s;
    qsizetype taken = 0;
    do {
        taken += m_received.size();
        m_received.clear();
    } while (taken < most && receiveMore(deadline));
}

} // namespace sdk::demo
