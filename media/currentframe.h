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
    std::int32_t size = 0;    ///< in bytes
    std::int32_t width = -1;  ///< in pixels; -1 before the first frame, 0 from clearSize() to the next frame
    std::int32_t height = -1; ///< as `width`
    sdk::FrameColour colour = sdk::FrameColour::Bt601Limited;
    std::uint64_t number =
        0; ///< counts the calls of CurrentFrame::set(), also over streams; 0 before the first
    bool isSizeStale = false; ///< set when the size changes; ItemRender resets it in CurrentFrame::read()

    /// Width and height of the planes U and V, in samples of one byte.
    [[nodiscard]] std::int32_t chromaWidth() const { return (width + 1) / 2; }
    [[nodiscard]] std::int32_t chromaHeight() const { return (height + 1) / 2; }
    // The starts of the planes in `data`. They require isComplete().
    [[nodiscard]] const std::uint8_t *y() const { return data; }
    [[nodiscard]] const std::uint8_t *u() const { return data + std::ptrdiff_t(width) * height; }
    [[nodiscard]] const std::uint8_t *v() const
    {
        return u() + std::ptrdiff_t(chromaWidth()) * chromaHeight();
    }

    /// Whether there is a frame with sides of 1 to 16384 pixels and at least as many bytes as the size
    /// requires.
    [[nodiscard]] bool isComplete() const;
};

/// Refers to the latest frame; the bytes are not copied. Thread-safe. set() waits while read() runs, and so
/// does the decoder. The decoder overwrites a frame only after two more, so the bytes stay valid during
/// read().
class CurrentFrame
{
public:
    /// Called on the decoder's thread with a frame as VideoFrame. `data` stays valid as
    /// VideoDataObserver::onDecodedFrame() specifies.
    void set(const std::uint8_t *data, std::int32_t size, std::int32_t width, std::int32_t height,
             sdk::FrameColour colour);

    /// Sets the size to 0 x 0: no frame is complete until the next set(). Called before the decoder stops.
    void clearSize();

    /// As clearSize(), and removes the pointer to the bytes. Called when the decoder has stopped, which has
    /// freed them.
    void clear();

    /// Calls `reader` with the frame (VideoFrame &) while the lock is held, and returns its result. `reader`
    /// must be short. It must not call the decoder library or this object.
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
