#include "sdk/onvif/live/internal/frameassembler.h"

namespace sdk::onvif {

void FrameAssembler::add(std::span<const std::uint8_t> piece, std::int64_t time)
{
    if (m_codec != AV_CODEC_ID_H264 && m_codec != AV_CODEC_ID_HEVC) {
        m_picture.assign(piece.begin(), piece.end());
        m_time = time;
        deliver();
        return;
    }
    const std::optional<StreamUnit> unit = firstUnit(piece, m_codec);
    if (unit && unit->place == 0)
        addUnits(piece, *unit, time);
    else
        append(piece); // a continued fragment
}

void FrameAssembler::addUnits(std::span<const std::uint8_t> units, const StreamUnit &first, std::int64_t time)
{
    const std::optional<StreamUnit> slice = firstSlice(units, m_codec);
    const bool isNext = m_hasSlices && (first.startsFrame || !m_held.empty());
    if (isNext && !slice) {
        if (m_held.empty())
            m_heldTime = time;
        m_place = Place::Held;
        append(units);
        return;
    }
    if (isNext && slice->startsFrame)
        finish();
    m_held.clear();
    if (m_picture.empty())
        m_time = time;
    m_hasSlices = m_hasSlices || slice;
    m_place = Place::Picture;
    append(units);
}

void FrameAssembler::finish()
{
    if (m_hasSlices)
        deliver();
    m_picture = std::exchange(m_held, {});
    m_time = m_heldTime;
    m_hasSlices = false;
    m_place = m_place == Place::Held ? Place::Picture : Place::Nowhere;
}

void FrameAssembler::append(std::span<const std::uint8_t> bytes)
{
    if (m_place == Place::Nowhere)
        return;
    if (m_picture.size() + m_held.size() + bytes.size() > mostBytes) {
        m_picture.clear();
        m_held.clear();
        m_hasSlices = false;
        m_place = Place::Nowhere;
        return;
    }
    std::vector<std::uint8_t> &end = m_place == Place::Held ? m_held : m_picture;
    end.insert(end.end(), bytes.begin(), bytes.end());
}

void FrameAssembler::deliver()
{
    const std::size_t size = m_picture.size();
    m_picture.resize(size + AV_INPUT_BUFFER_PADDING_SIZE);
    m_handler({m_picture.data(), size}, m_time);
    m_picture.clear();
}

} // namespace sdk::onvif
