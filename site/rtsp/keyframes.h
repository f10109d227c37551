// Requests for key frames.
#pragma once

#include "site/services/mediatokens.h"

#include <chrono>
#include <condition_variable>
#include <map>
#include <mutex>
#include <stop_token>

namespace site {

/// Counts the requests for key frames of the streams of all devices, by MAC and stream. Services and RTSP
/// servers make requests; a StreamFeeder, which encodes a stream, compares the counts. Thread-safe.
class KeyFrames
{
public:
    /// Requests that the next frame of the stream is a key frame. A StreamFeeder that waits for a client
    /// starts to feed the stream then. Without a StreamFeeder of the stream, the request has no effect.
    void request(const QString &mac, const MediaStream &stream);

    /// The number of requests for the stream since this object was created.
    [[nodiscard]] int count(const QString &mac, const MediaStream &stream) const;

    /// Blocks until there are more than `count` requests, or until a stop.
    void waitAfter(int count, const QString &mac, const MediaStream &stream, const std::stop_token &stop);

private:
    using Key = std::pair<QString, MediaStream>;
    /// Requires m_mutex.
    [[nodiscard]] int countOf(const Key &key) const;

    mutable std::mutex m_mutex;
    std::condition_variable_any m_requested;
    std::map<Key, int> m_counts;
};

} // namespace site
