// The source of a channel's live stream, for all of its viewers.
#pragma once

#include "sdk/demo/scene/scene.h"
#include "sdk/demo/streams/livestream.h"

#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace sdk::demo {

class DemoSessions;
class SiteState;

/// One kind of stream (main or sub) of one channel. A separate thread generates the frames at the times of
/// the site's clock, encodes them once and passes them to each viewer (a LiveStream), on this thread. It
/// sleeps without viewers: while no stream has a handler. Of the streams with a handler it ends those whose
/// session has ended or does not reach the device, those with the frames of Fault::DropsStreamAfter, and all
/// when the device stops sending or the host cannot encode. A change of the channel's settings restarts the
/// streams with the new encoding. Thread-safe.
class LiveSource
{
public:
    /// The longest delay of a frame, on the site's clock. Frames that would be later are dropped, if the host
    /// is too slow or the clock was stepped far.
    static constexpr std::chrono::milliseconds longestDelay{200};

    /// The device, the channel and the kind of stream are those of `order`; its other members are not used.
    /// `site` and `sessions` must outlive the source. Throws std::system_error if the host provides no
    /// thread.
    LiveSource(SiteState &site, const DemoSessions &sessions, LiveStreamOrder order);

    /// Joins the thread, so it waits for running handlers. Must not run in a handler.
    ~LiveSource();
    LiveSource(const LiveSource &) = delete;
    LiveSource &operator=(const LiveSource &) = delete;

    /// Adds a viewer. The order of `stream` must have the same device, channel and kind.
    void add(const std::shared_ptr<LiveStream> &stream);

    /// Removes a viewer, without waiting for its handler. No effect for an unknown stream.
    void remove(const std::shared_ptr<LiveStream> &stream);

    /// Wakes the thread. To be called after a stream has got a handler.
    void wake();

private:
    using Streams = std::vector<std::shared_ptr<LiveStream>>;

    /// The due times of frames. Indexes count from the start of a production.
    struct Schedule
    {
        /// On the site's clock.
        [[nodiscard]] std::int64_t due() const;

        /// Advances to the next frame that is not too late at `now`.
        void advance(std::int64_t now);

        std::int64_t start = 0;
        double frameRate = 1;
        std::int64_t frame = 0; // index of the next frame
    };

    void run(const std::stop_token &stop);
    [[nodiscard]] bool waitForViewer(const std::stop_token &stop);
    void stream(const std::stop_token &stop);

    /// Generates the frame that is due. Returns false without viewers.
    [[nodiscard]] bool makeDue(std::unique_ptr<LiveProduction> &production, Schedule &schedule);
    [[nodiscard]] bool encodeFrame(LiveProduction &production, const Schedule &schedule,
                                   const SceneDevice &device, const Streams &streams) const;

    /// The streams with viewers. Ends the streams that the device no longer sends.
    [[nodiscard]] Streams servedStreams(const SceneDevice *device) const;
    /// The reason for which the device ends a stream; nullopt while it sends.
    [[nodiscard]] std::optional<StreamEndReason> endOf(const LiveStream &stream,
                                                       const SceneDevice *device) const;
    [[nodiscard]] Streams allStreams() const;

    SiteState &m_site;
    const DemoSessions &m_sessions;
    const LiveStreamOrder m_order;
    mutable std::mutex m_mutex;
    std::condition_variable_any m_changed;
    Streams m_streams;
    std::jthread m_thread; // last: it uses the other members
};

} // namespace sdk::demo
