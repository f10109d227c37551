// Numbers of codecs and formats in blocks (encodeblocks.h), and their names in the ONVIF standard. Names are
// compared with their case: "H264", "G711".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace sdk::onvif {

/// The compression code of an encoding ("H264"); -1 for one without a code.
[[nodiscard]] int compressionOf(std::string_view encoding);
/// The encoding of a compression code; empty for a code that the standard does not have.
[[nodiscard]] std::string encodingOf(int compression);

/// The number of a profile of H.264: 1 "Baseline", 2 "Main", 3 "Extended", 4 "High"; 0 for any other string.
[[nodiscard]] int profileNumber(std::string_view profile);
/// The profile of H.264 with that number; empty for any other number.
[[nodiscard]] std::string profileName(int number);

/// The number of an audio encoding in AudioCompressionItem::format; 0 for an encoding without a number.
[[nodiscard]] int audioFormatOf(std::string_view encoding);
/// The number of the same encoding in EncodeCapabilityBlock::audioFormats, which differs; 0 for an encoding
/// without a number.
[[nodiscard]] int audioCapabilityOf(std::string_view encoding);

} // namespace sdk::onvif
