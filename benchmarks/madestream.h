// A live stream that is made for a measurement, and a count of its pictures.
#pragma once

#include "sdk/decoderlibrary.h"

#include <QString>

#include <chrono>
#include <condition_variable>
#include <mutex>

/// Makes a live stream of 1080p H.264, 25 pictures a second and a key picture every two seconds, as a file.
/// Returns false when it cannot be made here.
[[nodiscard]] bool makeStream(const QString &path, int pictures);

/// Counts pictures on a port's thread, and lets another thread wait for them.
class PictureCount
{
public:
    static void handle(std::int32_t, const std::uint8_t *, std::int32_t, const sdk::DecodedFrameInformation *,
                       void *user)
    {
        auto *count = static_cast<PictureCount *>(user);
        const std::lock_guard lock(count->m_mutex);
        ++count->m_count;
        count->m_changed.notify_one();
    }

    void waitFor(int wanted)
    {
        constexpr std::chrono::minutes patience{2};
        std::unique_lock lock(m_mutex);
        m_changed.wait_for(lock, patience, [&] { return m_count >= wanted; });
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_count = 0;
};
