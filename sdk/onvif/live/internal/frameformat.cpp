#include "sdk/onvif/live/internal/frameformat.h"

#include "sdk/onvif/live/internal/streamunit.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace sdk::onvif {

using streams::AvPointer;

namespace {

/// The parameter sets before the first slice, each once; empty unless all required types are present.
std::vector<std::uint8_t> parameterSetsOf(std::span<const std::uint8_t> frame, AVCodecID codec)
{
    constexpr std::array<std::uint8_t, 4> startCode = {0, 0, 0, 1};
    std::vector<std::uint8_t> sets;
    bool hasSequence = false;
    bool hasPicture = false;
    std::optional<StreamUnit> unit = firstUnit(frame, codec);
    while (unit && !unit->isSlice) {
        frame = frame.subspan(unit->offset);
        const std::optional<StreamUnit> next = firstUnit(frame.subspan(unit->headSize), codec);
        const std::size_t size = next ? unit->headSize + next->offset : frame.size();
        if (unit->parameterSet != ParameterSet::None) {
            // Start codes have three or four bytes.
            std::vector<std::uint8_t> one(startCode.begin(), startCode.end());
            const std::span<const std::uint8_t> body = frame.first(size).subspan(unit->codeSize);
            one.insert(one.end(), body.begin(), body.end());
            if (std::search(sets.begin(), sets.end(), one.begin(), one.end()) == sets.end())
                sets.insert(sets.end(), one.begin(), one.end());
        }
        hasSequence = hasSequence || unit->parameterSet == ParameterSet::Sequence;
        hasPicture = hasPicture || unit->parameterSet == ParameterSet::Picture;
        frame = frame.subspan(unit->headSize);
        unit = next;
    }
    if (!hasSequence || !hasPicture)
        sets.clear();
    return sets;
}

} // namespace

std::unique_ptr<FrameFormat> FrameFormat::of(const AVCodecParameters &track)
{
    if (track.codec_id != AV_CODEC_ID_H264 && track.codec_id != AV_CODEC_ID_HEVC &&
        track.codec_id != AV_CODEC_ID_MJPEG) {
        return nullptr;
    }
    // Not make_unique: the constructor is private.
    std::unique_ptr<FrameFormat> format(new FrameFormat);
    format->m_track.reset(avcodec_parameters_alloc());
    if (!format->m_track || avcodec_parameters_copy(format->m_track.get(), &track) < 0)
        return nullptr;
    if (track.codec_id == AV_CODEC_ID_MJPEG)
        return format;
    format->m_context.reset(avcodec_alloc_context3(nullptr));
    format->m_parser.reset(av_parser_init(track.codec_id));
    if (!format->m_context || !format->m_parser ||
        avcodec_parameters_to_context(format->m_context.get(), &track) < 0) {
        return nullptr;
    }
    format->m_parser->flags |= PARSER_FLAG_COMPLETE_FRAMES;
    format->takeParameterSets({track.extradata, static_cast<std::size_t>(track.extradata_size)});
    return format;
}

bool FrameFormat::examine(std::span<const std::uint8_t> frame)
{
    if (m_track->codec_id == AV_CODEC_ID_MJPEG)
        return examineJpeg(frame);
    std::uint8_t *output = nullptr;
    int outputSize = 0;
    av_parser_parse2(m_parser.get(), m_context.get(), &output, &outputSize, frame.data(),
                     static_cast<int>(frame.size()), AV_NOPTS_VALUE, AV_NOPTS_VALUE, 0);
    if (m_parser->key_frame != 1 || m_parser->width <= 0 || m_parser->height <= 0)
        return false;
    m_width = m_parser->width;
    m_height = m_parser->height;
    takeParameterSets(frame);
    return !m_parameterSets.empty();
}

void FrameFormat::takeParameterSets(std::span<const std::uint8_t> frame)
{
    std::vector<std::uint8_t> sets = parameterSetsOf(frame, m_track->codec_id);
    if (!sets.empty())
        m_parameterSets = std::move(sets);
}

bool FrameFormat::examineJpeg(std::span<const std::uint8_t> frame)
{
    constexpr std::uint8_t marker = 0xff;
    constexpr std::uint8_t firstFrameMarker = 0xc0; // baseline and two rarer types
    constexpr std::uint8_t lastFrameMarker = 0xc2;
    constexpr std::size_t headSize = 9; // marker, length, precision, height, width
    const auto number = [&frame](std::size_t offset) {
        constexpr int byte = 8;
        return frame[offset] << byte | frame[offset + 1];
    };
    std::size_t offset = 2; // after the start marker
    while (offset + headSize <= frame.size() && frame[offset] == marker) {
        const std::uint8_t kind = frame[offset + 1];
        if (kind >= firstFrameMarker && kind <= lastFrameMarker) {
            m_height = number(offset + 5);
            m_width = number(offset + 7);
            return m_width > 0 && m_height > 0;
        }
        offset += 2 + static_cast<std::size_t>(number(offset + 2));
    }
    return false;
}

AvPointer<AVCodecParameters> FrameFormat::parameters() const
{
    AvPointer<AVCodecParameters> result(avcodec_parameters_alloc());
    if (!result || avcodec_parameters_copy(result.get(), m_track.get()) < 0)
        return nullptr;
    av_freep(&result->extradata);
    result->extradata_size = 0;
    result->width = m_width;
    result->height = m_height;
    if (!m_parameterSets.empty()) {
        const std::size_t size = m_parameterSets.size();
        result->extradata = static_cast<std::uint8_t *>(av_mallocz(size + AV_INPUT_BUFFER_PADDING_SIZE));
        if (!result->extradata)
            return nullptr;
        std::memcpy(result->extradata, m_parameterSets.data(), size);
        result->extradata_size = static_cast<int>(size);
    }
    return result;
}

bool FrameFormat::isSame(const AVCodecParameters &other) const
{
    const std::span<const std::uint8_t> sets(other.extradata, static_cast<std::size_t>(other.extradata_size));
    return other.width == m_width && other.height == m_height &&
           std::equal(sets.begin(), sets.end(), m_parameterSets.begin(), m_parameterSets.end());
}

} // namespace sdk::onvif
