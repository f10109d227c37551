// The memory of a port's pictures.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>

namespace sdk::ffmpeg {

/// Keeps the last two delivered pictures while the next is made: that is what DecodeHandler promises. On one
/// thread.
class PictureRing
{
public:
    /// Memory for the next picture; null when there is none. Asking twice gives the same.
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

    /// The next picture has been delivered: the one before the last ends.
    void noteDelivered() { m_next = (m_next + 1) % m_buffers.size(); }

private:
    struct Buffer
    {
        std::unique_ptr<std::uint8_t[]> bytes; // NOLINT(modernize-avoid-c-arrays): not filled before use
        std::size_t size = 0;
    };
    std::array<Buffer, 3> m_buffers;
    std::size_t m_next = 0;
};

} // namespace sdk::ffmpeg
