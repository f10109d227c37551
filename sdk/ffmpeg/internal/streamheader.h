// Finds headers in the bytes of live streams, across the boundaries of chunks.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace sdk::ffmpeg {

/// Finds the EBML header with a Matroska document type, the start of every stream.
class StreamHeaderFinder
{
public:
    /// Searches the next bytes up to the end of the first header. Returns the number of bytes up to its end,
    /// or nullopt if no header ends in them.
    [[nodiscard]] std::optional<std::size_t> find(std::span<const std::uint8_t> bytes);

    /// The last found header.
    [[nodiscard]] const std::vector<std::uint8_t> &header() const { return m_header; }

private:
    void addToCandidate(std::uint8_t byte);
    void keepEnd();

    std::vector<std::uint8_t> m_candidate; // the latest bytes that may be the start of a header
    std::vector<std::uint8_t> m_header;
};

} // namespace sdk::ffmpeg
