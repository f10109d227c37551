// Puts encoded pictures and sound into a live stream.
#pragma once

#include "sdk/streams/avpointers.h"

#include <array>
#include <cstdint>
#include <utility>
#include <vector>

namespace sdk::streams {

/// AVPacket::stream_index of what a writer takes.
inline constexpr int pictureTrack = 0;
inline constexpr int soundTrack = 1;

/// The container of every live stream of this program: Matroska that nobody can seek in and that has no end,
/// every packet whole as soon as it is written. Belongs to one thread.
class MatroskaWriter
{
public:
    /// How a track is encoded. Pictures need their size; what a decoder must know beforehand is `extradata`.
    struct Track
    {
        const AVCodecParameters *codec = nullptr;
        AVRational pictureRate = {0, 1}; ///< 0 when it is not known
    };

    /// `sound` is null for a stream without. The header is among the bytes already. Returns null on failure.
    [[nodiscard]] static std::unique_ptr<MatroskaWriter> open(const Track &picture, const Track *sound);

    /// The same for what encoders make.
    [[nodiscard]] static std::unique_ptr<MatroskaWriter> open(const AVCodecContext &picture,
                                                              const AVCodecContext *sound);
    ~MatroskaWriter();
    MatroskaWriter(const MatroskaWriter &) = delete;
    MatroskaWriter &operator=(const MatroskaWriter &) = delete;

    /// Writes a packet in its AVPacket::time_base. Pictures come in the order of decoding; their times of
    /// presentation may step back by up to `longestReordering`. The stream begins with the first key picture,
    /// at time 0: what comes before it is left out. Returns false on failure.
    [[nodiscard]] bool write(const AVPacket &packet);

    /// What was written since the last call.
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
    std::int64_t m_begin = 0; // time of the first picture, in microseconds
    /// The latest time of decoding that was written to each track, in milliseconds.
    std::array<std::int64_t, 2> m_decoding = {-longestReordering, -longestReordering};
};

} // namespace sdk::streams
