#include "sdk/ffmpeg/internal/planarpicture.h"

namespace sdk::ffmpeg {

AvPointer<AVFrame> paddedFrame(AVPixelFormat format, int width, int height)
{
    AvPointer<AVFrame> frame(av_frame_alloc());
    if (!frame)
        return nullptr;
    frame->format = format;
    frame->width = width;
    frame->height = height;
    if (av_frame_get_buffer(frame.get(), 0) != 0)
        return nullptr;
    return frame;
}

void copyPlanes(const AVFrame &frame, std::uint8_t *destination)
{
    for (int plane = 0; plane < planes; ++plane) {
        const PlaneSize size = planeSize(plane, frame.width, frame.height);
        av_image_copy_plane(destination, size.width, frame.data[plane], frame.linesize[plane], size.width,
                            size.height);
        destination += size.bytes();
    }
}

void copyPlanes(const std::uint8_t *source, AVFrame &frame)
{
    for (int plane = 0; plane < planes; ++plane) {
        const PlaneSize size = planeSize(plane, frame.width, frame.height);
        av_image_copy_plane(frame.data[plane], frame.linesize[plane], source, size.width, size.width,
                            size.height);
        source += size.bytes();
    }
}

} // namespace sdk::ffmpeg
