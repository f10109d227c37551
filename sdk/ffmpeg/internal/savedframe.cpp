#include "sdk/ffmpeg/internal/savedframe.h"

#include "sdk/ffmpeg/internal/avpointers.h"
#include "sdk/ffmpeg/internal/colours.h"
#include "sdk/ffmpeg/internal/logging.h"
#include "sdk/ffmpeg/internal/planarframe.h"

#include <QBuffer>
#include <QImage>
#include <QSaveFile>

namespace sdk::ffmpeg {

namespace {

/// The image as blue, green, red and an unused byte for each pixel; null on failure. The planes of most
/// streams cannot be encoded directly: viewers read a JPEG file as BT.601 with full range, regardless of the
/// range that the encoder is given. With AVCOL_RANGE_MPEG, a Y of 28 is shown as 28 in place of 14.
AvPointer<AVFrame> toRgb(const std::uint8_t *frame, int width, int height, FrameColour colour)
{
    const AvPointer<AVFrame> source = paddedFrame(AV_PIX_FMT_YUV420P, width, height);
    AvPointer<AVFrame> rgb = paddedFrame(AV_PIX_FMT_RGB32, width, height);
    const AvPointer<SwsContext> scaler(sws_getContext(width, height, AV_PIX_FMT_YUV420P, width, height,
                                                      AV_PIX_FMT_RGB32, SWS_BILINEAR, nullptr, nullptr,
                                                      nullptr));
    if (!source || !rgb || !scaler)
        return nullptr;
    copyPlanes(frame, *source);
    const int *matrix = colourMatrix(colour);
    sws_setColorspaceDetails(scaler.get(), matrix, isFullRange(colour) ? 1 : 0, matrix, 1, 0, 1 << 16,
                             1 << 16);
    const int lines =
        sws_scale(scaler.get(), source->data, source->linesize, 0, height, rgb->data, rgb->linesize);
    return lines == height ? std::move(rgb) : nullptr;
}

} // namespace

bool saveFrame(const std::uint8_t *frame, int width, int height, FrameColour colour, int quality,
               const QString &path)
{
    const AvPointer<AVFrame> rgb = toRgb(frame, width, height, colour);
    if (!rgb)
        return false;
    const QImage image(rgb->data[0], width, height, rgb->linesize[0], QImage::Format_RGB32);
    QBuffer jpeg;
    jpeg.open(QIODevice::WriteOnly);
    if (!image.save(&jpeg, "JPG", quality))
        return false;
    // Written to a temporary file, which then replaces the file. Unbuffered, because Qt does not detect an
    // incomplete write of its buffer.
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
        file.write(jpeg.data()) == jpeg.data().size() && file.commit())
        return true;
    qCWarning(ffmpegLog).noquote() << "cannot write the image" << path << '-' << file.errorString();
    return false;
}

} // namespace sdk::ffmpeg
