#include "sdk/onvif/live/internal/pictureassembler.h"

#include "sdk/onvif/live/internal/streamunit.h"

namespace sdk::onvif {

void PictureAssembler::add(std::span<const std::uint8_t> piece, std::int64_t time)
{
    if (m_codec != AV_CODEC_ID_H264 && m_codec != AV_CODEC_ID_HEVC) {
        m_time = time;
        m_hasSlices = true;
        append(piece);
        finish();
        return;
    }
    std::optional<StreamUnit> unit = firstUnit(piece, m_codec);
    if (!unit || unit->place > 0) { // a fragment that goes on
        if (m_isOpen)
            append(piece);
        return;
    }
    if (m_hasSlices && unit->beginsPicture)
        finish();
    if (m_bytes.empty())
        m_time = time;
    m_isOpen = true;
    for (std::span<const std::uint8_t> rest = piece; unit && !m_hasSlices; unit = firstUnit(rest, m_codec)) {
        m_hasSlices = unit->isSlice;
        rest = rest.subspan(unit->place + unit->headSize);
    }
    append(piece);
}

void PictureAssembler::finish()
{
    if (m_hasSlices) {
        const std::size_t size = m_bytes.size();
        m_bytes.resize(size + AV_INPUT_BUFFER_PADDING_SIZE);
        m_handler({m_bytes.data(), size}, m_time);
    }
    clear();
}

void PictureAssembler::append(std::span<const std::uint8_t> piece)
{
    if (m_bytes.size() + piece.size() > mostBytes)
        clear();
    else
        m_bytes.insert(m_bytes.end(), piece.begin(), piece.end());
}

void PictureAssembler::clear()
{
    m_bytes.clear();
    m_hasSlices = false;
    m_isOpen = false;
}

} // namespace sdk::onvif
