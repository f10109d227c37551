// The latest decoded frame of a stream, shared by the decoder's thread and the drawing thread.
#pragma once

#include "sdk/decoderlibrary.h"

#include <cstddef>
#include <cstdint>
#include <mutex>

/// A decoded frame in the memory of the decoder: planar YUV 4:2:0, as sdk::DecodedFrameType::Video.
struct VideoFrame
{
    const std::uint8_t *data = nullptr;
    std::int32_t size = 0;   ///< in bytes
    std::int32_t width = -1; ///< in pixels; -1 before the first frame, 0 after the end of the stream
    std::int32_t height = -1;
    sdk::FrameColour colour = sdk::FrameColour::Bt601Limited;
    std::uint64_t number = 0; ///< counts the frames of all streams of a CurrentFrame, from 1; 0 for none
    bool isSizeStale = false; ///< the size has changed since the renderer last read the frame

    /// Width and height of the planes U and V.
    [[nodiscard]] std::int32_t chromaWidth() const { return (width + 1) / 2; }
    [[nodiscard]] std::int32_t chromaHeight() const { return (height + 1) / 2; }
    [[nodiscard]] const std::uint8_t *y() const { return data; }
    [[nodiscard]] const std::uint8_t *u() const { return data + std::ptrdiff_t(width) * height; }
    [[nodiscard]] const std::uint8_t *v() const
    {
        return u() + std::ptrdiff_t(chromaWidth()) * chromaHeight();
    }

    /// Whether there is a frame with a valid size and at least as many bytes as the size requires.
    [[nodiscard]] bool isComplete() const;
};

/// Holds one frame; thread-safe. Holding its lock blocks delivery of the next frame. The decoder overwrites a
/// frame only after two more, so the bytes stay valid while the lock is held.
class CurrentFrame
{
public:
    /// Called on the decoder's thread.
    void set(const std::uint8_t *data, std::int32_t size, std::int32_t width, std::int32_t height,
             sdk::FrameColour colour);

    /// Sets the size to 0: the stream is about to end.
    void clearSize();

    /// Also removes the bytes, which the decoder frees next.
    void clear();

    /// Calls `reader` with the frame while the lock is held. `reader` must be short and must not call the
    /// decoder library.
    template<typename Reader>
    decltype(auto) read(Reader &&reader)
    {
        const std::lock_guard lock(m_mutex);
        return reader(m_frame);
    }

private:
    void setSize(std::int32_t width, std::int32_t height); // the caller holds the lock

    std::mutex m_mutex;
    VideoFrame m_frame;
};
