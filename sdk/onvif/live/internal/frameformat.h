// The parameters that a decoder needs before the first frame.
#pragma once

#include "sdk/streams/avpointers.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace sdk::onvif {

/// Follows the size and the parameters of a track from frame to frame. Used by one thread.
class FrameFormat
{
public:
    /// `track` has the parameters of the stream's description. Returns null for a codec that no decoder port
    /// supports.
    [[nodiscard]] static std::unique_ptr<FrameFormat> of(const AVCodecParameters &track);

    /// Checks a complete frame, followed by AV_INPUT_BUFFER_PADDING_SIZE zeros. Returns true if decoding can
    /// start with it and all required parameters are known.
    [[nodiscard]] bool examine(std::span<const std::uint8_t> frame);

    /// The parameters of the track according to its frames. Valid after examine() has returned true; null
    /// when memory is exhausted.
    [[nodiscard]] streams::AvPointer<AVCodecParameters> parameters() const;

    /// True if `other` is equivalent for a decoder.
    [[nodiscard]] bool isSame(const AVCodecParameters &other) const;

private:
    FrameFormat() = default;
    [[nodiscard]] bool examineJpeg(std::span<const std::uint8_t> frame);
    void takeParameterSets(std::span<const std::uint8_t> frame);

    streams::AvPointer<AVCodecParameters> m_track;
    streams::AvPointer<AVCodecContext> m_context;      // of the parser
    streams::AvPointer<AVCodecParserContext> m_parser; // null for MJPEG
    std::vector<std::uint8_t> m_parameterSets;
    int m_width = 0;
    int m_height = 0;
};

} // namespace sdk::onvif
