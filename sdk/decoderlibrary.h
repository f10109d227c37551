// The decoder library's roles: live streams into pictures and sound.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace sdk {

/// DecodedFrameInformation::type.
enum class DecodedFrameType : std::int32_t
{
    Picture = 3, ///< planar YUV 4:2:0, 8 bits: Y, then U and V of half the width and height, rounded up;
                 ///< no padding between lines or planes
    Sound = 101, ///< PCM, 16 bits signed in the byte order of the computer, one channel
};

/// How the values of a picture are to be read.
enum class PictureColour : std::int32_t
{
    Bt601Limited = 0, ///< ITU-R BT.601, Y from 16 to 235
    Bt601Full = 1,    ///< Y from 0 to 255
    Bt709Limited = 2, ///< ITU-R BT.709
    Bt709Full = 3,
};

/// What the values of a picture mean when its stream does not say: BT.709 from 720 lines on.
[[nodiscard]] constexpr PictureColour usualPictureColour(std::int32_t height)
{
    return height >= 720 ? PictureColour::Bt709Limited : PictureColour::Bt601Limited;
}

struct DecodedFrameInformation
{
    std::int32_t width; ///< in pixels, 0 for sound
    std::int32_t height;
    std::int32_t reserved;
    DecodedFrameType type;
    std::int32_t rate;    ///< pictures a second, 0 when the stream does not say; samples a second for sound
    PictureColour colour; ///< of a picture
};
static_assert(sizeof(DecodedFrameInformation) == 24);
static_assert(offsetof(DecodedFrameInformation, type) == 12);
static_assert(offsetof(DecodedFrameInformation, rate) == 16);

/// Called with a decoded picture or a piece of sound, on the port's own thread. The bytes of a picture stay
/// readable until the port is freed or two more pictures of the port have been delivered; those of sound end
/// with the call.
using DecodeHandler = void (*)(std::int32_t port, const std::uint8_t *data, std::int32_t size,
                               const DecodedFrameInformation *information, void *user);

/// What DecoderSaveFrame writes.
enum class SavedPictureType : std::int32_t
{
    Jpeg = 3,
};

/// Filled by DecoderGetStatus.
struct DecoderStatus
{
    std::array<char, 16> videoCodec; ///< "H.264", "H.265", "MJPEG"; empty until a stream has told
    std::array<char, 16> audioCodec; ///< "AAC", "G.711A", "G.711Mu", "PCM"; empty without sound
    std::uint32_t waitingBytes;      ///< taken, and not yet gone through
    std::uint32_t damages;           ///< pieces of the stream that could not be decoded
    std::uint32_t skippedPictures;   ///< left out because they were too late
};
static_assert(sizeof(DecoderStatus) == 44);

/// Decodes live streams into pictures and sound, one port per live view. Operations may be called from any
/// thread, those of one port not at the same time except DecoderInputData and DecoderGetStatus; none may be
/// called from a handler. Every operation on a port that is not allocated fails.
class DecoderLibrary
{
public:
    virtual ~DecoderLibrary() = default;

    /// Gives a port, 0 or higher, in `port`. Returns false, with `port` unchanged, when there is none left.
    virtual bool DecoderAllocPort(std::int32_t &port) = 0;

    /// `mode` 0, to be set before DecoderPlay: a real-time stream, whose pictures and sound are delivered as
    /// they arrive and left out when they are too late. No other mode is used; without it nothing is left
    /// out.
    virtual bool DecoderSetStreamMode(std::int32_t port, std::uint32_t mode) = 0;

    /// Makes the port take data. `header` of `headerSize` bytes is what begins a stream (null, 0: the stream
    /// brings it along). At most `bufferSize` bytes wait to be decoded.
    virtual bool DecoderOpenStream(std::int32_t port, const std::uint8_t *header, std::uint32_t headerSize,
                                   std::uint32_t bufferSize) = 0;

    /// Sets or, by null, removes the handler. After it has returned, the one that was set before runs no
    /// more.
    virtual bool DecoderSetDecodeCallback(std::int32_t port, DecodeHandler handler, void *user) = 0;

    /// Begins to decode. `window` is where to show pictures: always 0, the handler does.
    virtual bool DecoderPlay(std::int32_t port, std::uintptr_t window) = 0;

    /// Takes the next `size` bytes of the stream, cut anywhere, and returns at once. Returns false, with
    /// nothing taken, when the port is not open or its buffer has no room for them.
    virtual bool DecoderInputData(std::int32_t port, const std::uint8_t *data, std::uint32_t size) = 0;

    /// Ends decoding; no handler of the port runs after it has returned.
    virtual bool DecoderStop(std::int32_t port) = 0;

    /// Throws away what waits. The port takes no more data.
    virtual bool DecoderCloseStream(std::int32_t port) = 0;

    /// Gives the port back, in whatever state it is. Its pictures end.
    virtual bool DecoderFreePort(std::int32_t port) = 0;

    /// What the port does; may be asked at any time between DecoderAllocPort and DecoderFreePort.
    virtual bool DecoderGetStatus(std::int32_t port, DecoderStatus &status) = 0;

    /// Writes a picture (its bytes as DecodedFrameType::Picture) to the file of that name in the local 8-bit
    /// encoding, replacing it. `quality` is 1 to 100. `colour` is what the handler was given with the
    /// picture. Returns false for a null picture, a size below 1 or a quality out of its range, and when the
    /// file cannot be written: then what it held is still there.
    virtual bool DecoderSaveFrame(const std::uint8_t *picture, std::int32_t width, std::int32_t height,
                                  SavedPictureType type, std::int32_t quality, const char *fileName,
                                  PictureColour colour) = 0;
};

} // namespace sdk
