// A device that serves one live stream over RTSP, with the faults of a test.
#pragma once

#include "tests/sdk/onvif/rtpsource.h"

#include <QHash>

#include <chrono>
#include <mutex>
#include <thread>

namespace sdk::onvif {

/// The bytes of a packet in the interleaved transport: "$", channel, length, then the packet.
[[nodiscard]] QByteArray framed(const RtpPacket &packet);

/// The stream and the behaviour of the server, including its faults.
struct RtspScript
{
    QByteArray description;   ///< response to DESCRIBE, in SDP
    QList<RtpPacket> packets; ///< sent after PLAY, each when it is due
    bool closesAtEnd = false; ///< whether the server closes the connection after the packets

    QByteArray account; ///< user name; empty: no login is required
    QByteArray password;
    /// Values of the header WWW-Authenticate of a response 401, one header each. The server accepts a Digest
    /// with MD5, the realm "camera" and the nonce "47" only.
    QByteArrayList challenges = {"Digest realm=\"camera\", nonce=\"47\"", "Basic realm=\"camera\""};

    /// Replacements of the regular responses, by method ("SETUP"): these bytes, in which "CSEQ" is replaced
    /// by the number of the request; empty: no response.
    QHash<QByteArray, QByteArray> responses = {};
    /// Bytes that are sent repeatedly after one of `responses`, or after the packets; empty: none.
    QByteArray endless;
    std::chrono::milliseconds endlessPause{0}; ///< after each repetition; 0: as fast as the client reads

    bool onlyDatagrams = false; ///< true: the server supports UDP only; false: the interleaved transport only
    QByteArray dataSource;      ///< announced source address of the datagrams; empty: not announced
    int sessionTimeout = 60; ///< announced timeout of the session in seconds; it has no effect on the server
};

/// Serves one connection after another at a port of 127.0.0.1, on a separate thread, until it is destroyed.
/// All functions may be called on any thread.
class RtspServer
{
public:
    /// Listens on a free port when the constructor returns.
    explicit RtspServer(RtspScript script);
    ~RtspServer();
    RtspServer(const RtspServer &) = delete;
    RtspServer &operator=(const RtspServer &) = delete;

    [[nodiscard]] int port() const { return m_port; }
    [[nodiscard]] std::string url() const { return "rtsp://127.0.0.1:" + std::to_string(m_port) + "/live"; }

    /// The requests received so far (first line and headers), in order.
    [[nodiscard]] QList<QByteArray> requests() const;
    /// The number of requests that contain `text`, such as a method.
    [[nodiscard]] qsizetype requestsOf(const QByteArray &text) const;
    /// The number of connections accepted so far.
    [[nodiscard]] int connections() const;

    /// The processor time of the server's thread so far.
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
