// Checks the RTSP responses of a device.
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
/// thread that created it, and is used by that thread only.
class ReplyWatch
{
public:
    static constexpr int mostHeaderLines = 100;
    static constexpr long mostContentBytes = 65536;
    static constexpr int mostTracks = 32;

    /// `host` is the numeric address of the device.
    explicit ReplyWatch(std::string host);

    /// The reason to end the session; nothing while there is none.
    [[nodiscard]] std::optional<StreamEnd> objection() const { return m_objection; }

    /// The text of the objection, for logs.
    [[nodiscard]] const std::string &text() const { return m_text; }

    /// To be called when the device plays. From then on, a challenge for the login is a refusal.
    void notePlaying() { m_isPlaying = true; }

    /// The status of the last response, 0 before the first one.
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
