#include "site/rtsp/streamfeeder.h"

#include "sdk/clock.h"
#include "sdk/demo/demosite.h"
#include "sdk/demo/streams/liveproduction.h"
#include "site/logging.h"
#include "site/rtsp/keyframes.h"
#include "site/rtsp/pipelinetext.h"

#include <cmath>

using namespace sdk::demo;

namespace site {

namespace {

constexpr double millisecondsOfSecond = 1000;
constexpr int nanosecondsOfSecond = 1000000000;

void setCaps(GstAppSrc *source, const QByteArray &text)
{
    GstCaps *caps = gst_caps_from_string(text.constData());
    gst_app_src_set_caps(source, caps);
    gst_caps_unref(caps);
}

/// True if a pipeline can continue after that change of the settings.
bool isSameKind(const StreamSettings &one, const StreamSettings &other)
{
    return one.codec == other.codec && one.sound == other.sound &&
           one.samplingFrequency == other.samplingFrequency;
}

} // namespace

StreamFeeder::StreamFeeder(DemoSite &site, KeyFrames &keyFrames, Order order)
    : m_site(site), m_keyFrames(keyFrames), m_order(std::move(order))
{
    gst_object_ref(m_order.video);
    if (m_order.sound)
        gst_object_ref(m_order.sound);
    m_thread = std::jthread([this](const std::stop_token &stop) { run(stop); });
}

StreamFeeder::~StreamFeeder()
{
    stop();
    gst_object_unref(m_order.video);
    if (m_order.sound)
        gst_object_unref(m_order.sound);
}

void StreamFeeder::stop()
{
    m_thread.request_stop();
    if (m_thread.joinable())
        m_thread.join();
}

void StreamFeeder::run(const std::stop_token &stop)
{
    const int requested = m_keyFrames.count(m_order.mac, m_order.stream);
    const std::optional<SceneDevice> device = m_site.device(m_order.mac);
    std::unique_ptr<LiveProduction> production =
        device ? LiveProduction::start(*device, m_order.stream.channel, m_order.stream.kind, m_order.settings)
               : nullptr;
    if (production && feedBeginning(*production)) {
        m_keyFrames.waitAfter(requested, m_order.mac, m_order.stream, stop);
        feedWhilePlayed(std::move(production), stop);
    }
    if (!stop.stop_requested())
        endStreams();
}

bool StreamFeeder::feedBeginning(LiveProduction &production)
{
    setCaps(m_order.video, videoCaps(production.settings()));
    if (m_order.sound)
        setCaps(m_order.sound, soundCaps(production.settings(), production.soundHead()));
    // A frame of sound may be as long as several frames of video.
    constexpr int mostFrames = 50;
    for (; m_frameNumber == 0 || (m_order.sound && !m_hasSound && m_frameNumber < mostFrames);
         ++m_frameNumber) {
        EncodedPackets packets;
        if (!production.encodeFrame(m_frameNumber, deviceTime(), m_frameNumber == 0, packets) ||
            !feed(production, packets))
            return false;
    }
    return true;
}

void StreamFeeder::feedWhilePlayed(std::unique_ptr<LiveProduction> production, const std::stop_token &stop)
{
    int requested = -1; // the first frame of a client is a key frame
    int frames = 0;
    std::int64_t begin = m_site.clock().now();
    std::int64_t beginFrame = m_frameNumber;
    takePipelineTime(production->settings().frameRate);
    while (!stop.stop_requested()) {
        const double rate = production->settings().frameRate;
        const auto due = begin + std::llround(static_cast<double>(m_frameNumber - beginFrame) *
                                              millisecondsOfSecond / rate);
        if (!m_site.clock().waitUntil(due, stop))
            return;
        const std::optional<SceneDevice> device = m_site.device(m_order.mac);
        if (!device || !device->isListening(m_site.clock().now()) || device->isUninitialised())
            return;
        if (const auto drop = device->fault(Fault::DropsStreamAfter); drop && frames >= drop->number) {
            m_order.dropped();
            return;
        }
        const auto settings = streamSettings(*device, m_order.stream.channel, m_order.stream.kind);
        if (!settings || !isSameKind(*settings, m_order.settings))
            return;
        if (*settings != production->settings()) {
            production =
                LiveProduction::start(*device, m_order.stream.channel, m_order.stream.kind, *settings);
            if (!production)
                return;
            setCaps(m_order.video, videoCaps(*settings));
            begin = due;
            beginFrame = m_frameNumber = 0;
            takePipelineTime(settings->frameRate);
            requested = -1;
        }
        const int count = m_keyFrames.count(m_order.mac, m_order.stream);
        EncodedPackets packets;
        if (!production->encodeFrame(m_frameNumber, deviceTime(), count != requested, packets) ||
            !feed(*production, packets))
            return;
        requested = count;
        ++frames;
        // Frames that cannot be encoded in time are skipped.
        const double late = static_cast<double>(m_site.clock().now() - due) * rate / millisecondsOfSecond;
        m_frameNumber += 1 + (late > rate / 4 ? static_cast<std::int64_t>(late) : 0);
    }
}

bool StreamFeeder::feed(const LiveProduction &production, const EncodedPackets &packets)
{
    for (const AvPointer<AVPacket> &packet : packets) {
        if (packet->stream_index == videoTrack) {
            const bool isKey = (packet->flags & AV_PKT_FLAG_KEY) != 0;
            if (!push(m_order.video, *packet, isKey ? production.videoHead() : QByteArray()))
                return false;
        } else if (m_order.sound) {
            m_hasSound = true;
            if (!push(m_order.sound, *packet, {}))
                return false;
        }
    }
    return true;
}

bool StreamFeeder::push(GstAppSrc *destination, const AVPacket &packet, const QByteArray &before) const
{
    const auto headSize = static_cast<gsize>(before.size());
    const auto size = static_cast<gsize>(packet.size);
    GstBuffer *buffer = gst_buffer_new_allocate(nullptr, headSize + size, nullptr);
    gst_buffer_fill(buffer, 0, before.constData(), headSize);
    gst_buffer_fill(buffer, headSize, packet.data, size);
    const std::int64_t time = av_rescale_q(packet.pts, packet.time_base, {1, nanosecondsOfSecond});
    GST_BUFFER_PTS(buffer) = static_cast<GstClockTime>(std::max<std::int64_t>(m_offset + time, 0));
    return gst_app_src_push_buffer(destination, buffer) == GST_FLOW_OK;
}

void StreamFeeder::takePipelineTime(double frameRate)
{
    const GstClockTime time = gst_element_get_current_running_time(GST_ELEMENT(m_order.video));
    const auto made = std::llround(static_cast<double>(m_frameNumber) * nanosecondsOfSecond / frameRate);
    m_offset = (GST_CLOCK_TIME_IS_VALID(time) ? static_cast<std::int64_t>(time) : 0) - made;
}

std::int64_t StreamFeeder::deviceTime() const
{
    const std::optional<SceneDevice> device = m_site.device(m_order.mac);
    return m_site.clock().now() + (device ? device->maintenance.clockAhead.count() : 0);
}

void StreamFeeder::endStreams() const
{
    gst_app_src_end_of_stream(m_order.video);
    if (m_order.sound)
        gst_app_src_end_of_stream(m_order.sound);
}

} // namespace site
