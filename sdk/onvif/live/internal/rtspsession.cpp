#include "sdk/onvif/live/internal/rtspsession.h"

#include <algorithm>
#include <span>
#include <utility>

extern "C" {
#include <libavutil/opt.h>
}

namespace sdk::onvif {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds farewell{200};

/// Other protocols are not allowed: no file, no tunnel, no other protocol that a device requests.
constexpr const char *protocols = "rtsp,rtp,rtcp,udp,tcp";

/// After the connection of the session is open, no other connection is allowed.
constexpr const char *connectedProtocols = "rtp,rtcp,udp";

constexpr int statusTooManyStreams = 453;
constexpr int statusUnavailable = 503;

std::string secondsText(std::chrono::milliseconds time)
{
    return std::to_string(std::chrono::duration_cast<std::chrono::seconds>(time).count()) + " s";
}

} // namespace

RtspSession::RtspSession(RtspAddress address, const RtspTimeouts &timeouts, std::stop_token stop,
                         std::function<void()> whenWaiting)
    : m_address(std::move(address)), m_timeouts(timeouts), m_stop(std::move(stop)),
      m_whenWaiting(std::move(whenWaiting)), m_watch(m_address.host)
{
}

RtspSession::~RtspSession()
{
    // TEARDOWN contains the login, so it is not sent after a refusal.
    m_closedBy = m_end == StreamEnd::Refused ? Time::min() : Clock::now() + farewell;
    avformat_close_input(&m_format);
}

bool RtspSession::open()
{
    m_responseBy = Clock::now() + m_timeouts.response;
    m_format = avformat_alloc_context();
    if (!m_format) {
        endWith(StreamEnd::Failed, "no memory");
        return false;
    }
    m_format->interrupt_callback = {&RtspSession::isInterrupted, this};
    // Packets are delivered unparsed: FFmpeg's parsers hold each frame back until the next one.
    m_format->flags |= AVFMT_FLAG_NOPARSE | AVFMT_FLAG_NOFILLIN;
    m_format->max_streams = ReplyWatch::mostTracks;
    AVDictionary *options = nullptr;
    av_dict_set(&options, "protocol_whitelist", protocols, 0);
    av_dict_set(&options, "rtsp_transport", "tcp+udp", 0);
    av_dict_set(&options, "rtsp_flags", "prefer_tcp+filter_src", 0);
    av_dict_set(&options, "allowed_media_types", "video+audio", 0);
    av_dict_set(&options, "user_agent", "ConfigTools", 0);
    const int error =
        avformat_open_input(&m_format, m_address.url.c_str(), av_find_input_format("rtsp"), &options);
    av_dict_free(&options);
    if (error < 0)
        endWithError(error);
    m_responseBy.reset();
    m_watch.notePlaying();
    const Time now = Clock::now();
    m_keyFrameBy = now + m_timeouts.keyFrame;
    m_dataBy = now + m_timeouts.silence;
    return error >= 0;
}

const AVStream *RtspSession::track(AVMediaType type, std::initializer_list<AVCodecID> codecs) const
{
    const std::span<AVStream *> tracks(m_format->streams, m_format->nb_streams);
    const auto isRequested = [&](const AVStream *track) {
        return track->codecpar->codec_type == type &&
               std::find(codecs.begin(), codecs.end(), track->codecpar->codec_id) != codecs.end();
    };
    const auto found = std::find_if(tracks.begin(), tracks.end(), isRequested);
    return found == tracks.end() ? nullptr : *found;
}

bool RtspSession::read(AVPacket &packet)
{
    // FFmpeg does not always call the interrupt callback before it reads.
    const int error = isInterrupted() ? AVERROR_EXIT : av_read_frame(m_format, &packet);
    if (error < 0)
        endWithError(error);
    return error >= 0;
}

int RtspSession::isInterrupted(void *session)
{
    return static_cast<RtspSession *>(session)->isInterrupted() ? 1 : 0;
}

bool RtspSession::isInterrupted()
{
    const Time now = Clock::now();
    if (m_closedBy)
        return now > *m_closedBy;
    if (std::exchange(m_isConnecting, false))
        av_opt_set(m_format, "protocol_whitelist", connectedProtocols, 0);
    if (m_watch.objection())
        endWith(*m_watch.objection(), m_watch.text());
    if (m_stop.stop_requested())
        endWith(StreamEnd::Stopped, {});
    checkTimes(now);
    if (!m_end && !m_responseBy)
        m_whenWaiting();
    return m_end.has_value();
}

void RtspSession::checkTimes(Time now)
{
    if (m_responseBy && now > *m_responseBy)
        endWith(StreamEnd::NoResponse,
                "the device did not respond within " + secondsText(m_timeouts.response));
    if (m_dataBy && now > *m_dataBy)
        endWith(StreamEnd::NoData, "no video packet arrived for " + secondsText(m_timeouts.silence));
    if (m_keyFrameBy && now > *m_keyFrameBy) {
        endWith(StreamEnd::NoKeyFrame, "no key frame arrived within " + secondsText(m_timeouts.keyFrame));
    }
}

void RtspSession::endWith(StreamEnd end, std::string text)
{
    if (m_end)
        return;
    m_end = end;
    m_text = std::move(text);
}

void RtspSession::endWithError(int error)
{
    if (m_watch.objection())
        endWith(*m_watch.objection(), m_watch.text());
    std::string text = streams::avErrorText(error);
    if (m_watch.status() > 0)
        text += ", last status " + std::to_string(m_watch.status());
    endWith(endOfError(error), std::move(text));
}

StreamEnd RtspSession::endOfError(int error) const
{
    switch (error) {
    case AVERROR_HTTP_UNAUTHORIZED:
        return StreamEnd::Refused;
    case AVERROR_HTTP_NOT_FOUND:
        return StreamEnd::NotFound;
    case AVERROR_HTTP_BAD_REQUEST:
    case AVERROR_HTTP_FORBIDDEN: // the account lacks the right for the stream; the password may be correct
    case AVERROR_HTTP_OTHER_4XX:
    case AVERROR_HTTP_SERVER_ERROR:
        return m_watch.status() == statusTooManyStreams || m_watch.status() == statusUnavailable
                   ? StreamEnd::Busy
                   : StreamEnd::Rejected;
    case AVERROR(ECONNREFUSED):
        return StreamEnd::ConnectionRefused;
    case AVERROR(EHOSTUNREACH):
    case AVERROR(ENETUNREACH):
    case AVERROR(EACCES):
        return StreamEnd::Unreachable;
    case AVERROR(ETIMEDOUT):
        return m_responseBy ? StreamEnd::NoResponse : StreamEnd::NoData;
    case AVERROR(EPROTONOSUPPORT):
        return StreamEnd::Unsupported;
    case AVERROR(ENOMEM):
        return StreamEnd::Failed;
    case AVERROR_EOF:
    case AVERROR(EIO):
    case AVERROR(EPIPE):
    case AVERROR(ECONNRESET):
        return StreamEnd::Ended;
    default:
        return m_responseBy ? StreamEnd::Malformed : StreamEnd::Ended;
    }
}

} // namespace sdk::onvif
