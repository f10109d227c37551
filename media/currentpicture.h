// The picture that is shown, handed from the decoder's thread to the one that draws.
#pragma once

#include "sdk/decoderlibrary.h"

#include <cstddef>
#include <cstdint>
#include <mutex>

/// A decoded picture where the decoder has it: planar YUV 4:2:0, as sdk::DecodedFrameType::Picture.
struct DecodedPicture
{
    const std::uint8_t *data = nullptr;
    std::int32_t size = 0;   ///< in bytes
    std::int32_t width = -1; ///< in pixels; -1 before the first picture, 0 after the stream has ended
    std::int32_t height = -1;
    sdk::PictureColour colour = sdk::PictureColour::Bt601Limited;
    std::uint64_t number = 0; ///< of this picture among those that came
    bool isSizeStale = false; ///< the size has changed since the drawing side has looked

    /// Width and height of the planes U and V.
    [[nodiscard]] std::int32_t chromaWidth() const { return (width + 1) / 2; }
    [[nodiscard]] std::int32_t chromaHeight() const { return (height + 1) / 2; }
    [[nodiscard]] const std::uint8_t *y() const { return data; }
    [[nodiscard]] const std::uint8_t *u() const { return data + std::ptrdiff_t(width) * height; }
    [[nodiscard]] const std::uint8_t *v() const
    {
        return u() + std::ptrdiff_t(chromaWidth()) * chromaHeight();
    }

    /// True when there is a picture and its bytes are as many as its size needs.
    [[nodiscard]] bool isWhole() const;
};

/// Holds one picture; thread-safe. Bytes stay the decoder's: whoever looks at a picture holds up the next one
/// meanwhile, which keeps the bytes readable, as the decoder overwrites them only after two more.
class CurrentPicture
{
public:
    /// Called on the decoder's thread.
    void set(const std::uint8_t *data, std::int32_t size, std::int32_t width, std::int32_t height,
             sdk::PictureColour colour);

    /// The stream has ended: the size becomes 0.
    void clearSize();

    /// The decoder's bytes end.
    void forget();

    /// Calls `look` with the picture. It must be brief, and must not call the decoder.
    template<typename Look>
    decltype(auto) lookAt(Look &&look)
    {
        const std::lock_guard lock(m_mutex);
        return look(m_picture);
    }

private:
    void setSize(std::int32_t width, std::int32_t height);

    std::mutex m_mutex;
    DecodedPicture m_picture;
};
