// What a channel of a simulated device streams, for everybody who watches it.
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

/// One kind of stream of one channel. Has a thread of its own, on which pictures are made at the times of the
/// site's clock, encoded once, and handed to one watcher after the other. Sleeps while nobody watches.
/// Thread-safe.
class LiveSource
{
public:
    /// Pictures that are later than this are left out, when the computer cannot keep up or the clock was
    /// stepped far.
    static constexpr std::chrono::milliseconds longestDelay{200};

    /// `site` and `sessions` must outlive the source. Throws std::system_error when there is no thread.
    LiveSource(SiteState &site, const DemoSessions &sessions, LiveStreamOrder order);
    ~LiveSource();
    LiveSource(const LiveSource &) = delete;
    LiveSource &operator=(const LiveSource &) = delete;

    void add(const std::shared_ptr<LiveStream> &stream);
    void remove(const std::shared_ptr<LiveStream> &stream);

    /// To be called when a stream has got a handler.
    void wake();

private:
    using Streams = std::vector<std::shared_ptr<LiveStream>>;

    /// When pictures are due: their numbers count from the begin of a production.
    struct Schedule
    {
        /// On the site's clock.
        [[nodiscard]] std::int64_t due() const;

        /// Goes to the next picture that is not too late at `now`.
        void advance(std::int64_t now);

        std::int64_t start = 0;
        double frameRate = 1;
        std::int64_t picture = 0; // the next one
    };

    void run(const std::stop_token &stop);
    [[nodiscard]] bool waitForWatcher(const std::stop_token &stop);
    void stream(const std::stop_token &stop);

    /// Makes the picture that is due. Returns false when nobody is left to watch.
    [[nodiscard]] bool makeDue(std::unique_ptr<LiveProduction> &production, Schedule &schedule);
    [[nodiscard]] bool makePicture(LiveProduction &production, const Schedule &schedule,
                                   const SceneDevice &device, const Streams &streams) const;

    /// Those that get data or would, without those that the device does not send to any more: they end.
    [[nodiscard]] Streams servedStreams(const SceneDevice *device) const;
    /// Why the device does not send to a stream any more; nothing while it does.
    [[nodiscard]] std::optional<StreamEndReason> endOf(const LiveStream &stream,
                                                       const SceneDevice *device) const;
    [[nodiscard]] Streams allStreams() const;

    SiteState &m_site;
    const DemoSessions &m_sessions;
    const LiveStreamOrder m_order;
    mutable std::mutex m_mutex;
    std::condition_variable_any m_changed;
    Streams m_streams;
    std::jthread m_thread; // last: it ends before what it uses
};

} // namespace sdk::demo
