// Writes encoded video and sound to a live stream.
#pragma once

#include "sdk/streams/avpointers.h"

#include <array>
#include <cstdint>
#include <utility>
#include <vector>

namespace sdk::streams {

/// AVPacket::stream_index of the packets that a writer takes.
inline constexpr int videoTrack = 0;
inline constexpr int soundTrack = 1;

/// Writes packets to the container of every live stream of this application: unseekable, endless Matroska, in
/// which every packet is complete as soon as it is written. The bytes are kept until takeBytes(). Used by one
/// thread.
class MatroskaWriter
{
public:
    /// The encoding of a track.
    struct Track
    {
        /// Not null; copied by open(). Video needs `width` and `height`. `extradata` has the initialisation
        /// data of the decoder, if the codec has such data.
        const AVCodecParameters *codec = nullptr;
        AVRational frameRate = {0, 1}; ///< in frames per second; 0 if unknown, and for sound
    };

    /// Writes the header, which takeBytes() returns first. `sound` is null for a stream without sound.
    /// Returns null if there is no memory or the container does not support a track.
    [[nodiscard]] static std::unique_ptr<MatroskaWriter> open(const Track &video, const Track *sound);

    /// The same with the parameters of open encoders.
    [[nodiscard]] static std::unique_ptr<MatroskaWriter> open(const AVCodecContext &video,
                                                              const AVCodecContext *sound);
    ~MatroskaWriter();
    MatroskaWriter(const MatroskaWriter &) = delete;
    MatroskaWriter &operator=(const MatroskaWriter &) = delete;

    /// Writes a packet, which stays the caller's. It has `pts`, `time_base` and the `stream_index` of a track
    /// of the writer (videoTrack, or soundTrack if it has sound), and `duration` and the flag of key frames;
    /// `dts` is not used. Frames are in decoding order. The time of a frame may be up to `longestReordering`
    /// before that of an earlier packet of its track; an even earlier time is raised to that limit. The
    /// stream starts with the first key frame of video, at time 0. Packets of both tracks before it, and
    /// packets with an earlier time, are dropped with the result true. Returns false if there is no memory or
    /// FFmpeg refuses the packet.
    [[nodiscard]] bool write(const AVPacket &packet);

    /// Removes and returns the bytes that were written since the last call; empty if there are none.
    [[nodiscard]] std::vector<std::uint8_t> takeBytes() { return std::exchange(m_bytes, {}); }

    static constexpr std::int64_t longestReordering = 1000; ///< milliseconds

private:
    MatroskaWriter() = default;
    [[nodiscard]] bool openContainer();
    [[nodiscard]] bool addTrack(const Track &track);
    [[nodiscard]] bool writeHeader();
    static int append(void *writer, std::uint8_t *bytes, int size);

    std::vector<std::uint8_t> m_bytes;
    AVFormatContext *m_container = nullptr;
    bool m_hasBegun = false;
    std::int64_t m_begin = 0; // time of the first frame, in microseconds
    /// The latest decoding time that was written to each track, in milliseconds.
    std::array<std::int64_t, 2> m_decoding = {-longestReordering, -longestReordering};
};

} // namespace sdk::streams
