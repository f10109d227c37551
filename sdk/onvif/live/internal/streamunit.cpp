#include "sdk/onvif/live/internal/streamunit.h"

#include <algorithm>
#include <array>

namespace sdk::onvif {

namespace {

constexpr std::array<std::uint8_t, 3> startCode = {0, 0, 1};
constexpr std::uint8_t firstBit = 0x80;

void readH264(std::span<const std::uint8_t> unit, StreamUnit &read)
{
    constexpr int typeMask = 0x1f;
    constexpr int slice = 1;
    constexpr int keySlice = 5;
    constexpr int information = 6;
    constexpr int sequence = 7;
    constexpr int picture = 8;
    constexpr int delimiter = 9;
    constexpr int prefix = 14;
    constexpr int lastReserved = 18;
    const int type = unit[0] & typeMask;
    read.isSlice = type >= slice && type <= keySlice;
    if (type == slice || type == keySlice) {
        // The first field of the slice header is the number of its first block: a set bit stands for 0.
        read.startsFrame = unit.size() > 1 && (unit[1] & firstBit) != 0;
    } else {
        read.startsFrame =
            (type >= information && type <= delimiter) || (type >= prefix && type <= lastReserved);
    }
    if (type == sequence)
        read.parameterSet = ParameterSet::Sequence;
    else if (type == picture)
        read.parameterSet = ParameterSet::Picture;
}

void readH265(std::span<const std::uint8_t> unit, StreamUnit &read)
{
    constexpr int typeMask = 0x3f;
    constexpr int firstOther = 32;
    constexpr int video = 32;
    constexpr int sequence = 33;
    constexpr int picture = 34;
    constexpr int delimiter = 35;
    constexpr int prefixInformation = 39;
    constexpr int firstReserved = 41;
    constexpr int lastReserved = 44;
    constexpr int firstUnspecified = 48;
    constexpr int lastUnspecified = 55;
    const int type = (unit[0] >> 1) & typeMask;
    read.isSlice = type < firstOther;
    if (read.isSlice) {
        read.startsFrame = unit.size() > 2 && (unit[2] & firstBit) != 0;
    } else {
        read.startsFrame = type <= delimiter || type == prefixInformation ||
                           (type >= firstReserved && type <= lastReserved) ||
                           (type >= firstUnspecified && type <= lastUnspecified);
    }
    if (type == video)
        read.parameterSet = ParameterSet::Video;
    else if (type == sequence)
        read.parameterSet = ParameterSet::Sequence;
    else if (type == picture)
        read.parameterSet = ParameterSet::Picture;
}

} // namespace

std::optional<StreamUnit> firstUnit(std::span<const std::uint8_t> bytes, AVCodecID codec)
{
    const std::size_t headerSize = codec == AV_CODEC_ID_H264 ? 1 : 2;
    const auto found = std::search(bytes.begin(), bytes.end(), startCode.begin(), startCode.end());
    const auto code = static_cast<std::size_t>(found - bytes.begin());
    if (code + startCode.size() + headerSize > bytes.size())
        return std::nullopt;
    StreamUnit unit;
    unit.offset = code > 0 && bytes[code - 1] == 0 ? code - 1 : code; // a fourth byte of the code
    unit.codeSize = code - unit.offset + startCode.size();
    unit.headSize = unit.codeSize + headerSize;
    const std::span<const std::uint8_t> rest = bytes.subspan(code + startCode.size());
    if (codec == AV_CODEC_ID_H264)
        readH264(rest, unit);
    else
        readH265(rest, unit);
    return unit;
}

std::optional<StreamUnit> firstSlice(std::span<const std::uint8_t> bytes, AVCodecID codec)
{
    std::size_t offset = 0;
    std::optional<StreamUnit> unit = firstUnit(bytes, codec);
    while (unit && !unit->isSlice) {
        offset += unit->offset + unit->headSize;
        unit = firstUnit(bytes.subspan(offset), codec);
    }
    if (unit)
        unit->offset += offset;
    return unit;
}

} // namespace sdk::onvif
