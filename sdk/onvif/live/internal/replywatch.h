// Checks the RTSP responses of a device, since FFmpeg's client does not check them.
#pragma once

#include "sdk/onvif/live/streamend.h"
#include "sdk/streams/librarylog.h"

#include <cstdarg>
#include <optional>
#include <string>
#include <string_view>

namespace sdk::onvif {

/// FFmpeg accepts responses of any length, any number of tracks, and redirections to any address. Of several
/// challenges of HTTP Digest it uses the last one, and it supports MD5 only. It logs each line of a response
/// before it acts on it, so the lines are read from its log: the session is interrupted before FFmpeg acts on
/// a harmful line, and unsupported challenges are hidden from FFmpeg. An object receives all log lines of the
/// thread that created it from its construction to its destruction, and is used by that thread only. It ends
/// nothing by itself: the session polls objection().
class ReplyWatch
{
public:
    static constexpr int mostHeaderLines = 100;     ///< of one response
    static constexpr long mostContentBytes = 65536; ///< announced by one response
    static constexpr int mostTracks = 32;           ///< of the session

    /// `host` is the numeric address of the device, without brackets, from which its datagrams must come.
    explicit ReplyWatch(std::string host);

    /// The reason to end the session; nothing while there is none. The first reason remains.
    ///
    ///  - Oversized: a limit above is exceeded.
    ///  - Redirected: a response has a status from 300 to 399, with any target, or announces a transport
    ///  other
    ///    than TCP with a source address that differs from `host`.
    ///  - Unsupported: a response requests a login with Basic only, which sends the password in plain text,
    ///    or with an unsupported Digest only.
    ///  - Refused: see notePlaying().
    [[nodiscard]] std::optional<StreamEnd> objection() const { return m_objection; }

    /// A description of the objection in English, for logs; empty without an objection.
    [[nodiscard]] const std::string &text() const { return m_text; }

    /// To be called when the device plays. From then on, a response with the status 401 to a request with the
    /// login is a refusal. The first of consecutive 401 because of an expired nonce is accepted: FFmpeg
    /// repeats the request.
    void notePlaying() { m_isPlaying = true; }

    /// The RTSP status of the last response, 0 before the first one.
    [[nodiscard]] int status() const { return m_status; }

private:
    void read(const char *format, va_list arguments);
    void readReplyLine(const char *line);
    void readStatus(const char *line);
    [[nodiscard]] bool isUsable(std::string_view challenge);
    void readTransport(std::string_view transport);
    void endHeader();
    void object(StreamEnd end, std::string text);

    const std::string m_host;
    std::optional<StreamEnd> m_objection;
    std::string m_text;
    int m_status = 0;
    int m_headerLines = 0;
    int m_tracks = 0;
    bool m_offersPlainPassword = false;
    bool m_offersDigest = false;
    bool m_isDigestKnown = false;
    bool m_isStale = false;        ///< the response refuses an expired nonce, not the password
    bool m_wasStaleBefore = false; ///< the previous refusal was such a response
    bool m_hasSentLogin = false;
    bool m_isPlaying = false;
    const streams::ThreadLog m_log; // the last member: its callback uses the others
};

} // namespace sdk::onvif
