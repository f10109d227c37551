#include "sdk/demo/streams/livesource.h"

#include "sdk/clock.h"
#include "sdk/demo/site/demosessions.h"
#include "sdk/demo/site/devicereach.h"
#include "sdk/demo/site/logging.h"
#include "sdk/demo/site/sitestate.h"
#include "sdk/demo/streams/liveproduction.h"

#include <algorithm>
#include <cmath>

namespace sdk::demo {

namespace {

constexpr double millisecondsOfSecond = 1000;

}

std::int64_t LiveSource::Schedule::due() const
{
    return start + std::llround(static_cast<double>(frame) * millisecondsOfSecond / frameRate);
}

void LiveSource::Schedule::advance(std::int64_t now)
{
    ++frame;
    const double period = millisecondsOfSecond / frameRate;
    const std::int64_t late = now - due();
    if (late > longestDelay.count())
        frame += static_cast<std::int64_t>(static_cast<double>(late) / period);
    else if (static_cast<double>(-late) > period + static_cast<double>(longestDelay.count()))
        start += late; // the clock was set back
}

LiveSource::LiveSource(SiteState &site, const DemoSessions &sessions, LiveStreamOrder order)
    : m_site(site), m_sessions(sessions), m_order(std::move(order)),
      m_thread([this](const std::stop_token &stop) { run(stop); })
{
}

LiveSource::~LiveSource() = default;

void LiveSource::add(const std::shared_ptr<LiveStream> &stream)
{
    const std::lock_guard lock(m_mutex);
    m_streams.push_back(stream);
    m_changed.notify_all();
}

void LiveSource::remove(const std::shared_ptr<LiveStream> &stream)
{
    const std::lock_guard lock(m_mutex);
    std::erase(m_streams, stream);
}

void LiveSource::wake()
{
    const std::lock_guard lock(m_mutex);
    m_changed.notify_all();
}

void LiveSource::run(const std::stop_token &stop)
{
    while (waitForViewer(stop))
        stream(stop);
}

bool LiveSource::waitForViewer(const std::stop_token &stop)
{
    std::unique_lock lock(m_mutex);
    return m_changed.wait(lock, stop, [this] {
        return std::any_of(m_streams.begin(), m_streams.end(),
                           [](const std::shared_ptr<LiveStream> &stream) { return stream->isWatched(); });
    });
}

void LiveSource::stream(const std::stop_token &stop)
{
    std::unique_ptr<LiveProduction> production;
    Schedule schedule;
    schedule.start = m_site.clock().now();
    while (m_site.clock().waitUntil(schedule.due(), stop) && makeDue(production, schedule))
        schedule.advance(m_site.clock().now());
}

bool LiveSource::makeDue(std::unique_ptr<LiveProduction> &production, Schedule &schedule)
{
    const std::optional<SceneDevice> device = m_site.device(m_order.mac);
    Streams streams = servedStreams(device ? &*device : nullptr);
    if (streams.empty())
        return false;
    const std::optional<StreamSettings> settings = streamSettings(*device, m_order.channel, m_order.kind);
    if (settings && (!production || production->settings() != *settings)) {
        schedule = {schedule.due(), settings->frameRate, 0};
        production = LiveProduction::start(*device, m_order.channel, m_order.kind, *settings);
        for (const std::shared_ptr<LiveStream> &stream : allStreams())
            stream->restart();
    }
    const bool canContinue = settings && production;
    const std::int64_t due = schedule.due();
    const Streams sent = streams;
    std::erase_if(streams, [due](const std::shared_ptr<LiveStream> &stream) {
        return stream->order().startTime > due;
    });
    if (canContinue && (streams.empty() || encodeFrame(*production, schedule, *device, streams)))
        return true;
    for (const std::shared_ptr<LiveStream> &stream : sent)
        stream->end(settings ? StreamEndReason::Failed : StreamEndReason::EndedByDevice);
    return false;
}

bool LiveSource::encodeFrame(LiveProduction &production, const Schedule &schedule, const SceneDevice &device,
                             const Streams &streams) const
{
    bool isKey = false;
    for (const std::shared_ptr<LiveStream> &stream : streams)
        isKey = stream->prepare(production) || isKey;
    EncodedPackets packets;
    const std::int64_t deviceTime = schedule.due() + device.maintenance.clockAhead.count();
    if (!production.encodeFrame(schedule.frame, deviceTime, isKey, packets)) {
        qCWarning(demoLog, "A live stream of %ls cannot be encoded", qUtf16Printable(device.mac));
        return false;
    }
    for (const std::shared_ptr<LiveStream> &stream : streams)
        stream->send(packets);
    return true;
}

LiveSource::Streams LiveSource::servedStreams(const SceneDevice *device) const
{
    Streams streams = allStreams();
    std::erase_if(streams, [](const std::shared_ptr<LiveStream> &stream) { return !stream->isWatched(); });
    std::erase_if(streams, [this, device](const std::shared_ptr<LiveStream> &stream) {
        const std::optional<StreamEndReason> end = endOf(*stream, device);
        if (end)
            stream->end(*end);
        return end.has_value();
    });
    return streams;
}

std::optional<StreamEndReason> LiveSource::endOf(const LiveStream &stream, const SceneDevice *device) const
{
    const std::optional<DemoSession> session = m_sessions.session(stream.order().loginHandle);
    if (!device || !session || session->hasEnded || !isReachable(m_site, *session))
        return StreamEndReason::ConnectionLost;
    if (device->isUninitialised())
        return StreamEndReason::Refused;
    const std::optional<FaultSetting> drop = device->fault(Fault::DropsStreamAfter);
    if (drop && stream.frames() >= drop->number)
        return StreamEndReason::EndedByDevice;
    return std::nullopt;
}

LiveSource::Streams LiveSource::allStreams() const
{
    const std::lock_guard lock(m_mutex);
    return m_streams;
}

} // namespace sdk::demo
