#include "tests/cgi/rawserver.h"

#include <QElapsedTimer>
#include <QString>

#include <arpa/inet.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr int wakeUpInterval = 20; // milliseconds

bool isReady(int socket, short events, int milliseconds)
{
    pollfd entry = {.fd = socket, .events = events, .revents = 0};
    return poll(&entry, 1, milliseconds) > 0;
}

} // namespace

bool RawExchange::send(QByteArrayView bytes) const
{
    qsizetype sent = 0;
    while (sent < bytes.size() && !m_ends) {
        if (!isReady(m_socket, POLLOUT, wakeUpInterval))
            continue;
        const ssize_t length = ::send(m_socket, bytes.data() + sent, static_cast<size_t>(bytes.size() - sent),
                                      MSG_NOSIGNAL | MSG_DONTWAIT);
        if (length <= 0)
            return false;
        sent += length;
    }
    return sent == bytes.size();
}

bool RawExchange::respond(const QByteArray &status, const QByteArray &headers, const QByteArray &body) const
{
    return send("HTTP/1.1 " + status + "\r\n" + headers + "Connection: close\r\nContent-Length: " +
                QByteArray::number(body.size()) + "\r\n\r\n" + body);
}

bool RawExchange::pause(int milliseconds) const
{
    QElapsedTimer timer;
    timer.start();
    while (!m_ends && timer.elapsed() < milliseconds) {
        // The client sends no more data: a readable socket means that it has closed the connection.
        if (isReady(m_socket, POLLIN, wakeUpInterval))
            return false;
    }
    return !m_ends;
}

RawServer::RawServer(Handler handler, Reach reach) : m_handler(std::move(handler))
{
    m_listener = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(reach == Reach::OneAddress ? INADDR_LOOPBACK : INADDR_ANY);
    socklen_t length = sizeof(address);
    constexpr int waiting = 16;
    auto *name = reinterpret_cast<sockaddr *>(&address);
    if (bind(m_listener, name, length) != 0 || listen(m_listener, waiting) != 0 ||
        getsockname(m_listener, name, &length) != 0) {
        qFatal("there is no loopback port to listen on");
    }
    m_port = ntohs(address.sin_port);
    m_thread = std::thread([this] { serve(); });
}

RawServer::~RawServer()
{
    m_ends = true;
    m_thread.join();
    close(m_listener);
}

QString RawServer::address() const
{
    return QStringLiteral("127.0.0.1:%1").arg(m_port);
}

QString RawServer::url(const QString &command) const
{
    return QStringLiteral("http://") + address() + command;
}

QList<QByteArray> RawServer::requests() const
{
    const QMutexLocker lock(&m_mutex);
    return m_requests;
}

/// True if the request has all headers and a body of the announced length.
static bool isWhole(const QByteArray &request)
{
    const qsizetype headers = request.indexOf("\r\n\r\n");
    if (headers < 0)
        return false;
    const QByteArray name = "\r\ncontent-length:";
    const qsizetype field = request.left(headers).toLower().indexOf(name);
    if (field < 0)
        return true;
    const qsizetype value = field + name.size();
    const int length = request.mid(value, request.indexOf("\r\n", value) - value).trimmed().toInt();
    return request.size() >= headers + 4 + length;
}

void RawServer::serve()
{
    while (!m_ends) {
        if (!isReady(m_listener, POLLIN, wakeUpInterval))
            continue;
        const int connection = accept(m_listener, nullptr, nullptr);
        if (connection < 0)
            continue;
        serveConnection(connection);
        shutdown(connection, SHUT_RDWR);
        close(connection);
    }
}

void RawServer::serveConnection(int socket)
{
    QByteArray request;
    while (!m_ends && !isWhole(request)) {
        if (!isReady(socket, POLLIN, wakeUpInterval))
            continue;
        char buffer[4096];
        const ssize_t length = recv(socket, buffer, sizeof(buffer), 0);
        if (length <= 0)
            return;
        request.append(buffer, length);
    }
    int number = 0;
    {
        const QMutexLocker lock(&m_mutex);
        m_requests.append(request);
        number = static_cast<int>(m_requests.size());
    }
    m_handler(RawExchange(socket, request, number, m_ends));
}
