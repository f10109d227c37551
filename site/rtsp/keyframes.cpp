#include "site/rtsp/keyframes.h"

namespace site {

void KeyFrames::request(const QString &mac, const MediaStream &stream)
{
    const std::lock_guard lock(m_mutex);
    ++m_counts[{mac, stream}];
    m_requested.notify_all();
}

int KeyFrames::count(const QString &mac, const MediaStream &stream) const
{
    const std::lock_guard lock(m_mutex);
    return countOf({mac, stream});
}

void KeyFrames::waitAfter(int count, const QString &mac, const MediaStream &stream,
                          const std::stop_token &stop)
{
    std::unique_lock lock(m_mutex);
    m_requested.wait(lock, stop, [&] { return countOf({mac, stream}) > count; });
}

int KeyFrames::countOf(const Key &key) const
{
    const auto found = m_counts.find(key);
    return found == m_counts.end() ? 0 : found->second;
}

} // namespace site
