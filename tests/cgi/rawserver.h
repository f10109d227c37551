// An HTTP server on a loopback port whose responses are bytes of a test, also invalid ones.
#pragma once

#include <QByteArray>
#include <QList>
#include <QMutex>

#include <atomic>
#include <functional>
#include <thread>

/// A received request, and the functions to respond to it. Exists during a call of the handler, on the thread
/// of the server.
class RawExchange
{
public:
    RawExchange(int socket, QByteArray request, int number, const std::atomic<bool> &ends)
        : m_socket(socket), m_request(std::move(request)), m_number(number), m_ends(ends)
    {
    }

    /// All bytes of the request: its first line, its headers and its body.
    [[nodiscard]] const QByteArray &request() const { return m_request; }
    /// The number of the request, counted from 1 over the lifetime of the server.
    [[nodiscard]] int number() const { return m_number; }

    /// Sends bytes, which need not be a valid response; may be called several times. False when the client
    /// has disconnected or the server ends.
    bool send(QByteArrayView bytes) const;

    /// Sends a complete response. `status` is as in "200 OK". `headers` are complete lines that end with
    /// CRLF; the headers Connection and Content-Length are added. Returns as send().
    bool respond(const QByteArray &status, const QByteArray &headers, const QByteArray &body) const;

    /// Waits for that time, or until the client disconnects or the server ends. False in the latter cases.
    [[nodiscard]] bool pause(int milliseconds) const;

private:
    const int m_socket;
    const QByteArray m_request;
    const int m_number;
    const std::atomic<bool> &m_ends;
};

/// Serves one connection after another, with one request in each, on a separate thread. The connection is
/// closed when the handler returns.
class RawServer
{
public:
    using Handler = std::function<void(const RawExchange &)>;

    enum class Reach
    {
        OneAddress,   ///< 127.0.0.1
        EveryAddress, ///< of this host, such as 127.0.0.2
    };

    /// Listens on a free port when the constructor returns. `handler` is called for each complete request, on
    /// the thread of the server.
    explicit RawServer(Handler handler, Reach reach = Reach::OneAddress);
    ~RawServer(); ///< waits for a running handler, whose functions return false from then on
    RawServer(const RawServer &) = delete;
    RawServer &operator=(const RawServer &) = delete;

    /// "127.0.0.1:port".
    [[nodiscard]] QString address() const;
    /// The URL of `command`, a path that starts with "/".
    [[nodiscard]] QString url(const QString &command) const;

    /// The complete requests received so far, in order. Any thread.
    [[nodiscard]] QList<QByteArray> requests() const;

private:
    void serve();
    void serveConnection(int socket);

    const Handler m_handler;
    int m_listener = -1;
    int m_port = 0;
    std::atomic<bool> m_ends = false;
    mutable QMutex m_mutex;
    QList<QByteArray> m_requests; ///< under m_mutex
    std::thread m_thread;
};
