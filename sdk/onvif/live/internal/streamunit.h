// The NAL units of H.264 and H.265 streams with start codes (three or four bytes). A unit contains a slice,
// the image data of a frame or of its part, or parameters and other information.
#pragma once

#include "sdk/streams/avpointers.h"

#include <cstdint>
#include <optional>
#include <span>

namespace sdk::onvif {

/// The type of a unit with parameters. Video exists in H.265 only.
enum class ParameterSet
{
    None, ///< any other unit
    Video,
    Sequence,
    Picture,
};

/// The start of a unit in a span of bytes.
struct StreamUnit
{
    std::size_t offset = 0;   ///< of its start code in the span
    std::size_t codeSize = 0; ///< bytes of the start code
    std::size_t headSize = 0; ///< bytes of the start code and the unit's header
    ParameterSet parameterSet = ParameterSet::None;
    bool isSlice = false;
    /// For a slice: it is the first one of its frame; false if the byte after its header is missing, and for
    /// the partitions of H.264 (types 2 to 4). For any other unit: if it follows a slice, it belongs to the
    /// next frame.
    bool startsFrame = false;
};

/// The first unit in `bytes` with a start code and a header; nothing if there is none. `codec` is H.264 or
/// H.265.
[[nodiscard]] std::optional<StreamUnit> firstUnit(std::span<const std::uint8_t> bytes, AVCodecID codec);

/// The first slice among the units of `bytes`; nothing if there is none.
[[nodiscard]] std::optional<StreamUnit> firstSlice(std::span<const std::uint8_t> bytes, AVCodecID codec);

} // namespace sdk::onvif
