// A server on a loopback port that sends what a test tells it to, also what no real server would.
#pragma once

#include <QByteArray>
#include <QList>
#include <QMutex>

#include <atomic>
#include <functional>
#include <thread>

/// A request that has come, and the way to answer it.
class RawExchange
{
public:
    RawExchange(int socket, QByteArray request, int number, const std::atomic<bool> &ends)
        : m_socket(socket), m_request(std::move(request)), m_number(number), m_ends(ends)
    {
    }

    /// The request's line and headers, and its body.
    [[nodiscard]] const QByteArray &request() const { return m_request; }
    /// Counted from 1 over the life of the server.
    [[nodiscard]] int number() const { return m_number; }

    /// False when the client has gone or the server ends.
    bool send(QByteArrayView bytes) const;

    /// An answer with its headers and its body, whole.
    bool answer(const QByteArray &status, const QByteArray &headers, const QByteArray &body) const;

    /// Waits, but not beyond the end of the server or of the client. False when one of them has gone.
    [[nodiscard]] bool pause(int milliseconds) const;

private:
    const int m_socket;
    const QByteArray m_request;
    const int m_number;
    const std::atomic<bool> &m_ends;
};

/// Answers one connection after another, and one request in each, on a thread of its own.
class RawServer
{
public:
    using Handler = std::function<void(const RawExchange &)>;

    enum class Reach
    {
        OneAddress,   ///< 127.0.0.1
        EveryAddress, ///< of the computer, such as 127.0.0.2
    };

    explicit RawServer(Handler handler, Reach reach = Reach::OneAddress);
    ~RawServer();
    RawServer(const RawServer &) = delete;
    RawServer &operator=(const RawServer &) = delete;

    /// "127.0.0.1:port".
    [[nodiscard]] QString address() const;
    [[nodiscard]] QString url(const QString &command) const;

    /// What has come so far.
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
