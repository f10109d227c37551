// The parameters that a decoder needs before the first frame.
#pragma once

#include "sdk/streams/avpointers.h"

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace sdk::onvif {

/// Follows the frame size and the parameter sets (units that a decoder needs before the first frame) of a
/// video track from frame to frame. Used by one thread.
class FrameFormat
{
public:
    /// `track` has the parameters of the stream's description, and is copied. Returns null for a codec other
    /// than H.264, H.265 and MJPEG, which no decoder port supports, and when memory is exhausted.
    [[nodiscard]] static std::unique_ptr<FrameFormat> of(const AVCodecParameters &track);

    /// To be called with every frame: takes the size and the parameter sets of key frames. `frame` is
    /// complete, and followed by AV_INPUT_BUFFER_PADDING_SIZE zeros. Returns true for a key frame, if its
    /// size and all parameter sets that a decoder needs are known from this frame, earlier ones or the
    /// description.
    [[nodiscard]] bool examine(std::span<const std::uint8_t> frame);

    /// The parameters of the track for a container: with the size of its frames in pixels, and with their
    /// parameter sets as extradata. Valid after examine() has returned true; null when memory is exhausted.
    [[nodiscard]] streams::AvPointer<AVCodecParameters> parameters() const;

    /// True if `other`, an earlier result of parameters(), has the present size and parameter sets.
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
