// The memory of a port's frames.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>

namespace sdk::ffmpeg {

/// Has the memory of three frames: two that were delivered, and the next one. The two stay valid while the
/// next one is written, as DecodeHandler requires. Not thread-safe.
class FrameRing
{
public:
    /// Memory of `size` bytes (above 0) for the next frame, which is not initialised and stays owned by the
    /// ring; null if there is no memory. Until noteDelivered(), calls with the same size return the same
    /// memory, and a call with another size frees it.
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

    /// Marks the frame of next() as delivered. The following next() uses the memory of the oldest of the
    /// three frames.
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
