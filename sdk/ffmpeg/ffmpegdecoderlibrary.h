// The decoder library on FFmpeg.
#pragma once

#include "sdk/clock.h"
#include "sdk/decoderlibrary.h"

#include <map>
#include <memory>
#include <mutex>

namespace sdk::ffmpeg {

class DecoderPort;

/// Decodes live Matroska streams: video in H.264, H.265 and MJPEG, audio in G.711, AAC and 16-bit PCM. A
/// stream starts with its header. A further header starts another stream, which may have another size and
/// encoding. Damaged data is dropped and counted in DecoderStatus::damages. Frames are delivered one by one
/// as they arrive. A frame with a side over 8192 pixels or more than 8192 x 4320 pixels counts as damaged;
/// for DecoderSaveFrame it is out of range.
///
/// A port with DecoderSetStreamMode does not fall behind. Frames and sound that arrived more than 250 ms ago
/// are dropped up to the newest key frame. Without a key frame, a port that is more than 100 ms late omits
/// some frames, and one that is more than 400 ms late may drop all frames up to the next key frame.
///
/// A port has one thread, from DecoderPlay to DecoderStop. There are up to 512 ports. A thread that runs a
/// DecodeHandler of any port cannot use ports: every function with the number of a port returns false there.
/// The first library redirects FFmpeg's log to the logging category "configtools.sdk.ffmpeg" for the complete
/// process.
class FfmpegDecoderLibrary final : public DecoderLibrary
{
public:
    /// `clock` times the input of ports and measures the delay of their frames; not null. Tests use a clock
    /// that they step.
    explicit FfmpegDecoderLibrary(std::shared_ptr<const Clock> clock = std::make_shared<SystemClock>());

    /// Frees all ports, and waits for their threads. Must not run in a DecodeHandler.
    ~FfmpegDecoderLibrary() override;

    FfmpegDecoderLibrary(const FfmpegDecoderLibrary &) = delete;
    FfmpegDecoderLibrary &operator=(const FfmpegDecoderLibrary &) = delete;

    bool DecoderAllocPort(std::int32_t &port) override;
    bool DecoderSetStreamMode(std::int32_t port, std::uint32_t mode) override;
    bool DecoderOpenStream(std::int32_t port, const std::uint8_t *header, std::uint32_t headerSize,
                           std::uint32_t bufferSize) override;
    bool DecoderSetDecodeCallback(std::int32_t port, DecodeHandler handler, void *user) override;
    bool DecoderPlay(std::int32_t port, std::uintptr_t window) override;
    bool DecoderInputData(std::int32_t port, const std::uint8_t *data, std::uint32_t size) override;
    bool DecoderStop(std::int32_t port) override;
    bool DecoderCloseStream(std::int32_t port) override;
    bool DecoderFreePort(std::int32_t port) override;
    bool DecoderGetStatus(std::int32_t port, DecoderStatus &status) override;
    bool DecoderSaveFrame(const std::uint8_t *frame, std::int32_t width, std::int32_t height,
                          SavedImageType type, std::int32_t quality, const char *fileName,
                          FrameColour colour) override;

private:
    /// Null for a number that is not allocated, and on a thread that runs a DecodeHandler.
    [[nodiscard]] std::shared_ptr<DecoderPort> portOf(std::int32_t number) const;

    const std::shared_ptr<const Clock> m_clock;
    mutable std::mutex m_mutex; // guards m_ports
    std::map<std::int32_t, std::shared_ptr<DecoderPort>> m_ports;
};

} // namespace sdk::ffmpeg
