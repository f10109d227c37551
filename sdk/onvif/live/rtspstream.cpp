#include "sdk/onvif/live/rtspstream.h"

#include "sdk/onvif/live/internal/remuxer.h"
#include "sdk/onvif/live/internal/rtspsession.h"

#include <utility>

namespace sdk::onvif {

using streams::AvPointer;

RtspStream::RtspStream(RtspOrder order, DataHandler dataHandler, EndHandler endHandler)
    : m_order(std::move(order)), m_dataHandler(std::move(dataHandler)), m_endHandler(std::move(endHandler)),
      m_thread([this](const std::stop_token &stop) { run(stop); })
{
}

RtspStream::~RtspStream()
{
    stop();
}

std::optional<StreamEnd> RtspStream::waitForResponse()
{
    std::unique_lock lock(m_mutex);
    m_responded.wait(lock, [this] { return m_hasResponse; });
    return m_response;
}

void RtspStream::stop()
{
    m_thread.request_stop();
    if (m_thread.joinable())
        m_thread.join();
}

void RtspStream::setResponse(std::optional<StreamEnd> response)
{
    const std::lock_guard lock(m_mutex);
    if (std::exchange(m_hasResponse, true))
        return;
    m_response = response;
    m_responded.notify_all();
}

void RtspStream::run(const std::stop_token &stop)
{
    const auto [end, text] = receive(stop);
    setResponse(end);
    m_endHandler(end, text);
}

RtspStream::Outcome RtspStream::receive(const std::stop_token &stop)
{
    RtspAddress address;
    if (const std::optional<StreamEnd> fault = readAddress(m_order, address))
        return {*fault, {}};
    std::unique_ptr<Remuxer> remuxer;
    RtspSession session(std::move(address), m_order.timeouts, stop, [&remuxer] {
        if (remuxer)
            remuxer->deliverWaiting();
    });
    if (!session.open())
        return {session.end(), session.text()};
    const AVStream *video =
        session.track(AVMEDIA_TYPE_VIDEO, {AV_CODEC_ID_H264, AV_CODEC_ID_HEVC, AV_CODEC_ID_MJPEG});
    const AVStream *sound =
        session.track(AVMEDIA_TYPE_AUDIO, {AV_CODEC_ID_AAC, AV_CODEC_ID_PCM_ALAW, AV_CODEC_ID_PCM_MULAW,
                                           AV_CODEC_ID_PCM_S16LE, AV_CODEC_ID_PCM_S16BE});
    remuxer = video ? Remuxer::of(*video, sound, m_mustRestart, m_dataHandler) : nullptr;
    if (!remuxer)
        return {StreamEnd::Unsupported, "no decodable video track"};
    setResponse(std::nullopt);
    const AvPointer<AVPacket> packet(av_packet_alloc());
    while (packet && !remuxer->hasFailed() && session.read(*packet)) {
        if (remuxer->add(*packet))
            session.noteVideoPacket();
        if (remuxer->hasBegun())
            session.noteKeyFrame();
        av_packet_unref(packet.get());
    }
    if (!packet || remuxer->hasFailed())
        return {StreamEnd::Failed, "the container cannot be written"};
    if (session.end() != StreamEnd::Stopped)
        remuxer->finish();
    return {session.end(), session.text()};
}

} // namespace sdk::onvif
