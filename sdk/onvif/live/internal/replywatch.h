// What a device answers while a session is opened and runs.
#pragma once

#include "sdk/onvif/live/streamend.h"
#include "sdk/streams/librarylog.h"

#include <cstdarg>
#include <optional>
#include <string>
#include <string_view>

namespace sdk::onvif {

/// FFmpeg takes answers of any length, as many tracks as are listed, and goes wherever it is sent. Of several
/// challenges of HTTP Digest it takes the last one, and it knows MD5 only. It writes each line to its log
/// before it acts on it, and nothing else of an answer, so the lines are read there: the session is
/// interrupted before harm is done, and challenges that FFmpeg does not know are hidden from it. Belongs to
/// the thread on which it was made: it takes all lines of that thread.
class ReplyWatch
{
public:
    static constexpr int mostHeaderLines = 100;
    static constexpr long mostContentBytes = 65536;
    static constexpr int mostTracks = 32;

    /// `host` is the numeric address of the device.
    explicit ReplyWatch(std::string host);

    /// Why the session must not go on, if it must not.
    [[nodiscard]] std::optional<StreamEnd> objection() const { return m_objection; }

    /// What the objection is, in words.
    [[nodiscard]] const std::string &text() const { return m_text; }

    /// From now on an answer is no longer expected to ask for the login.
    void notePlaying() { m_isPlaying = true; }

    /// The status of the last answer, 0 before the first one.
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
    bool m_isStale = false; ///< the answer refuses a number that was used for too long, not the password
    bool m_wasStaleBefore = false; ///< the refusal before it was one of these
    bool m_hasSentLogin = false;
    bool m_isPlaying = false;
    const streams::ThreadLog m_log; // last: it calls the others
};

} // namespace sdk::onvif
