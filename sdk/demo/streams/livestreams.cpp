#include "sdk/demo/streams/livestreams.h"

#include "sdk/demo/site/logging.h"

#include <system_error>

namespace sdk::demo {

std::int64_t LiveStreams::open(const LiveStreamOrder &order)
{
    const std::lock_guard lock(m_mutex);
    const std::shared_ptr<LiveSource> source = sourceFor(order);
    if (!source)
        return 0;
    const auto stream = std::make_shared<LiveStream>(++m_lastHandle, order);
    source->add(stream);
    m_entries.emplace(m_lastHandle, Entry{stream, source});
    return m_lastHandle;
}

std::shared_ptr<LiveSource> LiveStreams::sourceFor(const LiveStreamOrder &order)
{
    std::erase_if(m_sources, [](const auto &known) { return known.second.expired(); });
    std::weak_ptr<LiveSource> &known = m_sources[{order.mac, order.channel, order.kind}];
    std::shared_ptr<LiveSource> source = known.lock();
    if (source)
        return source;
    try {
        source = std::make_shared<LiveSource>(m_site, m_sessions, order);
    } catch (const std::system_error &error) {
        qCWarning(demoLog, "No thread for a live stream: %s", error.what());
        return nullptr;
    }
    known = source;
    return source;
}

std::optional<LiveStreams::Entry> LiveStreams::entry(std::int64_t handle) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_entries.find(handle);
    return found == m_entries.end() ? std::nullopt : std::optional(found->second);
}

std::optional<LiveStreamOrder> LiveStreams::order(std::int64_t handle) const
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_entries.find(handle);
    return found == m_entries.end() ? std::nullopt : std::optional(found->second.stream->order());
}

bool LiveStreams::setHandler(std::int64_t handle, RealDataHandler handler, void *user)
{
    const std::optional<Entry> found = entry(handle);
    if (!found)
        return false;
    found->stream->setHandler(handler, user);
    found->source->wake();
    return true;
}

bool LiveStreams::requestKeyFrame(std::int64_t handle)
{
    const std::lock_guard lock(m_mutex);
    const auto found = m_entries.find(handle);
    if (found == m_entries.end())
        return false;
    found->second.stream->requestKeyFrame();
    return true;
}

bool LiveStreams::close(std::int64_t handle)
{
    Entries closed;
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_entries.find(handle);
        if (found == m_entries.end())
            return false;
        closed.insert(m_entries.extract(found));
    }
    close(closed);
    return true;
}

void LiveStreams::closeAllOf(std::int64_t loginHandle)
{
    Entries closed;
    {
        const std::lock_guard lock(m_mutex);
        for (auto next = m_entries.begin(); next != m_entries.end();) {
            const auto current = next++;
            if (current->second.stream->order().loginHandle == loginHandle)
                closed.insert(m_entries.extract(current));
        }
    }
    close(closed);
}

void LiveStreams::closeAll()
{
    Entries closed;
    {
        const std::lock_guard lock(m_mutex);
        closed.swap(m_entries);
    }
    close(closed);
}

/// Called without the lock: it waits for handlers. Its callers destroy their entries without the lock too: an
/// entry may be the last owner of a source, whose destructor waits for its thread.
void LiveStreams::close(const Entries &entries)
{
    for (const auto &[handle, entry] : entries) {
        entry.stream->close();
        entry.stream->setHandler(nullptr, nullptr);
        entry.source->remove(entry.stream);
    }
}

} // namespace sdk::demo
