// A test card as a frame for an encoder.
#pragma once

#include "sdk/demo/streams/avpointers.h"
#include "sdk/demo/streams/testcard.h"

#include <map>

namespace sdk::demo {

/// Converts regions of a test card from RGB to the format of the encoder, and keeps the complete frame. Not
/// thread-safe.
class CardFrame
{
public:
    /// A frame with the size, format (planar 4:2:0) and colour space of `encoder` (used during the call
    /// only), whose content is undefined until the complete card is painted. Returns null if there is no
    /// memory.
    [[nodiscard]] static std::unique_ptr<CardFrame> create(const AVCodecContext &encoder);

    /// Replaces a region of the frame, which must be inside the frame. Returns false if it cannot be
    /// converted, or there is no memory.
    [[nodiscard]] bool paint(const TestCard::Region &region);

    /// The frame for VideoEncoder::encode(). Owned by this object.
    [[nodiscard]] AVFrame &frame() { return *m_frame; }

private:
    explicit CardFrame(AvPointer<AVFrame> frame) : m_frame(std::move(frame)) {}

    /// Converts regions of one size.
    struct Converter
    {
        AvPointer<SwsContext> context;
        AvPointer<AVFrame> region; // in the frame's format
    };
    [[nodiscard]] static AvPointer<AVFrame> frameLike(const AVFrame &model, QSize size);
    [[nodiscard]] Converter *converterFor(QSize size);
    void copyRegion(const AVFrame &region, QPoint corner);

    AvPointer<AVFrame> m_frame;
    std::map<std::pair<int, int>, Converter> m_converters; // by width and height
};

} // namespace sdk::demo
