// The live streams that are open.
#pragma once

#include "sdk/demo/streams/livesource.h"

#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <tuple>

namespace sdk::demo {

/// Thread-safe. A handle is never given twice. Streams of the same channel and kind share a source, which
/// ends with the last of them.
class LiveStreams
{
public:
    /// Both must outlive the streams.
    LiveStreams(SiteState &site, const DemoSessions &sessions) : m_site(site), m_sessions(sessions) {}

    /// Returns the handle, 0 when the computer gives no thread.
    [[nodiscard]] std::int64_t open(const LiveStreamOrder &order);

    /// What the stream was opened with; nothing for a handle that is no stream.
    [[nodiscard]] std::optional<LiveStreamOrder> order(std::int64_t handle) const;

    // These return false for a handle that is no stream.

    /// As LiveStream::setHandler().
    bool setHandler(std::int64_t handle, RealDataHandler handler, void *user);
    bool askForKeyPicture(std::int64_t handle);

    /// No handler of the stream runs after the return, so this and the following must not be called from one.
    bool close(std::int64_t handle);

    void closeAllOf(std::int64_t loginHandle);
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
    [[nodiscard]] std::shared_ptr<LiveSource> sourceLocked(const LiveStreamOrder &order);
    static void close(const Entries &entries);

    SiteState &m_site;
    const DemoSessions &m_sessions;
    mutable std::mutex m_mutex;
    // Above 32 bits, as those of sessions, and apart from them.
    std::int64_t m_lastHandle = std::int64_t(1) << 40;
    Entries m_entries;
    std::map<SourceKey, std::weak_ptr<LiveSource>> m_sources;
};

} // namespace sdk::demo
