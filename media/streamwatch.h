#pragma once

#include <atomic>
#include <cstdint>

/// Detects a stream that delivers no frames. Times are in milliseconds on one clock. noteFrame() may be
/// called on any thread, the other functions on one thread.
class StreamWatch
{
public:
    static constexpr std::int64_t firstFrameTimeout = 8000; ///< from start() to the first frame
    static constexpr std::int64_t nextFrameTimeout = 4000;  ///< from a frame to the next one

    /// A stream was started at `now`. To be called before hasTimedOut().
    void start(std::int64_t now)
    {
        m_lastFrame = none;
        m_start = now;
        m_reported = none;
    }

    /// A frame arrived at `now`.
    void noteFrame(std::int64_t now) { m_lastFrame = now; }

    /// Returns true if no frame has arrived in time. It returns true once for each timeout; after that it
    /// returns false until a further frame has arrived and the next one is missing.
    [[nodiscard]] bool hasTimedOut(std::int64_t now)
    {
        const std::int64_t last = m_lastFrame;
        const std::int64_t since = last == none ? m_start : last;
        if (now - since < (last == none ? firstFrameTimeout : nextFrameTimeout) || m_reported == since)
            return false;
        m_reported = since;
        return true;
    }

private:
    static constexpr std::int64_t none = INT64_MIN;

    std::int64_t m_start = 0;
    std::atomic<std::int64_t> m_lastFrame = none;
    std::int64_t m_reported = none; ///< time of the start or frame whose timeout was reported
};
