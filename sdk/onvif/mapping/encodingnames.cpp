#include "sdk/onvif/mapping/encodingnames.h"

#include <algorithm>
#include <array>

namespace sdk::onvif {

namespace {

struct Compression
{
    std::string_view encoding;
    int code;
};

constexpr std::array compressions = {
    Compression{"MPEG4", 0},
    Compression{"JPEG", 5},
    Compression{"H264", 7},
    Compression{"H265", 8},
};

/// The index is the number minus 1.
constexpr std::array<std::string_view, 4> profiles = {"Baseline", "Main", "Extended", "High"};

struct AudioFormat
{
    std::string_view encoding;
    int format;     ///< its number in configurations
    int capability; ///< its number in capabilities
};

/// G711 of the older service is u-law.
constexpr std::array audioFormats = {
    AudioFormat{"G711", 3, 4}, AudioFormat{"PCMU", 3, 4}, AudioFormat{"PCMA", 1, 2},
    AudioFormat{"G726", 6, 5}, AudioFormat{"AAC", 5, 8},  AudioFormat{"MP4A-LATM", 5, 8},
};

const AudioFormat *audioFormat(std::string_view encoding)
{
    const auto *const found =
        std::find_if(audioFormats.begin(), audioFormats.end(),
                     [encoding](const auto &entry) { return entry.encoding == encoding; });
    return found == audioFormats.end() ? nullptr : found;
}

} // namespace

int compressionOf(std::string_view encoding)
{
    const auto *const found =
        std::find_if(compressions.begin(), compressions.end(),
                     [encoding](const auto &entry) { return entry.encoding == encoding; });
    return found == compressions.end() ? -1 : found->code;
}

std::string encodingOf(int compression)
{
    const auto *const found =
        std::find_if(compressions.begin(), compressions.end(),
                     [compression](const auto &entry) { return entry.code == compression; });
    return found == compressions.end() ? std::string() : std::string(found->encoding);
}

int profileNumber(std::string_view profile)
{
    const auto *const found = std::find(profiles.begin(), profiles.end(), profile);
    return found == profiles.end() ? 0 : static_cast<int>(found - profiles.begin()) + 1;
}

std::string profileName(int number)
{
    const bool isKnown = number >= 1 && number <= static_cast<int>(profiles.size());
    return isKnown ? std::string(profiles[static_cast<std::size_t>(number) - 1]) : std::string();
}

int audioFormatOf(std::string_view encoding)
{
    const AudioFormat *format = audioFormat(encoding);
    return format ? format->format : 0;
}

int audioCapabilityOf(std::string_view encoding)
{
    const AudioFormat *format = audioFormat(encoding);
    return format ? format->capability : 0;
}

} // namespace sdk::onvif
