// Marks in the bytes of a live stream, found however the bytes are cut.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace sdk::ffmpeg {

/// Finds the header that every Matroska stream begins with: that of EBML, with its type of document.
class StreamHeaderFinder
{
public:
    /// Looks at the next bytes up to the end of the first header that ends in them. Returns how many that
    /// were, or nothing when none ends there.
    [[nodiscard]] std::optional<std::size_t> find(std::span<const std::uint8_t> bytes);

    /// The header that was found last.
    [[nodiscard]] const std::vector<std::uint8_t> &header() const { return m_header; }

private:
    void addToCandidate(std::uint8_t byte);
    void keepEnd();

    std::vector<std::uint8_t> m_candidate; // the latest bytes, as far as they may begin a header
    std::vector<std::uint8_t> m_header;
};

/// Finds the identifier of a cluster, the piece of a stream that can be read without those before it.
class ClusterFinder
{
public:
    static constexpr std::size_t identifierSize = 4;

    /// The identifier's bytes in their order.
    [[nodiscard]] static std::span<const std::uint8_t, identifierSize> identifier();

    /// As StreamHeaderFinder::find().
    [[nodiscard]] std::optional<std::size_t> find(std::span<const std::uint8_t> bytes);

    void reset() { m_latest = 0; }

private:
    std::uint32_t m_latest = 0; // the latest four bytes
};

} // namespace sdk::ffmpeg
