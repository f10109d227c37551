#pragma once

#include <atomic>
#include <cstdint>

/// Detects a stream that delivers no frames. Times are in milliseconds since any start.
class StreamWatch
{
public:
    static constexpr std::int64_t firstFrameTimeout = 8000;
    static constexpr std::int64_t nextFrameTimeout = 4000;

    /// A stream was started at `now`.
    void start(std::int64_t now)
    {
        m_lastFrame = none;
        m_start = now;
        m_reported = none;
    }

    /// A frame arrived at `now`. Any thread.
    void noteFrame(std::int64_t now) { m_lastFrame = now; }

    /// Returns true once after each timeout; the next one starts with the next frame.
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
    std::int64_t m_reported = none; ///< the start of the reported timeout
};
