// Requests for pictures that need no earlier one.
#pragma once

#include "site/services/mediatokens.h"

#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <stop_token>

namespace site {

/// Thread-safe.
class KeyPictures
{
public:
    /// The next picture of the stream is to need no earlier one.
    void ask(const QString &mac, const MediaStream &stream);

    /// How often somebody has asked.
    [[nodiscard]] int count(const QString &mac, const MediaStream &stream) const;

    /// Blocks until somebody asks after `count`, or a stop.
    void waitAfter(int count, const QString &mac, const MediaStream &stream, const std::stop_token &stop);

private:
    using Key = std::pair<QString, MediaStream>;
    [[nodiscard]] int countLocked(const Key &key) const;

    mutable std::mutex m_mutex;
    std::condition_variable_any m_asked;
    std::map<Key, int> m_counts;
};

} // namespace site
