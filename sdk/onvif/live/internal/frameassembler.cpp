#include "sdk/onvif/live/internal/frameassembler.h"

namespace sdk::onvif {

void FrameAssembler::add(std::span<const std::uint8_t> fragment, std::int64_t time)
{
    if (m_codec != AV_CODEC_ID_H264 && m_codec != AV_CODEC_ID_HEVC) {
        m_frame.assign(fragment.begin(), fragment.end());
        m_time = time;
        deliver();
        return;
    }
    const std::optional<StreamUnit> unit = firstUnit(fragment, m_codec);
    if (unit && unit->offset == 0)
        addUnits(fragment, *unit, time);
    else
        append(fragment); // a continued fragment
}

void FrameAssembler::addUnits(std::span<const std::uint8_t> units, const StreamUnit &first, std::int64_t time)
{
    const std::optional<StreamUnit> slice = firstSlice(units, m_codec);
    const bool isNext = m_hasSlices && (first.startsFrame || !m_following.empty());
    if (isNext && !slice) {
        if (m_following.empty())
            m_followingTime = time;
        m_destination = Destination::Following;
        append(units);
        return;
    }
    if (isNext && slice->startsFrame)
        finish();
    m_following.clear();
    if (m_frame.empty())
        m_time = time;
    m_hasSlices = m_hasSlices || slice;
    m_destination = Destination::Frame;
    append(units);
}

void FrameAssembler::finish()
{
    if (m_hasSlices)
        deliver();
    m_frame = std::exchange(m_following, {});
    m_time = m_followingTime;
    m_hasSlices = false;
    m_destination = m_destination == Destination::Following ? Destination::Frame : Destination::None;
}

void FrameAssembler::append(std::span<const std::uint8_t> bytes)
{
    if (m_destination == Destination::None)
        return;
    if (m_frame.size() + m_following.size() + bytes.size() > mostBytes) {
        m_frame.clear();
        m_following.clear();
        m_hasSlices = false;
        m_destination = Destination::None;
        return;
    }
    std::vector<std::uint8_t> &end = m_destination == Destination::Following ? m_following : m_frame;
    end.insert(end.end(), bytes.begin(), bytes.end());
}

void FrameAssembler::deliver()
{
    const std::size_t size = m_frame.size();
    m_frame.resize(size + AV_INPUT_BUFFER_PADDING_SIZE);
    m_handler({m_frame.data(), size}, m_time);
    m_frame.clear();
}

} // namespace sdk::onvif
