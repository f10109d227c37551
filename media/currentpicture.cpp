#include "media/currentpicture.h"

namespace {

/// No stream has larger pictures; a size beyond is a fault of whoever tells it.
constexpr std::int32_t longestPictureSide = 16384;

} // namespace

bool DecodedPicture::isWhole() const
{
    if (!data || width <= 0 || height <= 0 || width > longestPictureSide || height > longestPictureSide)
        return false;
    const std::int64_t needed =
        std::int64_t(width) * height + 2 * std::int64_t(chromaWidth()) * chromaHeight();
    return size >= needed;
}

void CurrentPicture::set(const std::uint8_t *data, std::int32_t size, std::int32_t width, std::int32_t height,
                         sdk::PictureColour colour)
{
    const std::lock_guard lock(m_mutex);
    m_picture.data = data;
    m_picture.size = size;
    m_picture.colour = colour;
    ++m_picture.number;
    setSize(width, height);
}

void CurrentPicture::clearSize()
{
    const std::lock_guard lock(m_mutex);
    setSize(0, 0);
}

void CurrentPicture::forget()
{
    const std::lock_guard lock(m_mutex);
    setSize(0, 0);
    m_picture.data = nullptr;
    m_picture.size = 0;
}

void CurrentPicture::setSize(std::int32_t width, std::int32_t height)
{
    if (m_picture.width == width && m_picture.height == height)
        return;
    m_picture.width = width;
    m_picture.height = height;
    m_picture.isSizeStale = true;
}
