#pragma once

#include <atomic>
#include <cstdint>

/// Notices that a stream brings no pictures. Times are in milliseconds, from any starting point.
class StreamWatch
{
public:
    static constexpr std::int64_t firstPictureLimit = 8000;
    static constexpr std::int64_t nextPictureLimit = 4000;

    /// A stream was started at `now`.
    void begin(std::int64_t now)
    {
        m_lastPicture = none;
        m_begin = now;
        m_toldOf = none;
    }

    /// A picture has come. On any thread.
    void notePicture(std::int64_t now) { m_lastPicture = now; }

    /// True once when the stream has brought no picture for too long; again when it has brought some since.
    [[nodiscard]] bool isOverdue(std::int64_t now)
    {
        const std::int64_t last = m_lastPicture;
        const std::int64_t since = last == none ? m_begin : last;
        if (now - since < (last == none ? firstPictureLimit : nextPictureLimit) || m_toldOf == since)
            return false;
        m_toldOf = since;
        return true;
    }

private:
    static constexpr std::int64_t none = INT64_MIN;

    std::int64_t m_begin = 0;
    std::atomic<std::int64_t> m_lastPicture = none;
    std::int64_t m_toldOf = none; ///< the time that the last silence was counted from
};
