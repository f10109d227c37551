#include "sdk/ffmpeg/internal/frameconverter.h"

#include "sdk/ffmpeg/internal/colours.h"
#include "sdk/ffmpeg/internal/planarframe.h"

namespace sdk::ffmpeg {

namespace {

bool isPlanar420(int format)
{
    return format == AV_PIX_FMT_YUV420P || format == AV_PIX_FMT_YUVJ420P;
}

bool isRgb(int format)
{
    const AVPixFmtDescriptor *descriptor = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(format));
    return descriptor && (descriptor->flags & AV_PIX_FMT_FLAG_RGB) != 0;
}

bool saysFullRange(const AVFrame &frame)
{
    switch (frame.format) {
    case AV_PIX_FMT_YUVJ420P: // full range by definition
    case AV_PIX_FMT_YUVJ422P:
    case AV_PIX_FMT_YUVJ440P:
    case AV_PIX_FMT_YUVJ444P:
        return true;
    default:
        return frame.color_range == AVCOL_RANGE_JPEG;
    }
}

bool saysBt709(const AVFrame &frame)
{
    switch (frame.colorspace) {
    case AVCOL_SPC_BT709:
    case AVCOL_SPC_BT2020_NCL: // closer to BT.709 than to BT.601
    case AVCOL_SPC_BT2020_CL:
        return true;
    case AVCOL_SPC_FCC:
    case AVCOL_SPC_BT470BG:
    case AVCOL_SPC_SMPTE170M:
        return false;
    default:
        return isBt709(usualFrameColour(frame.height));
    }
}

} // namespace

FrameColour FrameConverter::colourOf(const AVFrame &frame)
{
    if (isRgb(frame.format))
        return usualFrameColour(frame.height); // the target of the conversion
    if (saysBt709(frame))
        return saysFullRange(frame) ? FrameColour::Bt709Full : FrameColour::Bt709Limited;
    return saysFullRange(frame) ? FrameColour::Bt601Full : FrameColour::Bt601Limited;
}

bool FrameConverter::write(const AVFrame &frame, std::uint8_t *destination)
{
    if (isPlanar420(frame.format)) {
        copyPlanes(frame, destination);
        return true;
    }
    if (!convert(frame))
        return false;
    copyPlanes(*m_converted, destination);
    return true;
}

bool FrameConverter::convert(const AVFrame &frame)
{
    if (!m_converted || m_converted->width != frame.width || m_converted->height != frame.height) {
        m_converted = paddedFrame(AV_PIX_FMT_YUV420P, frame.width, frame.height);
        if (!m_converted)
            return false;
    }
    m_scaler.reset(sws_getCachedContext(m_scaler.release(), frame.width, frame.height,
                                        static_cast<AVPixelFormat>(frame.format), frame.width, frame.height,
                                        AV_PIX_FMT_YUV420P, SWS_BILINEAR, nullptr, nullptr, nullptr));
    if (!m_scaler)
        return false;
    // Only RGB gets another colour space. Other formats keep their matrix and their range.
    const FrameColour colour = colourOf(frame);
    const int *matrix = colourMatrix(colour);
    const int range = isFullRange(colour) ? 1 : 0;
    sws_setColorspaceDetails(m_scaler.get(), matrix, isRgb(frame.format) ? 1 : range, matrix, range, 0,
                             1 << 16, 1 << 16);
    return sws_scale(m_scaler.get(), frame.data, frame.linesize, 0, frame.height, m_converted->data,
                     m_converted->linesize) == frame.height;
}

} // namespace sdk::ffmpeg
