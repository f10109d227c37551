#include "tests/sdk/onvif/rtspserver.h"

#include <QCryptographicHash>
#include <QRegularExpression>

#include <arpa/inet.h>
#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <utility>

namespace sdk::onvif {

namespace {

sockaddr_in loopback(int port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

/// A socket with a separate port.
int boundSocket(int type, int &port)
{
    const int descriptor = socket(AF_INET, type | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    sockaddr_in address = loopback(0);
    socklen_t size = sizeof address;
    if (bind(descriptor, reinterpret_cast<sockaddr *>(&address), size) != 0 ||
        getsockname(descriptor, reinterpret_cast<sockaddr *>(&address), &size) != 0) {
        qFatal("no socket for a test");
    }
    port = ntohs(address.sin_port);
    return descriptor;
}

QByteArray captured(const QByteArray &text, const char *pattern)
{
    const QRegularExpression expression(QString::fromLatin1(pattern),
                                        QRegularExpression::CaseInsensitiveOption);
    return expression.match(QString::fromUtf8(text)).captured(1).toUtf8();
}

QByteArray md5(const QByteArray &text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex();
}

} // namespace

QByteArray framed(const RtpPacket &packet)
{
    const auto size = static_cast<quint16>(packet.bytes.size());
    QByteArray bytes(1, '$');
    bytes += static_cast<char>(packet.channel);
    bytes += static_cast<char>(size >> 8);
    bytes += static_cast<char>(size);
    return bytes + packet.bytes;
}

RtspServer::RtspServer(RtspScript script)
    : m_script(std::move(script)), m_listener(boundSocket(SOCK_STREAM, m_port)),
      m_wake(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    constexpr int backlog = 8;
    listen(m_listener, backlog);
    m_thread = std::jthread([this](const std::stop_token &stop) { run(stop); });
}

RtspServer::~RtspServer()
{
    m_thread.request_stop();
    eventfd_write(m_wake, 1);
    m_thread.join();
    for (const int descriptor : {m_listener, m_wake, m_datagrams}) {
        if (descriptor >= 0)
            close(descriptor);
    }
}

QList<QByteArray> RtspServer::requests() const
{
    const std::lock_guard lock(m_mutex);
    return m_requests;
}

qsizetype RtspServer::requestsOf(const QByteArray &text) const
{
    const QList<QByteArray> all = requests();
    return std::count_if(all.begin(), all.end(),
                         [&](const QByteArray &request) { return request.contains(text); });
}

int RtspServer::connections() const
{
    const std::lock_guard lock(m_mutex);
    return m_connections;
}

std::chrono::nanoseconds RtspServer::computingTime() const
{
    clockid_t clock{};
    timespec time{};
    if (pthread_getcpuclockid(const_cast<std::jthread &>(m_thread).native_handle(), &clock) != 0 ||
        clock_gettime(clock, &time) != 0) {
        qFatal("no clock of a thread");
    }
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

void RtspServer::waitUntil(std::chrono::steady_clock::time_point time) const
{
    using namespace std::chrono;
    const auto wait = duration_cast<milliseconds>(time - steady_clock::now());
    pollfd wake = {m_wake, POLLIN, 0};
    if (wait.count() > 0)
        poll(&wake, 1, static_cast<int>(wait.count()));
}

int RtspServer::waitFor(int descriptor, int events, const std::stop_token &stop) const
{
    std::array<pollfd, 2> wanted = {{{descriptor, static_cast<short>(events), 0}, {m_wake, POLLIN, 0}}};
    poll(wanted.data(), wanted.size(), -1);
    return stop.stop_requested() ? 0 : wanted[0].revents;
}

void RtspServer::run(const std::stop_token &stop)
{
    while (waitFor(m_listener, POLLIN, stop) != 0) {
        const int connection = accept4(m_listener, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
        if (connection < 0)
            continue;
        {
            const std::lock_guard lock(m_mutex);
            ++m_connections;
        }
        serve(connection, stop);
        close(connection);
    }
}

void RtspServer::serve(int connection, const std::stop_token &stop)
{
    m_isFlooding = false;
    QByteArray received;
    std::array<char, 4096> buffer{};
    while (const int possible = waitFor(connection, m_isFlooding ? POLLIN | POLLOUT : POLLIN, stop)) {
        if ((possible & POLLOUT) != 0) {
            if (!send(connection, m_script.endless, stop))
                return;
            waitUntil(std::chrono::steady_clock::now() + m_script.endlessPause);
        }
        if ((possible & ~POLLOUT) == 0)
            continue;
        const ssize_t size = recv(connection, buffer.data(), buffer.size(), 0);
        if (size <= 0)
            return;
        received.append(buffer.data(), size);
        if (!respondToAll(connection, received, stop))
            return;
    }
}

bool RtspServer::respondToAll(int connection, QByteArray &received, const std::stop_token &stop)
{
    constexpr qsizetype headSize = 4; // of what is framed by '$', and of the end of a request
    while (received.size() >= headSize) {
        if (received.startsWith('$')) { // a report of the client
            const qsizetype length = static_cast<quint8>(received[2]) << 8 | static_cast<quint8>(received[3]);
            if (received.size() < headSize + length)
                break;
            received.remove(0, headSize + length);
            continue;
        }
        const qsizetype end = received.indexOf("\r\n\r\n");
        if (end < 0)
            break;
        const QByteArray request = received.first(end + headSize);
        received.remove(0, end + headSize);
        if (!respond(connection, request, stop))
            return false;
    }
    return true;
}

bool RtspServer::respond(int connection, const QByteArray &request, const std::stop_token &stop)
{
    if (request.startsWith("RTSP/")) // a response of the client
        return true;
    {
        const std::lock_guard lock(m_mutex);
        m_requests.append(request);
    }
    const QByteArray method = request.first(request.indexOf(' '));
    const QByteArray number = captured(request, "CSeq: *([0-9]+)");
    if (const auto own = m_script.responses.find(method); own != m_script.responses.end()) {
        m_isFlooding = !m_script.endless.isEmpty();
        return send(connection, QByteArray(*own).replace("CSEQ", number), stop);
    }
    const QByteArray text = regularResponse(method, request).replace("CSEQ", number);
    if (!send(connection, text, stop))
        return false;
    return method != "PLAY" || !text.startsWith("RTSP/1.0 200") || play(connection, stop);
}

QByteArray RtspServer::regularResponse(const QByteArray &method, const QByteArray &request)
{
    const QByteArray head = "RTSP/1.0 200 OK\r\nCSeq: CSEQ\r\n";
    if (method == "OPTIONS")
        return head + "Public: OPTIONS, DESCRIBE, SETUP, PLAY, GET_PARAMETER, TEARDOWN\r\n\r\n";
    if (!isAuthorised(method, request)) {
        return "RTSP/1.0 401 Unauthorized\r\nCSeq: CSEQ\r\nWWW-Authenticate: " +
               m_script.challenges.join("\r\nWWW-Authenticate: ") + "\r\n\r\n";
    }
    if (method == "DESCRIBE") {
        return head + "Content-Type: application/sdp\r\nContent-Length: " +
               QByteArray::number(m_script.description.size()) + "\r\n\r\n" + m_script.description;
    }
    if (method == "SETUP")
        return setUp(request);
    return head + "Session: 12\r\n\r\n";
}

QByteArray RtspServer::setUp(const QByteArray &request)
{
    QByteArray transport = captured(request, "Transport: *([^\r\n]*)");
    if (m_script.onlyDatagrams == transport.contains("TCP"))
        return "RTSP/1.0 461 Unsupported Transport\r\nCSeq: CSEQ\r\n\r\n";
    if (m_script.onlyDatagrams) {
        int port = 0;
        if (m_datagrams < 0)
            m_datagrams = boundSocket(SOCK_DGRAM, port);
        const int first = captured(transport, "client_port=([0-9]+)").toInt();
        const int channel = static_cast<int>(m_dataPorts.size());
        m_dataPorts[channel] = first;
        m_dataPorts[channel + 1] = first + 1;
        const QByteArray own = QByteArray::number(port);
        transport += ";server_port=" + own + '-' + own;
        if (!m_script.dataSource.isEmpty())
            transport += ";source=" + m_script.dataSource;
    }
    return "RTSP/1.0 200 OK\r\nCSeq: CSEQ\r\nSession: 12;timeout=" +
           QByteArray::number(m_script.sessionTimeout) + "\r\nTransport: " + transport + "\r\n\r\n";
}

bool RtspServer::isAuthorised(const QByteArray &method, const QByteArray &request) const
{
    if (m_script.account.isEmpty())
        return true;
    const QByteArray uri = captured(request, R"re(uri="([^"]*)")re");
    const QByteArray expected =
        md5(md5(m_script.account + ":camera:" + m_script.password) + ":47:" + md5(method + ':' + uri));
    return captured(request, R"re(response="([^"]*)")re") == expected &&
           captured(request, R"re(username="([^"]*)")re") == m_script.account;
}

bool RtspServer::play(int connection, const std::stop_token &stop)
{
    const auto begin = std::chrono::steady_clock::now();
    for (const RtpPacket &packet : m_script.packets) {
        waitUntil(begin + packet.due);
        if (m_script.onlyDatagrams) {
            const sockaddr_in address = loopback(m_dataPorts.value(packet.channel));
            sendto(m_datagrams, packet.bytes.constData(), static_cast<std::size_t>(packet.bytes.size()), 0,
                   reinterpret_cast<const sockaddr *>(&address), sizeof address);
            continue;
        }
        if (!send(connection, framed(packet), stop))
            return false;
    }
    m_isFlooding = !m_script.endless.isEmpty();
    return !m_script.closesAtEnd;
}

bool RtspServer::send(int connection, const QByteArray &bytes, const std::stop_token &stop) const
{
    for (qsizetype position = 0; position < bytes.size();) {
        if (waitFor(connection, POLLOUT, stop) == 0)
            return false;
        const ssize_t size = ::send(connection, bytes.constData() + position,
                                    static_cast<std::size_t>(bytes.size() - position), MSG_NOSIGNAL);
        if (size < 0 && errno != EAGAIN)
            return false;
        position += std::max<ssize_t>(size, 0);
    }
    return true;
}

} // namespace sdk::onvif
