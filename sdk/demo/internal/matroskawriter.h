// Puts encoded pictures and sound into a live stream.
#pragma once

#include "sdk/demo/internal/avpointers.h"

#include <cstdint>
#include <utility>

namespace sdk::demo {

/// Belongs to one thread. Makes Matroska that nobody can seek in, every packet whole as soon as it is
/// written.
class MatroskaWriter
{
public:
    /// `sound` is null for a stream without. The header is among the bytes already. Returns null on failure.
    [[nodiscard]] static std::unique_ptr<MatroskaWriter> open(const AVCodecContext &picture,
                                                              const AVCodecContext *sound);
    ~MatroskaWriter();
    MatroskaWriter(const MatroskaWriter &) = delete;
    MatroskaWriter &operator=(const MatroskaWriter &) = delete;

    /// The stream begins with the first picture, at time 0: what comes before it is left out. Returns false
    /// on failure.
    [[nodiscard]] bool write(const AVPacket &packet);

    /// What was written since the last call.
    [[nodiscard]] std::vector<std::uint8_t> takeBytes() { return std::exchange(m_bytes, {}); }

private:
    MatroskaWriter() = default;
    [[nodiscard]] bool openContainer();
    [[nodiscard]] bool addTrack(const AVCodecContext &encoder);
    [[nodiscard]] bool writeHeader();
    static int append(void *writer, std::uint8_t *bytes, int size);

    std::vector<std::uint8_t> m_bytes;
    AVFormatContext *m_container = nullptr;
    bool m_hasBegun = false;
    std::int64_t m_begin = 0; // time of the first picture, in microseconds
};

} // namespace sdk::demo
