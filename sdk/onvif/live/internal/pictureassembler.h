// Pictures of the pieces in which they arrive.
#pragma once

#include "sdk/onvif/live/internal/streamunit.h"
#include "sdk/streams/avpointers.h"

#include <cstdint>
#include <functional>
#include <span>
#include <utility>
#include <vector>

namespace sdk::onvif {

/// FFmpeg's readers of RTP deliver H.264 and H.265 as units of the stream, cut into fragments. A picture is
/// whole when the first slice of the next one comes, or when its owner says so. Pictures of other codecs come
/// whole. Belongs to one thread.
class PictureAssembler
{
public:
    /// `bytes` are followed by AV_INPUT_BUFFER_PADDING_SIZE zeros, and end with the call. `time` is that of
    /// the picture's first piece.
    using Handler = std::function<void(std::span<const std::uint8_t> bytes, std::int64_t time)>;

    /// No camera makes larger pictures.
    static constexpr std::size_t mostBytes = std::size_t{8} * 1024 * 1024;

    PictureAssembler(AVCodecID codec, Handler handler) : m_codec(codec), m_handler(std::move(handler)) {}

    /// Takes the next piece, and delivers the picture before it if that is whole now.
    void add(std::span<const std::uint8_t> piece, std::int64_t time);

    /// Whether finish() would deliver a picture.
    [[nodiscard]] bool hasPicture() const { return m_hasSlices; }

    /// Delivers what has come, as a whole picture. Pieces of it that come later are left out.
    void finish();

private:
    /// Where the next fragment belongs to.
    enum class Place
    {
        Nowhere, ///< the beginning of its unit is missing
        Picture,
        Held,
    };

    void addUnits(std::span<const std::uint8_t> units, const StreamUnit &first, std::int64_t time);
    void append(std::span<const std::uint8_t> bytes);
    void deliver();

    const AVCodecID m_codec;
    const Handler m_handler;
    std::vector<std::uint8_t> m_picture;
    std::int64_t m_time = 0;
    bool m_hasSlices = false;

    /// Units after a slice that belong to the next picture, as a rule. Some devices repeat their parameters
    /// before each slice: then the next slice is not the first one of a picture, and these are left out.
    std::vector<std::uint8_t> m_held;
    std::int64_t m_heldTime = 0;
    Place m_place = Place::Nowhere;
};

} // namespace sdk::onvif
