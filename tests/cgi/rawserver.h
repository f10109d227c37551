// A server on a loopback port that sends the bytes of a test, including invalid responses.
#pragma once

#include <QByteArray>
#include <QList>
#include <QMutex>

#include <atomic>
#include <functional>
#include <thread>

/// A received request, and the functions to respond to it.
class RawExchange
{
public:
    RawExchange(int socket, QByteArray request, int number, const std::atomic<bool> &ends)
        : m_socket(socket), m_request(std::move(request)), m_number(number), m_ends(ends)
    {
    }

    /// The request's line and headers, and its body.
    [[nodiscard]] const QByteArray &request() const { return m_request; }
    /// The number of the request, from 1 over the lifetime of the server.
    [[nodiscard]] int number() const { return m_number; }

    /// False when the client has disconnected or the server ends.
    bool send(QByteArrayView bytes) const;

    /// Sends a complete response with headers and body.
    bool respond(const QByteArray &status, const QByteArray &headers, const QByteArray &body) const;

    /// Waits until the end of the server or of the client at most. False when one of them has ended.
    [[nodiscard]] bool pause(int milliseconds) const;

private:
    const int m_socket;
    const QByteArray m_request;
    const int m_number;
    const std::atomic<bool> &m_ends;
};

/// Serves one connection after another, with one request in each, on a separate thread.
class RawServer
{
public:
    using Handler = std::function<void(const RawExchange &)>;

    enum class Reach
    {
        OneAddress,   ///< 127.0.0.1
        EveryAddress, ///< of this host, such as 127.0.0.2
    };

    explicit RawServer(Handler handler, Reach reach = Reach::OneAddress);
    ~RawServer();
    RawServer(const RawServer &) = delete;
    RawServer &operator=(const RawServer &) = delete;

    /// "127.0.0.1:port".
    [[nodiscard]] QString address() const;
    [[nodiscard]] QString url(const QString &command) const;

    /// The requests received so far.
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
