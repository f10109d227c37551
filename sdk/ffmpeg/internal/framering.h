// The memory of a port's frames.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>

namespace sdk::ffmpeg {

/// Keeps the last two delivered frames while the next one is written, as DecodeHandler specifies. Not
/// thread-safe.
class FrameRing
{
public:
    /// Memory for the next frame; null without memory. Repeated calls return the same memory.
    [[nodiscard]] std::uint8_t *next(std::size_t size)
    {
        Buffer &buffer = m_buffers.at(m_next);
        if (buffer.size != size) {
            buffer.bytes.reset();
            buffer.bytes.reset(new (std::nothrow) std::uint8_t[size]);
            buffer.size = buffer.bytes ? size : 0;
        }
        return buffer.bytes.get();
    }

    /// Marks the next frame as delivered. The memory of the oldest one becomes free.
    void noteDelivered() { m_next = (m_next + 1) % m_buffers.size(); }

private:
    struct Buffer
    {
        std::unique_ptr<std::uint8_t[]> bytes; // NOLINT(modernize-avoid-c-arrays): not initialised
        std::size_t size = 0;
    };
    std::array<Buffer, 3> m_buffers;
    std::size_t m_next = 0;
};

} // namespace sdk::ffmpeg
