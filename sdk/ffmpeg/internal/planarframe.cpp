#include "sdk/ffmpeg/internal/planarframe.h"

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace sdk::ffmpeg {

namespace {

/// Copies a plane from lines of `lineSize` bytes. If possible, it bypasses the caches, which keeps the
/// decoder's reference frames in them. This halves the time of a copy of 1080 lines.
void takePlane(const std::uint8_t *source, int lineSize, PlaneSize size, std::uint8_t *destination)
{
#ifdef __SSE2__
    constexpr int step = sizeof(__m128i);
    if (size.width % step == 0 && reinterpret_cast<std::uintptr_t>(destination) % step == 0) {
        for (int y = 0; y < size.height; ++y) {
            for (int x = 0; x < size.width; x += step) {
                const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i *>(source + x));
                _mm_stream_si128(reinterpret_cast<__m128i *>(destination + x), bytes);
            }
            source += lineSize;
            destination += size.width;
        }
        _mm_sfence(); // before another thread reads the bytes
        return;
    }
#endif
    av_image_copy_plane(destination, size.width, source, lineSize, size.width, size.height);
}

} // namespace

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
        takePlane(frame.data[plane], frame.linesize[plane], size, destination);
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
