// A device that serves one live stream over RTSP, with the faults of a test.
#pragma once

#include "tests/sdk/onvif/rtpsource.h"

#include <QHash>

#include <chrono>
#include <mutex>
#include <thread>

namespace sdk::onvif {

/// The interleaved frame of a packet.
[[nodiscard]] QByteArray framed(const RtpPacket &packet);

struct RtspScript
{
    QByteArray description;
    QList<RtpPacket> packets; ///< sent after PLAY
    bool closesAtEnd = false; ///< the connection, after the packets

    QByteArray account; ///< empty: no login
    QByteArray password;
    /// Values of WWW-Authenticate, in order. The login must use the challenge with MD5.
    QByteArrayList challenges = {"Digest realm=\"camera\", nonce=\"47\"", "Basic realm=\"camera\""};

    /// Special responses by method: these bytes, in which CSEQ is replaced by the number of the request, or
    /// no response if empty.
    QHash<QByteArray, QByteArray> responses = {};
    QByteArray endless; ///< sent repeatedly after one of `responses`, or after the packets

    bool onlyDatagrams = false;
    QByteArray dataSource;   ///< the announced source address of datagrams
    int sessionTimeout = 60; ///< seconds
};

/// Listens at a port of 127.0.0.1 on a separate thread, for one connection after another, until it is
/// destroyed.
class RtspServer
{
public:
    explicit RtspServer(RtspScript script);
    ~RtspServer();
    RtspServer(const RtspServer &) = delete;
    RtspServer &operator=(const RtspServer &) = delete;

    [[nodiscard]] int port() const { return m_port; }
    [[nodiscard]] std::string url() const { return "rtsp://127.0.0.1:" + std::to_string(m_port) + "/live"; }

    /// Heads of the requests so far.
    [[nodiscard]] QList<QByteArray> requests() const;
    [[nodiscard]] qsizetype requestsOf(const QByteArray &text) const;
    [[nodiscard]] int connections() const;

    /// The CPU time of the server's thread.
    [[nodiscard]] std::chrono::nanoseconds computingTime() const;

private:
    void run(const std::stop_token &stop);
    void serve(int connection, const std::stop_token &stop);
    [[nodiscard]] bool respond(int connection, const QByteArray &request, const std::stop_token &stop);
    [[nodiscard]] bool respondToAll(int connection, QByteArray &received, const std::stop_token &stop);
    [[nodiscard]] QByteArray regularResponse(const QByteArray &method, const QByteArray &request);
    [[nodiscard]] QByteArray setUp(const QByteArray &request);
    [[nodiscard]] bool isAuthorised(const QByteArray &method, const QByteArray &request) const;
    [[nodiscard]] bool play(int connection, const std::stop_token &stop);
    [[nodiscard]] bool send(int connection, const QByteArray &bytes, const std::stop_token &stop) const;
    /// Returns the ready events of `events`; 0 at the end.
    [[nodiscard]] int waitFor(int descriptor, int events, const std::stop_token &stop) const;

    void waitUntil(std::chrono::steady_clock::time_point time) const;

    const RtspScript m_script;
    int m_port = 0; // before the socket that finds it
    int m_listener = -1;
    int m_wake = -1;             ///< becomes readable at the end
    int m_datagrams = -1;        ///< socket that sends them
    QHash<int, int> m_dataPorts; ///< of the client, by channel
    mutable std::mutex m_mutex;
    QList<QByteArray> m_requests; // with m_mutex
    int m_connections = 0;        // with m_mutex
    bool m_isFlooding = false;
    std::jthread m_thread;
};

} // namespace sdk::onvif
