// The interface of the decoder library: it decodes live streams to frames and sound.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// DecodedFrameInformation::type.
enum class DecodedFrameType : std::int32_t
{
    Video = 3,   ///< planar YUV 4:2:0, 8 bits: Y, then U and V of half the width and height, rounded up;
                 ///< no padding between lines or planes
    Sound = 101, ///< PCM, 16 bits signed in the byte order of the host, one channel
};

/// The colour space of a frame.
enum class FrameColour : std::int32_t
{
    Bt601Limited = 0, ///< ITU-R BT.601, Y from 16 to 235
    Bt601Full = 1,    ///< Y from 0 to 255
    Bt709Limited = 2, ///< ITU-R BT.709
    Bt709Full = 3,
};

/// The colour space of a frame whose stream does not report one: BT.709 from 720 lines on.
[[nodiscard]] constexpr FrameColour usualFrameColour(std::int32_t height)
{
    return height >= 720 ? FrameColour::Bt709Limited : FrameColour::Bt601Limited;
}

/// Describes a decoded frame or a chunk of sound.
struct DecodedFrameInformation
{
    std::int32_t width;  ///< in pixels, 0 for sound
    std::int32_t height; ///< in pixels, 0 for sound
    std::int32_t reserved;
    DecodedFrameType type;
    std::int32_t rate;  ///< frames per second, 0 if not reported by the stream; samples per second for sound
    FrameColour colour; ///< of a frame; without a meaning for sound
};
static_assert(sizeof(DecodedFrameInformation) == 24);
static_assert(offsetof(DecodedFrameInformation, type) == 12);
static_assert(offsetof(DecodedFrameInformation, rate) == 16);

/// Called with a decoded frame or a chunk of sound (`size` bytes at `data`), on the thread of the port, one
/// call at a time. The bytes of a frame are valid until the port is freed or two more frames of the port have
/// been delivered. The bytes of sound, and `information`, are valid during the call only. `user` is that of
/// DecoderSetDecodeCallback.
using DecodeHandler = void (*)(std::int32_t port, const std::uint8_t *data, std::int32_t size,
                               const DecodedFrameInformation *information, void *user);

/// The file format of DecoderSaveFrame.
enum class SavedImageType : std::int32_t
{
    Jpeg = 3,
};

/// Filled by DecoderGetStatus. DecoderOpenStream clears it: the counters start with 0.
struct DecoderStatus
{
    std::array<char, 16> videoCodec; ///< "H.264", "H.265", "MJPEG"; empty until it is known
    std::array<char, 16> audioCodec; ///< "AAC", "G.711A", "G.711Mu", "PCM"; empty without sound
    std::uint32_t waitingBytes;      ///< received and not yet decoded
    std::uint32_t damages;           ///< number of damaged parts: packets that could not be decoded, bytes
                                     ///< that belong to no stream
    std::uint32_t skippedFrames;     ///< frames of video that were dropped because they were too late
};
static_assert(sizeof(DecoderStatus) == 44);

/// Decodes live streams to frames and sound, one port per live view. The operations of a port are called in
/// this order: alloc, (stream mode, callback), open, play, input..., stop, close, free.
///
/// Operations may be called from any thread. DecoderInputData and DecoderGetStatus may run at the same time
/// as any operation of the port; two others of one port must not run at the same time. No operation on a port
/// may be called from a handler. Operations return false on failure, and always for a port that is not
/// allocated.
class DecoderLibrary
{
public:
    virtual ~DecoderLibrary() = default;

    /// Sets `port` to the number of an allocated port, 0 or higher. Returns false, with `port` unchanged,
    /// when all ports are in use.
    virtual bool DecoderAllocPort(std::int32_t &port) = 0;

    /// To be called before DecoderPlay. `mode` 0 is a real-time stream: frames and sound are delivered as
    /// they arrive, and dropped when they are too late. Returns false for any other mode. Without this call
    /// nothing is dropped as late. The mode stays set until the port is freed.
    virtual bool DecoderSetStreamMode(std::int32_t port, std::uint32_t mode) = 0;

    /// Opens the port for data. `header` of `headerSize` bytes is the header of the stream, and is copied;
    /// null and 0 if the data of DecoderInputData start with it. `bufferSize` is the maximum number of bytes
    /// that wait to be decoded, 1 or more. Returns false for an open port, and for a header beyond
    /// `bufferSize`.
    virtual bool DecoderOpenStream(std::int32_t port, const std::uint8_t *header, std::uint32_t headerSize,
                                   std::uint32_t bufferSize) = 0;

    /// Sets the handler; null removes it. Frames and sound without a handler are dropped. Waits for a running
    /// call: the previous handler does not run after the return.
    virtual bool DecoderSetDecodeCallback(std::int32_t port, DecodeHandler handler, void *user) = 0;

    /// Starts decoding on the thread of the port. `window` is always 0: frames are delivered to the handler
    /// instead of a window. Returns false for a port that is not open or is playing already.
    virtual bool DecoderPlay(std::int32_t port, std::uintptr_t window) = 0;

    /// Copies the next `size` bytes of the stream to the buffer and returns immediately. Chunks may be split
    /// anywhere. Returns false, with no byte copied, when the port is not open or its buffer has no room for
    /// all of them.
    virtual bool DecoderInputData(std::int32_t port, const std::uint8_t *data, std::uint32_t size) = 0;

    /// Ends decoding; the buffered data remain. A further DecoderPlay skips them up to the next header of a
    /// stream. No handler of the port runs after the return. Returns false for a port that is not playing.
    virtual bool DecoderStop(std::int32_t port) = 0;

    /// Ends decoding, as DecoderStop, and discards the buffered data. The port accepts no data until
    /// DecoderOpenStream is called again. Returns false for a port that is not open.
    virtual bool DecoderCloseStream(std::int32_t port) = 0;

    /// Frees the port in any state; an open port is closed first. Its frames become invalid. The number may
    /// be allocated again.
    virtual bool DecoderFreePort(std::int32_t port) = 0;

    /// Fills `status`. May be called at any time between DecoderAllocPort and DecoderFreePort. Before
    /// DecoderOpenStream the status is empty; after DecoderCloseStream it is the last one, with a
    /// `waitingBytes` of 0.
    virtual bool DecoderGetStatus(std::int32_t port, DecoderStatus &status) = 0;

    /// Encodes a frame (its bytes as DecodedFrameType::Video, `width` and `height` in pixels) as an image and
    /// writes it to a file. `fileName` is in the local 8-bit encoding. An existing file is replaced.
    /// `quality` is 1 to 100. `colour` is DecodedFrameInformation::colour of the frame. Needs no port, and
    /// blocks until the file is written. Returns false, with an existing file unchanged, for a null frame,
    /// for a quality out of range, for a width or height of 0 or beyond the limit of the implementation, and
    /// when the file cannot be written.
    virtual bool DecoderSaveFrame(const std::uint8_t *frame, std::int32_t width, std::int32_t height,
                                  SavedImageType type, std::int32_t quality, const char *fileName,
                                  FrameColour colour) = 0;
};

} // namespace sdk
