#include "site/http/serverconnection.h"

#include "sdk/clock.h"

#include <algorithm>
#include <array>

using namespace sdk::demo;
using namespace std::chrono_literals;

namespace site {

namespace {

HttpResponse plainResponse(HttpStatus status)
{
    return HttpResponse::line(status, QString::fromLatin1(reasonPhrase(status)));
}

} // namespace

ServerConnection::ServerConnection(HttpService &service, sdk::Clock &clock, ByteStream &stream,
                                   HttpReceiver receiver)
    : m_service(service), m_clock(clock), m_stream(stream), m_receiver(std::move(receiver))
{
}

void ServerConnection::serve()
{
    for (;;) {
        HttpRequest head;
        QByteArray body;
        HttpStatus status = receiveHead(head);
        if (status == HttpStatus::Ok)
            status = receiveBody(head, body);
        if (status == HttpStatus::None)
            return;
        if (status != HttpStatus::Ok) {
            if (sendResponse(plainResponse(status), true, false))
                linger();
            return;
        }
        const HttpResponse response = m_service.respond(m_receiver, head, body);
        if (response.status == HttpStatus::None)
            return;
        const bool hasBody = head.method != "HEAD";
        const bool keeps = head.keepsConnection && hasBody;
        if (!sendResponse(response, hasBody, keeps))
            return;
        if (!keeps) {
            linger();
            return;
        }
    }
}

HttpStatus ServerConnection::receiveHead(HttpRequest &head)
{
    const auto deadline = std::chrono::steady_clock::now() + requestTime;
    qsizetype length = 0;
    for (;;) {
        while (m_received.startsWith('\r') || m_received.startsWith('\n'))
            m_received.remove(0, 1);
        length = httpHeadLength(m_received);
        if (length > 0)
            break;
        if (m_received.size() > longestHttpHead)
            return HttpStatus::HeadTooLong;
        const auto left =
            std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left <= 0ms || !receiveMore(left))
            return m_received.isEmpty() ? HttpStatus::None : HttpStatus::RequestTimeout;
    }
    if (length > longestHttpHead)
        return HttpStatus::HeadTooLong;
    const HttpStatus status = readHttpHead(m_received.left(length), head, longestBody);
    m_received.remove(0, length);
    return status;
}

HttpStatus ServerConnection::receiveBody(const HttpRequest &head, QByteArray &body)
{
    const BodyReceiver bodyReceiver = m_service.bodyReceiver(m_receiver, head);
    if (!bodyReceiver && head.bodyLength > longestKeptBody)
        return HttpStatus::BodyTooLong;
    if (head.waitsForContinue && !send("HTTP/1.1 100 Continue\r\n\r\n"))
        return HttpStatus::None;
    for (qsizetype left = head.bodyLength; left > 0;) {
        if (m_received.isEmpty() && !receiveMore(requestTime))
            return HttpStatus::RequestTimeout;
        const QByteArray chunk = m_received.left(left);
        m_received.remove(0, chunk.size());
        left -= chunk.size();
        if (!bodyReceiver)
            body += chunk;
        else if (!bodyReceiver(chunk))
            return HttpStatus::None;
    }
    return HttpStatus::Ok;
}

bool ServerConnection::receiveMore(std::chrono::milliseconds patience)
{
    constexpr std::size_t pieceSize = std::size_t{64} * 1024;
    std::array<char, pieceSize> chunk;
    const ssize_t count = m_stream.receive(chunk.data(), chunk.size(), patience);
    if (count <= 0)
        return false;
    m_received.append(chunk.data(), count);
    return true;
}

bool ServerConnection::sendResponse(const HttpResponse &response, bool hasBody, bool keepsConnection) const
{
    if (response.delay > 0ms && !m_clock.wait(response.delay, m_receiver.stop))
        return false;
    if (!response.hasNoHead && !send(httpHead(response, keepsConnection)))
        return false;
    return !hasBody || (sendBody(response) && !response.isBroken && !response.hasNoHead);
}

bool ServerConnection::sendBody(const HttpResponse &response) const
{
    const qint64 end = response.isBroken ? response.fullLength() / 2 : response.fullLength();
    const QByteArrayView block = response.body;
    qint64 sent = 0;
    for (std::chrono::seconds slow = response.slowDuration; slow > 0s && sent < end; slow -= 1s, ++sent) {
        if (!send(block.sliced(sent % block.size(), 1)) || !m_clock.wait(1s, m_receiver.stop))
            return false;
    }
    while (sent < end && !block.isEmpty()) {
        const qint64 offset = sent % block.size();
        const qint64 count = std::min<qint64>(block.size() - offset, end - sent);
        if (!send(block.sliced(offset, count)))
            return false;
        sent += count;
    }
    return true;
}

bool ServerConnection::send(QByteArrayView bytes) const
{
    while (!bytes.isEmpty()) {
        const ssize_t count = m_stream.send(bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (count <= 0)
            return false;
        bytes = bytes.sliced(count);
    }
    return true;
}

void ServerConnection::linger()
{
    m_stream.finishSending();
    constexpr qsizetype most = qsizetype{1024} * 1024;
    qsizetype taken = 0;
    do {
        taken += m_received.size();
        m_received.clear();
    } while (taken < most && receiveMore(1s));
}

} // namespace site
