#include "sdk/demo/streams/cardframe.h"

#include <array>

namespace sdk::demo {

std::unique_ptr<CardFrame> CardFrame::create(const AVCodecContext &encoder)
{
    AvPointer<AVFrame> format(av_frame_alloc());
    if (!format)
        return nullptr;
    format->format = encoder.pix_fmt;
    format->color_range = encoder.color_range;
    format->colorspace = encoder.colorspace;
    format->color_primaries = encoder.color_primaries;
    format->color_trc = encoder.color_trc;
    AvPointer<AVFrame> frame = frameLike(*format, {encoder.width, encoder.height});
    if (!frame)
        return nullptr;
    // Not make_unique: the constructor is private.
    return std::unique_ptr<CardFrame>(new CardFrame(std::move(frame)));
}

bool CardFrame::paint(const TestCard::Region &region)
{
    // The encoder may still refer to the previous frame.
    Converter *converter = converterFor(region.image.size());
    if (!converter || av_frame_make_writable(m_frame.get()) < 0)
        return false;
    const std::array<const std::uint8_t *, 4> from = {region.image.constBits()};
    const std::array<int, 4> fromLine = {static_cast<int>(region.image.bytesPerLine())};
    AVFrame &to = *converter->region;
    if (sws_scale(converter->context.get(), from.data(), fromLine.data(), 0, region.image.height(), to.data,
                  to.linesize) != region.image.height())
        return false;
    copyRegion(to, region.corner);
    return true;
}

AvPointer<AVFrame> CardFrame::frameLike(const AVFrame &model, QSize size)
{
    AvPointer<AVFrame> frame(av_frame_alloc());
    if (!frame || av_frame_copy_props(frame.get(), &model) < 0)
        return nullptr;
    frame->format = model.format;
    frame->width = size.width();
    frame->height = size.height();
    if (av_frame_get_buffer(frame.get(), 0) < 0)
        return nullptr;
    return frame;
}

CardFrame::Converter *CardFrame::converterFor(QSize size)
{
    Converter &converter = m_converters[{size.width(), size.height()}];
    if (converter.context && converter.region)
        return &converter;
    converter.region = frameLike(*m_frame, size);
    // The full range of JPEG is set below instead of by the pixel format.
    converter.context.reset(sws_getContext(size.width(), size.height(), AV_PIX_FMT_0RGB32, size.width(),
                                           size.height(), AV_PIX_FMT_YUV420P, SWS_BILINEAR | SWS_ACCURATE_RND,
                                           nullptr, nullptr, nullptr));
    if (!converter.context || !converter.region)
        return nullptr;
    const int *rgb = sws_getCoefficients(SWS_CS_DEFAULT);
    const int *colours =
        sws_getCoefficients(m_frame->colorspace == AVCOL_SPC_BT709 ? SWS_CS_ITU709 : SWS_CS_ITU601);
    constexpr int one = 1 << 16;
    const int isFull = m_frame->color_range == AVCOL_RANGE_JPEG ? 1 : 0;
    sws_setColorspaceDetails(converter.context.get(), rgb, 1, colours, isFull, 0, one, one);
    return &converter;
}

/// Not converted directly into the frame: the converter writes complete words beyond the end of a line.
void CardFrame::copyRegion(const AVFrame &region, QPoint corner)
{
    for (std::size_t plane = 0; plane < 3; ++plane) {
        const int divisor = plane == 0 ? 1 : 2;
        std::uint8_t *to = m_frame->data[plane] +
                           static_cast<std::ptrdiff_t>(corner.y() / divisor) * m_frame->linesize[plane] +
                           corner.x() / divisor;
        av_image_copy_plane(to, m_frame->linesize[plane], region.data[plane], region.linesize[plane],
                            region.width / divisor, region.height / divisor);
    }
}

} // namespace sdk::demo
