// What has to be known of pictures before they can be decoded.
#pragma once

#include "sdk/streams/avpointers.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace sdk::onvif {

/// Follows the size and the parameters of a track from picture to picture. Belongs to one thread.
class PictureFormat
{
public:
    /// `track` is what the description of the stream says. Returns null for a codec that no decoder port
    /// takes.
    [[nodiscard]] static std::unique_ptr<PictureFormat> of(const AVCodecParameters &track);

    /// Looks at a whole picture, followed by AV_INPUT_BUFFER_PADDING_SIZE zeros. Returns whether decoding can
    /// begin with it, and all is known that is needed for that.
    [[nodiscard]] bool examine(std::span<const std::uint8_t> picture);

    /// The track as the pictures say it is. Valid after examine() has returned true; null without memory.
    [[nodiscard]] streams::AvPointer<AVCodecParameters> parameters() const;

    /// Whether `other` tells a decoder the same.
    [[nodiscard]] bool isSame(const AVCodecParameters &other) const;

private:
    PictureFormat() = default;
    [[nodiscard]] bool examineJpeg(std::span<const std::uint8_t> picture);
    void takeParameterSets(std::span<const std::uint8_t> picture);

    streams::AvPointer<AVCodecParameters> m_track;
    streams::AvPointer<AVCodecContext> m_context;      // of the parser
    streams::AvPointer<AVCodecParserContext> m_parser; // null for MJPEG
    std::vector<std::uint8_t> m_parameterSets;
    int m_width = 0;
    int m_height = 0;
};

} // namespace sdk::onvif
