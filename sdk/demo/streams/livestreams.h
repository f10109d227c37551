// The live streams of all sessions.
#pragma once

#include "sdk/demo/streams/livesource.h"

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <tuple>

namespace sdk::demo {

/// Thread-safe. Handles are not reused. Streams of the same channel and kind share a source, which ends with
/// the last stream. Handlers run on the thread of the source, unless setHandler() states otherwise.
class LiveStreams
{
public:
    /// `site` and `sessions` must outlive this object.
    LiveStreams(SiteState &site, const DemoSessions &sessions) : m_site(site), m_sessions(sessions) {}

    /// Opens a stream, which sends data once it has a handler and its start time has come. Does not check
    /// whether the device has such a stream. Returns the handle, which is valid until it is closed, also
    /// after the end of the stream; 0 if the host provides no thread.
    [[nodiscard]] std::int64_t open(const LiveStreamOrder &order);

    /// The parameters of the stream; nullopt for an unknown handle.
    [[nodiscard]] std::optional<LiveStreamOrder> order(std::int64_t handle) const;

    // Those that return a bool return false for an unknown handle.

    /// Sets the handler; null removes it. Waits for a running call of the previous handler, so it must not be
    /// called from a handler. If the stream has ended while it had no handler, `handler` is called with
    /// RealDataType::End during this call.
    bool setHandler(std::int64_t handle, RealDataHandler handler, void *user);

    /// Makes the next frame of the stream a key frame.
    bool requestKeyFrame(std::int64_t handle);

    // The next three wait for running handlers: no handler of a closed stream runs after the return. So they
    // must not be called from a handler.

    /// Ends one stream.
    bool close(std::int64_t handle);

    /// Ends the streams of a session.
    void closeAllOf(std::int64_t loginHandle);

    /// Ends all streams.
    void closeAll();

private:
    struct Entry
    {
        std::shared_ptr<LiveStream> stream;
        std::shared_ptr<LiveSource> source;
    };
    using Entries = std::map<std::int64_t, Entry>;
    using SourceKey = std::tuple<QString, std::int32_t, LiveStreamKind>;

    [[nodiscard]] std::optional<Entry> entry(std::int64_t handle) const;
    /// The source of the stream; created if there is none yet. Requires m_mutex.
    [[nodiscard]] std::shared_ptr<LiveSource> sourceFor(const LiveStreamOrder &order);
    static void close(const Entries &entries);

    SiteState &m_site;
    const DemoSessions &m_sessions;
    mutable std::mutex m_mutex;
    // Above 32 bits, and apart from the handles of sessions.
    std::int64_t m_lastHandle = std::int64_t(1) << 40;
    Entries m_entries;
    std::map<SourceKey, std::weak_ptr<LiveSource>> m_sources;
};

} // namespace sdk::demo
