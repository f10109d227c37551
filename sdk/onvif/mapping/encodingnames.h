// Numbers of codecs and formats, and their names in the standard.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace sdk::onvif {

/// The compression code of an encoding ("H264"); -1 for one without a code.
[[nodiscard]] int compressionOf(std::string_view encoding);
/// The encoding of a compression code; empty for one that the standard does not have.
[[nodiscard]] std::string encodingOf(int compression);

/// 1 to 4 for the profiles of H.264; 0 for any other string.
[[nodiscard]] int profileNumber(std::string_view profile);
/// The name of such a number, "Baseline" for 1; empty for any other number.
[[nodiscard]] std::string profileName(int number);

/// The numbers of an audio format in configurations and in capabilities; 0 for an encoding without a number.
[[nodiscard]] int audioFormatOf(std::string_view encoding);
[[nodiscard]] int audioCapabilityOf(std::string_view encoding);

} // namespace sdk::onvif
