#include "site/rtsp/keyframes.h"

namespace site {

void KeyFrames::ask(const QString &mac, const MediaStream &stream)
{
    const std::lock_guard lock(m_mutex);
    ++m_counts[{mac, stream}];
    m_asked.notify_all();
}

int KeyFrames::count(const QString &mac, const MediaStream &stream) const
{
    const std::lock_guard lock(m_mutex);
    return countLocked({mac, stream});
}

void KeyFrames::waitAfter(int count, const QString &mac, const MediaStream &stream,
                          const std::stop_token &stop)
{
    std::unique_lock lock(m_mutex);
    m_asked.wait(lock, stop, [&] { return countLocked({mac, stream}) > count; });
}

int KeyFrames::countLocked(const Key &key) const
{
    const auto found = m_counts.find(key);
    return found == m_counts.end() ? 0 : found->second;
}

} // namespace site
