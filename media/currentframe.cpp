#include "media/currentframe.h"

namespace {

/// Larger sizes are invalid.
constexpr std::int32_t longestFrameSide = 16384;

} // namespace

bool VideoFrame::isComplete() const
{
    if (!data || width <= 0 || height <= 0 || width > longestFrameSide || height > longestFrameSide)
        return false;
    const std::int64_t needed =
        std::int64_t(width) * height + 2 * std::int64_t(chromaWidth()) * chromaHeight();
    return size >= needed;
}

void CurrentFrame::set(const std::uint8_t *data, std::int32_t size, std::int32_t width, std::int32_t height,
                       sdk::FrameColour colour)
{
    const std::lock_guard lock(m_mutex);
    m_frame.data = data;
    m_frame.size = size;
    m_frame.colour = colour;
    ++m_frame.number;
    setSize(width, height);
}

void CurrentFrame::clearSize()
{
    const std::lock_guard lock(m_mutex);
    setSize(0, 0);
}

void CurrentFrame::clear()
{
    const std::lock_guard lock(m_mutex);
    setSize(0, 0);
    m_frame.data = nullptr;
    m_frame.size = 0;
}

void CurrentFrame::setSize(std::int32_t width, std::int32_t height)
{
    if (m_frame.width == width && m_frame.height == height)
        return;
    m_frame.width = width;
    m_frame.height = height;
    m_frame.isSizeStale = true;
}
