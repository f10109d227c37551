// Writes encoded video and sound to a live stream.
#pragma once

#include "sdk/streams/avpointers.h"

#include <array>
#include <cstdint>
#include <utility>
#include <vector>

namespace sdk::streams {

/// AVPacket::stream_index of the packets of a writer.
inline constexpr int videoTrack = 0;
inline constexpr int soundTrack = 1;

/// The container of every live stream of this application: unseekable, endless Matroska, in which every
/// packet is complete as soon as it is written. Used by one thread.
class MatroskaWriter
{
public:
    /// The encoding of a track. A video track needs its frame size; `extradata` has the decoder's
    /// initialisation data.
    struct Track
    {
        const AVCodecParameters *codec = nullptr;
        AVRational frameRate = {0, 1}; ///< 0 if unknown
    };

    /// `sound` is null for a stream without sound. The header is available by takeBytes() immediately.
    /// Returns null on failure.
    [[nodiscard]] static std::unique_ptr<MatroskaWriter> open(const Track &video, const Track *sound);

    /// The same with the parameters of encoders.
    [[nodiscard]] static std::unique_ptr<MatroskaWriter> open(const AVCodecContext &video,
                                                              const AVCodecContext *sound);
    ~MatroskaWriter();
    MatroskaWriter(const MatroskaWriter &) = delete;
    MatroskaWriter &operator=(const MatroskaWriter &) = delete;

    /// Writes a packet in its AVPacket::time_base. Frames are in decoding order; their presentation times may
    /// step back by up to `longestReordering`. The stream starts with the first key frame, at time 0: packets
    /// before it are dropped. Returns false on failure.
    [[nodiscard]] bool write(const AVPacket &packet);

    /// The bytes that were written since the last call.
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
