// A test card as the picture that an encoder takes.
#pragma once

#include "sdk/demo/streams/avpointers.h"
#include "sdk/demo/streams/testcard.h"

#include <map>

namespace sdk::demo {

/// Belongs to one thread.
class CardPicture
{
public:
    /// A picture of the size, format and colours of `encoder`. Returns null when there is no memory for it.
    [[nodiscard]] static std::unique_ptr<CardPicture> create(const AVCodecContext &encoder);

    /// Paints a piece of the card into the picture. Returns false when that fails.
    [[nodiscard]] bool paint(const TestCard::Piece &piece);

    [[nodiscard]] AVFrame &frame() { return *m_frame; }

private:
    explicit CardPicture(AvPointer<AVFrame> frame) : m_frame(std::move(frame)) {}

    /// Pieces of one size on their way into the picture.
    struct Converter
    {
        AvPointer<SwsContext> context;
        AvPointer<AVFrame> piece; // in the picture's format
    };
    [[nodiscard]] static AvPointer<AVFrame> frameLike(const AVFrame &picture, QSize size);
    [[nodiscard]] Converter *converterFor(QSize size);
    void copyPiece(const AVFrame &piece, QPoint corner);

    AvPointer<AVFrame> m_frame;
    std::map<std::pair<int, int>, Converter> m_converters; // by width and height
};

} // namespace sdk::demo
