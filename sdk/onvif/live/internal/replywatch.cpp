#include "sdk/onvif/live/internal/replywatch.h"

#include "sdk/onvif/live/internal/rtspurl.h"

#include <cstdlib>
#include <utility>

extern "C" {
#include <libavutil/avstring.h>
}

namespace sdk::onvif {

namespace {

// The format string of FFmpeg's log.
constexpr std::string_view replyFormat = "line='%s'\n";
constexpr std::string_view descriptionFormat = "sdp: %c='%s'\n";
constexpr std::string_view requestFormat = "Sending:\n%s--\n";

constexpr int unauthorised = 401;

constexpr int firstRedirection = 300;
constexpr int lastRedirection = 399;
constexpr int decimal = 10;

/// The value of `name` in `name=value` or `name="value"`; empty if it is missing.
std::string_view parameter(std::string_view text, const char *name)
{
    const std::string copy(text);
    const char *found = av_stristr(copy.c_str(), name);
    if (!found)
        return {};
    text.remove_prefix(static_cast<std::size_t>(found - copy.c_str()) + std::string_view(name).size());
    if (text.starts_with('"'))
        text.remove_prefix(1);
    return text.substr(0, text.find_first_of(",;\" "));
}

} // namespace

ReplyWatch::ReplyWatch(std::string host)
    : m_host(std::move(host)),
      m_log([this](int, const char *format, va_list arguments) { read(format, arguments); })
{
}

void ReplyWatch::read(const char *format, va_list arguments)
{
    if (format == replyFormat) {
        readReplyLine(va_arg(arguments, const char *));
    } else if (format == descriptionFormat && va_arg(arguments, int) == 'm' && ++m_tracks > mostTracks) {
        object(StreamEnd::Oversized, "the device lists more than " + std::to_string(mostTracks) + " tracks");
    } else if (format == requestFormat) {
        m_hasSentLogin =
            m_hasSentLogin || av_stristr(va_arg(arguments, const char *), "\r\nAuthorization:") != nullptr;
    }
}

void ReplyWatch::readReplyLine(const char *line)
{
    const char *value = nullptr;
    if (av_stristart(line, "RTSP/", nullptr)) {
        readStatus(line);
    } else if (*line == '\0') {
        endHeader();
    } else if (++m_headerLines > mostHeaderLines) {
        object(StreamEnd::Oversized,
               "a response has more than " + std::to_string(mostHeaderLines) + " lines");
    } else if (av_stristart(line, "Content-Length:", &value)) {
        const long length = std::strtol(value, nullptr, decimal);
        if (length < 0 || length > mostContentBytes)
            object(StreamEnd::Oversized, "a response announces " + std::to_string(length) + " bytes");
    } else if (av_stristart(line, "WWW-Authenticate:", &value)) {
        // The line is in a buffer of FFmpeg, which evaluates it after this call.
        if (!isUsable(value))
            *const_cast<char *>(line) = 'X';
    } else if (av_stristart(line, "Transport:", &value)) {
        readTransport(value);
    }
}

void ReplyWatch::readStatus(const char *line)
{
    const std::string_view text(line);
    const std::size_t space = text.find(' ');
    m_status = space == std::string_view::npos
                   ? 0
                   : static_cast<int>(std::strtol(text.substr(space).data(), nullptr, decimal));
    m_headerLines = 0;
    m_offersPlainPassword = false;
    m_offersDigest = false;
    m_isDigestKnown = false;
    m_isStale = false;
    if (m_status >= firstRedirection && m_status <= lastRedirection)
        object(StreamEnd::Redirected,
               "the device redirects to another address (" + std::to_string(m_status) + ")");
}

/// False for a challenge of a type that FFmpeg does not support and would use instead of another one.
bool ReplyWatch::isUsable(std::string_view challenge)
{
    const std::size_t begin = challenge.find_first_not_of(' ');
    const std::string text(begin == std::string_view::npos ? std::string_view() : challenge.substr(begin));
    if (av_stristart(text.c_str(), "Basic", nullptr))
        m_offersPlainPassword = true;
    if (!av_stristart(text.c_str(), "Digest ", nullptr))
        return true;
    const std::string algorithm(parameter(text, "algorithm="));
    const bool isKnown = algorithm.empty() || av_strcasecmp(algorithm.c_str(), "MD5") == 0 ||
                         av_strcasecmp(algorithm.c_str(), "MD5-sess") == 0;
    m_offersDigest = true;
    m_isDigestKnown = m_isDigestKnown || isKnown;
    m_isStale = m_isStale || av_strcasecmp(std::string(parameter(text, "stale=")).c_str(), "true") == 0;
    return isKnown;
}

void ReplyWatch::readTransport(std::string_view transport)
{
    // With interleaved transport, no data are sent to that address.
    const std::string source(parameter(transport, "source="));
    if (!source.empty() && transport.find("/TCP") == std::string_view::npos && !isSameAddress(source, m_host))
        object(StreamEnd::Redirected, "the device announces another source address for its data");
}

void ReplyWatch::endHeader()
{
    if (m_offersPlainPassword && !m_offersDigest)
        object(StreamEnd::Unsupported, "the device requests the password in plain text");
    else if (m_offersDigest && !m_isDigestKnown)
        object(StreamEnd::Unsupported, "the device requests an unsupported login method");
    // FFmpeg sends the login with its keep-alive requests, and continues after a refusal.
    if (m_isPlaying && m_hasSentLogin && m_status == unauthorised) {
        if (!m_isStale || m_wasStaleBefore)
            object(StreamEnd::Refused, "the device no longer accepts the login");
        m_wasStaleBefore = true;
    } else {
        m_wasStaleBefore = false;
    }
}

void ReplyWatch::object(StreamEnd end, std::string text)
{
    if (m_objection)
        return;
    m_objection = end;
    m_text = std::move(text);
}

} // namespace sdk::onvif
