// Encoded live streams with known frames and sound, for tests of the decoder.
#pragma once

#include "sdk/ffmpeg/internal/avpointers.h"

#include <QByteArray>

#include <array>
#include <functional>

namespace sdk::ffmpeg {

/// The content of a test frame: four patches of one colour each, which divide the frame at its centre, in
/// reading order.
struct Patches
{
    /// The values of the three components of the pixel format, 0 to 255: Y, U, V, or red, green, blue.
    struct Colour
    {
        int y;
        int u;
        int v;
    };
    std::array<Colour, 4> colours;

    /// Clearly different colours, which depend on the number; they repeat after five numbers.
    [[nodiscard]] static Patches numbered(int number);

    /// The patch that covers a point of a frame or of one of its planes.
    [[nodiscard]] const Colour &at(int x, int y, int width, int height) const
    {
        return colours.at((y * 2 < height ? 0U : 2U) + (x * 2 < width ? 0U : 1U));
    }
};

/// The encoding of the frames.
struct VideoFormat
{
    const char *encoder = "libx264";
    int width = 64;
    int height = 36;
    AVPixelFormat pixels = AV_PIX_FMT_YUV420P;
    int rate = 25; ///< frames per second
    AVColorSpace colourSpace = AVCOL_SPC_UNSPECIFIED;
    AVColorRange range = AVCOL_RANGE_UNSPECIFIED;
    int keyEvery = 5;         ///< number of frames from a key frame to the next one
    const char *options = ""; ///< further options of the encoder, as "name=value:name=value"
};

/// The encoding of the sound.
struct SoundFormat
{
    const char *encoder = "pcm_alaw";
    int rate = 8000; ///< samples per second
    int channels = 1;
};

/// Encodes a live stream in Matroska with video, sound or both. Each call returns the bytes of its frames or
/// samples as clusters of their own, without a delay. A failure ends the process. Not thread-safe.
class LiveStream
{
public:
    explicit LiveStream(const VideoFormat &video) : LiveStream(&video, nullptr) {}
    explicit LiveStream(const SoundFormat &sound) : LiveStream(nullptr, &sound) {}
    LiveStream(const VideoFormat &video, const SoundFormat &sound) : LiveStream(&video, &sound) {}
    ~LiveStream();
    LiveStream(const LiveStream &) = delete;
    LiveStream &operator=(const LiveStream &) = delete;

    /// The header of the stream, which a decoder needs first.
    [[nodiscard]] const QByteArray &head() const { return m_head; }

    /// The bytes of the next frame. Requires video.
    [[nodiscard]] QByteArray frame(const Patches &patches);

    /// The bytes of the next `count` frames, with the contents Patches::numbered() from `first` on.
    [[nodiscard]] QByteArray frames(int count, int first = 0);

    /// The bytes of the next samples (rounded up to complete frames of the encoder): a tone of 500 Hz and a
    /// quarter of the largest amplitude. The container keeps the last packet until something else is added.
    /// Requires sound.
    [[nodiscard]] QByteArray tone(int samples);

private:
    LiveStream(const VideoFormat *video, const SoundFormat *sound);
    AvPointer<AVCodecContext> addTrack(const char *encoder, const char *options,
                                       const std::function<void(AVCodecContext &)> &set);
    void encode(AVCodecContext &encoder, const AVFrame *frame, int track);
    void fill(AVFrame &frame, const Patches &patches) const;
    QByteArray takeBytes();
    static int write(void *stream, std::uint8_t *bytes, int size);

    AVFormatContext *m_format = nullptr;
    AvPointer<AVIOContext> m_output;
    AvPointer<AVCodecContext> m_videoEncoder;
    AvPointer<AVCodecContext> m_soundEncoder;
    std::int64_t m_frames = 0;
    std::int64_t m_samples = 0;
    QByteArray m_bytes;
    QByteArray m_head;
};

} // namespace sdk::ffmpeg
