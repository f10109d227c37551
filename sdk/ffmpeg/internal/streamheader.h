// Finds headers in the bytes of live streams, across the boundaries of chunks.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace sdk::ffmpeg {

/// Finds EBML headers, the first element of every Matroska stream, with the document type "matroska" or
/// "webm". A header with more than 1024 bytes of content is not found. Not thread-safe.
class StreamHeaderFinder
{
public:
    /// Searches `bytes`, which follow the bytes of the last call. Returns the number of bytes up to the end
    /// of the first header that ends in `bytes`, and does not search the bytes after it: the next call starts
    /// with them. Returns nullopt if no header ends in `bytes`. The header may start in the bytes of earlier
    /// calls.
    [[nodiscard]] std::optional<std::size_t> find(std::span<const std::uint8_t> bytes);

    /// The complete bytes of the last header that find() has found; empty before the first one.
    [[nodiscard]] const std::vector<std::uint8_t> &header() const { return m_header; }

private:
    void addToCandidate(std::uint8_t byte);
    void keepEnd();

    std::vector<std::uint8_t> m_candidate; // the latest bytes that may be the start of a header
    std::vector<std::uint8_t> m_header;
};

} // namespace sdk::ffmpeg
