// A port of the decoder (the decoder of one stream) that counts its frames.
#pragma once

#include "sdk/ffmpeg/ffmpegdecoderlibrary.h"

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <span>

/// Opens and plays a port of a separate decoder library, with a buffer of 8 MiB for bytes that are not
/// decoded yet. The destructor frees the port. One thread calls push(), the same or another one waitFor();
/// frames are decoded and counted on a thread of the port.
class DecodingPort
{
public:
    DecodingPort();
    ~DecodingPort();
    DecodingPort(const DecodingPort &) = delete;
    DecodingPort &operator=(const DecodingPort &) = delete;

    /// Adds the next bytes of the stream, not more than the buffer. Blocks while the port's buffer is full,
    /// and without end if the port could not be opened.
    void push(std::span<const std::uint8_t> bytes);

    /// Blocks until at least `frames` frames were decoded since the construction, up to two minutes. Returns
    /// without an error after that time.
    void waitFor(int frames);

private:
    static void count(std::int32_t port, const std::uint8_t *data, std::int32_t size,
                      const sdk::DecodedFrameInformation *information, void *user);

    std::mutex m_mutex;
    std::condition_variable m_changed;
    int m_frames = 0;
    sdk::ffmpeg::FfmpegDecoderLibrary m_library;
    std::int32_t m_port = -1;
};
